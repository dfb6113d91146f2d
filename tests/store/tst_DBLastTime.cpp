#include "StoreFixture.h"
#include "common/CLogManger.h"
#include "fakes/LogCapture.h"
#include "store/DBLastTime.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>

class tst_DBLastTime : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The log facade takes file and thread from the context of its first record.
        m_log = std::make_unique<LogCapture>();
        CLogManger::instance();
    }

    void cleanupTestCase() { m_log.reset(); }

    void init()
    {
        m_store = std::make_unique<StoreFixture>();
        QVERIFY(m_store->open());
        QCOMPARE(m_log->take(), QStringList());
    }

    void cleanup()
    {
        DB::closeDB();
        const QStringList warnings = m_store->messages.warnings;
        m_store.reset();
        QCOMPARE(warnings, QStringList());
    }

    void aNewFileHasOneEmptyTime()
    {
        QCOMPARE(stored(), QStringList("all_session|text|"));
        QCOMPARE(DBLastTime::getLastTime(), QString("-1"));
    }

    void theRowIsMadeWithTheTableOnly()
    {
        QVERIFY(run("DELETE FROM last_time"));
        DB::createLastTimeTable();
        QCOMPARE(stored(), QStringList());
        QVERIFY(run("DROP TABLE last_time"));
        DB::createLastTimeTable();
        QCOMPARE(stored(), QStringList("all_session|text|"));
        QCOMPARE(m_log->take(), QStringList());
    }

    void laterTimesReplaceTheStoredOne()
    {
        DBLastTime::updateLastTime("1700000000");
        QCOMPARE(DBLastTime::getLastTime(), QString("1700000000"));
        DBLastTime::updateLastTime("1700000001");
        QCOMPARE(DBLastTime::getLastTime(), QString("1700000001"));
        QCOMPARE(stored(), QStringList("all_session|text|1700000001"));
        QCOMPARE(m_log->take(), QStringList());
    }

    void anEmptiedTimeReadsAsNone()
    {
        DBLastTime::updateLastTime("1700000000");
        DBLastTime::updateLastTime(QString());
        QCOMPARE(stored(), QStringList("all_session|text|"));
        QCOMPARE(DBLastTime::getLastTime(), QString("-1"));
    }

    void aSavedTimeIsReadWhenTheRowWasMissing()
    {
        QVERIFY(run("DELETE FROM last_time"));
        QCOMPARE(DBLastTime::getLastTime(), QString("-1"));
        DBLastTime::saveLastTime("1700000000");
        QCOMPARE(DBLastTime::getLastTime(), QString("1700000000"));
        QCOMPARE(m_log->take(), QStringList());
    }

    void anUpdateWithoutTheRowStoresNothing()
    {
        QVERIFY(run("DELETE FROM last_time"));
        DBLastTime::updateLastTime("1700000000");
        QCOMPARE(stored(), QStringList());
        QCOMPARE(m_log->take(), QStringList());
    }

    void aSecondSaveIsRefusedAndLogged()
    {
        DBLastTime::updateLastTime("1700000000");
        DBLastTime::saveLastTime("1700000001");
        QCOMPARE(DBLastTime::getLastTime(), QString("1700000000"));
        const QStringList log = m_log->take();
        QCOMPARE(log.size(), 1);
        const QRegularExpression line("^\\[ERROR\\]\\[DBLastTime\\.cpp:\\d+\\]: (.*)$");
        QCOMPARE(line.match(log[0]).captured(1),
                 QStringLiteral("DBLastTime::saveLastTime(),ERROR:保存最后一次时间失败.strLastTime=1700000001"
                                "，数据库错误:UNIQUE constraint failed: last_time.sessionId Unable to fetch row"));
    }

    void aFailedUpdateIsLogged()
    {
        QVERIFY(run("CREATE TRIGGER refuse BEFORE UPDATE ON last_time BEGIN SELECT RAISE(ABORT, 'refused'); END"));
        DBLastTime::updateLastTime("1700000001");
        const QStringList log = m_log->take();
        QCOMPARE(log.size(), 1);
        const QRegularExpression line("^\\[ERROR\\]\\[DBLastTime\\.cpp:\\d+\\]: (.*)$");
        QCOMPARE(line.match(log[0]).captured(1),
                 QStringLiteral("DBLastTime::updateLastTime(),ERROR:更新时间信息失败.strLastTime=1700000001"
                                "，数据库错误:refused Unable to fetch row"));
    }

    void withoutAnOpenStoreWritesAreLoggedAndNoTimeIsRead()
    {
        DB::closeDB();
        DBLastTime::saveLastTime("1");
        DBLastTime::updateLastTime("2");
        QCOMPARE(DBLastTime::getLastTime(), QString("-1"));
        logHoldsBothFailures();
    }

    void aTableThatCannotBeMadeIsLogged()
    {
        DB::closeDB();
        DB::createLastTimeTable();
        const QStringList log = m_log->take();
        QCOMPARE(log.size(), 1);
        QVERIFY(log.constFirst().contains(QStringLiteral("保存最后一次时间失败.strLastTime=，")));
    }

    void aStoreWithoutTheTableIsLoggedToo()
    {
        QVERIFY(run("DROP TABLE last_time"));
        DBLastTime::saveLastTime("1");
        DBLastTime::updateLastTime("2");
        QCOMPARE(DBLastTime::getLastTime(), QString("-1"));
        logHoldsBothFailures();
    }

private:
    void logHoldsBothFailures()
    {
        const QStringList log = m_log->take();
        QCOMPARE(log.size(), 2);
        QVERIFY(log.constFirst().contains(QStringLiteral("保存最后一次时间失败.strLastTime=1，")));
        QVERIFY(log.constLast().contains(QStringLiteral("更新时间信息失败.strLastTime=2，")));
    }

    QStringList stored()
    {
        return BesideFile(m_store->file()).rows("SELECT sessionId, typeof(lastTime), lastTime FROM last_time");
    }
    bool run(const QString &statement) { return BesideFile(m_store->file()).run(statement); }

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<StoreFixture> m_store;
};

QTEST_GUILESS_MAIN(tst_DBLastTime)
#include "tst_DBLastTime.moc"
