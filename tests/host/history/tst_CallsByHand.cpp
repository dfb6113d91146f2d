#include "panes/MemberPicker.h"
#include "screen/ScreenPointer.h"

#include "host/history/ByHandTest.h"
#include "plugin/EMsgId.h"
#include "store/DBConfInfo.h"

#include <QSignalSpy>
#include <QStatusBar>

#include <csignal>

namespace {

/// Lets a button take longer to hear of the mouse than any click lasts, as on a machine that is busy.
class SlowAtRelease : public QObject
{
public:
    explicit SlowAtRelease(QWidget *button) : QObject(button) { button->installEventFilter(this); }

    bool hasBeen() const { return m_bBeen; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonRelease) {
            m_bBeen = true;
            QTest::qSleep(1500);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_bBeen = false;
};

} // namespace

/// Calls as a person makes them, and what the list of calls says of them.
class tst_CallsByHand : public ByHandTest
{
    Q_OBJECT

private slots:
    void doubleClickOnAPhoneIsOneCall()
    {
        QSignalSpy passed(m_pSession.get(), &HostSession::eventPassed);
        QSignalSpy began(&m_pSession->calls(), &CallWatch::began);
        const auto *row = m_pWindow->findChild<QWidget *>(QStringLiteral("30010004"));
        const WindowProbe::Spot spot = WindowProbe::button(row, "btnCall");
        ScreenPointer pointer;
        pointer.moveTo(spot.widget->mapToGlobal(spot.place));
        pointer.click(Qt::LeftButton);
        pointer.click(Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(began.count(), 1, cPatienceMs);
        QVERIFY(!spot.widget->isEnabled());
        QVERIFY(pressInCallWindow("btnCancelCall"));
        QTRY_VERIFY_WITH_TIMEOUT(!m_pSession->calls().hasCall(), cPatienceMs);
        QVERIFY(WindowProbe::messageBox() == nullptr);
        const auto isCall = [](const QList<QVariant> &event) { return event.at(1).toInt() == MSG_CALL_SINGLE_USER; };
        QCOMPARE(std::count_if(passed.begin(), passed.end(), isCall), 1);
        QCOMPARE(rowText(0), QStringLiteral("Tom Baker → outgoing cancelled"));
        // The user has ended it: there is nothing to be told.
        QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "callNotice"));
        QTRY_VERIFY_WITH_TIMEOUT(spot.widget->isEnabled(), cPatienceMs);
    }

    void outcomeThatTheUserDidNotCauseStaysUntilSeen_data()
    {
        QTest::addColumn<QByteArray>("uid");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("notice");
        QTest::newRow("busy") << QByteArray("30010002") << QStringLiteral("Maria Silva → outgoing busy")
                              << QStringLiteral("Maria Silva was busy");
        QTest::newRow("rejected") << QByteArray("30010003") << QStringLiteral("王芳 → outgoing rejected")
                                  << QStringLiteral("王芳 rejected the call");
        QTest::newRow("failed") << QByteArray("30010005") << QStringLiteral("赵强 → outgoing failed")
                                << QStringLiteral("The call with 赵强 failed");
        QTest::newRow("hung up") << QByteArray("30010006") << QStringLiteral("Anna Novak → outgoing hung up")
                                 << QStringLiteral("Anna Novak hung up after ");
    }

