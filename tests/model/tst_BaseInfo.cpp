#include "model/BaseInfo.h"

#include <QTest>

class tst_BaseInfo : public QObject
{
    Q_OBJECT

private slots:
    void theFirstNameThatIsNotEmptyIsShown_data()
    {
        QTest::addColumn<QString>("mine");
        QTest::addColumn<QString>("nick");
        QTest::addColumn<QString>("alternative");
        QTest::addColumn<QString>("jid");
        QTest::addColumn<QString>("shown");
        QTest::newRow("my own name for the contact") << "Mine"
                                                     << "Nick"
                                                     << "Alt"
                                                     << "a@b"
                                                     << "Mine";
        QTest::newRow("nick name") << ""
                                   << "Nick"
                                   << "Alt"
                                   << "a@b"
                                   << "Nick";
        QTest::newRow("alternative name") << ""
                                          << ""
                                          << "Alt"
                                          << "a@b"
                                          << "Alt";
        QTest::newRow("node of the jid") << ""
                                         << ""
                                         << ""
                                         << "a@b"
                                         << "a";
        QTest::newRow("a jid without @") << ""
                                         << ""
                                         << ""
                                         << "a"
                                         << "a";
        QTest::newRow("a jid that begins with @") << ""
                                                  << ""
                                                  << ""
                                                  << "@b"
                                                  << "";
        QTest::newRow("a blank is a name") << " "
                                           << "Nick"
                                           << ""
                                           << "a@b"
                                           << " ";
        QTest::newRow("nothing") << ""
                                 << ""
                                 << ""
                                 << ""
                                 << "";
    }

    void theFirstNameThatIsNotEmptyIsShown()
    {
        QFETCH(QString, mine);
        QFETCH(QString, nick);
        QFETCH(QString, alternative);
        QFETCH(QString, jid);
        VcardInfo card;
        card.m_strNickName = nick;
        card.m_strAlternativeName = alternative;
        BaseInfo info;
        info.setMySetFriendName(mine);
        info.setVcardInfo(card);
        info.m_strJid = jid;
        QTEST(info.displayName(), "shown");
    }

    void aDefaultRecordShowsNothing() { QCOMPARE(BaseInfo().displayName(), QString()); }

    void theCardIsReplacedWhole()
    {
        BaseInfo info;
        info.m_vcardInfo.m_strNickName = "old";
        info.m_vcardInfo.m_strMail = "old@example.org";
        VcardInfo card;
        card.m_strNickName = "new";
        info.setVcardInfo(card);
        QCOMPARE(info.m_vcardInfo.m_strNickName, QString("new"));
        QCOMPARE(info.m_vcardInfo.m_strMail, QString());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_BaseInfo, Appless)
#include "tst_BaseInfo.moc"
