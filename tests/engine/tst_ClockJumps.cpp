// The machine's clock is set, and the machine sleeps for an hour: what becomes of a call in each of its states. Timers
// do not go by the time of day; the lengths of calls do, deliberately, and may run negative.

#include "common/CustomLogger.h"
#include "engine/RecordedEngine.h"
#include "fakes/Patience.h"
#include "fakes/ShiftedClock.h"
#include "ui/VoiceConferenceWidget.h"
#include "ui/VoipWidget.h"

#include <QFile>
#include <QLabel>
#include <QTest>

class tst_ClockJumps : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { ShiftedClock::reset(); }

    void callKeepsItsStateAndItsLengthFollowsTheTimeOfDay_data()
    {
        QTest::addColumn<qint64>("shift");
        QTest::addColumn<QString>("shown");
        QTest::newRow("an hour back") << qint64(-cHour) << "0-1:00:00";
        QTest::newRow("a minute back") << qint64(-60) << "00:0-1:00";
        QTest::newRow("an hour on") << qint64(cHour) << "01:00:00";
        // The window's clock goes by the hours of the day alone.
        QTest::newRow("a day back") << qint64(-cDay) << "00:00:00";
        QTest::newRow("to the year 1970") << -Q_INT64_C(1700006400) << "00:00:00";
        QTest::newRow("a hundred years on") << qint64(36525 * cDay) << "00:00:00";
    }

    void callKeepsItsStateAndItsLengthFollowsTheTimeOfDay()
    {
        QFETCH(qint64, shift);
        QFETCH(QString, shown);
        ShiftedClock::holdTimeOfDay();
        EngineFixture f;
        becomeConnected(f);
        ShiftedClock::setTimeOfDay(shift);
        QCoreApplication::processEvents();
        QCOMPARE(f.state(), QStringLiteral("connected anna"));
        QVERIFY(f.manager->m_pVoipWidget->isVisible());
        QVERIFY(QMetaObject::invokeMethod(f.manager->m_pVoipWidget, "slot_RefreshTime"));
        QCOMPARE(f.manager->m_pVoipWidget->findChild<QLabel *>("currentPlayTimeLabel")->text(), shown);
        QCOMPARE(f.takeJournal(), QStringList());

        f.manager->hangupVoipCall();
        QCOMPARE(f.lastSeconds(), shift);
        callOnce(f);
        QCOMPARE(f.lastSeconds(), Q_INT64_C(0));
    }

    void recordOfAConferenceTakesTheLengthAsItIs()
    {
        ShiftedClock::holdTimeOfDay();
        RecordedEngine f;
        f.createConference();
        f.notify(Code::CallConnected);
        ShiftedClock::setTimeOfDay(-cHour);
        f.manager->hangupVoipCall();
        QCOMPARE(f.count(), 1);
        QCOMPARE(f.rows().constFirst().at(3), QStringLiteral("'-3600'"));

        f.manager->showVoiceConf();
        QVERIFY(!f.manager->m_pVoiceConfWidget->grab().isNull());
        f.manager->m_pVoiceConfWidget->close();
        callOnce(f);
    }

    void limitsOfACallDoNotGoByTheTimeOfDay_data()
    {
        QTest::addColumn<qint64>("shift");
        QTest::newRow("a day back") << qint64(-cDay);
        QTest::newRow("a day on") << qint64(cDay);
    }

    void limitsOfACallDoNotGoByTheTimeOfDay()
    {
        QFETCH(qint64, shift);
        EngineFixture f;
        f.manager->callSingleUser(QStringLiteral("anna"), false);
        ShiftedClock::setTimeOfDay(shift);
        QCoreApplication::processEvents();
        QCOMPARE(f.state(), QStringLiteral("outgoing anna, invite"));
        QVERIFY(f.manager->m_inviteTimer.remainingTime() > 30000);
        // Coarse timers may be late by a twentieth.
        QVERIFY(f.manager->m_inviteTimer.remainingTime() <= 63000);
        f.manager->hangupVoipCall();
        callOnce(f);
    }

    void logGoesOnInItsOrder()
    {
        ShiftedClock::holdTimeOfDay();
        QFile::remove(QStringLiteral("clock.log"));
        CustomLogger logger(QStringLiteral("clock.log"));
        logger.printLog(CustomLog::Info, QStringLiteral("place"), QStringLiteral("first"));
        ShiftedClock::setTimeOfDay(-cDay);
        logger.printLog(CustomLog::Info, QStringLiteral("place"), QStringLiteral("second"));
        logger.close();
        QFile file(QStringLiteral("clock.log"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray first = file.readLine();
        const QByteArray second = file.readLine();
        QVERIFY2(first.startsWith("[2023-11-15 ") && first.endsWith(": first\n"), first);
        QVERIFY2(second.startsWith("[2023-11-14 ") && second.endsWith(": second\n"), second);
        QVERIFY(file.atEnd());
    }

    void sleepEndsAnUnansweredCallOnce_data()
    {
        QTest::addColumn<bool>("outgoing");
        QTest::addColumn<QStringList>("journal");
        QTest::newRow("outgoing") << true
                                  << QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 21 true false",
                                                  "SetMicEnable true", "SetSpeakerEnble true"});
        QTest::newRow("incoming") << false
                                  << QStringList({"RejectCall", "4345 anna@kelvar.im", "4478 false anna 26 false false",
                                                  "SetMicEnable true", "SetSpeakerEnble true"});
    }

    void sleepEndsAnUnansweredCallOnce()
    {
        QFETCH(bool, outgoing);
        QFETCH(QStringList, journal);
        EngineFixture f;
        if (outgoing) {
            f.manager->callSingleUser(QStringLiteral("anna"), false);
        } else {
            f.notify(Code::IncomingCall, QStringLiteral("anna"));
        }
        f.takeJournal();
        sleepAnHour();
        QCOMPARE(f.takeJournal(), journal);
        QCOMPARE(f.lastSeconds(), Q_INT64_C(0));
        callOnce(f);
    }

    void sleepLeavesAConnectedCallUp()
    {
        ShiftedClock::holdTimeOfDay();
        EngineFixture f;
        becomeConnected(f);
        sleepAnHour();
        QCOMPARE(f.state(), QStringLiteral("connected anna"));
        QVERIFY(f.manager->m_pVoipWidget->isVisible());
        // The clock's own timer was due as well.
        QCOMPARE(f.manager->m_pVoipWidget->findChild<QLabel *>("currentPlayTimeLabel")->text(),
                 QStringLiteral("01:00:00"));
        QCOMPARE(f.takeJournal(), QStringList());
        f.manager->hangupVoipCall();
        QCOMPARE(f.lastSeconds(), qint64(cHour));
        callOnce(f);
    }

    void sleepingCreatorGivesUpWhoDidNotAnswer()
    {
        ShiftedClock::holdTimeOfDay();
        RecordedEngine f;
        f.createConference();
        f.notify(Code::CallConnected);
        f.notify(
            12,
            R"({"content":{"from":"anna","conventioneer":["me","anna"],"confId":"c1","createTime":1700000000000}})");
        QCOMPARE(f.members(), QStringList({"anna 1", "bert 0"}));
        sleepAnHour();
        QCOMPARE(f.members(), QStringList({"anna 1", "bert 2"}));
        QVERIFY(f.manager->isExistCall());
        f.manager->hangupVoipCall();
        QCOMPARE(f.count(), 1);
        QCOMPARE(f.rows().constFirst().at(3), QStringLiteral("'3600'"));
        callOnce(f);
    }

    void lostChannelIsFoundAgainAfterTheSleep()
    {
        EngineFixture f;
        becomeConnected(f);
        f.manager->m_strRegValue = f.login.m_strRegValue;
        f.process.close();
        QTRY_VERIFY_WITH_TIMEOUT(f.manager->m_reconnectTimer.isActive(), cPatienceMs);
        f.process.open();
        f.takeJournal();
        sleepAnHour();
        QVERIFY(f.manager->m_bSocketConnected);
        QVERIFY(!f.manager->m_reconnectTimer.isActive());
        QCOMPARE(f.takeJournal(), QStringList(R"(RegeditUser "me" "" "ticket" false)"));
        QCOMPARE(f.state(), QStringLiteral("connected anna"));
        f.manager->hangupVoipCall();
        callOnce(f);
    }

    void allTimersAtOnceEndTheCallAndBringTheChannelBack()
    {
        RecordedEngine f;
        f.manager->m_strUserId = f.login.m_strUid;
        f.manager->m_strRegValue = f.login.m_strRegValue;
        f.manager->callConference({QStringLiteral("anna"), QStringLiteral("bert")}, false, QString());
        f.notify(Code::IncomingCall, QStringLiteral("carl"));
        f.process.close();
        QTRY_VERIFY_WITH_TIMEOUT(f.manager->m_reconnectTimer.isActive(), cPatienceMs);
        f.process.open();
        QVERIFY(f.manager->m_inviteTimer.isActive());
        QVERIFY(f.manager->m_recevieTimer.isActive());
        f.takeJournal();
        sleepAnHour();
        QVERIFY(!f.manager->m_inviteTimer.isActive());
        QVERIFY(!f.manager->m_recevieTimer.isActive());
        QVERIFY(f.manager->m_bSocketConnected);
        QCOMPARE(f.takeJournal().filter(QStringLiteral("4478 ")),
                 QStringList(QStringLiteral("4478 false carl 26 false false")));
        callOnce(f);
    }

