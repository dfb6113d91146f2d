#include "IncomingPrompt.h"
#include "ui_IncomingPrompt.h"

#include "ContactBook.h"
#include "HostPictures.h"

#include <QGuiApplication>
#include <QScreen>

IncomingPrompt::IncomingPrompt(const ContactBook &book, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowStaysOnTopHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      ui(std::make_unique<Ui::IncomingPrompt>()), m_book(book)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_ShowWithoutActivating);
    connect(ui->btnAccept, &QPushButton::clicked, this, [this] { answer(true); });
    connect(ui->btnReject, &QPushButton::clicked, this, [this] { answer(false); });
}

IncomingPrompt::~IncomingPrompt() = default;

void IncomingPrompt::prompt(const QString &strUid, bool bConference, bool bVideo)
{
    m_strUid = strUid;
    const QString name = m_book.nameOf(strUid);
    ui->lblHead->setPixmap(HostPictures::head(name, strUid, 56, true, m_book.card(strUid)->m_strPhotoPath));
    ui->lblName->setText(name);
    ui->lblKind->setText(bConference ? tr("invites you to a conference")
                         : bVideo    ? tr("video call")
                                     : tr("is calling you"));
    adjustSize();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    constexpr int gap = 24;
    move(screen.right() - width() - gap, screen.bottom() - height() - 2 * gap);
    show();
    raise();
}

void IncomingPrompt::withdraw(const QString &strUid)
{
    if (strUid == m_strUid) {
        hide();
    }
}

void IncomingPrompt::reject()
{
    if (isVisible()) {
        answer(false);
    }
}

void IncomingPrompt::answer(bool bAccept)
{
    hide();
    emit answered(m_strUid, bAccept);
}
