#include "ui/ConferenceListView.h"

#include "ContactFixture.h"
#include "common/Palette.h"
#include "ui/MemberRoles.h"

#include <QApplication>
#include <QMetaMethod>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTimer>

#include <memory>

namespace {

QString uid(const char *name)
{
    return QLatin1String(name);
}

} // namespace

class tst_ConferenceListView : public QObject
{
    Q_OBJECT

private:
    QVariant data(int iRow, int iRole) const { return m_pList->model()->index(iRow, 0).data(iRole); }
    int rowCount() const { return m_pList->model()->rowCount(); }
    void setData(int iRow, int iRole, const QVariant &value)
    {
        m_pList->model()->setData(m_pList->model()->index(iRow, 0), value, iRole);
    }
    int status(int iRow) const { return data(iRow, ROLE_CALL_STATUS).toInt(); }
    QTimer *watchdog() const { return m_pList->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly); }
    void tick() { QVERIFY(QMetaObject::invokeMethod(m_pList.get(), "slot_UpdateCallStatu")); }
    void showList()
    {
        m_pList->resize(521, 280);
        m_pList->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pList.get()));
    }
    void doubleClick(int iRow, Qt::MouseButton button = Qt::LeftButton)
    {
        const QRect row = m_pList->visualRect(m_pList->model()->index(iRow, 0));
        QTest::mouseDClick(m_pList->viewport(), button, Qt::NoModifier, row.center());
    }

    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<CConferenceListView> m_pList;

private slots:
    void init();
    void cleanup();

    void rolesHaveTheirNumbers();
    void statusTextsAreSix();
    void statusTextOfAnyCode_data();
    void statusTextOfAnyCode();
    void invitationRunsOutPastTwoMinutes_data();
    void invitationRunsOutPastTwoMinutes();
    void signalsStandInTheirOrder();

    void listAddsARowForEachUid();
    void newRowHasItsStartValues();
    void emptyListForgetsTheMembersButKeepsTheRows();
    void callByMeCountsForLaterRowsOnly();
    void addUserAppendsARow();
    void addUserOfAPresentUidRestartsItsTime();
    void addUserOfAnEmptyUidDoesNothing();
    void removeUserTakesTheRowAway();
    void removedUserCanComeBack();
    void removeUserOfAnUnknownOrEmptyUidDoesNothing();
    void clearMembersForgetsEverything();

    void watchdogRunsAtTheCreatorsSideOnly();
    void creatorWithoutARowArmsTheWatchdogAndIsMarkedLater();
    void watchdogRestartsForTheSameCreator();
    void watchdogTickRunsTheCheck();
    void lateRowFailsAndOthersStay();
    void checkWithNoRowsDoesNothing();

    void listStatusConnectsTheListedOnly();
    void failedListMarksTheListedOnly();
    void userStatusOfAnUnknownUidIsIgnored();
    void muteAllMarksEveryRowAndSendsNothing();
    void muteAllOnAnEmptyListDoesNothing();
    void cardChangesNickNameAndPicture();
    void cardOfAnUnknownJidIsIgnored();

    void doubleClickReInvitesMembersWhoWereNotReached_data();
    void doubleClickReInvitesMembersWhoWereNotReached();
    void doubleClickWorksForAnyUser();
    void rightDoubleClickDoesNothing();
    void doubleClickBesideTheRowsDoesNothing();

    void rowsShowNameAndStatus();
    void longNameAndOddTextAreDrawnInTheRow();
    void scrollBarShowsUnderTheMouseOnly();
    void noContextMenuAndNoEditing();
};

void tst_ConferenceListView::init()
{
    m_pContacts = std::make_unique<ContactFixture>();
    m_pList = std::make_unique<CConferenceListView>();
}

void tst_ConferenceListView::cleanup()
{
    m_pList.reset();
    m_pContacts.reset();
}

void tst_ConferenceListView::rolesHaveTheirNumbers()
{
    const QList<int> numbers{ROLE_DISPLAY_NAME, ROLE_HEAD_PATH, ROLE_CALL_BY_ME,  ROLE_INVITE_TIME,
                             ROLE_IS_CREATOR,   ROLE_USER_ID,   ROLE_CALL_STATUS, ROLE_REMOVE_RECT,
                             ROLE_REMOVE_HOVER, ROLE_MUTE_RECT, ROLE_MUTE_HOVER,  ROLE_MUTED};
    const QList<int> offsets{1, 2, 13, 83, 85, 90, 139, 140, 141, 142, 143, 144};
    QCOMPARE(numbers.size(), 12);
    for (int i = 0; i < numbers.size(); ++i)
        QCOMPARE(numbers.at(i) - int(Qt::UserRole), offsets.at(i));
}

