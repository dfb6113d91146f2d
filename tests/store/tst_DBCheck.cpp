#include "fakes/FileBytes.h"
#include "store/StoreTest.h"

#include <QTest>
#include <QTranslator>

#include <memory>

namespace {

// The driver in the language in which the compared texts stand.
class ChineseDriver : public QTranslator
{
public:
    ChineseDriver() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return qstrcmp(source, "Unable to fetch row") == 0 ? QStringLiteral("不能获取行") : QString();
    }
};

constexpr qint64 cPageSize = 4096;

const QString cTrialRows = QStringLiteral("SELECT id FROM msgrecord WHERE id = 'checkid'");

// A table of many pages, the last made ones of which a test can spoil.
const QStringList cFiller = {
    "CREATE TABLE filler(text TEXT)",
    "INSERT INTO filler WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200)"
    " SELECT hex(zeroblob(500)) FROM n",
};

} // namespace

class tst_DBCheck : public StoreTest
{
    Q_OBJECT

private slots:
    void aFolderWithoutAStoreIsSoundAndStaysAsItIs()
    {
        QVERIFY(DB::checkDB(m_store->base(), false));
        QVERIFY(DB::checkDB(m_store->base(), true));
        QVERIFY(QDir(m_store->base()).isEmpty());
        QVERIFY(DB::checkDB(m_store->folder(), false));
        QVERIFY(!QFile::exists(m_store->folder()));
    }

    void aSoundStorePassesAndKeepsNoTrialRow()
    {
        makeStore();
        QVERIFY(DB::checkDB(m_store->folder(), false));
        QCOMPARE(stored(cTrialRows), QStringList());
    }

    void theQuickCheckAloneWritesNothing()
    {
        makeStore();
        const QByteArray before = readBytes(m_store->file());
        QVERIFY(DB::checkDB(m_store->folder(), true));
        QCOMPARE(readBytes(m_store->file()), before);
    }

    void aLeftoverTrialRowIsRecognisedAndDeleted()
    {
        makeStore({"INSERT INTO msgrecord (id) VALUES ('checkid')"});
        QVERIFY(DB::checkDB(m_store->folder(), false));
        QCOMPARE(stored(cTrialRows), QStringList());
    }

    void aLeftoverTrialRowIsDeletedButDoesNotVouchForTheRest()
    {
        makeStore(cFiller + QStringList("INSERT INTO msgrecord (id) VALUES ('checkid')"));
        spoilTail();
        QVERIFY(!DB::checkDB(m_store->folder(), false));
        QCOMPARE(stored(cTrialRows), QStringList());
    }

    void aStoreWithoutMessagesFallsThroughToTheQuickCheck()
    {
        m_store->make(cFiller);
        QVERIFY(DB::checkDB(m_store->folder(), false));
        spoilTail();
        QVERIFY(!DB::checkDB(m_store->folder(), false));
    }

    void anEmptyFileIsSound()
    {
        m_store->make({});
        QVERIFY(DB::checkDB(m_store->folder(), false));
        QVERIFY(DB::checkDB(m_store->folder(), true));
    }

    void aWorkingTrialWriteVouchesForTheFile()
    {
        makeStore(cFiller);
        spoilTail();
        QVERIFY(DB::checkDB(m_store->folder(), false));
        QVERIFY(!DB::checkDB(m_store->folder(), true));
    }

    void aTrialRowThatCannotBeDeletedDoesNotChangeTheVerdict()
    {
        makeStore(cFiller +
                  QStringList("CREATE TRIGGER keep BEFORE DELETE ON msgrecord BEGIN SELECT RAISE(ABORT, 'no');"
                              " END"));
        spoilTail();
        QVERIFY(DB::checkDB(m_store->folder(), false));
        QCOMPARE(stored(cTrialRows), QStringList("checkid"));
    }

    void aMalformedMessageTableIsDamage()
    {
        makeStore();
        spoilRootPageOf("msgrecord");
        QVERIFY(!DB::checkDB(m_store->folder(), false));
    }

    // Spoilt keys of an index stop the trial write, and the quick check does not look at them.
    void damageThatOnlyTheWriteMeetsGoesByItsWords_data()
    {
        QTest::addColumn<bool>("translated");
        QTest::addColumn<bool>("sound");
        QTest::newRow("driver in Chinese") << true << false;
        QTest::newRow("driver in English") << false << true;
    }

    void damageThatOnlyTheWriteMeetsGoesByItsWords()
    {
        QFETCH(const bool, translated);
        makeStore({"INSERT INTO msgrecord (id) WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE"
                   " i < 399) SELECT 'message' || i FROM n"});
        QByteArray bytes = readBytes(m_store->file());
        // A key's header: its length, the type of the id, that of the row's number. The id is told as longer than it
        // is.
        bytes.replace("\x03!\x01message1", "\x03=\x01message1");
        QVERIFY(bytes != readBytes(m_store->file()));
        QVERIFY(writeFile(m_store->file(), bytes));
        std::unique_ptr<ChineseDriver> driver;
        if (translated) {
            driver = std::make_unique<ChineseDriver>();
        }
        QTEST(DB::checkDB(m_store->folder(), false), "sound");
    }

