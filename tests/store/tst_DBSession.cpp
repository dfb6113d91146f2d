// The session connection: how a user's store is opened, switched and closed, and where the context points meanwhile.

#include "common/AppPaths.h"
#include "store/StoreTest.h"

namespace {

/// An open connection that is not the session's.
class OtherDatabase
{
public:
    OtherDatabase()
    {
        db = QSqlDatabase::addDatabase("QSQLITE", "other");
        db.setDatabaseName(":memory:");
        db.open();
    }
    ~OtherDatabase()
    {
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase("other");
    }
    OtherDatabase(const OtherDatabase &) = delete;
    OtherDatabase &operator=(const OtherDatabase &) = delete;

    QSqlDatabase db;
};

} // namespace

class tst_DBSession : public StoreTest
{
    Q_OBJECT

private slots:
    void anEmptyPathMeansTheDocumentsFolder()
    {
        QVERIFY(DB::initByUserName("anna", QString(), true));
        QVERIFY(QFile::exists(strAPP_DOCUMENT_IM_FILES_PATH() + "/anna/localData.db"));
    }

    void aRelativePathIsMadeAbsolute()
    {
        QVERIFY(DB::initByUserName("anna", "here", true));
        QCOMPARE(DB::getDB().databaseName(), QDir::currentPath() + "/here/anna/localData.db");
    }

    void theSessionConnectionIsNamedAndPointedTo()
    {
        QVERIFY(m_store->open());
        QCOMPARE(m_store->context.getSqlDatabase(), &DB::m_db);
        QCOMPARE(DB::getDB().connectionName(), QString("KelvarIM"));
        QCOMPARE(DB::getDB().driverName(), QString("QSQLITE"));
        QVERIFY(DB::getDB().isOpen());
    }

    void writesDoNotWaitForTheDisk()
    {
        for (const bool createAll : {true, false, true}) {
            QVERIFY(DB::initByUserName("anna", m_store->base(), createAll));
            QSqlQuery query("PRAGMA synchronous", DB::getDB());
            QVERIFY(query.next());
            QCOMPARE(query.value(0).toInt(), 0);
        }
    }

    void signingInOnAFreshUserFailsAndLeavesNoFolder()
    {
        QVERIFY(!DB::initByUserName("anna", m_store->base(), false));
        QVERIFY(!QFile::exists(m_store->folder()));
        QCOMPARE(m_store->context.getSqlDatabase(), &DB::m_db);
        QVERIFY(!DB::getDB().isOpen());
    }

    void signingInWithAFolderButNoFileFailsAndMakesNone()
    {
        QVERIFY(QDir().mkpath(m_store->folder()));
        QVERIFY(!DB::initByUserName("anna", m_store->base(), false));
        QVERIFY(!QFile::exists(m_store->file()));
    }

    void signingInMakesTheLoginTableAlone()
    {
        m_store->make({});
        QVERIFY(DB::initByUserName("anna", m_store->base(), false));
        QCOMPARE(stored("SELECT name FROM sqlite_master WHERE type = 'table'"), QStringList("loginInfo"));
    }

    void aFileThatCannotBeCreatedFailsTheOpenButIsPointedTo()
    {
        QVERIFY(QFile(m_store->folder()).open(QIODevice::WriteOnly));
        QVERIFY(!m_store->open());
        QCOMPARE(m_store->context.getSqlDatabase(), &DB::m_db);
        QVERIFY(!DB::getDB().isOpen());
    }

    void aFileThatCannotBeOpenedFailsTheOpen()
    {
        QVERIFY(QDir().mkpath(m_store->file()));
        QVERIFY(!m_store->open());
        QCOMPARE(m_store->context.getSqlDatabase(), &DB::m_db);
        QVERIFY(!DB::getDB().isOpen());
    }

    void anOpenAfterAFailedOneSucceeds()
    {
        QVERIFY(!DB::initByUserName("anna", m_store->base(), false));
        QVERIFY(m_store->open());
        QVERIFY(DB::getDB().isOpen());
    }

