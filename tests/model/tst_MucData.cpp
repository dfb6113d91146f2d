#include "model/MucData.h"

#include <QTest>

#include <functional>

using Change = std::function<void(MucData &)>;
Q_DECLARE_METATYPE(Change)

class tst_MucData : public QObject
{
    Q_OBJECT

private slots:
    void aNewRoomHasTheDefaults_data()
    {
        QTest::addColumn<bool>("withJid");
        QTest::newRow("without a jid") << false;
        QTest::newRow("with a jid") << true;
    }

    void aNewRoomHasTheDefaults()
    {
        QFETCH(bool, withJid);
        const MucData room = withJid ? MucData("room7@c.example.org") : MucData();
        QCOMPARE(room.m_iMaxMemberCount, 1500);
        QCOMPARE(room.m_strVersion, QString("-1"));
        QCOMPARE(room.m_iTopSignType, 0);
        QVERIFY(room.m_bLocalExist && room.m_bExist);
        QVERIFY(!room.m_bHostFlag1 && !room.m_bHostFlag2);
        QVERIFY(!room.m_bIsOpenBarCode && !room.m_bIsOpenJoinValidate && !room.m_bIsAutoRelease);
        QVERIFY(!room.m_bIsOpenWaterMark && !room.m_bIsInnerMuc);
    }

    void onlyARoomWithoutAJidHasTheDefaultPicture()
    {
        QCOMPARE(MucData().m_strHeadImage, QString("Resources/images/CommonCtrls/kvim_muchead_max.png"));
        QCOMPARE(MucData().m_strRoomJid, QString());
        QCOMPARE(MucData("room7").m_strHeadImage, QString());
        QCOMPARE(MucData("room7").m_strRoomJid, QString("room7"));
    }

    void twoRoomsOfOneJidAreEqual()
    {
        MucData other("room7");
        other.m_strRoomName = "other";
        QVERIFY(other == MucData("room7"));
        QVERIFY(!(other != MucData("room7")));
        QVERIFY(other != MucData("room8"));
    }

    void theLocalExistFlagIsTrueExactlyForT()
    {
        QCOMPARE(MucDataUtils::getLocalExistString(true), QString("T"));
        QCOMPARE(MucDataUtils::getLocalExistString(false), QString("F"));
        QVERIFY(MucDataUtils::getLocalExistFlag("T"));
        for (const char *pOther : {"t", "F", "", "TT", "1", "true"}) {
            QVERIFY2(!MucDataUtils::getLocalExistFlag(pOther), pOther);
        }
    }

    void onlySomeFieldsCountAsAChange_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("same");
        const auto row = [](const char *pName, bool bSame, const Change &change) {
            QTest::newRow(pName) << change << bSame;
        };
        row("nothing", true, [](MucData &) {});
        row("owner", false, [](MucData &room) { room.m_strOwnerJid = "x"; });
        row("room name", false, [](MucData &room) { room.m_strRoomName = "x"; });
        row("room name override", false, [](MucData &room) { room.m_strRoomNameOverride = "x"; });
        row("override with the room's own name", true, [](MucData &room) { room.m_strRoomNameOverride = "name"; });
        row("top sign", false, [](MucData &room) { room.m_iTopSignType = 1; });
        row("managers", false, [](MucData &room) { room.m_strManagerJid = "x"; });
        row("head image", false, [](MucData &room) { room.m_strHeadImage = "x"; });
        row("member count", false, [](MucData &room) { room.m_strMemberCount = "x"; });
        row("notice subject", false, [](MucData &room) { room.m_strNoticeSubject = "x"; });
        row("bar code", false, [](MucData &room) { room.m_bIsOpenBarCode = true; });
        row("join validation", false, [](MucData &room) { room.m_bIsOpenJoinValidate = true; });
        row("auto release", false, [](MucData &room) { room.m_bIsAutoRelease = true; });
        row("water mark", false, [](MucData &room) { room.m_bIsOpenWaterMark = true; });
        row("inner room", false, [](MucData &room) { room.m_bIsInnerMuc = true; });
        row("version", true, [](MucData &room) { room.m_strVersion = "9"; });
        row("room jid", true, [](MucData &room) { room.m_strRoomJid = "x"; });
        row("stored jid", true, [](MucData &room) { room.m_strJid = "x"; });
        row("create time", true, [](MucData &room) { room.m_strCreateTime = "x"; });
        row("size limit", true, [](MucData &room) { room.m_iMaxMemberCount = 1; });
        row("class", true, [](MucData &room) { room.m_strClassify = "x"; });
        row("top sign date", true, [](MucData &room) { room.m_strTopSignDate = "x"; });
        row("notice text", true, [](MucData &room) { room.m_strNoticeContent = "x"; });
        row("local exist", true, [](MucData &room) { room.m_bLocalExist = false; });
        row("exist", true, [](MucData &room) { room.m_bExist = false; });
        row("host flags", true, [](MucData &room) { room.m_bHostFlag1 = room.m_bHostFlag2 = true; });
        row("company code", true, [](MucData &room) { room.m_strCompanyCode = "x"; });
    }

    void onlySomeFieldsCountAsAChange()
    {
        QFETCH(Change, change);
        QFETCH(bool, same);
        MucData room("room7");
        room.m_strRoomName = "name";
        MucData changed = room;
        change(changed);
        QCOMPARE(MucDataUtils::compareMucInfo(room, changed), same);
        QCOMPARE(MucDataUtils::compareMucInfo(changed, room), same);
    }

    void aRoomNameBehindAnOverrideStillCounts()
    {
        MucData first("room7");
        first.m_strRoomNameOverride = "override";
        MucData second = first;
        second.m_strRoomName = "name";
        QVERIFY(!MucDataUtils::compareMucInfo(first, second));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MucData, Appless)
#include "tst_MucData.moc"
