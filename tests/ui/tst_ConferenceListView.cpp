// The conference member list: its construction, and how members come and go.

#include "MemberListTest.h"

#include "common/Palette.h"

#include <QApplication>
#include <QMetaMethod>
#include <QScrollBar>
#include <QTimer>

class tst_ConferenceListView : public MemberListTest
{
    Q_OBJECT

private slots:
    void signalsStandInTheirOrder()
    {
        QStringList signatures;
        const QMetaObject &meta = CConferenceListView::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        QCOMPARE(signatures, (QStringList{"signal_RemoveUser(QString)", "signal_MuteUser(QString,bool)",
                                          "signal_ReInviteConfUser(QString)", "slot_UpdateCallStatu()"}));
    }

    void listAddsARowForEachUid()
    {
        m_pList->addUserList({uid("ann"), uid("bob")});
        QCOMPARE(rowCount(), 2);
        QCOMPARE(data(0, ROLE_USER_ID).toString(), uid("ann"));
        QCOMPARE(data(1, ROLE_USER_ID).toString(), uid("bob"));
        // Rows that are there already are not looked for.
        m_pList->addUserList({uid("ann")});
        QCOMPARE(rowCount(), 3);
    }

    void newRowHasItsStartValues()
    {
        m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), uid("Annie")));
        m_pList->addUser(uid("ann"));
        QCOMPARE(data(0, ROLE_DISPLAY_NAME).toString(), uid("Ann"));
        QCOMPARE(data(0, ROLE_HEAD_PATH).toString(), uid("Resources/images/FriendDetail/defaultHead.png"));
        QCOMPARE(data(0, ROLE_CALL_STATUS), QVariant(0));
        for (const int role : {ROLE_REMOVE_HOVER, ROLE_MUTE_HOVER, ROLE_MUTED, ROLE_IS_CREATOR}) {
            QCOMPARE(data(0, role), QVariant(false));
        }
        QCOMPARE(data(0, ROLE_CALL_BY_ME), QVariant(true));
        QVERIFY(data(0, ROLE_INVITE_TIME).toTime().isValid());
        QVERIFY(!data(0, ROLE_REMOVE_RECT).isValid());
        QVERIFY(!data(0, ROLE_MUTE_RECT).isValid());
        QCOMPARE(data(0, Qt::SizeHintRole).toSize(), QSize(500, 38));
    }

    void rowOfWhomNothingIsKnownHasEveryRole()
    {
        m_pList->setIsCallByMe(false);
        m_pList->addUser(uid("nobody"));
        QMap<int, QVariant> roles = m_pList->model()->itemData(index(0));
        QVERIFY(roles.take(ROLE_INVITE_TIME).toTime().isValid());
        const QMap<int, QVariant> wanted{
            {ROLE_DISPLAY_NAME, QVariant(QString())},
            {ROLE_HEAD_PATH, QVariant(uid("Resources/images/FriendDetail/defaultHead.png"))},
            {ROLE_CALL_BY_ME, QVariant(false)},
            {ROLE_IS_CREATOR, QVariant(false)},
            {ROLE_USER_ID, QVariant(uid("nobody"))},
            {ROLE_CALL_STATUS, QVariant(int(ConferenceCalling))},
            {ROLE_REMOVE_HOVER, QVariant(false)},
            {ROLE_MUTE_HOVER, QVariant(false)},
            {ROLE_MUTED, QVariant(false)},
            {Qt::SizeHintRole, QVariant(QSize(500, 38))},
        };
        QCOMPARE(roles.keys(), wanted.keys());
        QCOMPARE(roles, wanted);
    }

    void newRowHasTheShownNameOfTheContact()
    {
        m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), uid("Annie")), uid("My Ann"));
        m_pContacts->addContact(uid("bob"), ContactFixture::card({}, uid("Bobby")));
        m_pList->addUserList({uid("ann"), uid("bob")});
        QCOMPARE(data(0, ROLE_DISPLAY_NAME).toString(), uid("My Ann"));
        QCOMPARE(data(1, ROLE_DISPLAY_NAME).toString(), uid("Bobby"));
    }

    void emptyListForgetsTheMembersButKeepsTheRows()
    {
        m_pList->addUserList({uid("ann")});
        m_pList->addUserList({});
        QCOMPARE(rowCount(), 1);
        m_pList->removeUser(uid("ann"));
        QCOMPARE(rowCount(), 1);
    }

    void callByMeCountsForLaterRowsOnly()
    {
        m_pList->addUser(uid("ann"));
        m_pList->setIsCallByMe(false);
        m_pList->addUser(uid("bob"));
        QVERIFY(data(0, ROLE_CALL_BY_ME).toBool());
        QVERIFY(!data(1, ROLE_CALL_BY_ME).toBool());
    }

    void addUserAppendsARow()
    {
        m_pList->addUserList({uid("ann")});
        m_pList->addUser(uid("bob"));
        QCOMPARE(rowCount(), 2);
        QCOMPARE(data(1, ROLE_USER_ID).toString(), uid("bob"));
    }

    void addUserOfAPresentUidRestartsItsTime()
    {
        m_pList->addUser(uid("ann"));
        setData(0, ROLE_INVITE_TIME, QTime());
        m_pList->addUser(uid("ann"));
        QCOMPARE(rowCount(), 1);
        QVERIFY(data(0, ROLE_INVITE_TIME).toTime().isValid());
    }

    void addUserOfAnEmptyUidDoesNothing()
    {
        m_pList->addUser(QString());
        QCOMPARE(rowCount(), 0);
    }

    void removeUserTakesTheRowAway()
    {
        m_pList->addUserList({uid("ann"), uid("bob"), uid("cat")});
        m_pList->removeUser(uid("bob"));
        QCOMPARE(rowCount(), 2);
        QCOMPARE(data(1, ROLE_USER_ID).toString(), uid("cat"));
        m_pList->updateConferenceUserStatus(uid("bob"), 1);
        m_pList->updateConferenceUserStatus(uid("cat"), 1);
        QCOMPARE(status(0), 0);
        QCOMPARE(status(1), 1);
    }

    void removedUserCanComeBack()
    {
        m_pList->addUser(uid("ann"));
        m_pList->removeUser(uid("ann"));
        m_pList->addUser(uid("ann"));
        QCOMPARE(rowCount(), 1);
    }

    void removeUserOfAnUnknownOrEmptyUidDoesNothing()
    {
        m_pList->addUser(uid("ann"));
        m_pList->removeUser(uid("nobody"));
        m_pList->removeUser(QString());
        QCOMPARE(rowCount(), 1);
    }

    void secondRowOfAUidIsTheOneThatIsKnown()
    {
        m_pList->addUserList({uid("ann"), uid("ann")});
        QCOMPARE(rowCount(), 2);
        m_pList->updateConferenceUserStatus(uid("ann"), 3);
        QCOMPARE(status(0), 0);
        QCOMPARE(status(1), 3);
        m_pList->removeUser(uid("ann"));
        QCOMPARE(rowCount(), 1);
        m_pList->removeUser(uid("ann"));
        QCOMPARE(rowCount(), 1);
    }

    void clearMembersForgetsEverything()
    {
        m_pList->addUserList({uid("me"), uid("ann")});
        m_pList->setConferenceCreator(uid("me"));
        m_pList->clearMembers();
        QCOMPARE(rowCount(), 0);
        QVERIFY(!watchdog()->isActive());
        m_pList->updateConferenceUserStatus(uid("ann"), 1);
        m_pList->addUser(uid("me"));
        QCOMPARE(rowCount(), 1);
        QVERIFY(!data(0, ROLE_IS_CREATOR).toBool());
    }

    void secondCreatorLeavesTheFirstOnesMark()
    {
        m_pList->addUserList({uid("ann"), uid("bob")});
        m_pList->setConferenceCreator(uid("ann"));
        m_pList->setConferenceCreator(uid("bob"));
        QVERIFY(data(0, ROLE_IS_CREATOR).toBool());
        QVERIFY(data(1, ROLE_IS_CREATOR).toBool());
    }

    void scrollBarShowsWhileTheMouseIsThere()
    {
        QCOMPARE(m_pList->styleSheet(), QString());
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(m_pList.get(), &enter);
        QCOMPARE(m_pList->styleSheet(), strVerticalScrollBarHoverStyle);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(m_pList.get(), &leave);
        QCOMPARE(m_pList->styleSheet(), strVerticalScrollBarNormalStyle);
    }

    void noContextMenuAndNoEditing()
    {
        QCOMPARE(m_pList->contextMenuPolicy(), Qt::NoContextMenu);
        QCOMPARE(m_pList->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(m_pList->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
        QCOMPARE(m_pList->editTriggers(), QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
        QVERIFY(m_pList->hasMouseTracking());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceListView, Widgets)

#include "tst_ConferenceListView.moc"
