// The log records of the channel to the call process and of its commands: where they come from, in which order, and
// their text to the last character.

#include "fakes/EngineFixture.h"
#include "fakes/LogCapture.h"

#include <QRegularExpression>
#include <QTest>

#include <functional>
#include <memory>

using Step = std::function<void(EngineFixture &)>;
Q_DECLARE_METATYPE(Step)

class tst_ChannelLog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_log = std::make_unique<LogCapture>(); }

    void recordOfTheProgramNamesItsPlace()
    {
        m_log->take();
        const EngineFixture f;
        const QStringList infos = m_log->take().filter(QRegularExpression(QStringLiteral("^\\[INFO\\]")));
        QCOMPARE(infos.size(), 1);
        static const QRegularExpression record(QStringLiteral("^\\[INFO\\]\\[SdkChannel\\.cpp:\\d+\\]: /"));
        QVERIFY2(record.match(infos.constFirst()).hasMatch(), qPrintable(infos.constFirst()));
    }

    void recordOfACommandHoldsItsLineFeed()
    {
        EngineFixture f;
        m_log->take();
        const int before = m_log->written().size();
        f.manager->sendVoipMessage("text\n");
        m_log->take();
        // The line feed of the message and that of the record.
        const QString written = m_log->written().mid(before);
        QVERIFY2(written.contains("]: sendVoipMsg = text\n\n["), qPrintable(written));
    }

    void commandIsLoggedBehindTheOperation_data()
    {
        QTest::addColumn<Step>("run");
        QTest::addColumn<QStringList>("texts");

        QTest::newRow("registration")
            << Step([](EngineFixture &f) { f.manager->regeditVoipUser("me", "Nick", "ticket"); })
            << QStringList{"DEBUG regedit userid = me, nickName = Nick",
                           "DEBUG sendVoipMsg = {\"messagetype\":\"RegeditUser\",\"param1\":\"me\","
                           "\"param2\":\"Nick\",\"param3\":\"ticket\",\"param4\":false}"};
        QTest::newRow("its end") << Step([](EngineFixture &f) { f.manager->unRegeditCurrentVoipUser(); })
                                 << QStringList{"DEBUG unregedit current user ",
                                                "DEBUG sendVoipMsg = {\"messagetype\":\"UnReg\",\"param1\":\"\"}"};
        QTest::newRow("microphone") << Step([](EngineFixture &f) { f.manager->slot_SetMicEnable(true); })
                                    << QStringList{
                                           "DEBUG SetMicEnable = 1",
                                           "DEBUG sendVoipMsg = {\"messagetype\":\"SetMicEnable\",\"param1\":true}"};
        QTest::newRow("speaker") << Step([](EngineFixture &f) { f.manager->slot_SetSpeakerEnable(false); })
                                 << QStringList{"DEBUG SetSpeakerEnable = 0",
                                                "DEBUG sendVoipMsg = "
                                                "{\"messagetype\":\"SetSpeakerEnble\",\"param1\":false}"};
        QTest::newRow("camera") << Step([](EngineFixture &f) { f.manager->slot_SetCameraEnable(true); })
                                << QStringList{"DEBUG SetCameraEnable = 1",
                                               "DEBUG sendVoipMsg = "
                                               "{\"messagetype\":\"SetCamreraEnable\",\"param1\":true}"};
        // The volumes have no record of their own; in the command stands a whole number, not 5.0.
        QTest::newRow("microphone volume") << Step([](EngineFixture &f) { f.manager->slot_SetMicVolume(57); })
                                           << QStringList{"DEBUG sendVoipMsg = "
                                                          "{\"messagetype\":\"SetMicVolume\",\"param1\":5}"};
        QTest::newRow("speaker volume") << Step([](EngineFixture &f) { f.manager->slot_SetSpeakerVolume(57); })
                                        << QStringList{"DEBUG sendVoipMsg = "
                                                       "{\"messagetype\":\"SetSpeakerVolume\",\"param1\":5}"};
    }

    void commandIsLoggedBehindTheOperation()
    {
        QFETCH(Step, run);
        EngineFixture f;
        m_log->take();
        run(f);
        QTEST(m_log->takeTexts(), "texts");
    }

    void exitHangsUpBeforeTheChannelEnds()
    {
        EngineFixture f;
        m_log->take();
        f.manager->exitVoip();
        QCOMPARE(m_log->takeTexts().mid(0, 4),
                 QStringList({"DEBUG exit voip when client exit!", "DEBUG hangup voip call!", "DEBUG stop ring!",
                              "DEBUG disconnenct voipsdk socket!"}));
    }

    void connectingAgainLogsTheRefusalAndTheRegistration()
    {
        EngineFixture f;
        f.manager->regeditVoipUser("me", "Nick", "ticket");
        m_log->take();
        f.manager->creatVoipSDKSocket();
        QCOMPARE(m_log->takeTexts().mid(0, 4),
                 QStringList({"DEBUG creat sdk socket connect",
                              "DEBUG sdk socket error = " + QString::number(QLocalSocket::OperationError),
                              "DEBUG sdk socket connected!", "DEBUG regedit userid = me, nickName = Nick"}));
    }

    void cleanupTestCase() { m_log.reset(); }

private:
    std::unique_ptr<LogCapture> m_log;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ChannelLog, Widgets)
#include "tst_ChannelLog.moc"
