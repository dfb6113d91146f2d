#include "client/ContactBook.h"
#include "client/HostLanguage.h"
#include "happenings/HappeningsPanel.h"
#include "panes/MainWindow.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"

#include "common/CLogManger.h"
#include "fakes/Patience.h"
#include "host/panes/PressButton.h"
#include "model/SystemSetData.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"
#include "store/Hardship.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <iterator>

/// The window beside a session whose plug-in is not loaded: what comes from the plug-in is delivered by hand.
class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The log keeps for good the writer that it first finds, and each session brings its own.
        CLogManger::instance();
    }

    void init()
    {
        m_pSession = std::make_unique<HostSession>(m_book);
        m_pSession->setOnline(true);
        m_pWindow = std::make_unique<MainWindow>(*m_pSession, m_book);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
    }

    void cleanup()
    {
        m_pWindow.reset();
        m_pSession.reset();
    }

    void everyContactHasBothCallButtons()
    {
        for (const ContactBook::Entry &entry : m_book.entries()) {
            const auto *row = m_pWindow->findChild<QWidget *>(entry.uid);
            QVERIFY2(row != nullptr, qPrintable(entry.uid));
            QVERIFY(WindowProbe::isShown(row, "btnCall"));
            QVERIFY(WindowProbe::isShown(row, "btnVideo"));
            QCOMPARE(WindowProbe::text(row, "lblName"), entry.known ? entry.nick : entry.uid);
        }
    }

    void incomingCallOpensThePrompt()
    {
        QVERIFY(!m_pWindow->prompt().isVisible());
        ring(QStringLiteral("30010006"));
        QVERIFY(m_pWindow->prompt().isVisible());
        QCOMPARE(WindowProbe::text(&m_pWindow->prompt(), "lblName"), QStringLiteral("Anna Novak"));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Anna Novak is calling"));
    }

    void answerTakesThePromptAway_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<bool>("accept");
        QTest::addColumn<QString>("status");
        QTest::newRow("accept") << QByteArray("btnAccept") << true << QStringLiteral("Call of Anna Novak accepted");
        QTest::newRow("reject") << QByteArray("btnReject") << false << QStringLiteral("Call of Anna Novak rejected");
    }

    void answerTakesThePromptAway()
    {
        QFETCH(QByteArray, button);
        QFETCH(bool, accept);
        QFETCH(QString, status);
        QSignalSpy answered(&m_pWindow->prompt(), &IncomingPrompt::answered);
        ring(QStringLiteral("30010006"));
        QVERIFY(pressButton(&m_pWindow->prompt(), button.constData()));
        QTRY_COMPARE_WITH_TIMEOUT(answered.count(), 1, cPatienceMs);
        QCOMPARE(answered.at(0), (QList<QVariant>{QStringLiteral("30010006"), accept}));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), status);
        QVERIFY(!m_pWindow->prompt().isVisible());
    }

    void keyOnThePromptAnswers_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("tabs");
        QTest::addColumn<bool>("accept");
        QTest::newRow("Return accepts") << Qt::Key_Return << 0 << true;
        QTest::newRow("Enter accepts") << Qt::Key_Enter << 0 << true;
        QTest::newRow("Escape rejects") << Qt::Key_Escape << 0 << false;
        QTest::newRow("the other button is one Tab away") << Qt::Key_Return << 1 << false;
    }

    void keyOnThePromptAnswers()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, tabs);
        IncomingPrompt &prompt = m_pWindow->prompt();
        QSignalSpy answered(&prompt, &IncomingPrompt::answered);
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        ring(QStringLiteral("30010006"));
        QVERIFY(QTest::qWaitForWindowActive(&prompt, cPatienceMs));
        for (int i = 0; i < tabs; ++i) {
            QTest::keyClick(prompt.focusWidget(), Qt::Key_Tab);
        }
        QTest::keyClick(prompt.focusWidget(), key);
        QCOMPARE(answered.count(), 1);
        QTEST(answered.at(0).at(1).toBool(), "accept");
    }

    void promptTakesTheKeyboardOfAnIdleUserOnly_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("takes");
        QTest::newRow("nothing typed") << QString() << true;
        QTest::newRow("in the middle of typing") << "mari" << false;
    }

    void promptTakesTheKeyboardOfAnIdleUserOnly()
    {
        QFETCH(QString, typed);
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        QTest::keyClicks(m_pWindow->findChild<QLineEdit *>(QStringLiteral("editSearch")), typed);
        ring(QStringLiteral("30010006"));
        QVERIFY(QTest::qWaitForWindowExposed(&m_pWindow->prompt(), cPatienceMs));
        QFETCH(bool, takes);
        // What must not come cannot be waited for: a second is what it would need.
        QCOMPARE(takes ? QTest::qWaitForWindowActive(&m_pWindow->prompt(), cPatienceMs)
                       : QTest::qWaitForWindowActive(&m_pWindow->prompt(), 1000),
                 takes);
    }

    void shortcutLeadsToThePrompt()
    {
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        QTest::keyClicks(m_pWindow->findChild<QLineEdit *>(QStringLiteral("editSearch")), QStringLiteral("mari"));
        ring(QStringLiteral("30010006"));
        QVERIFY(QTest::qWaitForWindowExposed(&m_pWindow->prompt(), cPatienceMs));
        QTest::keyClick(m_pWindow.get(), Qt::Key_I, Qt::ControlModifier);
        QVERIFY(QTest::qWaitForWindowActive(&m_pWindow->prompt(), cPatienceMs));
        QCOMPARE(m_pWindow->prompt().focusWidget()->objectName(), QStringLiteral("btnAccept"));
    }

    void shortcutLeadsToTheSearch()
    {
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        m_pWindow->findChild<QWidget *>(QStringLiteral("btnConference"))->setFocus();
        QTest::keyClick(m_pWindow.get(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(m_pWindow->focusWidget()->objectName(), QStringLiteral("editSearch"));
    }

    void recordIsCalledAgainByDoubleClick()
    {
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010002"), qint32(25), true, false, qint64(0)));
        auto *table = m_pWindow->findChild<QTableView *>(QStringLiteral("tableRecords"));
        const QPoint place = table->visualRect(table->model()->index(0, 0)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Calling Maria Silva"));
    }

    void promptOfAnotherCallIsNotWithdrawn()
    {
        ring(QStringLiteral("30010006"));
        deliver(MSG_CLOSE_AV_MSGBOX, msgBoxPluginId(), packPayload(QStringLiteral("30010001@example.org")));
        QVERIFY(m_pWindow->prompt().isVisible());
    }

    void endOfTheCallWithdrawsThePromptWithoutAnAnswer()
    {
        QSignalSpy answered(&m_pWindow->prompt(), &IncomingPrompt::answered);
        ring(QStringLiteral("30010006"));
        deliver(MSG_CLOSE_AV_MSGBOX, msgBoxPluginId(), packPayload(QStringLiteral("30010006@example.org")));
        QVERIFY(!m_pWindow->prompt().isVisible());
        QCOMPARE(answered.count(), 0);
    }

    void recordsAndStatusLineTellTheCall()
    {
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010001"), qint32(24), true, true, qint64(5)));
        QCOMPARE(m_pSession->history().entries().size(), size_t(1));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Call with 李雷: hung up after 0:05"));
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010002"), qint32(25), true, false, qint64(0)));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Call with Maria Silva: busy"));
    }

    void onlineSwitchFollowsTheSession()
    {
        m_pSession->setOnline(false);
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "btnOnline"), QStringLiteral("Offline"));
        QVERIFY(pressButton(m_pWindow.get(), "btnOnline"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pSession->isOnline(), cPatienceMs);
        // Nobody has registered the user.
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "btnOnline"), QStringLiteral("Connecting..."));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Signed in as 小明"));
        m_pSession->setOnline(false);
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "btnOnline"), QStringLiteral("Offline"));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Signed out"));
    }

    void statusLineTellsTheOutcomeAndClears_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<bool>("caller");
        QTest::addColumn<QString>("words");
        QTest::newRow("busy") << 25 << true << QStringLiteral("Call with Maria Silva: busy");
        QTest::newRow("refused") << 26 << true << QStringLiteral("Call with Maria Silva: rejected");
        QTest::newRow("failed") << 22 << true << QStringLiteral("Call with Maria Silva: failed");
        QTest::newRow("missed") << 21 << false << QStringLiteral("Missed call from Maria Silva");
    }

    void statusLineTellsTheOutcomeAndClears()
    {
        QFETCH(int, result);
        QFETCH(bool, caller);
        QFETCH(QString, words);
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010002"), qint32(result), caller, false, qint64(0)));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), words);
        if (result == resultBusy) {
            // The notice stays when the status line is empty again.
            QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->statusBar()->currentMessage(), QString(), cPatienceMs);
        }
        QVERIFY(WindowProbe::text(m_pWindow.get(), "lblCallNotice").contains(QStringLiteral("Maria Silva")));
        QVERIFY(pressButton(m_pWindow.get(), "btnSeen"));
        QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "lblCallNotice"));
    }

    void statusLineComesBackToTheCallThatIsOn()
    {
        ring(QStringLiteral("30010006"));
        QTest::keyClick(m_pWindow->findChild<QWidget *>(QStringLiteral("30010002")), Qt::Key_Return);
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("You are in a call. End it first."));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Anna Novak is calling"),
                                  cPatienceMs);
        missCall();
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Missed call from Anna Novak"));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->statusBar()->currentMessage(), QString(), cPatienceMs);
    }

    void statusLineTellsTheCallThatIsOnInTheNewLanguage()
    {
        HostLanguage language(QStringLiteral(VOIP_TRANSLATIONS));
        ring(QStringLiteral("30010006"));
        QVERIFY(language.use(QStringLiteral("zh_CN")));
        QCoreApplication::processEvents();
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Anna Novak 来电"));
        QVERIFY(language.use(QStringLiteral("en")));
        QCoreApplication::processEvents();
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Anna Novak is calling"));
    }

    void whatCannotBeDoneNowIsDisabledWithTheReason_data()
    {
        QTest::addColumn<QByteArray>("state");
        QTest::addColumn<QString>("reason");
        QTest::newRow("in a call") << QByteArray("call") << QStringLiteral("You are in a call. End it first.");
        QTest::newRow("signed out") << QByteArray("out") << QStringLiteral("You are signed out. Sign in first.");
        QTest::newRow("no call service") << QByteArray("service")
                                         << QStringLiteral("The call service cannot be reached.");
        QTest::newRow("call service on its way")
            << QByteArray("wait") << QStringLiteral("The call service is being reached. Wait a moment.");
    }

    void whatCannotBeDoneNowIsDisabledWithTheReason()
    {
        QFETCH(QByteArray, state);
        QFETCH(QString, reason);
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010002"), qint32(25), true, false, qint64(0)));
        m_pWindow->findChild<QLineEdit *>(QStringLiteral("editNumber"))->setText(QStringLiteral("4711"));
        QCOMPARE(disabledTips(), QStringList());
        enter(state, true);
        QCOMPARE(disabledTips().size(), callers().size());
        QCOMPARE(disabledTips().filter(reason).size(), callers().size());
        QString asked;
        QTimer timer;
        cancelThePicker(timer, asked);
        // A click, a key and a double click do nothing but say why.
        QVERIFY(!pressButton(m_pWindow.get(), "btnConference"));
        auto *row = m_pWindow->findChild<QWidget *>(QStringLiteral("30010002"));
        QTest::keyClick(row, Qt::Key_Return);
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), reason);
        auto *number = m_pWindow->findChild<QLineEdit *>(QStringLiteral("editNumber"));
        QTest::keyClick(number, Qt::Key_Return);
        QCOMPARE(number->text(), QStringLiteral("4711"));
        QVERIFY(asked.isNull());
        enter(state, false);
        QCOMPARE(disabledTips(), QStringList());
    }

    void wishOfThePlugInIsRefusedBeforePicking()
    {
        ring(QStringLiteral("30010006"));
        QString said;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box != nullptr) {
                timer.stop();
                said = box->text();
                QTest::keyClick(box, Qt::Key_Return);
            }
            if (pressButton(WindowProbe::memberPicker(), "btnCancel")) {
                timer.stop();
                said = QStringLiteral("the picker");
            }
        });
        timer.start(10);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(), packPayload(QStringList{QStringLiteral("30010001")}));
        QCOMPARE(said, QStringLiteral("You are in a call. End it first."));
    }

    void keyboardStaysWithTheContactWhoIsCalled()
    {
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        auto *row = m_pWindow->findChild<QWidget *>(QStringLiteral("30010002"));
        row->setFocus();
        QTest::keyClick(row, Qt::Key_Tab);
        QCOMPARE(m_pWindow->focusWidget()->objectName(), QStringLiteral("btnCall"));
        m_pWindow->readiness().setCall(CallReadiness::Call::On);
        QCOMPARE(m_pWindow->focusWidget(), row);
    }

    void numberCanBeCalledOnlyWhenThereIsOne()
    {
        auto *number = m_pWindow->findChild<QLineEdit *>(QStringLiteral("editNumber"));
        QVERIFY(!pressButton(m_pWindow.get(), "btnCallNumber"));
        QTest::keyClicks(number, QStringLiteral(" 4711 "));
        QVERIFY(pressButton(m_pWindow.get(), "btnCallNumber"));
        QTRY_VERIFY_WITH_TIMEOUT(number->text().isEmpty(), cPatienceMs);
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Calling 4711"));
    }

    void conferenceButtonOpensThePicker()
    {
        QString asked;
        QTimer timer;
        cancelThePicker(timer, asked);
        QVERIFY(pressButton(m_pWindow.get(), "btnConference"));
        QCOMPARE(asked, QStringLiteral("Whom to call together?"));
        QVERIFY(WindowProbe::memberPicker() == nullptr);
    }

    void plugInsWishForAConferenceIsAnsweredWithTheCommand()
    {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (pressButton(WindowProbe::memberPicker(), "btnInvite")) {
                timer.stop();
            }
        });
        timer.start(10);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(), packPayload(QStringList{QStringLiteral("30010001")}));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Starting a conference with 1 other(s)"));
    }

    void statusLineCountsThePickedNotTheAsked_data()
    {
        QTest::addColumn<QStringList>("asked");
        QTest::addColumn<QStringList>("picked");
        const QString one = QStringLiteral("30010001");
        const QString two = QStringLiteral("30010002");
        const QString three = QStringLiteral("30010003");
        QTest::newRow("more") << QStringList{one} << QStringList{one, two, three};
        QTest::newRow("fewer") << QStringList{one, two} << QStringList{three};
        QTest::newRow("as many") << QStringList{one, two} << QStringList{one, three};
        QTest::newRow("nobody asked") << QStringList() << QStringList{two, three};
    }

    void statusLineCountsThePickedNotTheAsked()
    {
        QFETCH(QStringList, asked);
        QFETCH(QStringList, picked);
        QTimer timer;
        pickAndInvite(timer, picked);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(), packPayload(asked));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(),
                 QStringLiteral("Starting a conference with %1 other(s)").arg(picked.size()));
    }

    void membersArePickedWithinThePlugInsQuestion()
    {
        const QStringList picked{QStringLiteral("30010003")};
        QTimer timer;
        pickAndInvite(timer, picked);
        const QByteArray answer =
            deliver(MSG_ADD_CONFERENCE_MEMBER, sessionPluginId(),
                    packPayload(QStringList{QStringLiteral("30010001"), QStringLiteral("30010002")}));
        QCOMPARE(PayloadReader(answer).takeTexts(), picked);
    }

    void declinedConferenceIsNotStarted()
    {
        const QString before = m_pWindow->statusBar()->currentMessage();
        QString asked;
        QTimer timer;
        cancelThePicker(timer, asked);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(),
                packPayload(QStringList{QStringLiteral("30010001@example.org"), QStringLiteral("30010000@example.org"),
                                        QStringLiteral("30010002@example.org")}));
        QCOMPARE(asked, QStringLiteral("Asked for a conference with: 李雷, Maria Silva"));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), before);
    }

    void conferenceCentreHasItsButton()
    {
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "btnCentre"), QStringLiteral("Conference centre"));
        QVERIFY(WindowProbe::button(m_pWindow.get(), "btnCentre").widget != nullptr);
    }

    void whatHappensComesAndGoesByButtonAndKeys()
    {
        auto *panel = m_pWindow->findChild<HappeningsPanel *>();
        QVERIFY(panel != nullptr);
        QVERIFY(!panel->isVisible());
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "happeningsButton"), QStringLiteral("What happens"));
        const int width = m_pWindow->width();
        QVERIFY(pressButton(m_pWindow.get(), "happeningsButton"));
        QVERIFY(panel->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->width() > width, cPatienceMs);
        QVERIFY(m_pWindow->frameGeometry().right() <= m_pWindow->screen()->availableGeometry().right());
        QTest::keyClick(m_pWindow.get(), Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!panel->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->width(), width, cPatienceMs);
        // It collects while it is hidden.
        deliver(MSG_CLOSE_SIGN_LIST, signListPluginId(), QByteArray());
        QTRY_COMPARE_WITH_TIMEOUT(panel->model().rowCount(), 1, cPatienceMs);
    }

    void signatureCardComesAndGoesAsThePlugInAsks()
    {
        deliver(
            MSG_SHOW_SIGN_LIST, signListPluginId(),
            packPayload(QStringLiteral("30010002@example.org"), qint32(600), qint32(200), qint32(500), true, false));
        QCOMPARE(WindowProbe::text(&m_pWindow->signature(), "lblName"), QStringLiteral("Maria Silva"));
        deliver(MSG_CLOSE_SIGN_LIST, signListPluginId(), QByteArray());
        QVERIFY(!m_pWindow->signature().isVisible());
    }

    void noticeIsHiddenWhileThereIsNothingToTell() { QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "lblNotice")); }

    void damagedStoreIsToldBelowTheHeader()
    {
        SystemSetData *settings = SystemSetData::instance();
        settings->initCommonData();
        settings->initData(m_book.ownUid());
        QVERIFY(QDir().mkpath(settings->m_strUserFolder));
        QFile file(settings->m_strDatabasePath);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no database") > 0);
        file.close();

        // The store is opened before the module, which is not there.
        QString error;
        QVERIFY(!m_pSession->start(QStringLiteral("/no/module.so"), &error));
        QVERIFY(m_pSession->store().isOpen());
        MainWindow window(*m_pSession, m_book);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));
        QVERIFY(WindowProbe::isShown(&window, "lblNotice"));
        const QString notice = WindowProbe::text(&window, "lblNotice");
        QVERIFY2(notice.startsWith(QStringLiteral("The local store was damaged. The file is kept as ")),
                 qPrintable(notice));
        QCOMPARE(notice, m_pSession->store().reports().join(QLatin1Char('\n')));
        // There is nothing to try again.
        QVERIFY(!WindowProbe::isShown(&window, "btnTryStore"));
    }

    void callsThatCannotBeWrittenAreToldBelowTheHeader_data()
    {
        QTest::addColumn<QByteArray>("deed");
        for (const char *deed : {"the call ends", "Seen", "Delete"}) {
            QTest::newRow(deed) << QByteArray(deed);
        }
    }

    void callsThatCannotBeWrittenAreToldBelowTheHeader()
    {
        QFETCH(QByteArray, deed);
        QString error;
        QVERIFY(!m_pSession->start(QStringLiteral("/no/module.so"), &error));
        QVERIFY(m_pSession->history().reports().isEmpty());
        ring(QStringLiteral("30010006"));
        if (deed != "the call ends") {
            missCall();
        }
        QVERIFY(!WindowProbe::text(m_pWindow.get(), "lblNotice").contains(QStringLiteral("list of calls")));
        bool pressed = true;
        {
            const FullDisk disk(0);
            if (deed == "the call ends") {
                missCall();
            } else if (deed == "Seen") {
                pressed = pressButton(m_pWindow.get(), "btnSeen");
            } else {
                m_pSession->history().remove({m_pSession->history().entries().back().id});
            }
        }
        QVERIFY(pressed);
        QVERIFY(WindowProbe::isShown(m_pWindow.get(), "lblNotice"));
        QVERIFY(WindowProbe::text(m_pWindow.get(), "lblNotice").contains(QStringLiteral("cannot be written to")));
    }

    void closingTheWindowTakesTheOthersAlong()
    {
        ring(QStringLiteral("30010006"));
        deliver(
            MSG_SHOW_SIGN_LIST, signListPluginId(),
            packPayload(QStringLiteral("30010002@example.org"), qint32(600), qint32(200), qint32(500), true, false));
        m_pWindow->settingsPage().show();
        QVERIFY(m_pWindow->prompt().isVisible() && m_pWindow->signature().isVisible());
        QVERIFY(m_pWindow->close());
        QVERIFY(!m_pWindow->prompt().isVisible());
        QVERIFY(!m_pWindow->signature().isVisible());
        QVERIFY(!m_pWindow->settingsPage().isVisible());
    }

