#include "model/SharedContext.h"
#include "store/LockHolder.h"
#include "store/LockWait.h"
#include "store/StoreFolder.h"
#include "store/StoreOpening.h"

#include <QSqlQuery>
#include <QTest>

namespace {

// Within the waiting of one open.
constexpr int cShortHold = 300;

// What keeps others from reading, and what keeps them from writing only.
const QString cEverything = QStringLiteral("BEGIN EXCLUSIVE");
const QString cWriting = QStringLiteral("BEGIN IMMEDIATE");
const QString cAReadersLook = QStringLiteral("BEGIN;SELECT count(*) FROM msgrecord");

} // namespace

/// The store while another program holds its file: how long that may keep this one waiting, and what is left of it.
class tst_StoreLocked : public StoreFolder
{
    Q_OBJECT

private slots:
    void openOfAFileThatCannotBeReadFailsWhileItIsHeld_data()
    {
        QTest::addColumn<QString>("journal");
        QTest::addColumn<QString>("statements");
        QTest::addColumn<bool>("createAll");
        QTest::newRow("the whole store") << QStringLiteral("PRAGMA journal_mode = DELETE") << cEverything << true;
        QTest::newRow("the login table only") << QStringLiteral("PRAGMA journal_mode = DELETE") << cEverything << false;
        QTest::newRow("in a write-ahead journal's mode")
            << QStringLiteral("PRAGMA journal_mode = WAL")
            << QStringLiteral("PRAGMA locking_mode = EXCLUSIVE;BEGIN IMMEDIATE;CREATE TABLE others(id)") << true;
    }