void tst_ConferenceListView::statusTextsAreSix()
{
    QCOMPARE(cConferenceStatusTable.size(), std::size_t(6));
    for (int i = 0; i < 6; ++i)
        QCOMPARE(cConferenceStatusTable.at(std::size_t(i)).iStatus, i);
}

void tst_ConferenceListView::statusTextOfAnyCode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("expected");
    QTest::newRow("calling") << 0 << QStringLiteral("呼叫中");
    QTest::newRow("connected") << 1 << QStringLiteral("已接通");
    QTest::newRow("failed") << 2 << QStringLiteral("呼叫失败");
    QTest::newRow("busy") << 3 << QStringLiteral("对方正忙");
    QTest::newRow("hung up") << 4 << QStringLiteral("已挂断");
    QTest::newRow("rejected") << 5 << QStringLiteral("已拒绝");
    QTest::newRow("six") << 6 << QStringLiteral("未接通");
    QTest::newRow("negative") << -1 << QStringLiteral("未接通");
}

void tst_ConferenceListView::statusTextOfAnyCode()
{
    QFETCH(int, code);
    QTEST(conferenceStatusText(code), "expected");
}

void tst_ConferenceListView::invitationRunsOutPastTwoMinutes_data()
{
    QTest::addColumn<QTime>("invited");
    QTest::addColumn<QTime>("now");
    QTest::addColumn<bool>("over");
    QTest::newRow("at once") << QTime(12, 0) << QTime(12, 0) << false;
    QTest::newRow("two minutes") << QTime(12, 0) << QTime(12, 2) << false;
    QTest::newRow("a millisecond more") << QTime(12, 0) << QTime(12, 2, 0, 1) << true;
    QTest::newRow("across midnight") << QTime(23, 55) << QTime(0, 10) << false;
}

void tst_ConferenceListView::invitationRunsOutPastTwoMinutes()
{
    QFETCH(QTime, invited);
    QFETCH(QTime, now);
    QTEST(isInviteOver(invited, now), "over");
}

void tst_ConferenceListView::signalsStandInTheirOrder()
{
    QStringList signatures;
    const QMetaObject &meta = CConferenceListView::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(signatures, (QStringList{"signal_RemoveUser(QString)", "signal_MuteUser(QString,bool)",
                                      "signal_ReInviteConfUser(QString)", "slot_UpdateCallStatu()"}));
}

void tst_ConferenceListView::listAddsARowForEachUid()
{
    m_pList->addUserList({uid("ann"), uid("bob")});
    QCOMPARE(rowCount(), 2);
    QCOMPARE(data(0, ROLE_USER_ID).toString(), uid("ann"));
    QCOMPARE(data(1, ROLE_USER_ID).toString(), uid("bob"));
    // Rows that are there already are not looked for.
    m_pList->addUserList({uid("ann")});
    QCOMPARE(rowCount(), 3);
}

void tst_ConferenceListView::newRowHasItsStartValues()
{
    m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), uid("Annie")));
    m_pList->addUser(uid("ann"));
    QCOMPARE(data(0, ROLE_DISPLAY_NAME).toString(), uid("Ann"));
    QCOMPARE(data(0, ROLE_HEAD_PATH).toString(), uid("Resources/images/FriendDetail/defaultHead.png"));
    QCOMPARE(data(0, ROLE_CALL_STATUS), QVariant(0));
    for (const int role : {ROLE_REMOVE_HOVER, ROLE_MUTE_HOVER, ROLE_MUTED, ROLE_IS_CREATOR})
        QCOMPARE(data(0, role), QVariant(false));
    QCOMPARE(data(0, ROLE_CALL_BY_ME), QVariant(true));
    QVERIFY(data(0, ROLE_INVITE_TIME).toTime().isValid());
    QVERIFY(!data(0, ROLE_REMOVE_RECT).isValid());
    QVERIFY(!data(0, ROLE_MUTE_RECT).isValid());
    QCOMPARE(data(0, Qt::SizeHintRole).toSize(), QSize(500, 38));
}

