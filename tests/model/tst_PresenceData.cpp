#include "model/CommonData.h"

#include <QTest>

namespace {

PresenceData presence(const QString &strJid, int iStateA, int iStateB, int iShowType, const QString &strText,
                      bool bFlag)
{
    PresenceData data;
    data.m_strJid = strJid;
    data.m_iStateA = iStateA;
    data.m_iStateB = iStateB;
    data.m_ePcShowType = static_cast<PresenceData::ePcShowType>(iShowType);
    data.m_strText = strText;
    data.m_bFlag = bFlag;
    return data;
}

} // namespace

class tst_PresenceData : public QObject
{
    Q_OBJECT

private slots:
    void aNewRecordShowsNothing()
    {
        const PresenceData data;
        QCOMPARE(data.m_strJid, QString());
        QCOMPARE(data.m_iStateA, 0);
        QCOMPARE(data.m_iStateB, 0);
        QCOMPARE(int(data.m_ePcShowType), 0);
        QCOMPARE(data.m_strText, QString());
        QVERIFY(data.m_bFlag);
        QCOMPARE(sizeof(PresenceData::ePcShowType), sizeof(int));
    }

    void aNewKeyIsInserted()
    {
        CommonData context;
        context.setPresenceDataMap({{"a", presence("a", 1, 2, 3, "text", false)}});
        const PresenceData kept = context.getPresenceDataMap({"a"}).value("a");
        QCOMPARE(kept.m_strJid, QString("a"));
        QCOMPARE(kept.m_iStateA, 1);
        QCOMPARE(kept.m_iStateB, 2);
        QCOMPARE(int(kept.m_ePcShowType), 3);
        QCOMPARE(kept.m_strText, QString("text"));
        QVERIFY(!kept.m_bFlag);
    }

    void aKnownKeyIsMergedFieldByField_data()
    {
        QTest::addColumn<int>("newShow");
        QTest::addColumn<bool>("newFlag");
        QTest::addColumn<int>("stateA");
        QTest::addColumn<int>("show");
        QTest::newRow("show type 0, flag false: show type cleared, state A stays") << 0 << false << 1 << 0;
        QTest::newRow("show type 0, flag true: state A taken, show type stays") << 0 << true << 11 << 3;
        QTest::newRow("show type taken, state A stays") << 13 << true << 1 << 13;
        QTest::newRow("show type taken whatever the flag") << 13 << false << 1 << 13;
    }

    void aKnownKeyIsMergedFieldByField()
    {
        QFETCH(int, newShow);
        QFETCH(bool, newFlag);
        for (const bool bOldFlag : {false, true}) {
            CommonData context;
            context.setPresenceDataMap({{"a", presence("a", 1, 2, 3, "old", bOldFlag)}});
            context.setPresenceDataMap({{"a", presence("other", 11, 12, newShow, "new", newFlag)}});
            const PresenceData kept = context.getPresenceDataMap({"a"}).value("a");
            QTEST(kept.m_iStateA, "stateA");
            QTEST(int(kept.m_ePcShowType), "show");
            QCOMPARE(kept.m_iStateB, 12);
            QCOMPARE(kept.m_strJid, QString("a"));
            QCOMPARE(kept.m_strText, QString("old"));
            QCOMPARE(kept.m_bFlag, bOldFlag);
        }
    }

    void keysThatTheUpdateLacksStay()
    {
        CommonData context;
        context.setPresenceDataMap({{"a", presence("a", 1, 2, 3, "", true)}});
        context.setPresenceDataMap({{"b", presence("b", 4, 5, 6, "", true)}});
        QCOMPARE(context.getPresenceDataMap({"a"}).value("a").m_iStateA, 1);
        QCOMPARE(context.getPresenceDataMap({"b"}).value("b").m_iStateA, 4);
    }

    void anUnknownKeyGivesARecordThatBearsIt()
    {
        CommonData context;
        context.setPresenceDataMap({{"a", presence("a", 1, 2, 3, "", true)}});
        const QMap<QString, PresenceData> mapResult = context.getPresenceDataMap({"x", "", "a"});
        QCOMPARE(mapResult.keys(), QStringList({"a", "x"}));
        QCOMPARE(mapResult.value("x").m_strJid, QString("x"));
        QCOMPARE(mapResult.value("x").m_iStateA, 0);
        QCOMPARE(mapResult.value("x").m_iStateB, 0);
        QCOMPARE(int(mapResult.value("x").m_ePcShowType), 0);
        QCOMPARE(context.getPresenceDataMap({"x", "a"}).size(), 2);
    }

    void anEmptyListGivesAnEmptyMap()
    {
        CommonData context;
        context.setPresenceDataMap({{"a", presence("a", 1, 2, 3, "", true)}});
        QVERIFY(context.getPresenceDataMap({}).isEmpty());
    }

    void clearingResetsTheRecordsAndKeepsTheKeys()
    {
        CommonData context;
        context.setPresenceDataMap({{"a", presence("other", 1, 2, 3, "text", false)}});
        context.clearPresenceDataMap();
        const PresenceData kept = context.getPresenceDataMap({"a"}).value("a");
        QCOMPARE(kept.m_strJid, QString("a"));
        QCOMPARE(kept.m_iStateA, 0);
        QCOMPARE(kept.m_iStateB, 0);
        QCOMPARE(int(kept.m_ePcShowType), 0);
        QCOMPARE(kept.m_strText, QString());
        QVERIFY(kept.m_bFlag);

        // The key is still known: an update is merged into it and not inserted.
        context.setPresenceDataMap({{"a", presence("new", 1, 2, 3, "new", false)}});
        QCOMPARE(context.getPresenceDataMap({"a"}).value("a").m_strText, QString());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PresenceData, Appless)
#include "tst_PresenceData.moc"
