#include "traffic/Sentence.h"

#include "traffic/ShownText.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

constexpr int cLongestText = 160;
constexpr int cLongestItem = 40;
constexpr int cMostItems = 20;

QVariant shortened(const QVariant &value)
{
    if (value.type() == QVariant::String) {
        return ShownText::plain(value.toString(), cLongestText);
    }
    if (value.type() != QVariant::StringList) {
        return value;
    }
    const QStringList all = value.toStringList();
    QStringList items;
    for (const QString &item : all.mid(0, cMostItems)) {
        items << ShownText::plain(item, cLongestItem);
    }
    if (all.size() > cMostItems) {
        items << QChar(0x2026) + QStringLiteral(" +%1").arg(all.size() - cMostItems);
    }
    return items;
}

QString orDash(const QString &strText)
{
    return strText.isEmpty() ? QString(QChar(0x2014)) : strText;
}

} // namespace

Sentence::Sentence(const char *context, const SentenceForm &form, const QVariantList &values)
    : m_context(context), m_form(&form)
{
    for (const QVariant &value : values) {
        m_values.append(shortened(value));
    }
}

QString Sentence::text() const
{
    if (m_form == nullptr) {
        return QString();
    }
    const QString form = QCoreApplication::translate(m_context, m_form->text);
    QString result;
    for (int i = 0; i < form.size(); ++i) {
        const bool place = form.at(i) == QLatin1Char('%') && i + 1 < form.size() && form.at(i + 1).isDigit();
        if (place) {
            result += value(form.at(++i).digitValue());
        } else {
            result += form.at(i);
        }
    }
    return result + m_strTail;
}

QString Sentence::value(int iNumber) const
{
    const QVariant found = m_values.value(iNumber - 1);
    switch (found.type()) {
    case QVariant::Bool:
        return choice(iNumber, found.toBool());
    case QVariant::StringList: {
        const QStringList items = found.toStringList();
        return items.isEmpty() ? QCoreApplication::translate("Sentence", "nobody") : items.join(QStringLiteral(", "));
    }
    default:
        return orDash(found.toString());
    }
}

QString Sentence::choice(int iNumber, bool bYes) const
{
    for (const SentenceChoice &row : {m_form->first, m_form->second}) {
        if (row.value == iNumber) {
            return QCoreApplication::translate(m_context, bYes ? row.yes : row.no);
        }
    }
    return bYes ? QCoreApplication::translate("Sentence", "yes") : QCoreApplication::translate("Sentence", "no");
}
