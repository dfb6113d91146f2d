#include "panes/MainWindow.h"

#include "ui_MainWindow.h"

#include "client/ContactBook.h"
#include "client/HostPictures.h"
#include "client/HostSkins.h"
#include "happenings/HappeningsPanel.h"
#include "panes/CallServiceBar.h"
#include "panes/HappeningsDock.h"
#include "panes/MemberPicker.h"
#include "panes/OverModal.h"
#include "panes/QuitQuestion.h"
#include "panes/WayToCall.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"
#include "traffic/TraceFolder.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QScrollArea>
#include <QShortcut>

MainWindow::MainWindow(HostSession &session, const ContactBook &book, WindowPlace::Side side)
    : ui(std::make_unique<Ui::MainWindow>()), m_session(session), m_book(book), m_status(*this, session.calls(), book),
      m_prompt(book, side), m_promptNotice(m_prompt), m_signature(book), m_videoCard(book), m_callWindowSide(side),
      m_settingsPage(session.settings())
{
    ui->setupUi(this);
    // The call window is in front when a tip has to say why nobody else can be called.
    setAttribute(Qt::WA_AlwaysShowToolTips);
    fillHeader();
    ui->contactPane->fill(m_book);
    ui->callsPane->show(&m_session.history(), &m_book);
    setUpPlace(side);
    setUpHappenings();
    setUpCallService();
    m_settingsPage.addSound(m_session.sound(), m_session.callService());
    m_settingsPage.addKeys(m_promptKey);
    connectParts();
    connectSession();
    connectCalls();
    takeSkin();
    showNotice();
    showOnline(m_session.isOnline());
    ui->contactPane->startSearch();
}

MainWindow::~MainWindow() = default;

void MainWindow::fillHeader()
{
    ui->lblOwnName->setText(m_book.nameOf(m_book.ownUid()));
    ui->lblOwnUid->setText(m_book.ownUid());
    setWindowTitle(QStringLiteral("%1 (%2) - %3").arg(ui->lblOwnName->text(), m_book.ownUid(), tr("KelvarIM demo")));
}

void MainWindow::connectParts()
{
    connect(ui->btnSettings, &QPushButton::clicked, &m_settingsPage, &SettingsPage::open);
    connect(ui->btnOnline, &QPushButton::clicked, this, [this](bool bChecked) { m_session.setOnline(bChecked); });
    connect(ui->btnTryStore, &QPushButton::clicked, this, &MainWindow::tryStoreAgain);
    connect(ui->contactPane, &ContactPane::callWanted, this, &MainWindow::call);
    connect(ui->contactPane, &ContactPane::conferenceWanted, this, [this] { startConference(QStringList(), false); });
    connect(ui->callsPane, &CallsPane::callWanted, this, &MainWindow::call);
    connect(ui->callsPane, &CallsPane::conferenceWanted, this,
            [this](const QStringList &uids) { startConference(uids, false); });
    connect(ui->callsPane, &CallsPane::refused, &m_status, &CallStatusLine::say);
    connect(ui->callsPane, &CallsPane::centreWanted, &m_session, &HostSession::showConferenceCentre);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, ui->contactPane, &ContactPane::startSearch);
}

void MainWindow::takeSkin()
{
    HostSkins::dress(this);
    ui->contactPane->takeSkin();
}

