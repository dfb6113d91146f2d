#include "panes/MainWindow.h"
#include "ui_MainWindow.h"

#include "client/ContactBook.h"
#include "client/HostPictures.h"
#include "client/HostSession.h"
#include "client/HostSkins.h"
#include "happenings/HappeningsDock.h"
#include "happenings/HappeningsPanel.h"
#include "happenings/TraceFolder.h"
#include "panes/MemberPicker.h"
#include "panes/OverModal.h"
#include "panes/WindowPlace.h"
#include "screen/WindowProbe.h"

#include <QCloseEvent>
#include <QScrollArea>
#include <QShortcut>

MainWindow::MainWindow(HostSession &session, const ContactBook &book)
    : ui(std::make_unique<Ui::MainWindow>()), m_session(session), m_book(book), m_records(book), m_prompt(book),
      m_signature(book), m_settingsPage(session.settings())
{
    ui->setupUi(this);
    fillHeader();
    ui->contactPane->fill(m_book);
    ui->callsPane->setModel(&m_records);
    setUpPlace();
    setUpHappenings();
    connectParts();
    connectSession();
    takeSkin();
    showNotice();
    showOnline(m_session.isOnline());
    ui->contactPane->startSearch();
}

MainWindow::~MainWindow() = default;

void MainWindow::fillHeader()
{
    ui->lblOwnName->setText(m_book.nameOf(ContactBook::ownUid()));
    ui->lblOwnUid->setText(ContactBook::ownUid());
}

void MainWindow::connectParts()
{
    connect(ui->btnSettings, &QPushButton::clicked, &m_settingsPage, &SettingsPage::open);
    connect(ui->btnOnline, &QPushButton::clicked, this, [this](bool bChecked) { m_session.setOnline(bChecked); });
    connect(ui->btnTryStore, &QPushButton::clicked, this, &MainWindow::tryStoreAgain);
    connect(ui->contactPane, &ContactPane::callWanted, this, &MainWindow::call);
    connect(ui->contactPane, &ContactPane::conferenceWanted, this, [this] { startConference(QStringList()); });
    connect(ui->callsPane, &CallsPane::callWanted, this, &MainWindow::call);
    connect(ui->callsPane, &CallsPane::centreWanted, &m_session, &HostSession::showConferenceCentre);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, ui->contactPane, &ContactPane::startSearch);
}

void MainWindow::takeSkin()
{
    HostSkins::dress(this);
    ui->contactPane->takeSkin();
}

void MainWindow::setUpPlace()
{
    // On a screen that is smaller than what stands in the window, that is scrolled.
    auto *whole = new QScrollArea(this);
    whole->setObjectName(QStringLiteral("whole"));
    whole->setWidgetResizable(true);
    whole->setFocusPolicy(Qt::NoFocus);
    QWidget *content = takeCentralWidget();
    whole->setWidget(content);
    setCentralWidget(whole);
    const QSize screen = WindowPlace::insides().value(0).size();
    whole->setMinimumWidth(qMin(content->minimumSizeHint().width(), screen.width()));
    m_pPlace = new WindowPlace(this, QLatin1String(WindowPlace::cMainKey));
}

void MainWindow::setUpHappenings()
{
    auto *panel = new HappeningsPanel(m_session, TraceFolder::file(), this);
    m_pHappenings = new HappeningsDock(panel, this);
    ui->happeningsButton->setText(panel->windowTitle());
    connect(panel, &QWidget::windowTitleChanged, ui->happeningsButton, &QAbstractButton::setText);
    connect(ui->happeningsButton, &QAbstractButton::toggled, m_pHappenings, &HappeningsDock::setShown);
    // Its own cross closes it, too; a window that is hidden as a whole does not. Queued: it hides for a moment while it
    // is taken out of this window.
    connect(
        m_pHappenings, &QDockWidget::visibilityChanged, this,
        [this] {
            if (!isHidden()) {
                ui->happeningsButton->setChecked(!m_pHappenings->isHidden());
            }
        },
        Qt::QueuedConnection);
    const auto *shortcut = new QShortcut(Qt::CTRL + Qt::SHIFT + Qt::Key_H, this);
    connect(shortcut, &QShortcut::activated, ui->happeningsButton, &QAbstractButton::toggle);
}