void tst_ConferenceListView::emptyListForgetsTheMembersButKeepsTheRows()
{
    m_pList->addUserList({uid("ann")});
    m_pList->addUserList({});
    QCOMPARE(rowCount(), 1);
    m_pList->removeUser(uid("ann"));
    QCOMPARE(rowCount(), 1);
}

void tst_ConferenceListView::callByMeCountsForLaterRowsOnly()
{
    m_pList->addUser(uid("ann"));
    m_pList->setIsCallByMe(false);
    m_pList->addUser(uid("bob"));
    QVERIFY(data(0, ROLE_CALL_BY_ME).toBool());
    QVERIFY(!data(1, ROLE_CALL_BY_ME).toBool());
}

void tst_ConferenceListView::addUserAppendsARow()
{
    m_pList->addUserList({uid("ann")});
    m_pList->addUser(uid("bob"));
    QCOMPARE(rowCount(), 2);
    QCOMPARE(data(1, ROLE_USER_ID).toString(), uid("bob"));
}

void tst_ConferenceListView::addUserOfAPresentUidRestartsItsTime()
{
    m_pList->addUser(uid("ann"));
    setData(0, ROLE_INVITE_TIME, QTime());
    m_pList->addUser(uid("ann"));
    QCOMPARE(rowCount(), 1);
    QVERIFY(data(0, ROLE_INVITE_TIME).toTime().isValid());
}

void tst_ConferenceListView::addUserOfAnEmptyUidDoesNothing()
{
    m_pList->addUser(QString());
    QCOMPARE(rowCount(), 0);
}

void tst_ConferenceListView::removeUserTakesTheRowAway()
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

void tst_ConferenceListView::removedUserCanComeBack()
{
    m_pList->addUser(uid("ann"));
    m_pList->removeUser(uid("ann"));
    m_pList->addUser(uid("ann"));
    QCOMPARE(rowCount(), 1);
}

void tst_ConferenceListView::removeUserOfAnUnknownOrEmptyUidDoesNothing()
{
    m_pList->addUser(uid("ann"));
    m_pList->removeUser(uid("nobody"));
    m_pList->removeUser(QString());
    QCOMPARE(rowCount(), 1);
}

void tst_ConferenceListView::clearMembersForgetsEverything()
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

void tst_ConferenceListView::watchdogRunsAtTheCreatorsSideOnly()
{
    m_pList->addUserList({uid("me"), uid("ann")});
    m_pList->setConferenceCreator(uid("ann"));
    QVERIFY(data(1, ROLE_IS_CREATOR).toBool());
    QVERIFY(!watchdog()->isActive());
    m_pList->setConferenceCreator(uid("me"));
    QVERIFY(data(0, ROLE_IS_CREATOR).toBool());
    QVERIFY(watchdog()->isActive());
    QVERIFY(!watchdog()->isSingleShot());
    QCOMPARE(watchdog()->interval(), 120000);
}

void tst_ConferenceListView::creatorWithoutARowArmsTheWatchdogAndIsMarkedLater()
{
    m_pList->setConferenceCreator(uid("me"));
    QVERIFY(watchdog()->isActive());
    QCOMPARE(rowCount(), 0);
    m_pList->addUser(uid("me"));
    QVERIFY(data(0, ROLE_IS_CREATOR).toBool());
}

void tst_ConferenceListView::watchdogRestartsForTheSameCreator()
{
    m_pList->setConferenceCreator(uid("me"));
    watchdog()->start(3600000);
    m_pList->setConferenceCreator(uid("me"));
    QVERIFY(watchdog()->isActive());
    QCOMPARE(watchdog()->interval(), 120000);
}

void tst_ConferenceListView::watchdogTickRunsTheCheck()
{
    m_pList->addUser(uid("ann"));
    const QTime now = QTime::currentTime();
    const QTime longAgo = now.addMSecs(-600000);
    if (longAgo < now)
        setData(0, ROLE_INVITE_TIME, longAgo);
    m_pList->setConferenceCreator(uid("me"));
    watchdog()->setInterval(0);
    if (longAgo < now)
        QTRY_COMPARE(status(0), int(ConferenceFailed));
    else
        QCOMPARE(status(0), int(ConferenceCalling));
}

