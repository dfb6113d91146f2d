#include "store/DBConfInfo.h"
#include "store/StoreTest.h"

#include <QTest>

#include <type_traits>

static_assert(std::is_default_constructible_v<DBConfInfo> && std::is_empty_v<DBConfInfo>);
static_assert(std::is_same_v<decltype(&DBConfInfo::saveConfInfo), bool (*)(ConfInfoData)>);
static_assert(std::is_same_v<decltype(&DBConfInfo::getAllConfInfo), QList<ConfInfoData> (*)()>);
static_assert(std::is_same_v<decltype(&DBConfInfo::deleteConfInfo), bool (*)(QString)>);
static_assert(std::is_copy_constructible_v<ConfInfoData> && std::is_copy_assignable_v<ConfInfoData>);

namespace {

ConfInfoData record(const QString &id, const QList<QString> &members = {"anna", "bert", "carl"})
{
    ConfInfoData info;
    info.m_strConfID = id;
    info.m_strCreatUserID = "anna";
    info.m_strCreatTime = "2024-02-03 04:05:06";
    info.m_strCallTime = "61";
    info.m_listMember = members;
    info.m_bIsConnect = true;
    return info;
}

QStringList listedIds()
{
    QStringList ids;
    const QList<ConfInfoData> all = DBConfInfo::getAllConfInfo();
    for (const ConfInfoData &info : all) {
        ids.append(info.m_strConfID);
    }
    return ids;
}

const QString cAllRows = QStringLiteral("SELECT * FROM voipConferenceInfo");

} // namespace

class tst_DBConfInfo : public StoreTest
{
    Q_OBJECT

private slots:
    void init()
    {
        StoreTest::init();
        QVERIFY(m_store->open());
    }

    void equalTextsOfAHistoryShareTheirMemory()
    {
        for (const char *id : {"c1", "c2"}) {
            QVERIFY(DBConfInfo::saveConfInfo(record(id)));
        }
        const QList<ConfInfoData> all = DBConfInfo::getAllConfInfo();
        QCOMPARE(all.size(), 2);
        QCOMPARE(all[0].m_strCreatUserID.constData(), all[1].m_strCreatUserID.constData());
        QCOMPARE(all[0].m_strCallTime.constData(), all[1].m_strCallTime.constData());
        QCOMPARE(all[0].m_listMember[0].constData(), all[0].m_strCreatUserID.constData());
        QCOMPARE(all[0].m_listMember[1].constData(), all[1].m_listMember[1].constData());
    }

    void aRecordComesBackAsItWasSaved()
    {
        QVERIFY(DBConfInfo::saveConfInfo(record("c1")));
        const QList<ConfInfoData> all = DBConfInfo::getAllConfInfo();
        QCOMPARE(all.size(), 1);
        QCOMPARE(all[0].m_strConfID, QString("c1"));
        QCOMPARE(all[0].m_strCreatUserID, QString("anna"));
        QCOMPARE(all[0].m_strCreatTime, QString("2024-02-03 04:05:06"));
        QCOMPARE(all[0].m_strCallTime, QString("61"));
        QCOMPARE(all[0].m_listMember, QList<QString>({"anna", "bert", "carl"}));
        QVERIFY(all[0].m_bIsConnect);
    }

    void threeMembersAreStoredWithThreeCommas()
    {
        QVERIFY(DBConfInfo::saveConfInfo(record("c1", {"a", "b", "c"})));
        QCOMPARE(stored(cAllRows), QStringList("c1|anna|2024-02-03 04:05:06|61|a,b,c,|1"));
        QCOMPARE(DBConfInfo::getAllConfInfo().value(0).m_listMember.size(), 3);
    }

    void noMembersAreStoredAsAnEmptyText()
    {
        QVERIFY(DBConfInfo::saveConfInfo(record("c1", {})));
        QCOMPARE(stored("SELECT typeof(MemberList), length(MemberList) FROM voipConferenceInfo"),
                 QStringList("text|0"));
        QVERIFY(DBConfInfo::getAllConfInfo().value(0).m_listMember.isEmpty());
    }

    void emptyPartsOfAMemberTextAreSkipped()
    {
        QVERIFY(run("INSERT INTO voipConferenceInfo (ConfID,MemberList) VALUES ('c1', ',a,,b')"));
        QCOMPARE(DBConfInfo::getAllConfInfo().value(0).m_listMember, QList<QString>({"a", "b"}));
    }

    void aLongMemberListIsStoredWhole()
    {
        QList<QString> members;
        for (int i = 0; i < 400; ++i) {
            members.append(QStringLiteral("member%1").arg(i));
        }
        QVERIFY(DBConfInfo::saveConfInfo(record("c1", members)));
        QVERIFY(stored("SELECT length(MemberList) FROM voipConferenceInfo").value(0).toInt() > 1000);
        QCOMPARE(DBConfInfo::getAllConfInfo().value(0).m_listMember, members);
    }