private:
    static constexpr int64_t cHour = 3600;
    static constexpr int64_t cDay = 24 * cHour;

    static void becomeConnected(EngineFixture &f)
    {
        f.manager->m_strUserId = f.login.m_strUid;
        f.manager->callSingleUser(QStringLiteral("anna"), false);
        f.notify(Code::CallConnected);
        f.takeJournal();
    }

    /// Wakes the machine up: whatever is due runs.

    static void sleepAnHour()
    {
        ShiftedClock::sleep(cHour);
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::processEvents();
        }
    }

    /// The next call goes its whole way.
    static void callOnce(EngineFixture &f)
    {
        QCOMPARE(f.state(), QStringLiteral("idle"));
        QVERIFY(!f.manager->m_pVoipWidget->isVisible());
        f.takeJournal();
        f.manager->callSingleUser(QStringLiteral("bert"), false);
        QCOMPARE(f.state(), QStringLiteral("outgoing bert, invite"));
        f.notify(Code::CallConnected);
        f.manager->hangupVoipCall();
        QCOMPARE(f.takeJournal(),
                 QStringList({R"(CallUser "bert" false)", "HangUpCall", "4345 bert@kelvar.im",
                              "4478 false bert 24 true true", "SetMicEnable true", "SetSpeakerEnble true"}));
        QCOMPARE(f.boxes.texts, QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ClockJumps, Widgets)
#include "tst_ClockJumps.moc"