void tst_ConferenceListView::lateRowFailsAndOthersStay()
{
    m_pList->addUserList({uid("late"), uid("fresh"), uid("connected"), uid("rejected")});
    m_pList->updateConferenceUserStatus(uid("connected"), 1);
    m_pList->updateConferenceUserStatus(uid("rejected"), 5);
    const QTime now = QTime::currentTime();
    const QTime longAgo = now.addMSecs(-600000);
    for (const int iRow : {0, 2, 3})
        setData(iRow, ROLE_INVITE_TIME, longAgo);
    tick();
    // In the first minutes of a day the invitation lies on the day before and does not run out.
    QCOMPARE(status(0), longAgo < now ? int(ConferenceFailed) : int(ConferenceCalling));
    QCOMPARE(status(1), 0);
    QCOMPARE(status(2), 1);
    QCOMPARE(status(3), 5);
}

void tst_ConferenceListView::checkWithNoRowsDoesNothing()
{
    tick();
    QCOMPARE(rowCount(), 0);
}

void tst_ConferenceListView::listStatusConnectsTheListedOnly()
{
    m_pList->addUserList({uid("ann"), uid("bob"), uid("cat")});
    m_pList->updateConferenceUserStatus(uid("cat"), 4);
    m_pList->updateConferenceListStatus({uid("bob"), uid("nobody")});
    QCOMPARE(status(0), 0);
    QCOMPARE(status(1), 1);
    QCOMPARE(status(2), 4);
    QCOMPARE(rowCount(), 3);
}

void tst_ConferenceListView::failedListMarksTheListedOnly()
{
    m_pList->addUserList({uid("ann"), uid("bob")});
    m_pList->setAddConfFailedList({});
    QCOMPARE(status(0), 0);
    m_pList->setAddConfFailedList({uid("nobody"), uid("bob")});
    QCOMPARE(status(0), 0);
    QCOMPARE(status(1), 2);
}

void tst_ConferenceListView::userStatusOfAnUnknownUidIsIgnored()
{
    m_pList->addUser(uid("ann"));
    m_pList->updateConferenceUserStatus(uid("nobody"), 3);
    QCOMPARE(status(0), 0);
    m_pList->updateConferenceUserStatus(uid("ann"), 3);
    QCOMPARE(status(0), 3);
}

void tst_ConferenceListView::muteAllMarksEveryRowAndSendsNothing()
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

void tst_ConferenceListView::muteAllOnAnEmptyListDoesNothing()
{
    const QSignalSpy muted(m_pList.get(), &CConferenceListView::signal_MuteUser);
    m_pList->setMuteAll(true);
    QCOMPARE(rowCount(), 0);
    QCOMPARE(muted.count(), 0);
    m_pList->addUser(uid("ann"));
    QVERIFY(!data(0, ROLE_MUTED).toBool());
}

void tst_ConferenceListView::cardChangesNickNameAndPicture()
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

void tst_ConferenceListView::cardOfAnUnknownJidIsIgnored()
{
    m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), {}));
    m_pList->addUser(uid("ann"));
    m_pList->updateUserInfo(ContactFixture::jid(uid("bob")), ContactFixture::card(uid("Bob"), {}));
    QCOMPARE(data(0, ROLE_DISPLAY_NAME).toString(), uid("Ann"));
}

void tst_ConferenceListView::doubleClickReInvitesMembersWhoWereNotReached_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("invites");
    QTest::newRow("negative") << -1 << false;
    QTest::newRow("calling") << 0 << false;
    QTest::newRow("connected") << 1 << false;
    QTest::newRow("failed") << 2 << true;
    QTest::newRow("busy") << 3 << true;
    QTest::newRow("hung up") << 4 << true;
    QTest::newRow("rejected") << 5 << true;
    QTest::newRow("any higher") << 99 << true;
}