    void aSecondSaveKeepsTheFirstRecordAndSucceeds()
    {
        QVERIFY(DBConfInfo::saveConfInfo(record("c1")));
        ConfInfoData second = record("c1", {"other"});
        second.m_strCallTime = "99";
        second.m_bIsConnect = false;
        QVERIFY(DBConfInfo::saveConfInfo(second));
        QCOMPARE(stored(cAllRows), QStringList("c1|anna|2024-02-03 04:05:06|61|anna,bert,carl,|1"));
    }

    void nullTextsAreStoredAsEmptyOnes()
    {
        QVERIFY(DBConfInfo::saveConfInfo(ConfInfoData()));
        QCOMPARE(stored("SELECT typeof(ConfID),typeof(CreatUserID),typeof(CreatTime),typeof(CallTime),"
                        "typeof(MemberList),IsConnect FROM voipConferenceInfo"),
                 QStringList("text|text|text|text|text|0"));
    }

    void anEmptyIdIsNeverInsertedTwice()
    {
        QVERIFY(DBConfInfo::saveConfInfo(ConfInfoData()));
        QVERIFY(!DBConfInfo::saveConfInfo(ConfInfoData()));
        QCOMPARE(stored(cAllRows).size(), 1);
    }

    void onlyTheNumberOneReadsAsConnected_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("connected");
        QTest::newRow("0") << "0" << false;
        QTest::newRow("1") << "1" << true;
        QTest::newRow("2") << "2" << false;
        QTest::newRow("-1") << "-1" << false;
        QTest::newRow("null") << "NULL" << false;
    }
    void onlyTheNumberOneReadsAsConnected()
    {
        QFETCH(const QString, stored);
        QVERIFY(run("INSERT INTO voipConferenceInfo (ConfID,IsConnect) VALUES ('c1', " + stored + ")"));
        QTEST(DBConfInfo::getAllConfInfo().value(0).m_bIsConnect, "connected");
    }

    void idsListByTextDescending()
    {
        for (const char *id : {"10", "9", "100", "b", "B"}) {
            QVERIFY(DBConfInfo::saveConfInfo(record(id)));
        }
        QCOMPARE(listedIds(), QStringList({"b", "B", "9", "100", "10"}));
    }

    void aRecordIsDeletedByItsId()
    {
        QVERIFY(DBConfInfo::saveConfInfo(record("c1")));
        QVERIFY(DBConfInfo::saveConfInfo(record("c2")));
        QVERIFY(DBConfInfo::deleteConfInfo("c1"));
        QCOMPARE(listedIds(), QStringList("c2"));
    }

    void deletingAnUnknownIdSucceeds()
    {
        QVERIFY(DBConfInfo::deleteConfInfo("nobody"));
        QVERIFY(DBConfInfo::deleteConfInfo(QString()));
    }

    void anIdWithAnApostropheIsStoredWithItAndNeverFoundAgain()
    {
        QVERIFY(DBConfInfo::saveConfInfo(record("it's")));
        QCOMPARE(listedIds(), QStringList("it's"));
        // Not found by the look-up, so that the key itself refuses the second one.
        QVERIFY(!DBConfInfo::saveConfInfo(record("it's")));
        QVERIFY(DBConfInfo::deleteConfInfo("it's"));
        QCOMPARE(listedIds(), QStringList("it's"));
    }

    void anIdWithAnApostropheAddressesTheOneWithout()
    {
        QVERIFY(DBConfInfo::saveConfInfo(record("its")));
        QVERIFY(DBConfInfo::saveConfInfo(record("it's")));
        QCOMPARE(listedIds(), QStringList("its"));
        QVERIFY(DBConfInfo::deleteConfInfo("it's"));
        QCOMPARE(listedIds(), QStringList());
    }

    void withoutAnOpenStoreEverythingFailsQuietly()
    {
        DB::closeDB();
        QVERIFY(!DBConfInfo::saveConfInfo(record("c1")));
        QVERIFY(DBConfInfo::getAllConfInfo().isEmpty());
        QVERIFY(!DBConfInfo::deleteConfInfo("c1"));
        QVERIFY(!DB::initByUserName("nobody", m_store->base(), false));
        QVERIFY(!DBConfInfo::saveConfInfo(record("c1")));
        QVERIFY(DBConfInfo::getAllConfInfo().isEmpty());
        QVERIFY(!DBConfInfo::deleteConfInfo("c1"));
    }

    void aStoreWithoutTheTableFailsQuietly()
    {
        QVERIFY(run("DROP TABLE voipConferenceInfo"));
        QVERIFY(!DBConfInfo::saveConfInfo(record("c1")));
        QVERIFY(DBConfInfo::getAllConfInfo().isEmpty());
        QVERIFY(!DBConfInfo::deleteConfInfo("c1"));
    }

    void recordsOutliveTheSession()
    {
        QVERIFY(DBConfInfo::saveConfInfo(record("c1")));
        QVERIFY(m_store->open("bert"));
        QCOMPARE(listedIds(), QStringList());
        QVERIFY(m_store->open("anna"));
        QCOMPARE(listedIds(), QStringList("c1"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_DBConfInfo, Guiless)
#include "tst_DBConfInfo.moc"
