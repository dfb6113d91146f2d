#pragma once

#include <QString>
#include <QVariant>

/// What a yes-or-no value reads as in a sentence.
struct SentenceChoice
{
    int value; ///< number of the value, from 1; 0 for no choice
    const char *yes;
    const char *no;
};

/// One row of a catalogue of sentences: a key of the translations in which "%1", "%2"... stand for the values, in any
/// order and number.
struct SentenceForm
{
    const char *text;
    SentenceChoice first = {0, nullptr, nullptr};
    SentenceChoice second = {0, nullptr, nullptr};
};

/// Something that happened, ready to be said in whatever language is set at that time. Its values may come from
/// outside: they are shortened, and nothing in them is taken for a place of another value.
class Sentence
{
public:
    Sentence() = default;

    /// `context` is the translations' context of the form's texts; form and context must outlive the sentence. Values
    /// are truth values, texts, lists of texts and whole numbers.
    Sentence(const char *context, const SentenceForm &form, const QVariantList &values);

    /// Appended to the text, the same in every language.
    void setNumber(int iNumber) { m_strTail = QStringLiteral(" (%1)").arg(iNumber); }

    /// The sentence in words; a value that is missing or empty reads "—", an empty list "nobody".
    QString text() const;

private:
    QString value(int iNumber) const;
    QString choice(int iNumber, bool bYes) const;

    const char *m_context = nullptr;
    const SentenceForm *m_form = nullptr;
    QVariantList m_values;
    QString m_strTail;
};