void tst_ConferenceListView::doubleClickReInvitesMembersWhoWereNotReached()
{
    QFETCH(int, code);
    QFETCH(bool, invites);
    const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
    m_pList->addUserList({uid("ann"), uid("bob")});
    m_pList->updateConferenceUserStatus(uid("bob"), code);
    setData(1, ROLE_INVITE_TIME, QTime());
    showList();
    doubleClick(1);
    QCOMPARE(invited.count(), invites ? 1 : 0);
    if (invites)
        QCOMPARE(invited.first().first().toString(), uid("bob"));
    QCOMPARE(data(1, ROLE_INVITE_TIME).toTime().isValid(), invites);
    QCOMPARE(status(1), code);
}

void tst_ConferenceListView::doubleClickWorksForAnyUser()
{
    const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
    m_pList->setIsCallByMe(false);
    m_pList->addUser(uid("ann"));
    m_pList->updateConferenceUserStatus(uid("ann"), 2);
    showList();
    doubleClick(0);
    QCOMPARE(invited.count(), 1);
}

void tst_ConferenceListView::rightDoubleClickDoesNothing()
{
    const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
    m_pList->addUser(uid("ann"));
    m_pList->updateConferenceUserStatus(uid("ann"), 2);
    showList();
    doubleClick(0, Qt::RightButton);
    QCOMPARE(invited.count(), 0);
}

void tst_ConferenceListView::doubleClickBesideTheRowsDoesNothing()
{
    const QSignalSpy invited(m_pList.get(), &CConferenceListView::signal_ReInviteConfUser);
    m_pList->addUser(uid("ann"));
    m_pList->updateConferenceUserStatus(uid("ann"), 2);
    showList();
    QTest::mouseDClick(m_pList->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 250));
    QCOMPARE(invited.count(), 0);
}

void tst_ConferenceListView::rowsShowNameAndStatus()
{
    m_pContacts->addContact(uid("ann"), ContactFixture::card(uid("Ann"), {}));
    m_pList->addUser(uid("ann"));
    showList();
    const auto picture = [this] { return m_pList->viewport()->grab().toImage(); };
    QList<QImage> looks{picture()};
    const auto changed = [&] {
        const QImage now = picture();
        const bool bNew = !looks.contains(now);
        looks.append(now);
        return bNew;
    };
    for (int iStatus = 1; iStatus <= 6; ++iStatus) {
        m_pList->updateConferenceUserStatus(uid("ann"), iStatus);
        QVERIFY2(changed(), qPrintable(QString::number(iStatus)));
    }
    m_pList->setConferenceCreator(uid("ann"));
    QVERIFY(changed());
    m_pList->updateUserInfo(ContactFixture::jid(uid("ann")), ContactFixture::card(uid("Anna"), {}));
    QVERIFY(changed());
}

void tst_ConferenceListView::longNameAndOddTextAreDrawnInTheRow()
{
    m_pContacts->addContact(uid("ann"), ContactFixture::card(QString(3000, QLatin1Char('m')), {}));
    m_pContacts->addContact(uid("bob"), ContactFixture::card(uid("a\nb\n<b>c</b>"), {}));
    m_pList->addUserList({uid("ann"), uid("bob")});
    m_pList->setConferenceCreator(uid("ann"));
    showList();
    const QImage picture = m_pList->viewport()->grab().toImage();
    const QRect row = m_pList->visualRect(m_pList->model()->index(0, 0));
    // Between creator mark and status there is a gap, however long the name is.
    const qreal ratio = picture.devicePixelRatio();
    const int x = qRound((row.right() - 224 - 4) * ratio);
    for (int y = row.top(); y < row.bottom(); ++y)
        QCOMPARE(picture.pixelColor(x, qRound(y * ratio)), picture.pixelColor(qRound(2 * ratio), qRound(2 * ratio)));
}

void tst_ConferenceListView::scrollBarShowsUnderTheMouseOnly()
{
    QCOMPARE(m_pList->styleSheet(), strVerticalScrollBarNormalStyle);
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(m_pList.get(), &enter);
    QCOMPARE(m_pList->styleSheet(), strVerticalScrollBarHoverStyle);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_pList.get(), &leave);
    QCOMPARE(m_pList->styleSheet(), strVerticalScrollBarNormalStyle);
}

void tst_ConferenceListView::noContextMenuAndNoEditing()
{
    QCOMPARE(m_pList->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(m_pList->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(m_pList->editTriggers(), QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
    QVERIFY(m_pList->hasMouseTracking());
}

QTEST_MAIN(tst_ConferenceListView)

#include "tst_ConferenceListView.moc"
