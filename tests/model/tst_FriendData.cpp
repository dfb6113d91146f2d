#include "model/FriendData.h"
#include "model/MyProfileData.h"

#include <QTest>

class tst_FriendData : public QObject
{
    Q_OBJECT

private slots:
    void aNewRecordIsEmpty()
    {
        const FriendData person;
        QCOMPARE(person.m_strJid, QString());
        QCOMPARE(person.m_iCooperate, 0);
        QVERIFY(!person.m_bOutsideFriend);
        QVERIFY(!person.m_bMyFriend);
    }

    void theJidIsNormalisedAndBare_data()
    {
        QTest::addColumn<QString>("jid");
        QTest::addColumn<QString>("kept");
        QTest::newRow("domain and resource") << "A@EXAMPLE.ORG/res"
                                             << "A@example.org";
        QTest::newRow("bare") << "a@example.org"
                              << "a@example.org";
        QTest::newRow("beyond ASCII") << QString::fromUtf8("张@example.org") << QString::fromUtf8("张@example.org");
        QTest::newRow("a uid is a domain") << "Abc"
                                           << "abc";
        QTest::newRow("malformed") << "a@b@c"
                                   << "";
        QTest::newRow("empty") << ""
                               << "";
    }

    void theJidIsNormalisedAndBare()
    {
        QFETCH(QString, jid);
        QTEST(FriendData(jid).m_strJid, "kept");
    }

    void theOwnProfileBecomesAContact()
    {
        MyProfileData profile;
        profile.m_strJid = "Me@EXAMPLE.org";
        profile.m_strAccountUid = "77";
        profile.m_vcardInfo.m_strNickName = "Nick";
        profile.m_strMySetFriendName = "Myself";
        const FriendData person(profile);
        QCOMPARE(person.m_strJid, QString("Me@EXAMPLE.org"));
        QCOMPARE(person.m_strAccountUid, QString("77"));
        QCOMPARE(person.m_vcardInfo.m_strNickName, QString("Nick"));
        QCOMPARE(person.displayName(), QString("Myself"));
        QVERIFY(!person.m_bOutsideFriend);
        QVERIFY(person.m_bMyFriend);
    }

    void twoRecordsOfOneJidAreEqual()
    {
        FriendData first("a@x");
        FriendData second("a@x/res");
        first.m_vcardInfo.m_strNickName = "other card";
        QVERIFY(first == second);
        QVERIFY(!(first != second));
        second.m_strJid = "b@x";
        QVERIFY(first != second);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_FriendData, Appless)
#include "tst_FriendData.moc"
