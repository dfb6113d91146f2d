#include "store/StoreFolder.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

/// The store beside what a disk does to its file: the verdict, and that nothing crashes and no file ever disappears.
namespace {

/// Makes a list of rows "seed 1" to "seed N" for a test with a column "seed".
void addSeeds(int iCount)
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= iCount; ++seed) {
        QTest::addRow("seed %d", seed) << seed;
    }
}

void overwrite(QByteArray &bytes, int iFrom, int iCount, QRandomGenerator &random)
{
    for (int i = iFrom; i < iFrom + iCount; ++i) {
        bytes[i] = static_cast<char>(random.bounded(256));
    }
}

} // namespace

class tst_StoreDamage : public StoreFolder
{
    Q_OBJECT

private slots:
    void soundFileIsSound()
    {
        QVERIFY(putFile(m_sound));
        QVERIFY(DB::checkDB(m_strFolder, true));
        QVERIFY(DB::checkDB(m_strFolder, false));
        QCOMPARE(fileNames(), QStringList(QStringLiteral("localData.db")));
    }

    void overwrittenPagesFailTheQuickCheck_data() { addSeeds(24); }

    void overwrittenPagesFailTheQuickCheck()
    {
        QFETCH(int, seed);
        QRandomGenerator random(static_cast<quint32>(seed));
        QByteArray bytes = m_sound;
        for (int pages = random.bounded(1, 9); pages > 0; --pages) {
            overwrite(bytes, random.bounded(bytes.size() / m_iPageSize) * m_iPageSize, m_iPageSize, random);
        }
        QVERIFY(putFile(bytes));
        QVERIFY(!DB::checkDB(m_strFolder, true));
        QCOMPARE(fileBytes(), bytes);
        // Either verdict: it hangs on the pages that the trial write touches.
        DB::checkDB(m_strFolder, false);
        QCOMPARE(fileNames(), QStringList(QStringLiteral("localData.db")));
        useStore();
    }

    void scatteredBytesGetTheVerdictOfTheQuickCheck_data() { addSeeds(24); }

    void scatteredBytesGetTheVerdictOfTheQuickCheck()
    {
        QFETCH(int, seed);
        QRandomGenerator random(static_cast<quint32>(seed));
        QByteArray bytes = m_sound;
        for (int count = random.bounded(1, 40); count > 0; --count) {
            overwrite(bytes, random.bounded(bytes.size()), 1, random);
        }
        QVERIFY(putFile(bytes));
        const bool sound = ask(QStringLiteral("PRAGMA quick_check")) == QLatin1String("ok");
        QCOMPARE(DB::checkDB(m_strFolder, true), sound);
        DB::checkDB(m_strFolder, false);
        useStore();
    }

    void trialWriteJudgesThePagesThatItTouches_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<bool>("usable");
        QTest::newRow("the table that it writes to") << QStringLiteral("msgrecord") << false;
        QTest::newRow("another table") << QStringLiteral("voipConferenceInfo") << true;
    }

    void trialWriteJudgesThePagesThatItTouches()
    {
        QFETCH(QString, table);
        QFETCH(bool, usable);
        QVERIFY(putFile(m_sound));
        const int page =
            ask(QStringLiteral("SELECT rootpage FROM sqlite_master WHERE type = 'table' AND name = '%1'").arg(table))
                .toInt();
        QVERIFY(page > 1);
        QByteArray bytes = m_sound;
        QRandomGenerator random(1);
        overwrite(bytes, (page - 1) * m_iPageSize, m_iPageSize, random);
        QVERIFY(putFile(bytes));
        QCOMPARE(DB::checkDB(m_strFolder, false), usable);
        QVERIFY(!DB::checkDB(m_strFolder, true));
        QVERIFY(QFile::exists(m_strFile));
    }

    void truncatedFileIsDamaged_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("the header alone") << 100;
        QTest::newRow("within the first page") << 1000;
        QTest::newRow("after the first page") << m_iPageSize;
        QTest::newRow("within a page") << m_iPageSize * 20 + 17;
        QTest::newRow("at the end of a page") << m_iPageSize * 20;
        QTest::newRow("without the last page") << m_sound.size() - m_iPageSize;
    }

    void truncatedFileIsDamaged()
    {
        QFETCH(int, size);
        QVERIFY(putFile(m_sound.left(size)));
        QVERIFY(!DB::checkDB(m_strFolder, true));
        QVERIFY(!DB::checkDB(m_strFolder, false));
        QCOMPARE(fileBytes(), m_sound.left(size));
        useStore();
    }

    void fileTruncatedToNothingIsAnEmptyStore()
    {
        QVERIFY(putFile(QByteArray()));
        QVERIFY(DB::checkDB(m_strFolder, true));
        QVERIFY(DB::checkDB(m_strFolder, false));
        QCOMPARE(fileBytes(), QByteArray());
        useStore();
        QCOMPARE(ask(QStringLiteral("SELECT count(*) FROM voipConferenceInfo")), QStringLiteral("1"));
    }

    void fileThatIsNoDatabaseIsDamagedAndStaysAsItIs_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("words") << QByteArray("Dear reader,\nthis is a letter.\n").repeated(50);
        QTest::newRow("noise") << [] {
            QByteArray bytes(20000, '\0');
            QRandomGenerator random(7);
            overwrite(bytes, 0, bytes.size(), random);
            return bytes;
        }();
        QTest::newRow("zeros") << QByteArray(20000, '\0');
        QTest::newRow("the header without its pages") << QByteArray("SQLite format 3").append('\0');
    }

    void fileThatIsNoDatabaseIsDamagedAndStaysAsItIs()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(putFile(bytes));
        QVERIFY(!DB::checkDB(m_strFolder, true));
        QVERIFY(!DB::checkDB(m_strFolder, false));
        useStore();
        QCOMPARE(fileBytes(), bytes);
    }

    void fileThatCannotBeOpenedIsNotReported()
    {
        QVERIFY(QDir().mkpath(m_strFile));
        // Twice: the first check leaves its connection behind.
        for (int i = 0; i < 2; ++i) {
            QVERIFY(DB::checkDB(m_strFolder, true));
            QVERIFY(DB::checkDB(m_strFolder, false));
        }
        QVERIFY(!DB::initByUserName(m_strUser, m_strBase, true));
        QVERIFY(!DB::initByUserName(m_strUser, m_strBase, false));
        DB::closeDB();
        QVERIFY(QFile::exists(m_strFile));
    }

private:
    /// Walks through everything that a session does with the file.

    void useStore() const
    {
        // A damaged file opens: SQLite looks into it only when asked.
        QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
        DBConfInfo::getAllConfInfo();
        DBConfInfo::saveConfInfo(numberedRecord(m_iRecords));
        DBConfInfo::deleteConfInfo(numberedRecord(1).m_strConfID);
        DB::closeDB();
        QVERIFY(QFile::exists(m_strFile));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreDamage, Guiless)
#include "tst_StoreDamage.moc"
