#include "model/MemberRoles.h"

#include <QTest>

class tst_MemberRoles : public QObject
{
    Q_OBJECT

private slots:
    void rolesHaveTheirNumbers()
    {
        const QMap<int, int> offsets{{ROLE_DISPLAY_NAME, 1},     {ROLE_HEAD_PATH, 2},      {ROLE_CONF_ID, 8},
                                     {ROLE_HEAD_RECT, 10},       {ROLE_CALL_BY_ME, 13},    {ROLE_INVITE_TIME, 83},
                                     {ROLE_IS_CREATOR, 85},      {ROLE_USER_ID, 90},       {ROLE_CALL_STATUS, 139},
                                     {ROLE_REMOVE_RECT, 140},    {ROLE_REMOVE_HOVER, 141}, {ROLE_MUTE_RECT, 142},
                                     {ROLE_MUTE_HOVER, 143},     {ROLE_MUTED, 144},        {ROLE_CONF_CREATE_TIME, 146},
                                     {ROLE_CONF_CALL_TIME, 147}, {ROLE_CREATED_BY_ME, 148}};
        for (auto it = offsets.begin(); it != offsets.end(); ++it) {
            QCOMPARE(it.key() - int(Qt::UserRole), it.value());
        }
        QCOMPARE(offsets.size(), 17);
    }

    void thereAreSeventeenRoles()
    {
        int iCount = 0;
#define MEMBER_ROLE(name, number, shown) ++iCount;
#include "model/MemberRoles.def"
#undef MEMBER_ROLE
        QCOMPARE(iCount, 17);
    }

    void placesAndTimesAndIdsAreNotShown()
    {
        for (const int iRole :
             {ROLE_CONF_ID, ROLE_HEAD_RECT, ROLE_INVITE_TIME, ROLE_USER_ID, ROLE_REMOVE_RECT, ROLE_MUTE_RECT}) {
            QVERIFY(!areRolesShown({iRole}));
        }
        QVERIFY(!areRolesShown({ROLE_REMOVE_RECT, ROLE_MUTE_RECT}));
    }

    void everyOtherRoleIsShown()
    {
        for (const int iRole :
             {int(ROLE_DISPLAY_NAME), int(ROLE_HEAD_PATH), int(ROLE_CALL_BY_ME), int(ROLE_IS_CREATOR),
              int(ROLE_CALL_STATUS), int(ROLE_REMOVE_HOVER), int(ROLE_MUTE_HOVER), int(ROLE_MUTED),
              int(ROLE_CONF_CREATE_TIME), int(ROLE_CONF_CALL_TIME), int(ROLE_CREATED_BY_ME), int(Qt::SizeHintRole)}) {
            QVERIFY2(areRolesShown({iRole}), qPrintable(QString::number(iRole)));
        }
        QVERIFY(areRolesShown({ROLE_REMOVE_RECT, ROLE_CALL_STATUS}));
        QVERIFY(areRolesShown({}));
    }

    void statusTextsAreSix()
    {
        QCOMPARE(cConferenceStatusTable.size(), std::size_t(6));
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(cConferenceStatusTable.at(std::size_t(i)).iStatus, i);
        }
    }

    void statusTextOfAnyCode_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QColor>("color");
        QTest::newRow("calling") << 0 << QStringLiteral("呼叫中") << QColor();
        QTest::newRow("connected") << 1 << QStringLiteral("已接通") << QColor(0, 185, 31, 255);
        QTest::newRow("failed") << 2 << QStringLiteral("呼叫失败") << QColor();
        QTest::newRow("busy") << 3 << QStringLiteral("对方正忙") << QColor();
        QTest::newRow("hung up") << 4 << QStringLiteral("已挂断") << QColor();
        QTest::newRow("rejected") << 5 << QStringLiteral("已拒绝") << QColor();
        QTest::newRow("six") << 6 << QStringLiteral("未接通") << QColor();
        QTest::newRow("negative") << -1 << QStringLiteral("未接通") << QColor();
    }
    void statusTextOfAnyCode()
    {
        QFETCH(int, code);
        QTEST(conferenceStatusText(code), "expected");
        QTEST(conferenceStatusColor(code), "color");
    }

    void invitationRunsOutPastTwoMinutes_data()
    {
        QTest::addColumn<QTime>("invited");
        QTest::addColumn<QTime>("now");
        QTest::addColumn<bool>("over");
        QTest::newRow("at once") << QTime(12, 0) << QTime(12, 0) << false;
        QTest::newRow("two minutes") << QTime(12, 0) << QTime(12, 2) << false;
        QTest::newRow("a millisecond more") << QTime(12, 0) << QTime(12, 2, 0, 1) << true;
        QTest::newRow("across midnight") << QTime(23, 55) << QTime(0, 10) << false;
        QTest::newRow("no time") << QTime() << QTime(12, 0) << false;
    }
    void invitationRunsOutPastTwoMinutes()
    {
        QFETCH(QTime, invited);
        QFETCH(QTime, now);
        QTEST(isInviteOver(invited, now), "over");
    }

    void membersAreCalledAgainFromFailedUpwards()
    {
        for (const int iStatus : {-1, 0, 1}) {
            QVERIFY(!canReInvite(iStatus));
        }
        for (const int iStatus : {2, 3, 4, 5, 6, 1000}) {
            QVERIFY(canReInvite(iStatus));
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MemberRoles, Guiless)

#include "tst_MemberRoles.moc"
