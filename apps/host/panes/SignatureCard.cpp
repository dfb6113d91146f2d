#include "panes/SignatureCard.h"

#include "ui_SignatureCard.h"

#include "client/ContactBook.h"
#include "client/HostPictures.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

constexpr int cHeadSize = 48;
constexpr int cGap = 8;
// A card stays a card whatever people write about themselves.
constexpr int cLongestText = 120;

QString shortened(const QString &strText)
{
    return strText.size() > cLongestText ? strText.left(cLongestText) + QChar(0x2026) : strText;
}

/// Where the card stands beside the list, whole on the screen if the screen has room for it at all.
QPoint cardPlace(const QSize &card, const QPoint &place, int iListWidth, const QRect &screen)
{
    int x = place.x() - cGap - card.width();
    if (x < screen.left()) {
        x = place.x() + iListWidth + cGap;
    }
    return {qMax(screen.left(), qMin(x, screen.right() + 1 - card.width())),
            qMax(screen.top(), qMin(place.y(), screen.bottom() + 1 - card.height()))};
}

} // namespace

SignatureCard::SignatureCard(const ContactBook &book, QWidget *parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput),
      ui(std::make_unique<Ui::SignatureCard>()), m_book(book)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
}

SignatureCard::~SignatureCard() = default;

void SignatureCard::showCard(const QString &strJid, const QPoint &place, int iListWidth)
{
    const QString uid = ContactBook::uidOf(strJid);
    const QString name = m_book.nameOf(uid);
    const QString signature = m_book.card(uid)->m_strSignature;
    ui->lblHead->setPixmap(
        HostPictures::head(name, uid, cHeadSize, m_book.presenceOf(uid), m_book.card(uid)->m_strPhotoPath));
    ui->lblName->setText(shortened(name));
    ui->lblSignature->setText(signature.isEmpty() ? tr("(no signature)") : shortened(signature));
    adjustSize();
    move(cardPlace(size(), place, iListWidth, QGuiApplication::primaryScreen()->availableGeometry()));
    show();
    raise();
}
