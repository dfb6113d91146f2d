#include "store/LockHolder.h"
#include "store/LockWait.h"
#include "store/StoreFolder.h"

#include <QElapsedTimer>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>
#include <QVariant>

namespace {

const QString cEverything = QStringLiteral("BEGIN EXCLUSIVE");
const QString cLook = QStringLiteral("SELECT count(*) FROM msgrecord");

// A lock of a second is waited out, and nobody's client stands still for longer than two.
static_assert(LockWait::cLimitMs > 1000 && LockWait::cLimitMs <= 2000);

/// A connection that is opened for a flow.
class FlowConnection
{
public:
    explicit FlowConnection(const QString &strFile)
    {
        db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("flow"));
        db.setDatabaseName(strFile);
        LockWait::open(db);
    }
    ~FlowConnection()
    {
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("flow"));
    }
    FlowConnection(const FlowConnection &) = delete;
    FlowConnection &operator=(const FlowConnection &) = delete;

    /// What each of its statements waits by itself, in milliseconds.
    int ownWaitingTime() const
    {
        QSqlQuery query(QStringLiteral("PRAGMA busy_timeout"), db);
        return query.next() ? query.value(0).toInt() : -1;
    }

    QSqlDatabase db;
};

} // namespace

/// The waiting that the statements of one flow share, over a file that another program holds.
class tst_LockWait : public StoreFolder
{
    Q_OBJECT

private slots:
    void statementIsTriedAgainUntilTheLockIsGone()
    {
        QVERIFY(putFile(m_sound));
        const FlowConnection flow(m_strFile);
        LockHolder holder(m_strFile, cEverything);
        QVERIFY(holder.hasHeld());
        LockWait wait(flow.db);
        QSqlQuery query(flow.db);
        int tries = 0;
        bool gone = false;
        QVERIFY(wait.execute(query, [&] {
            if (++tries == 4) {
                gone = holder.letGo();
            }
            return query.exec(cLook);
        }));
        QVERIFY(gone);
        QCOMPARE(tries, 4);
        QVERIFY(query.next());
        QCOMPARE(query.value(0).toInt(), m_iRecords);
    }

    void allStatementsWaitTogether()
    {
        QVERIFY(putFile(m_sound));
        const FlowConnection flow(m_strFile);
        LockHolder holder(m_strFile, cEverything);
        QVERIFY(holder.hasHeld());
        LockWait wait(flow.db);
        QSqlQuery query(flow.db);
        int tries = 0;
        const auto tryOnce = [&] {
            ++tries;
            return query.exec(cLook);
        };
        QVERIFY(!wait.execute(query, tryOnce));
        QVERIFY(LockWait::isLockedOut(query.lastError()));
        QVERIFY(tries > 1);
        // Nothing is left for those behind it, but they are tried.
        for (tries = 0; tries < 50;) {
            const int before = tries;
            QVERIFY(!wait.execute(query, tryOnce));
            QCOMPARE(tries, before + 1);
        }
        QVERIFY(holder.holds());
        QVERIFY(holder.letGo());
        QVERIFY(wait.execute(query, cLook));
    }

    void workThatTakesLongUsesNothingUp()
    {
        QVERIFY(putFile(m_sound));
        const FlowConnection flow(m_strFile);
        LockWait wait(flow.db);
        QSqlQuery query(flow.db);
        const QString longWork =
            QStringLiteral("WITH RECURSIVE counted(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM counted"
                           " LIMIT 500000) SELECT max(i) FROM counted");
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() <= LockWait::cLimitMs) {
            QVERIFY(wait.execute(query, longWork));
        }
        query.clear();
        LockHolder holder(m_strFile, cEverything);
        QVERIFY(holder.hasHeld());
        int tries = 0;
        QVERIFY(wait.execute(query,
                             [&] { return ++tries == 4 ? holder.letGo() && query.exec(cLook) : query.exec(cLook); }));
    }

    void otherFailuresAreNotTriedAgain()
    {
        QVERIFY(putFile(m_sound));
        const FlowConnection flow(m_strFile);
        LockWait wait(flow.db);
        QSqlQuery query(flow.db);
        int tries = 0;
        QVERIFY(!wait.execute(query, [&] {
            ++tries;
            return query.exec(QStringLiteral("SELECT id FROM nothing"));
        }));
        QCOMPARE(tries, 1);
        QVERIFY(!LockWait::isLockedOut(query.lastError()));
        QVERIFY(query.lastError().isValid());
    }

    void preparedStatementKeepsItsValues()
    {
        QVERIFY(putFile(m_sound));
        const FlowConnection flow(m_strFile);
        LockHolder holder(m_strFile, cEverything);
        QVERIFY(holder.hasHeld());
        LockWait wait(flow.db);
        QSqlQuery query(flow.db);
        int tries = 0;
        QVERIFY(wait.execute(query, [&] {
            if (++tries == 3 && !holder.letGo()) {
                return false;
            }
            if (!query.prepare(QStringLiteral("INSERT INTO msgrecord (id) VALUES (?)"))) {
                return false;
            }
            query.addBindValue(QStringLiteral("mine"));
            return query.exec();
        }));
        QCOMPARE(ask(QStringLiteral("SELECT count(*) FROM msgrecord WHERE id = 'mine'")), QStringLiteral("1"));
    }

    void connectionOpenedAgainWaitsAsTheDriverDoes()
    {
        constexpr int driversOwn = 5000;
        QVERIFY(putFile(m_sound));
        FlowConnection flow(m_strFile);
        QCOMPARE(flow.ownWaitingTime(), 0);
        LockWait(flow.db).end();
        QCOMPARE(flow.ownWaitingTime(), driversOwn);
        QVERIFY(LockWait::open(flow.db));
        QCOMPARE(flow.db.connectOptions(), QString());
        flow.db.close();
        QVERIFY(flow.db.open());
        QCOMPARE(flow.ownWaitingTime(), driversOwn);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LockWait, Guiless)
#include "tst_LockWait.moc"
