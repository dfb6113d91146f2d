#include "client/ContactBook.h"

#include <QSet>
#include <QTest>

class tst_ContactBook : public QObject
{
    Q_OBJECT

private slots:
    void hasEveryRobotOnce()
    {
        QSet<QString> uids;
        for (const ContactBook::Entry &entry : m_book.entries()) {
            uids.insert(entry.uid);
            QVERIFY(!entry.nick.isEmpty());
            QVERIFY(!entry.alternative().isEmpty());
        }
        QCOMPARE(m_book.entries().size(), 10);
        QCOMPARE(uids.size(), 10);
        QVERIFY(!uids.contains(m_book.ownUid()));
    }

    void whereRobotsAreNotThereAreSaidToBePeople()
    {
        const ContactBook book(QStringLiteral("example.org"), QStringLiteral("30010001"), ContactBook::World::People);
        QCOMPARE(book.entries().size(), ContactBook::users().size());
        const ContactBook::Entry echo = book.entries().first();
        QCOMPARE(echo.uid, QStringLiteral("echo"));
        QCOMPARE(echo.alternative(), QStringLiteral("Repeats what it hears"));
        QCOMPARE(book.card(echo.uid)->m_strAlternativeName, echo.alternative());
        for (const ContactBook::Entry &entry : book.entries().mid(1)) {
            QVERIFY(entry.known && entry.alternative().isEmpty() && entry.presence == Presence::Unknown);
            // The plug-in's windows show it in brackets behind the name.
            QCOMPARE(book.card(entry.uid)->m_strAlternativeName, entry.uid);
            QVERIFY(book.isFriend(book.jidOf(entry.uid)));
        }
        QVERIFY(book.entry(QString::fromLatin1(ContactBook::cOwnId)) != nullptr);
        QVERIFY(book.entry(QStringLiteral("30010001")) == nullptr);
        QCOMPARE(book.nameOf(QStringLiteral("30010001")), QStringLiteral("李雷"));
    }

    void friendMapHoldsContactsAndTheOwnUser()
    {
        const QMap<QString, FriendData> map = m_book.friendMap();
        QCOMPARE(map.size(), 10);
        QVERIFY(map.contains(QStringLiteral("30010001@example.org")));
        QVERIFY(map.contains(m_book.ownUid() + QStringLiteral("@example.org")));
        for (auto it = map.begin(); it != map.end(); ++it) {
            QCOMPARE(it.value().m_strJid, it.key());
        }
    }

    void strangerIsInNoMapAndNoFriend()
    {
        const QString stranger = QStringLiteral("30010007@example.org");
        QVERIFY(!m_book.friendMap().contains(stranger));
        QVERIFY(!m_book.isFriend(stranger));
        QVERIFY(m_book.isFriend(QStringLiteral("30010001@example.org")));
        QVERIFY(!m_book.isFriend(QStringLiteral("4711@example.org")));
    }

    void ownUserIsNoFriend() { QVERIFY(!m_book.isFriend(m_book.jidOf(m_book.ownUid()))); }

    void recordsNeverMove()
    {
        const FriendData *first = m_book.record(QStringLiteral("30010001@example.org"));
        const VcardInfo *card = m_book.card(QStringLiteral("30010007"));
        const QMap<QString, FriendData> copy = m_book.friendMap();
        QCOMPARE(m_book.record(QStringLiteral("30010001@example.org")), first);
        QCOMPARE(m_book.card(QStringLiteral("30010007")), card);
    }

    void unknownJidGetsADefaultRecord()
    {
        const FriendData *record = m_book.record(QStringLiteral("4711@example.org"));
        QVERIFY(record != nullptr);
        QVERIFY(record->m_strJid.isEmpty());
        // No version: the card is still to be fetched.
        QCOMPARE(record->m_vcardInfo.m_iSmallVersion, -1);
        QCOMPARE(m_book.record(QStringLiteral("30010007@example.org")), record);
        QVERIFY(m_book.card(QStringLiteral("4711"))->m_strNickName.isEmpty());
    }

    void whoIsCalledByTheNumberGoesByIt_data()
    {
        QTest::addColumn<QString>("number");
        QTest::newRow("nobody") << QStringLiteral("4711");
        QTest::newRow("stranger whose card was not fetched") << QStringLiteral("30010007");
    }

    void whoIsCalledByTheNumberGoesByIt()
    {
        QFETCH(QString, number);
        ContactBook book(QStringLiteral("example.org"));
        const QString jid = number + QStringLiteral("@example.org");
        book.takeNumber(number);
        const FriendData *record = book.record(jid);
        QCOMPARE(record->displayName(), number);
        QCOMPARE(record->m_vcardInfo.m_iSmallVersion, -1);
        book.takeNumber(number);
        QCOMPARE(book.record(jid), record);
        QVERIFY(!book.isFriend(jid));
        QVERIFY(!book.friendMap().contains(jid));
        // A contact keeps the card.
        book.takeNumber(QStringLiteral("30010001"));
        QCOMPARE(book.record(QStringLiteral("30010001@example.org"))->displayName(), QStringLiteral("李雷"));
    }

