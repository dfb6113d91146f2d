// What the conference member list is told of its members: statuses, muting, cards.

#include "MemberListTest.h"

#include <QFile>
#include <QSignalSpy>

#include <array>
#include <functional>
#include <limits>

class tst_ConferenceListStatus : public MemberListTest
{
    Q_OBJECT

private slots:
    void listStatusConnectsTheListedOnly()
    {
        m_pList->addUserList({uid("ann"), uid("bob"), uid("cat")});
        m_pList->updateConferenceUserStatus(uid("cat"), 4);
        m_pList->updateConferenceListStatus({uid("bob"), uid("nobody")});
        QCOMPARE(status(0), 0);
        QCOMPARE(status(1), 1);
        QCOMPARE(status(2), 4);
        QCOMPARE(rowCount(), 3);
    }

    void sameListAgainConnectsWhoHasLeftThatStatus_data()
    {
        QTest::addColumn<int>("happening");
        for (const char *happening :
             {"a member's status", "a status written into the model", "the failed", "another list", "a row made anew",
              "a second row of the uid", "an emptied list", "the other's row taken away"}) {
            QTest::newRow(happening) << m_iHappenings++;
        }
    }
    void sameListAgainConnectsWhoHasLeftThatStatus()
    {
        const QList<QString> members{uid("ann"), uid("bob")};
        m_pList->addUserList(members);
        m_pList->updateConferenceListStatus(members);
        QFETCH(int, happening);
        const std::array<std::function<void()>, 8> happenings{
            [&] { m_pList->updateConferenceUserStatus(uid("ann"), 4); },
            [&] { setData(0, ROLE_CALL_STATUS, 3); },
            [&] { m_pList->setAddConfFailedList({uid("ann")}); },
            [&] {
                m_pList->updateConferenceUserStatus(uid("bob"), 5);
                m_pList->updateConferenceListStatus({uid("ann")});
            },
            [&] {
                m_pList->removeUser(uid("ann"));
                m_pList->addUser(uid("ann"));
            },
            [&] { m_pList->addUserList({uid("ann")}); },
            [&] {
                m_pList->clearMembers();
                m_pList->addUserList(members);
            },
            [&] {
                m_pList->updateConferenceUserStatus(uid("ann"), 4);
                m_pList->removeUser(uid("bob"));
            },
        };
        QCOMPARE(m_iHappenings, int(happenings.size()));
        happenings.at(std::size_t(happening))();
        m_pList->updateConferenceListStatus(members);
        for (int iRow = 0; iRow < rowCount(); ++iRow) {
            QCOMPARE(status(iRow), 1);
        }
    }

    void failedListMarksTheListedOnly()
    {
        m_pList->addUserList({uid("ann"), uid("bob")});
        m_pList->setAddConfFailedList({});
        QCOMPARE(status(0), 0);
        m_pList->setAddConfFailedList({uid("nobody"), uid("bob")});
        QCOMPARE(status(0), 0);
        QCOMPARE(status(1), 2);
    }

    void userStatusOfAnUnknownUidIsIgnored()
    {
        m_pList->addUser(uid("ann"));
        m_pList->updateConferenceUserStatus(uid("nobody"), 3);
        QCOMPARE(status(0), 0);
        m_pList->updateConferenceUserStatus(uid("ann"), 3);
        QCOMPARE(status(0), 3);
    }

    void statusBeyondAnIntReadsAsAnyOther_data()
    {
        QTest::addColumn<qlonglong>("code");
        QTest::addColumn<int>("stored");
        QTest::newRow("one more than four billion") << (Q_INT64_C(1) << 32) + 1 << std::numeric_limits<int>::max();
        QTest::newRow("far below") << -(Q_INT64_C(1) << 40) << std::numeric_limits<int>::min();
        QTest::newRow("negative") << Q_INT64_C(-1) << -1;
        QTest::newRow("six") << Q_INT64_C(6) << 6;
    }
    void statusBeyondAnIntReadsAsAnyOther()
    {
        QFETCH(qlonglong, code);
        m_pList->addUser(uid("ann"));
        m_pList->updateConferenceUserStatus(uid("ann"), code);
        QTEST(status(0), "stored");
        QCOMPARE(conferenceStatusText(status(0)), QStringLiteral("未接通"));
    }

    void muteAllLeavesLaterRowsAlone()
    {
        m_pList->addUser(uid("ann"));
        m_pList->setMuteAll(true);
        m_pList->addUser(uid("bob"));
        QVERIFY(data(0, ROLE_MUTED).toBool());
        QVERIFY(!data(1, ROLE_MUTED).toBool());
    }

    void muteAllMarksEveryRowAndSendsNothing()
    {
        const QSignalSpy muted(m_pList.get(), &CConferenceListView::signal_MuteUser);
        m_pList->addUserList({uid("ann"), uid("bob")});
        m_pList->setMuteAll(true);
        QVERIFY(data(0, ROLE_MUTED).toBool());
        QVERIFY(data(1, ROLE_MUTED).toBool());
        m_pList->setMuteAll(false);
        QVERIFY(!data(0, ROLE_MUTED).toBool());
        QCOMPARE(muted.count(), 0);
    }

    void muteAllOnAnEmptyListDoesNothing()
    {
        const QSignalSpy muted(m_pList.get(), &CConferenceListView::signal_MuteUser);
        m_pList->setMuteAll(true);
        QCOMPARE(rowCount(), 0);
        QCOMPARE(muted.count(), 0);
        m_pList->addUser(uid("ann"));
        QVERIFY(!data(0, ROLE_MUTED).toBool());
    }

    void cardChangesNickNameAndPicture()
    {
        QFile photo(QStringLiteral("ann.png"));
        QVERIFY(photo.open(QIODevice::WriteOnly));
        photo.write("x");
        photo.close();
        m_pList->addUser(uid("ann"));
        m_pList->updateUserInfo(ContactFixture::jid(uid("ann")),
                                ContactFixture::card(uid("Ann"), uid("Annie"), uid("ann.png")));
        QCOMPARE(data(0, ROLE_DISPLAY_NAME).toString(), uid("Ann"));
        QCOMPARE(data(0, ROLE_HEAD_PATH).toString(), uid("ann.png"));
        // An empty nick name is taken as it is: the contact's shown name is not asked.
        m_pList->updateUserInfo(ContactFixture::jid(uid("ann")), ContactFixture::card({}, uid("Annie")));
        QCOMPARE(data(0, ROLE_DISPLAY_NAME).toString(), QString());
        QCOMPARE(data(0, ROLE_HEAD_PATH).toString(), uid("Resources/images/FriendDetail/defaultHead.png"));
    }

    void cardOfAnUnknownJidIsIgnored()
    {
        m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), {}));
        m_pList->addUser(uid("ann"));
        m_pList->updateUserInfo(ContactFixture::jid(uid("bob")), ContactFixture::card(uid("Bob"), {}));
        QCOMPARE(data(0, ROLE_DISPLAY_NAME).toString(), uid("Ann"));
    }

private:
    int m_iHappenings = 0;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceListStatus, Widgets)

#include "tst_ConferenceListStatus.moc"
