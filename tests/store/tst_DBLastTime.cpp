#include "common/CLogManger.h"
#include "fakes/LogCapture.h"
#include "store/DBLastTime.h"
#include "store/StoreTest.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>
#include <type_traits>

static_assert(std::is_same_v<decltype(&DBLastTime::saveLastTime), void (*)(const QString &)>);
static_assert(std::is_same_v<decltype(&DBLastTime::updateLastTime), void (*)(const QString &)>);
static_assert(std::is_same_v<decltype(&DBLastTime::getLastTime), QString (*)()>);

namespace {

const QString cNoConnection = QStringLiteral("Driver not loaded Driver not loaded");
const QString cNoTable = QStringLiteral("no such table: last_time Unable to execute statement");

} // namespace

class tst_DBLastTime : public StoreTest
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
        StoreTest::init();
        QVERIFY(m_store->open());
        QCOMPARE(m_log->take(), QStringList());
    }

    void aNewFileHasOneEmptyTime()
    {
        QCOMPARE(storedTimes(), QStringList("all_session|text|"));
        QCOMPARE(DBLastTime::getLastTime(), QString("-1"));
    }

    void theRowIsMadeWithTheTableOnly()
    {
        QVERIFY(run("DELETE FROM last_time"));
        DB::createLastTimeTable();
        QCOMPARE(storedTimes(), QStringList());
        QVERIFY(run("DROP TABLE last_time"));
        DB::createLastTimeTable();
        QCOMPARE(storedTimes(), QStringList("all_session|text|"));
        QCOMPARE(m_log->take(), QStringList());
    }

    void laterTimesReplaceTheStoredOne()
    {
        DBLastTime::updateLastTime("1700000000");
        QCOMPARE(DBLastTime::getLastTime(), QString("1700000000"));
        DBLastTime::updateLastTime("1700000001");
        QCOMPARE(DBLastTime::getLastTime(), QString("1700000001"));
        QCOMPARE(storedTimes(), QStringList("all_session|text|1700000001"));
        QCOMPARE(m_log->take(), QStringList());
    }

    void anEmptiedTimeReadsAsNone()
    {
        DBLastTime::updateLastTime("1700000000");
        DBLastTime::updateLastTime(QString());
        QCOMPARE(storedTimes(), QStringList("all_session|text|"));
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
        QCOMPARE(storedTimes(), QStringList());
        QCOMPARE(m_log->take(), QStringList());
    }

    void aSecondSaveIsRefusedAndLogged()
    {
        DBLastTime::updateLastTime("1700000000");
        DBLastTime::saveLastTime("1700000001");
        QCOMPARE(DBLastTime::getLastTime(), QString("1700000000"));
        QCOMPARE(loggedErrors(), QStringList(saveFailed("1700000001") +
                                             "UNIQUE constraint failed: last_time.sessionId Unable to fetch row"));
    }

    void aFailedUpdateIsLogged()
    {
        QVERIFY(run("CREATE TRIGGER refuse BEFORE UPDATE ON last_time BEGIN SELECT RAISE(ABORT, 'refused'); END"));
        DBLastTime::updateLastTime("1700000001");
        QCOMPARE(loggedErrors(), QStringList(updateFailed("1700000001") + "refused Unable to fetch row"));
    }

    void withoutAnOpenStoreWritesAreLoggedAndNoTimeIsRead()
    {
        DB::closeDB();
        writeAndRead();
        QCOMPARE(loggedErrors(), QStringList({saveFailed("1") + cNoConnection, updateFailed("2") + cNoConnection}));
    }

    // The closed connection has a driver, which has nothing to say.
    void afterAFailedOpenWritesAreLoggedAndNoTimeIsRead()
    {
        QVERIFY(!DB::initByUserName("bert", m_store->base(), false));
        writeAndRead();
        QCOMPARE(loggedErrors(), QStringList({saveFailed("1"), updateFailed("2")}));
    }

    void aTableThatCannotBeMadeIsLogged()
    {
        DB::closeDB();
        DB::createLastTimeTable();
        QCOMPARE(loggedErrors(), QStringList(saveFailed(QString()) + cNoConnection));
    }

    void aStoreWithoutTheTableIsLoggedToo()
    {
        // By the session itself: its next statement then fails when it is prepared.
        QVERIFY(QSqlQuery(DB::getDB()).exec("DROP TABLE last_time"));
        writeAndRead();
        QCOMPARE(loggedErrors(), QStringList({saveFailed("1") + cNoTable, updateFailed("2") + cNoTable}));
    }

    void aFirstOpenWithoutAContextLeavesTheRowMissingForGood()
    {
        DB::closeDB();
        m_store->given.reset();
        QVERIFY(m_store->open("bert"));
        QCOMPARE(loggedErrors(), QStringList(saveFailed(QString()) + cNoConnection));
        QVERIFY(m_store->open("bert"));
        m_store->given.emplace(m_store->context);
        QVERIFY(m_store->open("bert"));
        QVERIFY(DB::isExistTable("last_time"));
        QCOMPARE(BesideFile(m_store->file("bert")).rows("SELECT * FROM last_time"), QStringList());
        QCOMPARE(m_log->take(), QStringList());
    }

private:
    static QString saveFailed(const QString &time)
    {
        return "DBLastTime::saveLastTime(),ERROR:保存最后一次时间失败.strLastTime=" + time + "，数据库错误:";
    }
    static QString updateFailed(const QString &time)
    {
        return "DBLastTime::updateLastTime(),ERROR:更新时间信息失败.strLastTime=" + time + "，数据库错误:";
    }

    static void writeAndRead()
    {
        DBLastTime::saveLastTime("1");
        DBLastTime::updateLastTime("2");
        QCOMPARE(DBLastTime::getLastTime(), QString("-1"));
    }

    /// The texts of the records since the last look; a record that is no error or comes from elsewhere as it is.
    QStringList loggedErrors()
    {
        return m_log->take().replaceInStrings(QRegularExpression("^\\[ERROR\\]\\[DBLastTime\\.cpp:\\d+\\]: "),
                                              QString());
    }

    QStringList storedTimes() { return stored("SELECT sessionId, typeof(lastTime), lastTime FROM last_time"); }

    std::unique_ptr<LogCapture> m_log;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_DBLastTime, Guiless)
#include "tst_DBLastTime.moc"