void MainWindow::connectSession()
{
    HostMailbox &mailbox = m_session.mailbox();
    connect(&m_session, &HostSession::onlineChanged, this, &MainWindow::showOnline);
    connect(&m_session.settings(), &HostSettings::skinChanged, this, &MainWindow::takeSkin);
    connect(&mailbox, &HostMailbox::callFinished, this, &MainWindow::showRecord);
    connect(&mailbox, &HostMailbox::callIncoming, this, [this](const QString &strUid, bool bConference, bool bVideo) {
        statusBar()->showMessage(tr("%1 is calling").arg(m_book.nameOf(strUid)));
        m_prompt.prompt(strUid, bConference, bVideo);
    });
    connect(&mailbox, &HostMailbox::promptWithdrawn, &m_prompt, &IncomingPrompt::withdraw);
    connect(&m_prompt, &IncomingPrompt::answered, this, [this](const QString &strUid, bool bAccept) {
        const QString name = m_book.nameOf(strUid);
        statusBar()->showMessage(bAccept ? tr("Call of %1 accepted").arg(name) : tr("Call of %1 rejected").arg(name));
        if (bAccept) {
            // The call is answered over what is open, so it must be ended over that, too.
            OverModal::liftOverCurrent(WindowProbe::callWindow());
        }
        m_session.answerCall(bAccept);
    });
    connect(&mailbox, &HostMailbox::conferenceWanted, this, &MainWindow::startConference);
    connect(&mailbox, &HostMailbox::signatureShown, &m_signature, &SignatureCard::showCard);
    connect(&mailbox, &HostMailbox::signatureHidden, &m_signature, &QWidget::hide);
    mailbox.setMemberPicker(
        [this](const QStringList &present) { return MemberPicker::pickMore(m_book, present, this); });
}

void MainWindow::call(const QString &strUid, bool bVideo)
{
    statusBar()->showMessage(tr("Calling %1").arg(m_book.nameOf(strUid)));
    m_session.callUser(strUid, bVideo);
}

void MainWindow::startConference(const QStringList &named)
{
    if (const std::optional<ConferenceWish> wish = MemberPicker::pickNew(m_book, named, this)) {
        statusBar()->showMessage(tr("Starting a conference with %n other(s)", nullptr, wish->uids.size()));
        m_session.callConference(*wish);
    }
}

void MainWindow::showOnline(bool bOnline)
{
    const QString name = m_book.nameOf(ContactBook::ownUid());
    ui->lblOwnHead->setPixmap(HostPictures::head(name, ContactBook::ownUid(), 44,
                                                 bOnline ? Presence::Online : Presence::Offline,
                                                 m_book.card(ContactBook::ownUid())->m_strPhotoPath));
    ui->btnOnline->setChecked(bOnline);
    ui->btnOnline->setText(bOnline ? tr("&Online") : tr("&Offline"));
    statusBar()->showMessage(bOnline ? tr("Signed in as %1").arg(name) : tr("Signed out"));
}

void MainWindow::showNotice()
{
    const QStringList &reports = m_session.store().reports();
    ui->lblNotice->setText(reports.join(QLatin1Char('\n')));
    ui->notice->setVisible(!reports.isEmpty());
    ui->btnTryStore->setVisible(m_session.store().isHeldByAnother());
}

void MainWindow::tryStoreAgain()
{
    m_session.openStore();
    showNotice();
    if (m_session.store().reports().isEmpty()) {
        statusBar()->showMessage(tr("The local store is open"));
    }
}

void MainWindow::showRecord(const CallRecord &record)
{
    m_records.add(record);
    const QString name = m_book.nameOf(record.uid);
    const QString outcome = outcomeWord(record.result);
    statusBar()->showMessage(record.connected
                                 ? tr("Call with %1: %2 after %3").arg(name, outcome, durationText(record.seconds))
                                 : tr("Call with %1: %2").arg(name, outcome));
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showOnline(m_session.isOnline());
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_prompt.hide();
    m_signature.hide();
    m_settingsPage.hide();
    m_pPlace->remember(m_pHappenings->grown());
    m_session.quit();
    QMainWindow::closeEvent(event);
}