private:
    /// The buttons that place a call.
    QList<QAbstractButton *> callers() const
    {
        QList<QAbstractButton *> found;
        const QList<QAbstractButton *> all = m_pWindow->findChildren<QAbstractButton *>();
        const QStringList names{"btnCall", "btnVideo", "btnConference", "btnCallNumber", "btnCallAgain"};
        std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                     [&](const QAbstractButton *button) { return names.contains(button->objectName()); });
        return found;
    }
    QStringList disabledTips() const
    {
        QStringList tips;
        const QList<QAbstractButton *> all = callers();
        for (const QAbstractButton *button : all) {
            if (!button->isEnabled()) {
                tips << button->toolTip();
            }
        }
        return tips;
    }
    void enter(const QByteArray &state, bool bInto)
    {
        if (state == "out") {
            m_pSession->setOnline(!bInto);
        } else if (state == "service") {
            m_pWindow->readiness().setService(bInto ? CallReadiness::Service::Lost : CallReadiness::Service::Reached);
        } else if (state == "wait") {
            m_pWindow->readiness().setService(bInto ? CallReadiness::Service::Awaited
                                                    : CallReadiness::Service::Reached);
        } else if (bInto) {
            ring(QStringLiteral("30010006"));
        } else {
            missCall();
        }
    }
    /// The call that ring() has begun with Anna Novak ends.
    void missCall()
    {
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010006"), qint32(21), false, false, qint64(0)));
    }
    /// Cancels the picker as soon as it is open, with what it asked left in `asked`.
    void cancelThePicker(QTimer &timer, QString &asked)
    {
        connect(&timer, &QTimer::timeout, this, [&timer, &asked] {
            if (WindowProbe::memberPicker() != nullptr) {
                asked = WindowProbe::text(WindowProbe::memberPicker(), "lblAsked");
                timer.stop();
                pressButton(WindowProbe::memberPicker(), "btnCancel");
            }
        });
        timer.start(10);
    }
    /// Marks these people and no others in the picker as soon as it is open, and invites them.
    void pickAndInvite(QTimer &timer, const QStringList &uids)
    {
        connect(&timer, &QTimer::timeout, this, [&timer, uids] {
            QWidget *picker = WindowProbe::memberPicker();
            if (picker == nullptr) {
                return;
            }
            const auto *people = picker->findChild<QListWidget *>();
            for (int row = 0; row < people->count(); ++row) {
                const bool picked = uids.contains(people->item(row)->data(Qt::UserRole).toString());
                people->item(row)->setCheckState(picked ? Qt::Checked : Qt::Unchecked);
            }
            if (pressButton(picker, "btnInvite")) {
                timer.stop();
            }
        });
        timer.start(10);
    }
    /// Gives the payload as the client leaves it.
    QByteArray deliver(EMsgId msgId, const QString &receiver, const QByteArray &payload)
    {
        BaseEvent event(msgId, voipPluginId(), receiver, false, payload);
        QCoreApplication::sendEvent(&m_pSession->mailbox(), &event);
        return event.data;
    }
    void ring(const QString &strUid)
    {
        deliver(MSG_RECEVIE_VOIP_CALL, sessionPluginId(), packPayload(strUid, false, false));
    }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<HostSession> m_pSession;
    std::unique_ptr<MainWindow> m_pWindow;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MainWindow, Widgets)
#include "tst_MainWindow.moc"