    void outcomeThatTheUserDidNotCauseStaysUntilSeen()
    {
        QFETCH(QByteArray, uid);
        QFETCH(QString, row);
        QFETCH(QString, notice);
        QSignalSpy ended(&m_pSession->calls(), &CallWatch::ended);
        QVERIFY(pressContact(uid.constData()));
        QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, cPatienceMs);
        QCOMPARE(rowText(0), row);
        QVERIFY(WindowProbe::text(m_pWindow.get(), "lblCallNotice").startsWith(notice));
        QVERIFY(!m_pWindow->statusBar()->currentMessage().isEmpty());
        QVERIFY(press([this] { return WindowProbe::button(m_pWindow.get(), "btnSeen"); }));
        QTRY_VERIFY_WITH_TIMEOUT(!WindowProbe::isShown(m_pWindow.get(), "callNotice"), cPatienceMs);
    }

    void callThatTheUserHangsUpLeavesNoNotice()
    {
        QVERIFY(pressContact("30010001"));
        QTRY_COMPARE_WITH_TIMEOUT(WindowProbe::text(WindowProbe::callWindow(), "lblStatus"), QStringLiteral("已接通"),
                                  cPatienceMs);
        QCOMPARE(rowText(0), QStringLiteral("李雷 → outgoing now"));
        QVERIFY(pressInCallWindow("HangUp"));
        QTRY_COMPARE_WITH_TIMEOUT(rowText(0), QStringLiteral("李雷 → outgoing hung up"), cPatienceMs);
        QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "callNotice"));
        // A double click on the row calls again.
        QSignalSpy began(&m_pSession->calls(), &CallWatch::began);
        QVERIFY(press([this] { return middle(0); }, 2));
        QTRY_COMPARE_WITH_TIMEOUT(began.count(), 1, cPatienceMs);
        QVERIFY(pressInCallWindow("btnCancelCall"));
    }

    void callThatTheUserCancelsLeavesNoNoticeHoweverSlowTheMachine()
    {
        QVERIFY(pressContact("30010004"));
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::button(WindowProbe::callWindow(), "btnCancelCall").widget != nullptr,
                                 cPatienceMs);
        const SlowAtRelease slow(WindowProbe::button(WindowProbe::callWindow(), "btnCancelCall").widget);
        QVERIFY(pressInCallWindow("btnCancelCall"));
        QTRY_VERIFY_WITH_TIMEOUT(!m_pSession->calls().hasCall(), cPatienceMs);
        QVERIFY(slow.hasBeen());
        QVERIFY(newest().seen);
        QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "callNotice"));
    }

    void conferenceStandsAmongTheCallsAsTheStoreHasIt()
    {
        const int before = DBConfInfo::getAllConfInfo().size();
        QVERIFY(startConference());
        // The keyboard is where the call is.
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::callWindow()->isActiveWindow(), cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(rowText(0), QStringLiteral("Conference: 李雷, Anna Novak → outgoing now"),
                                  cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::isShown(WindowProbe::callWindow(), "currentPlayTimeLabel"), cPatienceMs);
        QVERIFY(pressInCallWindow("HangUp"));
        QTRY_COMPARE_WITH_TIMEOUT(rowText(0), QStringLiteral("Conference: 李雷, Anna Novak → outgoing hung up"),
                                  cPatienceMs);
        QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "callNotice"));
        const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
        QCOMPARE(records.size(), before + 1);
        const auto own = std::find_if(records.begin(), records.end(), [this](const ConfInfoData &record) {
            return record.m_strConfID == newest().confId;
        });
        QVERIFY(own != records.end());
        QCOMPARE(newest().seconds, own->m_strCallTime.toLongLong());
    }

    void strangerWhoCallsIsKnownFromThenOn()
    {
        const auto *row = m_pWindow->findChild<QWidget *>(QStringLiteral("30010007"));
        QCOMPARE(WindowProbe::text(row, "lblName"), QStringLiteral("30010007"));
        QVERIFY(pressContact("30010007"));
        // She rejects, and calls a little later.
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->prompt().isVisible(), cPatienceMs);
        QCOMPARE(WindowProbe::text(row, "lblName"), QStringLiteral("韩梅梅"));
        QCOMPARE(WindowProbe::text(row, "lblDetail"), QStringLiteral("30010007 · Calls you back"));
        QVERIFY(press([this] { return WindowProbe::button(&m_pWindow->prompt(), "btnReject"); }));
    }

    void callOfADeadCallProcessIsCutOffAtOnceAndTheBarSaysWhoseItWas()
    {
        QVERIFY(pressContact("30010001"));
        QTRY_COMPARE_WITH_TIMEOUT(WindowProbe::text(WindowProbe::callWindow(), "lblStatus"), QStringLiteral("已接通"),
                                  cPatienceMs);
        const size_t calls = m_pSession->history().entries().size();
        QVERIFY(newest().isRunning());
        killCallProcess();
        QTRY_COMPARE_WITH_TIMEOUT(newest().outcome, int(outcomeCutOff), cPatienceMs);
        QVERIFY(newest().connected && !newest().seen);
        const qint64 seconds = newest().seconds;
        QTRY_VERIFY_WITH_TIMEOUT(bar().contains(QStringLiteral("Call service lost")), cPatienceMs);
        const QString whose = QStringLiteral("The call with 李雷 was cut off. Its window is still open: hang up there");
        QVERIFY2(bar().startsWith(whose), qPrintable(bar()));
        QVERIFY(WindowProbe::text(m_pWindow.get(), "lblCallNotice").startsWith("The call with 李雷 was cut off"));
        // The service is there again long before somebody looks; what is said of the call stays.
        QTRY_COMPARE_WITH_TIMEOUT(WindowProbe::text(m_pWindow.get(), "btnOnline"), QStringLiteral("Online"),
                                  cPatienceMs);
        QVERIFY2(bar().startsWith(whose), qPrintable(bar()));
        QCOMPARE(m_pWindow->readiness().reason(),
                 QStringLiteral("The window of the lost call is still open. Hang up there first."));
        QVERIFY(pressInCallWindow("HangUp"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->readiness().isReady(), cPatienceMs);
        QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "CallServiceBar"));
        // What the call window went on counting counts for nothing.
        QCOMPARE(m_pSession->history().entries().size(), calls);
        QCOMPARE(newest().outcome, int(outcomeCutOff));
        QCOMPARE(newest().seconds, seconds);
        QVERIFY(!newest().seen);
    }

    void callThatRingsFromADeadCallProcessIsMissedAndItsPromptGoes()
    {
        // She rejects, and calls a little later.
        QVERIFY(pressContact("30010007"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->prompt().isVisible(), cPatienceMs);
        killCallProcess();
        QTRY_VERIFY_WITH_TIMEOUT(!m_pWindow->prompt().isVisible(), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(!m_pSession->calls().hasCall(), cPatienceMs);
        QVERIFY(newest().isMissed() && !newest().seen && !newest().caller);
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->readiness().isReady(), cPatienceMs);
    }

private:
    bool startConference()
    {
        m_hand.click([this] { return WindowProbe::button(m_pWindow.get(), "btnConference"); });
        for (const char *uid : {"30010001", "30010006"}) {
            m_hand.click([uid] {
                return WindowProbe::rowMiddle(WindowProbe::memberPicker(),
                                              {"listPeople", MemberPicker::cUidRole, QLatin1String(uid)});
            });
        }
        return press([] { return WindowProbe::button(WindowProbe::memberPicker(), "btnInvite"); });
    }
    CallEntry newest() const { return m_pSession->history().entries().back(); }
    QString bar() const { return WindowProbe::text(m_pWindow.get(), "lblService"); }
    /// As a crash would.
    void killCallProcess() { QCOMPARE(::kill(pid_t(m_pSession->callService().process()), SIGKILL), 0); }
    QString rowText(int iRow) const
    {
        QStringList words;
        for (int column = 0; column < 3; ++column) {
            words << m_pTable->model()->index(iRow, column).data().toString();
        }
        return words.join(QLatin1Char(' '));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallsByHand, Widgets)
#include "tst_CallsByHand.moc"
