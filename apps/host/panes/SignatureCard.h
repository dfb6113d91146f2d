#pragma once

#include <QWidget>

#include <memory>

class ContactBook;

namespace Ui {
class SignatureCard;
}

/// The signature-list plug-in's card: head, name and signature of a person, beside the list that asks for it. It takes
/// neither the focus nor the mouse. GUI thread; the contact book must outlive it.
class SignatureCard : public QWidget
{
    Q_OBJECT

public:
    explicit SignatureCard(const ContactBook &book, QWidget *parent = nullptr);
    ~SignatureCard() override;

    /// Shows the card of `strJid` beside a list whose left edge is at `place` on the screen and that is `iListWidth`
    /// wide: on its left, on its right where the screen has no room there. A card that is up changes over.
    void showCard(const QString &strJid, const QPoint &place, int iListWidth);

private:
    std::unique_ptr<Ui::SignatureCard> ui;
    const ContactBook &m_book;
};