    void cardsAreThereForStrangersToo()
    {
        QCOMPARE(m_book.card(QStringLiteral("30010007"))->m_strNickName, QStringLiteral("韩梅梅"));
        QVERIFY(m_book.card(QStringLiteral("4711")) != nullptr);
        QVERIFY(m_book.card(QStringLiteral("4711"))->m_strNickName.isEmpty());
    }

    void learntStrangerHasARecordAndIsStillNoFriend()
    {
        ContactBook book(QStringLiteral("example.org"));
        const QString jid = QStringLiteral("30010007@example.org");
        book.learn(QStringLiteral("30010007"));
        QCOMPARE(book.record(jid)->m_strJid, jid);
        QCOMPARE(book.record(jid)->displayName(), QStringLiteral("韩梅梅"));
        QVERIFY(!book.isFriend(jid));
        QVERIFY(!book.friendMap().contains(jid));
    }

    void learningAContactOrNobodyChangesNothing()
    {
        ContactBook book(QStringLiteral("example.org"));
        const FriendData *contact = book.record(QStringLiteral("30010001@example.org"));
        book.learn(QStringLiteral("30010001"));
        book.learn(QStringLiteral("4711"));
        QCOMPARE(book.record(QStringLiteral("30010001@example.org")), contact);
        QVERIFY(book.record(QStringLiteral("4711@example.org"))->m_strJid.isEmpty());
    }

    void strangerWhoHasBeenMetHasANameAndIsStillNoFriend()
    {
        ContactBook book(QStringLiteral("example.org"));
        const ContactBook::Entry *stranger = book.entry(QStringLiteral("30010007"));
        QCOMPARE(stranger->shownName(), QStringLiteral("30010007"));
        QVERIFY(book.meet(QStringLiteral("30010007")));
        QCOMPARE(stranger->shownName(), QStringLiteral("韩梅梅"));
        QVERIFY(!book.isFriend(QStringLiteral("30010007@example.org")));
        QVERIFY(!book.friendMap().contains(QStringLiteral("30010007@example.org")));
        // Nobody is met for the first time twice, and contacts and unknown numbers never.
        for (const char *uid : {"30010007", "30010001", "4711"}) {
            QVERIFY2(!book.meet(QLatin1String(uid)), uid);
        }
    }

    void presenceIsTheContacts()
    {
        QVERIFY(m_book.presenceOf(QStringLiteral("30010001")) == Presence::Online);
        QVERIFY(m_book.presenceOf(QStringLiteral("30010002")) == Presence::Busy);
        QVERIFY(m_book.presenceOf(QStringLiteral("30010004")) == Presence::Away);
        QVERIFY(m_book.presenceOf(QStringLiteral("30010005")) == Presence::Offline);
        QVERIFY(m_book.presenceOf(m_book.ownUid()) == Presence::Online);
        QVERIFY(m_book.presenceOf(QStringLiteral("4711")) == Presence::Offline);
    }

    void whoseStateNobodyTellsMayBeThere()
    {
        const ContactBook book(QStringLiteral("example.org"), QStringLiteral("30010001"), ContactBook::World::People);
        const Presence presence = book.presenceOf(QStringLiteral("30010002"));
        QCOMPARE(presenceState(presence), presenceState(Presence::Online));
        QVERIFY(!presenceColour(presence).isValid() && presenceWord(presence).isEmpty());
        QCOMPARE(withPresence(QStringLiteral("Maria Silva"), presence), QStringLiteral("Maria Silva"));
        QCOMPARE(withPresence(QStringLiteral("Maria Silva"), Presence::Busy), QStringLiteral("Maria Silva, busy"));
    }

    void displayNameIsTheNickName()
    {
        QCOMPARE(m_book.record(QStringLiteral("30010001@example.org"))->displayName(), QStringLiteral("李雷"));
        QCOMPARE(m_book.nameOf(QStringLiteral("30010001")), QStringLiteral("李雷"));
        QCOMPARE(m_book.nameOf(QStringLiteral("4711")), QStringLiteral("4711"));
    }

    void idsAndJidsTurnIntoEachOther()
    {
        QCOMPARE(m_book.jidOf(QStringLiteral("1")), QStringLiteral("1@example.org"));
        QCOMPARE(m_book.jidOf(QStringLiteral("1@other.org")), QStringLiteral("1@other.org"));
        QCOMPARE(ContactBook::uidOf(QStringLiteral("1@example.org")), QStringLiteral("1"));
        QCOMPARE(ContactBook::uidOf(QStringLiteral("1")), QStringLiteral("1"));
    }

private:
    ContactBook m_book{QStringLiteral("example.org")};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ContactBook, Guiless)
#include "tst_ContactBook.moc"
