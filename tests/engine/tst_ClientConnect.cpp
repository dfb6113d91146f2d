// The host's report on its own login: registering the user, and hanging up before unregistering.

#include "fakes/EngineTest.h"

#include <QTest>

class tst_ClientConnect : public EngineTest<EngineFixture>
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
        FriendData me(EngineFixture::jid("me"));
        me.m_vcardInfo.m_strNickName = nick;
        m_f->host.setRecord(me.m_strJid, me);
        m_f->manager->clientConnectStatus(true);
        QCOMPARE(m_f->takeLines(), QStringList{line});
        QCOMPARE(m_f->host.received(MSG_GET_FRIEND_INFO).size(), 1);
    }

    void loginWithoutARecordRegistersAnEmptyValue()
    {
        m_f->context.setLoginData(nullptr);
        m_f->manager->clientConnectStatus(true);
        QCOMPARE(m_f->takeLines(), QStringList{"RegeditUser \"\" \"\" \"\" false"});
    }

    void loginWhileDownIsRegisteredAtTheNextConnect()
    {
        begin(EngineFixture::NoCallProcess);
        m_f->manager->clientConnectStatus(true);
        QCOMPARE(m_f->manager->m_strUserId, QString("me"));
        m_f->process.open();
        m_f->manager->slot_ReConnectVoipSDK();
        QCOMPARE(m_f->takeLines(), QStringList{"RegeditUser \"me\" \"\" \"ticket\" false"});
    }

    void logoutHangsUpThenUnregisters()
    {
        m_f->manager->clientConnectStatus(true);
        m_f->manager->callSingleUser("anna", false);
        m_f->notify(Code::CallConnected);
        m_f->takeJournal();
        m_f->manager->clientConnectStatus(false);
        QCOMPARE(m_f->takeJournal(),
                 QStringList({"HangUpCall", "4345 anna@kelvar.im", "4478 false anna 24 true true"}) +
                     QStringList({"SetMicEnable true", "SetSpeakerEnble true"}) + QStringList{"UnReg \"me\""});
        QCOMPARE(m_f->manager->m_strUserId, QString("me"));
        QCOMPARE(m_f->manager->m_strRegValue, QString("ticket"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ClientConnect, Widgets)
#include "tst_ClientConnect.moc"