    void openOfAFileThatCannotBeReadFailsWhileItIsHeld()
    {
        QFETCH(QString, journal);
        QFETCH(QString, statements);
        QFETCH(bool, createAll);
        QVERIFY(putFile(m_sound));
        ask(journal);
        const QByteArray bytes = fileBytes();
        LockHolder holder(m_strFile, statements);
        QVERIFY(holder.hasHeld());

        QVERIFY(!open(createAll));
        QVERIFY(holder.holds());
        QCOMPARE(SharedContext::getSqlDatabase(), &DB::m_db);
        QVERIFY(!DB::m_db.isOpen());
        QVERIFY(!DBConfInfo::saveConfInfo(numberedRecord(m_iRecords)));

        QVERIFY(holder.letGo());
        QCOMPARE(fileBytes(), bytes);
        QVERIFY(open(createAll));
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords);
        QVERIFY(DBConfInfo::saveConfInfo(numberedRecord(m_iRecords)));
        DB::closeDB();
    }

    void openWaitsForALockThatIsLetGo_data()
    {
        QTest::addColumn<QString>("statements");
        QTest::newRow("that keeps from reading") << cEverything;
        QTest::newRow("that keeps from writing") << cWriting;
        QTest::newRow("of a reader") << cAReadersLook;
    }

    void openWaitsForALockThatIsLetGo()
    {
        QFETCH(QString, statements);
        QVERIFY(putFile(m_sound));
        const QString all = tables();
        ask(QStringLiteral("DROP TABLE voipConferenceInfo"));
        QVERIFY(tables() != all);
        LockHolder holder(m_strFile, statements, cShortHold);
        QVERIFY(holder.hasHeld());
        QVERIFY(open());
        {
            QSqlQuery query(QStringLiteral("PRAGMA synchronous"), DB::getDB());
            QVERIFY(query.next());
            QCOMPARE(query.value(0).toInt(), 0);
        }
        DB::closeDB();
        QCOMPARE(tables(), all);
        QVERIFY(holder.letGo());
    }

    void openOfAWholeFileNeedsNoWriting_data()
    {
        QTest::addColumn<QString>("statements");
        QTest::newRow("held for writing") << cWriting;
        QTest::newRow("held by a reader") << cAReadersLook;
    }

    void openOfAWholeFileNeedsNoWriting()
    {
        QFETCH(QString, statements);
        QVERIFY(putFile(m_sound));
        LockHolder holder(m_strFile, statements);
        QVERIFY(holder.hasHeld());
        QVERIFY(open());
        QVERIFY(holder.holds());
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords);
        QVERIFY(holder.letGo());
        QVERIFY(DBConfInfo::saveConfInfo(numberedRecord(m_iRecords)));
        DB::closeDB();
    }

    void upgradeThatMayNotWriteIsLeftToTheNextOpen_data()
    {
        QTest::addColumn<bool>("fresh");
        QTest::addColumn<QString>("statements");
        QTest::newRow("an old file held for writing") << false << cWriting;
        QTest::newRow("an old file held by a reader")
            << false << QStringLiteral("BEGIN;SELECT count(*) FROM loginInfo");
        QTest::newRow("an empty file held for writing") << true << cWriting;
    }

    void upgradeThatMayNotWriteIsLeftToTheNextOpen()
    {
        QFETCH(bool, fresh);
        QFETCH(QString, statements);
        QVERIFY(putFile(m_sound));
        const QString all = tables();
        QVERIFY(fresh ? putFile(QByteArray()) : putOldFile());
        const QByteArray bytes = fileBytes();
        LockHolder holder(m_strFile, statements);
        QVERIFY(holder.hasHeld());

        QVERIFY(open());
        QVERIFY(holder.holds());
        DB::closeDB();
        QCOMPARE(fileBytes(), bytes);

        QVERIFY(holder.letGo());
        QVERIFY(open());
        DB::closeDB();
        QCOMPARE(tables(), all);
        QCOMPARE(ask(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    }

    void openingIsShutOutWhenTheLockGoesTooLate()
    {
        QVERIFY(putFile(m_sound));
        const QString name = QStringLiteral("late");
        LockHolder holder(m_strFile, cEverything);
        QVERIFY(holder.hasHeld());
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            db.setDatabaseName(m_strFile);
            QVERIFY(LockWait::open(db));
            const StoreOpening opening(db);
            // Each question would be answered now, but the session's setting was not made.
            QVERIFY(holder.holds());
            QVERIFY(holder.letGo());
            QVERIFY(StoreOpening::isShutOut());
            QSqlQuery query(db);
            QVERIFY(!StoreOpening::ask(query, QStringLiteral("SELECT 1")));
            QVERIFY(!StoreOpening::execute(query, QStringLiteral("CREATE TABLE others(id)")));
        }
        QSqlDatabase::removeDatabase(name);
        QCOMPARE(fileBytes(), m_sound);
    }

    void sessionWaitsForALockAsTheDriverDoes()
    {
        QVERIFY(putFile(m_sound));
        QVERIFY(open());
        const auto waitingTime = [] {
            QSqlQuery query(QStringLiteral("PRAGMA busy_timeout"), DB::getDB());
            return query.next() ? query.value(0).toInt() : -1;
        };
        QCOMPARE(waitingTime(), 5000);
        // Also when its owner opens the connection again.
        QCOMPARE(DB::getDB().connectOptions(), QString());
        DB::m_db.close();
        QVERIFY(DB::m_db.open());
        QCOMPARE(waitingTime(), 5000);
        DB::closeDB();
    }

    void checkOfALockedFile_data()
    {
        QTest::addColumn<QString>("statements");
        QTest::addColumn<bool>("readable");
        QTest::newRow("for reading and writing") << cEverything << false;
        QTest::newRow("for writing") << cWriting << true;
        QTest::newRow("by a reader") << cAReadersLook << true;
    }

    void checkOfALockedFile()
    {
        QFETCH(QString, statements);
        QFETCH(bool, readable);
        QVERIFY(putFile(m_sound));
        LockHolder holder(m_strFile, statements);
        QVERIFY(holder.hasHeld());
        // What cannot be read has no "ok" to say.
        QCOMPARE(DB::checkDB(m_strFolder, true), readable);
        QCOMPARE(DB::checkDB(m_strFolder, false), readable);
        QVERIFY(holder.holds());
        QVERIFY(holder.letGo());
        QCOMPARE(fileBytes(), m_sound);
        QVERIFY(DB::checkDB(m_strFolder, false));
    }

    void checkEndsWhileTheFileIsHeld()
    {
        QVERIFY(putFile(m_sound));
        LockHolder holder(m_strFile, cEverything);
        QVERIFY(holder.hasHeld());
        // Waiting once for the write and once more for the reading, they would outlast the lock.
        for (int i = 0; i < 3; ++i) {
            QVERIFY(!DB::checkDB(m_strFolder, false));
        }
        QVERIFY(holder.holds());
        QVERIFY(holder.letGo());
    }

private:
    bool open(bool bCreateAll = true) const { return DB::initByUserName(m_strUser, m_strBase, bCreateAll); }
    /// Puts the sound file and takes something of an older release's out of it.
    bool putOldFile() const
    {
        return putFile(m_sound) && ask(QStringLiteral("DROP TABLE voipConferenceInfo")).isEmpty() &&
               ask(QStringLiteral("DROP TABLE msgrecord")).isEmpty();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreLocked, Guiless)
#include "tst_StoreLocked.moc"
