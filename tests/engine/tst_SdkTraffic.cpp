// What goes over the channel to the call process: the registration at each connection, what of a read is delivered,
// what is lost.

#include "engine/ReadLines.h"
#include "fakes/EngineTest.h"
#include "fakes/Patience.h"
#include "fakes/QtMessages.h"

#include <QEventLoop>
#include <QTest>

namespace {

QByteArray line(Code code, const QString &content = QString())
{
    return FakeCallProcess::line(code, content);
}

} // namespace

class tst_SdkTraffic : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void userRegisteredWhileDownIsSentOnConnect()
    {
        begin(EngineFixture::NoCallProcess);
        m_f->manager->regeditVoipUser("me", QStringLiteral("我"), "ticket");
        QCOMPARE(m_f->manager->m_strUserId, QString("me"));
        QCOMPARE(m_f->manager->m_strNickName, QStringLiteral("我"));
        QCOMPARE(m_f->manager->m_strRegValue, QString("ticket"));
        m_f->process.open();
        m_f->manager->slot_ReConnectVoipSDK();
        QCOMPARE(m_f->takeLines(), QStringList{QStringLiteral("RegeditUser \"me\" \"我\" \"ticket\" false")});
    }

    void automaticRegistrationNeedsIdAndValue_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("nick");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("direct");
        QTest::addColumn<QStringList>("automatic");

        const QString withoutNick("RegeditUser \"me\" \"\" \"ticket\" false");
        QTest::newRow("all but the nick name") << "me"
                                               << ""
                                               << "ticket" << QStringList{withoutNick} << QStringList{withoutNick};
        QTest::newRow("no value") << "me"
                                  << "Nick"
                                  << "" << QStringList{"RegeditUser \"me\" \"Nick\" \"\" false"} << QStringList();
        QTest::newRow("no id") << ""
                               << "Nick"
                               << "ticket" << QStringList{"RegeditUser \"\" \"Nick\" \"ticket\" false"}
                               << QStringList();
    }

    void automaticRegistrationNeedsIdAndValue()
    {
        QFETCH(QString, id);
        QFETCH(QString, nick);
        QFETCH(QString, value);
        m_f->manager->regeditVoipUser(id, nick, value);
        QTEST(m_f->takeLines(), "direct");
        m_f->manager->slot_VoipSDKConnected();
        QTEST(m_f->takeLines(), "automatic");
    }

    void lostConnectionIsRegisteredAgain()
    {
        m_f->manager->regeditVoipUser("me", "Nick", "ticket");
        const QStringList registration{"RegeditUser \"me\" \"Nick\" \"ticket\" false"};
        QCOMPARE(m_f->takeLines(), registration);
        m_f->process.dropClient();
        QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->m_bSocketConnected, cPatienceMs);
        m_f->manager->slot_ReConnectVoipSDK();
        QVERIFY(m_f->manager->m_bSocketConnected);
        QCOMPARE(m_f->takeLines(), registration);
    }

    void unregisteringKeepsTheUserForTheNextConnect()
    {
        m_f->manager->regeditVoipUser("me", "Nick", "ticket");
        m_f->manager->unRegeditCurrentVoipUser();
        const QString registration("RegeditUser \"me\" \"Nick\" \"ticket\" false");
        QCOMPARE(m_f->takeLines(), QStringList({registration, "UnReg \"me\""}));
        QCOMPARE(m_f->manager->m_strUserId, QString("me"));
        m_f->process.dropClient();
        QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->m_bSocketConnected, cPatienceMs);
        m_f->manager->slot_ReConnectVoipSDK();
        QCOMPARE(m_f->takeLines(), QStringList{registration});
    }

    void nothingElseIsReplayedAfterAReconnect()
    {
        m_f->manager->regeditVoipUser("me", "Nick", "ticket");
        m_f->manager->callSingleUser("anna", false);
        m_f->takeLines();
        m_f->process.dropClient();
        QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->m_bSocketConnected, cPatienceMs);
        m_f->manager->slot_SetMicEnable(false);
        m_f->manager->slot_ReConnectVoipSDK();
        QCOMPARE(m_f->takeLines(), QStringList{"RegeditUser \"me\" \"Nick\" \"ticket\" false"});
        QCOMPARE(m_f->manager->m_callData.peerId, QString("anna"));
    }

    void linesOfOneReadAreDelivered_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("payloads");

        const QByteArray a = line(Code::SdkLog, "a");
        const QByteArray b = line(Code::SdkLog, "b");
        QTest::newRow("one") << a << QStringList{"a"};
        QTest::newRow("two in order") << b + a << QStringList{"b", "a"};
        QTest::newRow("two equal ones") << a + a << QStringList{"a"};
        QTest::newRow("two equal ones apart") << a + b + a << QStringList{"a", "b"};
        QTest::newRow("one and a half") << a + b.left(12) << QStringList{"a"};
        QTest::newRow("malformed between") << a + "{\n" + b << QStringList{"a", "b"};
        QTest::newRow("lines that throw in the parser between")
            << a + "5\n\"x\"\n[1]\n{\"resultCode\":\"999\"}\n" + QByteArray(2000, '[') + "\n" + b
            << QStringList{"a", "b"};
        QTest::newRow("empty line between") << a + "\n" + b << QStringList{"a"};
        QTest::newRow("carriage returns") << QByteArray(a).replace("\n", "\r\n") + b << QStringList{"a", "b"};
        QTest::newRow("outside ASCII") << line(Code::SdkLog, QStringLiteral("呼叫"))
                                       << QStringList{QStringLiteral("呼叫")};
    }

    void linesOfOneReadAreDelivered()
    {
        QFETCH(QByteArray, bytes);
        const QtMessages messages;
        m_f->process.send(bytes);
        QTRY_COMPARE_WITH_TIMEOUT(readCount(messages), 1, cPatienceMs);
        QTEST(deliveredPayloads(messages), "payloads");
        QCOMPARE(messages.warnings, QStringList());
    }

    void lineSplitOverTwoReadsIsLost()
    {
        const QtMessages messages;
        const QByteArray split = line(Code::SdkLog, "split in the middle");
        m_f->process.send(split.left(20));
        QTRY_COMPARE_WITH_TIMEOUT(readCount(messages), 1, cPatienceMs);
        m_f->process.send(split.mid(20) + line(Code::SdkLog, "next"));
        QTRY_COMPARE_WITH_TIMEOUT(readCount(messages), 2, cPatienceMs);
        QCOMPARE(deliveredPayloads(messages), QStringList{"next"});
    }

    void nulByteHidesTheRestOfTheReadOnly()
    {
        const QtMessages messages;
        // The line feed behind the byte would give the next line a clean start.
        m_f->process.send(line(Code::SdkLog, "before") + '\0' + '\n' + line(Code::SdkLog, "behind"));
        QTRY_COMPARE_WITH_TIMEOUT(readCount(messages), 1, cPatienceMs);
        m_f->process.send(line(Code::SdkLog, "later"));
        QTRY_COMPARE_WITH_TIMEOUT(readCount(messages), 2, cPatienceMs);
        QCOMPARE(deliveredPayloads(messages), QStringList({"before", "later"}));
    }

    void linesWithoutEffect_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("code -1") << R"({"resultCode":-1,"content":"bert"})";
        QTest::newRow("least code") << R"({"resultCode":-2147483648,"content":"bert"})";
        QTest::newRow("code that no one knows") << R"({"resultCode":998,"content":"bert"})";
        QTest::newRow("no JSON") << "hello";
        QTest::newRow("half a document") << "{\"resultCode\":0,\"content\":\"be";
        QTest::newRow("number") << "5";
        QTest::newRow("code as text") << R"({"resultCode":"0","content":"bert"})";
        QTest::newRow("object as payload") << R"({"resultCode":0,"content":{"id":"bert"}})";
    }

    void linesWithoutEffect()
    {
        QFETCH(QString, text);
        m_f->manager->recevieVoipMessage(text + "\n");
        QCOMPARE(m_f->takeJournal(), QStringList());
        QCOMPARE(m_f->state(), QString("idle"));
        m_f->manager->recevieVoipMessage("{}");
        QCOMPARE(m_f->takeJournal(), QStringList{"4639  false false"});
    }

    void bytesThatComeDuringAnEventLoopInAHandlerAreHandled()
    {
        m_f->whileHandled = [this](BaseEvent &event) {
            if (event.msgId != MSG_RECEVIE_VOIP_CALL) {
                return;
            }
            m_f->process.send(line(Code::CallConnected));
            QEventLoop loop;
            while (m_f->manager->m_pVoipSocket->bytesAvailable() == 0) {
                loop.processEvents(QEventLoop::WaitForMoreEvents);
            }
        };
        m_f->process.send(line(Code::IncomingCall, "bert"));
        QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->m_callData.peerId.isEmpty(), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(m_f->manager->m_callData.bIsConnected, cPatienceMs);
        QVERIFY(!m_f->manager->m_recevieTimer.isActive());
    }

    void readIsWrittenToTheDebugLog()
    {
        const QtMessages messages;
        const QByteArray bytes = FakeCallProcess::line(998, QStringLiteral("呼叫"));
        m_f->process.send(bytes);
        QTRY_COMPARE_WITH_TIMEOUT(messages.debugLines,
                                  QStringList{QStringLiteral("Voip返回数据") + QString::fromUtf8(bytes)}, cPatienceMs);
    }

    void readOfNothingIsNotWrittenToTheDebugLog()
    {
        const QtMessages messages;
        m_f->manager->slot_VoipSDKDataRecevie();
        m_f->manager->disconnectVoipSDKSocket();
        m_f->manager->slot_VoipSDKDataRecevie();
        QCOMPARE(messages.debugLines, QStringList());
    }

    void writeToALostSocketIsLost()
    {
        m_f->process.dropClient();
        QTRY_VERIFY_WITH_TIMEOUT(!m_f->manager->m_bSocketConnected, cPatienceMs);
        const QtMessages messages;
        // Accepting is the one command that is sent without a look at the channel.
        m_f->manager->acceptVoipCall();
        m_f->manager->sendVoipMessage("lost\n");
        QCOMPARE(messages.warnings.filter("QIODevice"), QStringList());
        m_f->manager->slot_ReConnectVoipSDK();
        QVERIFY(m_f->manager->m_bSocketConnected);
        QCOMPARE(m_f->takeLines(), QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SdkTraffic, Widgets)
#include "tst_SdkTraffic.moc"