void MainWindow::setUpPlace(WindowPlace::Side side)
{
    // On a screen that is smaller than what stands in the window, that is scrolled.
    auto *whole = new QScrollArea(this);
    whole->setObjectName(QStringLiteral("whole"));
    whole->setWidgetResizable(true);
    whole->setFocusPolicy(Qt::NoFocus);
    QWidget *content = takeCentralWidget();
    whole->setWidget(content);
    setCentralWidget(whole);
    const QSize inside = WindowPlace::part(WindowPlace::insides().value(0), side).size();
    whole->setMinimumWidth(qMin(content->minimumSizeHint().width(), inside.width()));
    m_pPlace = new WindowPlace(this, QLatin1String(WindowPlace::cMainKey), side);
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
    connect(&m_session, &HostSession::strangerMet, this,
            [this](const QString &strUid) { ui->contactPane->showPerson(*m_book.entry(strUid)); });
    connect(&m_session.settings(), &HostSettings::skinChanged, this, &MainWindow::takeSkin);
    connect(&mailbox, &HostMailbox::callIncoming, &m_prompt, &IncomingPrompt::prompt);
    connect(&m_promptKey, &PromptKey::pressed, &m_prompt, &IncomingPrompt::enter);
    m_promptKey.start();
    connect(&mailbox, &HostMailbox::promptWithdrawn, &m_prompt, &IncomingPrompt::withdraw);
    connect(&m_prompt, &IncomingPrompt::answered, this, [this](const QString &strUid, bool bAccept) {
        m_status.hold([this, strUid, bAccept] {
            return (bAccept ? tr("Call of %1 accepted") : tr("Call of %1 rejected")).arg(m_book.nameOf(strUid));
        });
        if (bAccept) {
            // The call is answered over what is open, so it must be ended over that, too.
            OverModal::liftOverCurrent(WindowProbe::callWindow());
        }
        m_session.answerCall(bAccept);
    });
    connect(&mailbox, &HostMailbox::conferenceWanted, this,
            [this](const QStringList &uids) { startConference(uids, true); });
    connect(&mailbox, &HostMailbox::signatureShown, &m_signature, &SignatureCard::showCard);
    connect(&mailbox, &HostMailbox::signatureHidden, &m_signature, &QWidget::hide);
    mailbox.setMemberPicker(
        [this](const QStringList &present) { return MemberPicker::pickMore(m_book, present, this); });
}

void MainWindow::connectCalls()
{
    const CallWatch &calls = m_session.calls();
    const auto *way = new WayToCall(*this, calls);
    connect(ui->callsPane, &CallsPane::callWindowWanted, way, &WayToCall::go);
    connect(&calls, &CallWatch::changed, this, &MainWindow::showCall);
    connect(&calls, &CallWatch::began, this, [this](const CallEntry &call) {
        if (call.video) {
            m_videoCard.accompany(WindowProbe::callWindow(), call.uid);
        }
    });
    connect(&calls, &CallWatch::ended, this, [this](const CallEntry &call) {
        m_videoCard.leave();
        if (auto *asked = findChild<QuitQuestion *>()) {
            asked->reject();
        }
        if (!call.seen) {
            QApplication::alert(this);
        }
    });
    connect(&m_session.history(), &CallHistory::reported, this, &MainWindow::showNotice);
    connect(&m_readiness, &CallReadiness::changed, this, &MainWindow::showReadiness);
    showCall();
    showReadiness();
}

void MainWindow::showCall()
{
    const CallWatch &calls = m_session.calls();
    m_readiness.setCall(calls.lostCall() != nullptr ? CallReadiness::Call::Lost
                        : calls.hasCall()           ? CallReadiness::Call::On
                                                    : CallReadiness::Call::None);
}

void MainWindow::showReadiness()
{
    const QString reason = m_readiness.reason();
    ui->contactPane->setObstacle(reason);
    ui->callsPane->setObstacle(reason);
}

bool MainWindow::refuses(bool bInBox)
{
    if (m_readiness.isReady()) {
        return false;
    }
    m_status.say(m_readiness.reason());
    if (bInBox) {
        QMessageBox::information(this, windowTitle(), m_readiness.reason());
    }
    return true;
}

void MainWindow::call(const QString &strUid, bool bVideo)
{
    if (!refuses(false)) {
        m_status.hold([this, strUid] { return tr("Calling %1").arg(m_book.nameOf(strUid)); });
        m_session.callUser(strUid, bVideo);
    }
}