    void aFileThatIsNoDatabaseIsDamage()
    {
        QVERIFY(QDir().mkpath(m_store->folder()));
        QVERIFY(writeFile(m_store->file(), QByteArray(5000, 'x')));
        QVERIFY(!DB::checkDB(m_store->folder(), false));
        QVERIFY(!DB::checkDB(m_store->folder(), true));
        QCOMPARE(readBytes(m_store->file()), QByteArray(5000, 'x'));
    }

    void aTruncatedFileIsDamageAndIsLeftAsItIs()
    {
        makeStore(cFiller);
        QVERIFY(QFile::resize(m_store->file(), 3000));
        const QByteArray before = readBytes(m_store->file());
        QVERIFY(!DB::checkDB(m_store->folder(), false));
        QCOMPARE(readBytes(m_store->file()), before);
    }

    // A trigger speaks for the older SQLite, on a file that the quick check would judge otherwise.
    void theOlderWordsAreRecognisedWholeAndByCase_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("translated");
        QTest::addColumn<bool>("damaged");
        QTest::addColumn<bool>("sound");
        QTest::newRow("duplicate, other damage") << "column id is not unique" << true << true << true;
        QTest::newRow("duplicate, driver in English") << "column id is not unique" << false << true << false;
        QTest::newRow("duplicate, other case") << "Column id is not unique" << true << true << false;
        QTest::newRow("duplicate, more text") << "column id is not unique." << true << true << false;
        QTest::newRow("malformed, sound file") << "database disk image is malformed" << true << false << false;
        QTest::newRow("malformed, driver in English") << "database disk image is malformed" << false << false << true;
        QTest::newRow("malformed, other case") << "Database disk image is malformed" << true << false << true;
        QTest::newRow("other words, sound file") << "no" << true << false << true;
        QTest::newRow("other words, damage") << "no" << true << true << false;
    }
    void theOlderWordsAreRecognisedWholeAndByCase()
    {
        QFETCH(const QString, message);
        QFETCH(const bool, translated);
        QFETCH(const bool, damaged);
        makeStore(cFiller + QStringList("CREATE TRIGGER say BEFORE INSERT ON msgrecord BEGIN SELECT RAISE(ABORT, '" +
                                        message + "'); END"));
        if (damaged) {
            spoilTail();
        }
        std::unique_ptr<ChineseDriver> driver;
        if (translated) {
            driver = std::make_unique<ChineseDriver>();
        }
        QTEST(DB::checkDB(m_store->folder(), false), "sound");
    }

    void aFileThatCannotBeOpenedIsNotReportedAndItsConnectionStays()
    {
        QVERIFY(QDir().mkpath(m_store->file()));
        QVERIFY(DB::checkDB(m_store->folder(), false));
        QVERIFY(QSqlDatabase::contains("my_sql_db"));
        QVERIFY(DB::checkDB(m_store->folder(), true));
        QVERIFY(QSqlDatabase::contains("my_sql_db"));
        QVERIFY(DB::checkDB(m_store->base(), true));
        QVERIFY(QSqlDatabase::contains("my_sql_db"));
        makeStore({}, "bert");
        QVERIFY(DB::checkDB(m_store->folder("bert"), false));
        QVERIFY(!QSqlDatabase::contains("my_sql_db"));
    }

    void theSessionIsNotTouched()
    {
        makeStore({}, "bert");
        QVERIFY(m_store->open("anna"));
        QVERIFY(DB::checkDB(m_store->folder("bert"), false));
        QVERIFY(DB::checkDB(m_store->folder("anna"), false));
        QCOMPARE(DB::getDB().databaseName(), m_store->file("anna"));
        QVERIFY(DB::isExistTable("loginInfo"));
    }

private:
    /// A complete store, closed again, with further statements carried out on it.
    void makeStore(const QStringList &statements = {}, const QString &user = QStringLiteral("anna"))
    {
        QVERIFY(m_store->open(user));
        DB::closeDB();
        BesideFile beside(m_store->file(user));
        for (const QString &statement : statements) {
            QVERIFY2(beside.run(statement), qPrintable(statement));
        }
    }

    /// Overwrites a page of the filler table.
    void spoilTail()
    {
        QFile file(m_store->file());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.seek(file.size() - 10 * cPageSize));
        QCOMPARE(file.write(QByteArray(int(cPageSize), '\x77')), cPageSize);
    }

    void spoilRootPageOf(const QString &table)
    {
        const qint64 page = BesideFile(m_store->file())
                                .rows("SELECT rootpage FROM sqlite_master WHERE name = '" + table + "'")
                                .value(0)
                                .toLongLong();
        QVERIFY(page > 1);
        QFile file(m_store->file());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.seek((page - 1) * cPageSize));
        QCOMPARE(file.write(QByteArray(int(cPageSize), '\x77')), cPageSize);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_DBCheck, Guiless)
#include "tst_DBCheck.moc"
