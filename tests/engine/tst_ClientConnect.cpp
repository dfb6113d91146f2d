// The host's report on its own login: registering the user, and hanging up before unregistering.

#include "fakes/EngineFixture.h"

#include <QTest>

class tst_ClientConnect : public QObject
{
    Q_OBJECT

private slots:
    void loginRegistersTheUser_data()
    {
        QTest::addColumn<QString>("nick");
        QTest::addColumn<QString>("line");

        QTest::newRow("with a nick name") << "Nick"
                                          << "RegeditUser \"me\" \"Nick\" \"ticket\" false";
        QTest::newRow("by the jid") << ""
                                    << "RegeditUser \"me\" \"me\" \"ticket\" false";
    }

    void loginRegistersTheUser()
    {
        QFETCH(QString, nick);
        QFETCH(QString, line);
        EngineFixture f;
        FriendData me(EngineFixture::jid("me"));
        me.m_vcardInfo.m_strNickName = nick;
        f.host.setRecord(me.m_strJid, me);
        f.manager->clientConnectStatus(true);
        QCOMPARE(f.takeLines(), QStringList{line});
        QCOMPARE(f.host.received(MSG_GET_FRIEND_INFO).size(), 1);
    }

    void loginWithoutARecordRegistersAnEmptyValue()
    {
        EngineFixture f;
        f.context.setLoginData(nullptr);
        f.manager->clientConnectStatus(true);
        QCOMPARE(f.takeLines(), QStringList{"RegeditUser \"\" \"\" \"\" false"});
    }

    void loginWhileDownIsRegisteredAtTheNextConnect()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        f.manager->clientConnectStatus(true);
        QCOMPARE(f.manager->m_strUserId, QString("me"));
        f.process.open();
        f.manager->slot_ReConnectVoipSDK();
        QCOMPARE(f.takeLines(), QStringList{"RegeditUser \"me\" \"\" \"ticket\" false"});
    }

    void logoutHangsUpThenUnregisters()
    {
        EngineFixture f;
        f.manager->clientConnectStatus(true);
        f.manager->callSingleUser("anna", false);
        f.notify(18);
        f.takeJournal();
        f.manager->clientConnectStatus(false);
        QCOMPARE(f.takeJournal(), QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 24 true true"}) +
                                      QStringList({"SetMicEnable true", "SetSpeakerEnble true"}) +
                                      QStringList{"UnReg \"me\""});
        QCOMPARE(f.manager->m_strUserId, QString("me"));
        QCOMPARE(f.manager->m_strRegValue, QString("ticket"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ClientConnect, Widgets)
#include "tst_ClientConnect.moc"