void MainWindow::startConference(const QStringList &named, bool bFromPlugin)
{
    if (refuses(bFromPlugin)) {
        return;
    }
    const std::optional<ConferenceWish> wish = MemberPicker::pickNew(m_book, named, this);
    // Somebody may have called meanwhile.
    if (wish && !refuses(true)) {
        m_status.hold(
            [others = wish->uids.size()] { return tr("Starting a conference with %n other(s)", nullptr, others); });
        m_session.callConference(*wish);
    }
}

void MainWindow::setUpCallService()
{
    const int place = ui->centralLayout->indexOf(ui->header) + 1;
    ui->centralLayout->insertWidget(
        place, new CallServiceBar(m_session.callService(), m_session.calls(), m_book, ui->central));
    connect(&m_session.callService(), &CallService::changed, this, &MainWindow::showService);
}

void MainWindow::showOnline(bool bOnline)
{
    const QString name = m_book.nameOf(m_book.ownUid());
    showService();
    m_readiness.setSignedIn(bOnline);
    m_status.say(bOnline ? tr("Signed in as %1").arg(name) : tr("Signed out"));
}

void MainWindow::showService()
{
    const QString uid = m_book.ownUid();
    const CallService &service = m_session.callService();
    const CallService::State state = service.state();
    const bool isLost = state == CallService::Lost || state == CallService::GivenUp;
    const bool isReady = state == CallService::Ready;
    ui->lblOwnHead->setPixmap(HostPictures::head(
        m_book.nameOf(uid), uid, 44, isReady ? Presence::Online : Presence::Offline, m_book.card(uid)->m_strPhotoPath));
    ui->btnOnline->setChecked(m_session.isOnline());
    ui->btnOnline->setText(!m_session.isOnline() ? tr("&Offline")
                           : isReady             ? tr("&Online")
                           : isLost              ? tr("N&o call service")
                                                 : tr("C&onnecting..."));
    const bool isAwaited = state == CallService::Returning || (state == CallService::Coming && service.process() == 0);
    m_readiness.setService(isLost      ? CallReadiness::Service::Lost
                           : isAwaited ? CallReadiness::Service::Awaited
                                       : CallReadiness::Service::Reached);
}

void MainWindow::showNotice()
{
    const QStringList reports = m_session.store().reports() + m_session.history().reports();
    ui->lblNotice->setText(reports.join(QLatin1Char('\n')));
    ui->notice->setVisible(!reports.isEmpty());
    ui->btnTryStore->setVisible(m_session.store().isHeldByAnother());
}

void MainWindow::tryStoreAgain()
{
    m_session.openStore();
    showNotice();
    if (m_session.store().reports().isEmpty()) {
        m_status.say(tr("The local store is open"));
    }
}

void MainWindow::rememberPlace() const
{
    if (isVisible()) {
        m_pPlace->remember(m_pHappenings->grown());
    }
}

void MainWindow::comeToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        fillHeader();
        m_session.takeLanguage();
        showService();
        showReadiness();
        showNotice();
        m_status.sayHeld();
    }
    QMainWindow::changeEvent(event);
}

bool MainWindow::mayQuit()
{
    if (m_bQuitAgreed || m_session.calls().lostCall() != nullptr || !m_session.isExistCall()) {
        return true;
    }
    if (auto *asked = findChild<QuitQuestion *>()) {
        asked->activateWindow();
        return false;
    }
    auto *question = new QuitQuestion(this);
    connect(question, &QDialog::accepted, this, [this] {
        m_bQuitAgreed = true;
        close();
    });
    question->open();
    return false;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!mayQuit()) {
        event->ignore();
        return;
    }
    m_prompt.hide();
    m_signature.hide();
    m_videoCard.leave();
    m_settingsPage.hide();
    rememberPlace();
    m_session.quit();
    QMainWindow::closeEvent(event);
}