    void aSecondOpenSwitchesUsers()
    {
        QVERIFY(m_store->open("anna"));
        QVERIFY(m_store->open("bert"));
        QCOMPARE(DB::getDB().databaseName(), m_store->file("bert"));
    }

    void closingTakesTheConnectionAway()
    {
        QVERIFY(m_store->open());
        DB::closeDB();
        QVERIFY(!m_store->context.getSqlDatabase());
        QVERIFY(!QSqlDatabase::contains("KelvarIM"));
        QVERIFY(!DB::getDB().isValid());
        QVERIFY(!DB::m_db.isValid());
    }

    void closingAClosedSessionDoesNothing()
    {
        DB::closeDB();
        DB::closeDB();
        QVERIFY(!m_store->context.getSqlDatabase());
    }

    void closingClosesTheConnectionThatTheContextPointsTo()
    {
        QVERIFY(m_store->open());
        OtherDatabase other;
        m_store->context.setSqlDatabase(&other.db);
        DB::closeDB();
        QVERIFY(!other.db.isOpen());
        QVERIFY(!m_store->context.getSqlDatabase());
        QVERIFY(!QSqlDatabase::contains("KelvarIM"));
    }

    void closingWithNothingPointedToLeavesTheSessionOpen()
    {
        QVERIFY(m_store->open());
        m_store->context.setSqlDatabase(nullptr);
        DB::closeDB();
        QVERIFY(DB::m_db.isOpen());
        QVERIFY(DB::isExistTable("loginInfo"));
        m_store->given.reset();
        DB::closeDB();
        QVERIFY(DB::m_db.isOpen());
        QVERIFY(QSqlDatabase::contains("KelvarIM"));
    }

    void anOpenBesideAnOpenSessionClosesWhatTheContextPointsTo()
    {
        QVERIFY(m_store->open("anna"));
        OtherDatabase other;
        m_store->context.setSqlDatabase(&other.db);
        QVERIFY(m_store->open("bert"));
        QVERIFY(!other.db.isOpen());
        QCOMPARE(m_store->context.getSqlDatabase(), &DB::m_db);
        QCOMPARE(DB::getDB().databaseName(), m_store->file("bert"));
    }

    void anOpenWithTheSessionClosedLeavesAForeignConnectionOpen()
    {
        OtherDatabase other;
        m_store->context.setSqlDatabase(&other.db);
        QVERIFY(m_store->open());
        QVERIFY(other.db.isOpen());
        QCOMPARE(m_store->context.getSqlDatabase(), &DB::m_db);
    }

    void aFailedOpenClosesTheStoreOfTheUserBefore()
    {
        QVERIFY(m_store->open("anna"));
        QVERIFY(!DB::initByUserName("bert", m_store->base(), false));
        QVERIFY(!DB::m_db.isOpen());
        QVERIFY(!DB::isExistTable("loginInfo"));
        QCOMPARE(m_store->context.getSqlDatabase(), &DB::m_db);
    }

    void theConnectionComesFromTheContext()
    {
        QVERIFY(m_store->open());
        m_store->context.setSqlDatabase(nullptr);
        QVERIFY(!DB::getDB().isValid());
        // These ask the session's own connection.
        QVERIFY(DB::isExistTable("loginInfo"));
        QVERIFY(DB::isExistFiled("loginInfo", "password"));
        QVERIFY(DB::isExistIndex("msgrecord", "_index1"));
        m_store->context.setSqlDatabase(&DB::m_db);
        QVERIFY(DB::getDB().isOpen());
    }

    void withoutAContextTheFileOpensAndNothingPointsToIt()
    {
        m_store->given.reset();
        QVERIFY(!DB::getDB().isValid());
        DB::closeDB();
        QVERIFY(m_store->open("anna"));
        QVERIFY(m_store->open("bert"));
        QCOMPARE(DB::m_db.databaseName(), m_store->file("bert"));
        QVERIFY(!DB::getDB().isValid());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_DBSession, Guiless)
#include "tst_DBSession.moc"
