#include "panes/IncomingPrompt.h"

#include "ui_IncomingPrompt.h"

#include "client/ContactBook.h"
#include "client/HostPictures.h"
#include "panes/OverModal.h"

#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>

namespace {

/// Whether the next key is meant for something else than a prompt that comes up now.
bool isUserBusy()
{
    const QWidget *focus = QApplication::focusWidget();
    const auto *edit = qobject_cast<const QLineEdit *>(focus);
    return QApplication::activeWindow() == nullptr || QApplication::activeModalWidget() != nullptr ||
           (edit != nullptr && !edit->text().isEmpty());
}

} // namespace

IncomingPrompt::IncomingPrompt(const ContactBook &book, WindowPlace::Side side, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowStaysOnTopHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      ui(std::make_unique<Ui::IncomingPrompt>()), m_book(book), m_side(side)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_QuitOnClose, false);
    connect(ui->btnAccept, &QPushButton::clicked, this, [this] { answer(true); });
    connect(ui->btnReject, &QPushButton::clicked, this, [this] { answer(false); });
    new OverModal(this);
    // The prompt's own: a shortcut of another window would fall silent while a dialog is modal.
    auto *shortcut = new QShortcut(Qt::CTRL + Qt::Key_I, this);
    shortcut->setContext(Qt::ApplicationShortcut);
    connect(shortcut, &QShortcut::activated, this, &IncomingPrompt::enter);
}

IncomingPrompt::~IncomingPrompt() = default;

void IncomingPrompt::prompt(const QString &strUid, bool bConference, bool bVideo)
{
    m_strUid = strUid;
    m_bConference = bConference;
    m_bVideo = bVideo;
    const QString name = m_book.nameOf(strUid);
    ui->lblHead->setPixmap(
        HostPictures::head(name, strUid, 56, m_book.presenceOf(strUid), m_book.card(strUid)->m_strPhotoPath));
    ui->lblName->setText(name);
    showWords();
    adjustSize();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect room = WindowPlace::part(screen, m_side);
    constexpr int gap = 24;
    const QPoint corner(room.right() - width() - gap, room.bottom() - height() - 2 * gap);
    // On a small screen it is wider than half of it.
    move(WindowPlace::fit({corner, size()}, {screen}).topLeft());
    const bool bTakesKeys = !isUserBusy();
    setAttribute(Qt::WA_ShowWithoutActivating, !bTakesKeys);
    ui->btnAccept->setFocus();
    show();
    raise();
    if (bTakesKeys) {
        activateWindow();
    }
    emit prompted();
}

QString IncomingPrompt::caller() const
{
    return ui->lblName->text();
}

QString IncomingPrompt::kind() const
{
    return ui->lblKind->text();
}

void IncomingPrompt::showWords()
{
    ui->lblKind->setText(m_bConference ? tr("invites you to a conference")
                         : m_bVideo    ? tr("video call")
                                       : tr("is calling you"));
    setAccessibleName(ui->lblName->text() + QLatin1Char(' ') + ui->lblKind->text());
}

void IncomingPrompt::enter()
{
    if (isVisible()) {
        raise();
        activateWindow();
        ui->btnAccept->setFocus();
    }
}

void IncomingPrompt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showWords();
    }
    QDialog::changeEvent(event);
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
