// What a notification of the call process does, whatever the call; those of a conference have a test of their own.

#include "fakes/EngineTest.h"
#include "fakes/QtMessages.h"
#include "ui/VoipWidget.h"

#include <QStackedWidget>
#include <QTest>

class tst_Notifications : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void codeWithoutAnActionChangesNothing_data()
    {
        QTest::addColumn<int>("code");

        for (const int code : {6, 11, 14, 15, 16, 26, 27, 100, 998, 1000, -1, 2147483647}) {
            QTest::addRow("code %d", code) << code;
        }
    }

    void codeWithoutAnActionChangesNothing()
    {
        QFETCH(int, code);
        m_f->createConference();
        const QString before = m_f->callText();
        const QtMessages messages;
        m_f->notify(code, R"({"content":{"confId":"c1","from":"anna","conventioneer":["x"],"createTime":5}})");
        m_f->notify(code);
        QCOMPARE(m_f->takeJournal(), QStringList());
        EngineFixture::deliverPosted();
        QCOMPARE(m_f->host.commands(), QList<int>());
        QCOMPARE(m_f->callText(), before);
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 0"}));
        QCOMPARE(messages.debugLines, QStringList());
    }

    void incomingCallSetsTheCall_data()
    {
        QTest::addColumn<int>("code");

        QTest::newRow("code 0") << int(Code::IncomingCall);
        QTest::newRow("code 1") << int(Code::IncomingCallAlt);
    }

    void incomingCallSetsTheCall()
    {
        QFETCH(int, code);
        m_f->manager->m_callData.bIsConf = true;
        m_f->manager->m_callData.bIsVideo = true;
        m_f->manager->m_callData.bIsCaller = true;
        m_f->notify(code, "bert");
        QCOMPARE(m_f->callText(), QString("0|0|0|0|||bert|||"));
        QCOMPARE(m_f->state(), QString("incoming bert, receive, ring"));
        QCOMPARE(m_f->takeJournal(), QStringList{"4639 bert false false"});
        QVERIFY(!m_f->manager->m_pVoipWidget->isVisible());
    }

    void sdkFlagIsTheWordTrue_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<bool>("flag");

        QTest::newRow("true") << "true" << true;
        QTest::newRow("false") << "false" << false;
        QTest::newRow("capitals") << "True" << false;
        QTest::newRow("blank") << "true " << false;
        QTest::newRow("number") << "1" << false;
        QTest::newRow("empty") << "" << false;
    }

    void sdkFlagIsTheWordTrue()
    {
        QFETCH(QString, content);
        QFETCH(bool, flag);
        m_f->manager->m_bSdkFlag = !flag;
        m_f->notify(Code::SdkFlag, content);
        QCOMPARE(m_f->manager->m_bSdkFlag, flag);
    }

    void connectionShowsTheCallingControls()
    {
        m_f->manager->callSingleUser("anna", false);
        const auto *controls = m_f->manager->m_pVoipWidget->findChild<QStackedWidget *>("controlPane");
        QCOMPARE(controls->currentIndex(), 0);
        const QDateTime before = QDateTime::currentDateTimeUtc();
        m_f->notify(Code::CallConnected, "not read");
        const QDateTime after = QDateTime::currentDateTimeUtc();
        QCOMPARE(controls->currentIndex(), 1);
        QVERIFY(m_f->manager->m_callData.bIsConnected);
        QCOMPARE(m_f->manager->m_callData.connectTime.timeSpec(), Qt::UTC);
        QVERIFY(m_f->manager->m_callData.connectTime >= before && m_f->manager->m_callData.connectTime <= after);
    }

    void logLineOfTheCallProcessChangesNothing()
    {
        m_f->createConference();
        const QString before = m_f->callText();
        const QtMessages messages;
        m_f->notify(Code::SdkLog, "media up");
        QCOMPARE(messages.debugLines, QStringList{"voipsdk:media up"});
        QCOMPARE(m_f->callText(), before);
        QCOMPARE(m_f->members(), QStringList({"anna 0", "bert 0"}));
        QCOMPARE(m_f->takeJournal(), QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Notifications, Widgets)
#include "tst_Notifications.moc"
