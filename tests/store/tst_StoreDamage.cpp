#include "Hardship.h"
#include "NumberedRecord.h"

#include "common/CommonFun.h"
#include "fakes/QtMessages.h"
#include "store/DB.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

#include <memory>

/// The store beside what disks, rights, other programs and sudden ends do to its file: what is answered, that nothing
/// crashes or warns, and that no file ever disappears.
class tst_StoreDamage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void soundFileIsSound();
    void overwrittenPagesFailTheQuickCheck_data();
    void overwrittenPagesFailTheQuickCheck();
    void scatteredBytesGetTheVerdictOfTheQuickCheck_data();
    void scatteredBytesGetTheVerdictOfTheQuickCheck();
    void trialWriteJudgesThePagesThatItTouches_data();
    void trialWriteJudgesThePagesThatItTouches();
    void truncatedFileIsDamaged_data();
    void truncatedFileIsDamaged();
    void fileTruncatedToNothingIsAnEmptyStore();
    void fileThatIsNoDatabaseIsDamagedAndStaysAsItIs_data();
    void fileThatIsNoDatabaseIsDamagedAndStaysAsItIs();
    void fileThatCannotBeOpenedIsNotReported();
    void readOnlyFileIsReadAndRefusesRecords_data();
    void readOnlyFileIsReadAndRefusesRecords();
    void readOnlyFolderRefusesRecordsAndFreshUsers();
    void fullDiskRefusesTheRecordAndKeepsTheOthers_data();
    void fullDiskRefusesTheRecordAndKeepsTheOthers();
    void fileBegunOnAFullDiskIsFinishedByTheNextOpen_data();
    void fileBegunOnAFullDiskIsFinishedByTheNextOpen();
    void fileLockedByAnotherProcess_data();
    void fileLockedByAnotherProcess();
    void killedWriterLeavesWholeRecordsOnly();
    void killedOpenIsFinishedByTheNextOne();

private:
    bool putFile(const QByteArray &bytes) const;
    QByteArray fileBytes() const;
    /// Column 0 of the first row, by a connection of the test's own; empty for none.
    QString ask(const QString &strStatement) const;
    QStringList fileNames() const { return QDir(m_strFolder).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    /// Walks through everything that a session does with the file.
    void useStore() const;
    void killWhenItSays(const QString &strFirst, int iLines, int iMicroseconds, QList<int> *pSaved);

    const QString m_strUser = QStringLiteral("user");
    QString m_strBase;
    QString m_strFolder;
    QString m_strFile;
    QByteArray m_sound;
    int m_iPageSize = 0;
    static constexpr int m_iRecords = 300;
    int m_iRound = 0;
    CommonData m_data;
    std::unique_ptr<QtMessages> m_pMessages;
};

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

void tst_StoreDamage::initTestCase()
{
    CommonFun::setCommonData(&m_data);
    init();
    QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
    for (int i = 0; i < m_iRecords; ++i) {
        QVERIFY(DBConfInfo::saveConfInfo(numberedRecord(i)));
    }
    for (int i = 0; i < m_iRecords; ++i) {
        QVERIFY(QSqlQuery(DB::getDB()).exec(QStringLiteral("INSERT INTO msgrecord (id) VALUES ('message%1')").arg(i)));
    }
    DB::closeDB();
    m_sound = fileBytes();
    m_iPageSize = ask(QStringLiteral("PRAGMA page_size")).toInt();
    QCOMPARE(ask(QStringLiteral("PRAGMA freelist_count")), QStringLiteral("0"));
    QVERIFY(m_sound.size() > 50 * m_iPageSize);
    cleanup();
}

void tst_StoreDamage::init()
{
    m_strBase = QDir::current().absoluteFilePath(QStringLiteral("round%1").arg(++m_iRound));
    m_strFolder = m_strBase + QLatin1Char('/') + m_strUser;
    m_strFile = m_strFolder + QStringLiteral("/localData.db");
    QVERIFY(QDir().mkpath(m_strFolder));
    m_pMessages = std::make_unique<QtMessages>();
}

void tst_StoreDamage::cleanup()
{
    const QStringList warnings = m_pMessages->warnings;
    m_pMessages.reset();
    QCOMPARE(warnings, QStringList());
    QCOMPARE(QSqlDatabase::connectionNames().contains(QStringLiteral("KelvarIM")), false);
}

bool tst_StoreDamage::putFile(const QByteArray &bytes) const
{
    QFile file(m_strFile);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray tst_StoreDamage::fileBytes() const
{
    QFile file(m_strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

QString tst_StoreDamage::ask(const QString &strStatement) const
{
    const QString name = QStringLiteral("asking");
    QString answer;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(m_strFile);
        if (db.open()) {
            QSqlQuery query(db);
            if (query.exec(strStatement) && query.next()) {
                answer = query.value(0).toString();
            }
        }
    }
    QSqlDatabase::removeDatabase(name);
    return answer;
}

void tst_StoreDamage::useStore() const
{
    // A damaged file opens: SQLite looks into it only when asked.
    QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
    DBConfInfo::getAllConfInfo();
    DBConfInfo::saveConfInfo(numberedRecord(m_iRecords));
    DBConfInfo::deleteConfInfo(numberedRecord(1).m_strConfID);
    DB::closeDB();
    QVERIFY(QFile::exists(m_strFile));
}

void tst_StoreDamage::soundFileIsSound()
{
    QVERIFY(putFile(m_sound));
    QVERIFY(DB::checkDB(m_strFolder, true));
    QVERIFY(DB::checkDB(m_strFolder, false));
    QCOMPARE(fileNames(), QStringList(QStringLiteral("localData.db")));
}

void tst_StoreDamage::overwrittenPagesFailTheQuickCheck_data()
{
    addSeeds(24);
}

void tst_StoreDamage::overwrittenPagesFailTheQuickCheck()
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

void tst_StoreDamage::scatteredBytesGetTheVerdictOfTheQuickCheck_data()
{
    addSeeds(24);
}

void tst_StoreDamage::scatteredBytesGetTheVerdictOfTheQuickCheck()
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

void tst_StoreDamage::trialWriteJudgesThePagesThatItTouches_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<bool>("usable");
    QTest::newRow("the table that it writes to") << QStringLiteral("msgrecord") << false;
    QTest::newRow("another table") << QStringLiteral("voipConferenceInfo") << true;
}

void tst_StoreDamage::trialWriteJudgesThePagesThatItTouches()
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

void tst_StoreDamage::truncatedFileIsDamaged_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("the header alone") << 100;
    QTest::newRow("within the first page") << 1000;
    QTest::newRow("after the first page") << m_iPageSize;
    QTest::newRow("within a page") << m_iPageSize * 20 + 17;
    QTest::newRow("at the end of a page") << m_iPageSize * 20;
    QTest::newRow("without the last page") << m_sound.size() - m_iPageSize;
}

void tst_StoreDamage::truncatedFileIsDamaged()
{
    QFETCH(int, size);
    QVERIFY(putFile(m_sound.left(size)));
    QVERIFY(!DB::checkDB(m_strFolder, true));
    QVERIFY(!DB::checkDB(m_strFolder, false));
    QCOMPARE(fileBytes(), m_sound.left(size));
    useStore();
}

void tst_StoreDamage::fileTruncatedToNothingIsAnEmptyStore()
{
    QVERIFY(putFile(QByteArray()));
    QVERIFY(DB::checkDB(m_strFolder, true));
    QVERIFY(DB::checkDB(m_strFolder, false));
    QCOMPARE(fileBytes(), QByteArray());
    useStore();
    QCOMPARE(ask(QStringLiteral("SELECT count(*) FROM voipConferenceInfo")), QStringLiteral("1"));
}

void tst_StoreDamage::fileThatIsNoDatabaseIsDamagedAndStaysAsItIs_data()
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

void tst_StoreDamage::fileThatIsNoDatabaseIsDamagedAndStaysAsItIs()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(putFile(bytes));
    QVERIFY(!DB::checkDB(m_strFolder, true));
    QVERIFY(!DB::checkDB(m_strFolder, false));
    useStore();
    QCOMPARE(fileBytes(), bytes);
}

void tst_StoreDamage::fileThatCannotBeOpenedIsNotReported()
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

void tst_StoreDamage::readOnlyFileIsReadAndRefusesRecords_data()
{
    QTest::addColumn<bool>("createAll");
    QTest::newRow("the whole store") << true;
    QTest::newRow("the login table only") << false;
}

void tst_StoreDamage::readOnlyFileIsReadAndRefusesRecords()
{
    QFETCH(bool, createAll);
    QVERIFY(putFile(m_sound));
    QVERIFY(QFile::setPermissions(m_strFile, QFile::ReadOwner));
    const OrdinaryRights rights;
    QVERIFY(DB::checkDB(m_strFolder, true));
    QVERIFY(DB::checkDB(m_strFolder, false));
    QVERIFY(DB::initByUserName(m_strUser, m_strBase, createAll));
    QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords);
    QVERIFY(!DBConfInfo::saveConfInfo(numberedRecord(m_iRecords)));
    QVERIFY(!DBConfInfo::deleteConfInfo(numberedRecord(1).m_strConfID));
    DB::closeDB();
    QCOMPARE(fileBytes(), m_sound);
}

void tst_StoreDamage::readOnlyFolderRefusesRecordsAndFreshUsers()
{
    QVERIFY(putFile(m_sound));
    for (const QString &folder : {m_strFolder, m_strBase}) {
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    }
    {
        const OrdinaryRights rights;
        QVERIFY(DB::checkDB(m_strFolder, true));
        QVERIFY(DB::checkDB(m_strFolder, false));
        QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords);
        QVERIFY(!DBConfInfo::saveConfInfo(numberedRecord(m_iRecords)));
        QVERIFY(!DB::initByUserName(QStringLiteral("fresh"), m_strBase, true));
        DB::closeDB();
    }
    QCOMPARE(fileBytes(), m_sound);
    QCOMPARE(QDir(m_strBase).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(m_strUser));
    for (const QString &folder : {m_strFolder, m_strBase}) {
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
}

void tst_StoreDamage::fullDiskRefusesTheRecordAndKeepsTheOthers_data()
{
    QTest::addColumn<int>("room");
    QTest::newRow("nothing can be written") << 0;
    QTest::newRow("the journal has no room") << m_iPageSize;
    QTest::newRow("the file cannot grow") << m_sound.size();
}

void tst_StoreDamage::fullDiskRefusesTheRecordAndKeepsTheOthers()
{
    QFETCH(int, room);
    QVERIFY(putFile(m_sound));
    // Several pages long, so that the file has to grow.
    const ConfInfoData big = numberedRecord(m_iRecords);
    {
        const FullDisk full(static_cast<rlim_t>(room));
        QVERIFY(DB::checkDB(m_strFolder, true));
        QVERIFY(DB::checkDB(m_strFolder, false));
        QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
        QVERIFY(!DBConfInfo::saveConfInfo(big));
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords);
    }
    QVERIFY(DBConfInfo::saveConfInfo(big));
    QCOMPARE(DBConfInfo::getAllConfInfo().size(), m_iRecords + 1);
    DB::closeDB();
    QCOMPARE(ask(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
}

void tst_StoreDamage::fileBegunOnAFullDiskIsFinishedByTheNextOpen_data()
{
    QTest::addColumn<int>("room");
    for (const int room : {0, 1000, 5000, 20000, 60000, 100000}) {
        QTest::addRow("%d bytes", room) << room;
    }
}

void tst_StoreDamage::fileBegunOnAFullDiskIsFinishedByTheNextOpen()
{
    QFETCH(int, room);
    const QString tables = QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type = 'table'");
    QVERIFY(putFile(m_sound));
    const QString all = ask(tables);
    QVERIFY(QFile::remove(m_strFile));
    {
        const FullDisk full(static_cast<rlim_t>(room));
        QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
        DB::closeDB();
        QVERIFY(DB::checkDB(m_strFolder, true));
    }
    QVERIFY(ask(tables).toInt() < all.toInt());
    QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
    DB::closeDB();
    QCOMPARE(ask(tables), all);
    QCOMPARE(ask(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
}

void tst_StoreDamage::fileLockedByAnotherProcess_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<bool>("readable");
    QTest::newRow("for reading and writing") << QStringLiteral("BEGIN EXCLUSIVE") << false;
    QTest::newRow("for writing") << QStringLiteral("BEGIN IMMEDIATE") << true;
}

void tst_StoreDamage::fileLockedByAnotherProcess()
{
    QFETCH(QString, statement);
    QFETCH(bool, readable);
    QVERIFY(putFile(m_sound));
    QProcess holder;
    holder.start(QStringLiteral(STORE_CHILD), {QStringLiteral("hold"), m_strFile, statement});
    QVERIFY(holder.waitForReadyRead());
    QCOMPARE(holder.readLine(), QByteArray("held\n"));

    // What cannot be read has no "ok" to say.
    QCOMPARE(DB::checkDB(m_strFolder, false), readable);
    QVERIFY(DB::initByUserName(m_strUser, m_strBase, false));
    QVERIFY(QSqlQuery(DB::getDB()).exec(QStringLiteral("PRAGMA busy_timeout = 0")));
    QVERIFY(!DBConfInfo::saveConfInfo(numberedRecord(m_iRecords)));
    QCOMPARE(DBConfInfo::getAllConfInfo().size(), readable ? m_iRecords : 0);
    DB::closeDB();

    holder.closeWriteChannel();
    QVERIFY(holder.waitForFinished());
    QCOMPARE(holder.exitCode(), 0);
    QCOMPARE(fileBytes(), m_sound);
    QVERIFY(DB::checkDB(m_strFolder, false));
}

/// Starts a writer at the record `iFirst`, kills it that long after it said its line `iLines`, and appends the numbers
/// that it had said by then.
void tst_StoreDamage::killWhenItSays(const QString &strFirst, int iLines, int iMicroseconds, QList<int> *pSaved)
{
    QProcess writer;
    writer.start(QStringLiteral(STORE_CHILD), {QStringLiteral("write"), m_strBase, strFirst});
    int lines = 0;
    while (lines < iLines && (writer.canReadLine() || writer.waitForReadyRead())) {
        for (; lines < iLines && writer.canReadLine(); ++lines) {
            const QByteArray line = writer.readLine();
            if (lines > 0) {
                pSaved->append(line.toInt());
            }
        }
    }
    QCOMPARE(lines, iLines);
    QThread::usleep(static_cast<unsigned long>(iMicroseconds));
    writer.kill();
    QVERIFY(writer.waitForFinished());
    while (writer.canReadLine()) {
        const QByteArray line = writer.readLine();
        if (line != "start\n") {
            pSaved->append(line.toInt());
        }
    }
}

void tst_StoreDamage::killedWriterLeavesWholeRecordsOnly()
{
    QRandomGenerator random(3);
    int next = 0;
    QList<int> saved;
    for (int round = 0; round < 40; ++round) {
        killWhenItSays(QString::number(next), random.bounded(2, 40), random.bounded(2000), &saved);
        QCOMPARE(ask(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
        QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
        const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
        DB::closeDB();
        QSet<int> found;
        for (const ConfInfoData &record : records) {
            const int number = numberOf(record);
            const ConfInfoData whole = numberedRecord(number);
            QCOMPARE(record.m_strConfID, whole.m_strConfID);
            QCOMPARE(record.m_strCreatUserID, whole.m_strCreatUserID);
            QCOMPARE(record.m_strCreatTime, whole.m_strCreatTime);
            QCOMPARE(record.m_strCallTime, whole.m_strCallTime);
            QCOMPARE(record.m_listMember, whole.m_listMember);
            QCOMPARE(record.m_bIsConnect, whole.m_bIsConnect);
            found.insert(number);
            next = qMax(next, number + 1);
        }
        // What the writer had said is saved is there.
        QVERIFY(found.contains(QSet<int>(saved.begin(), saved.end())));
    }
    QVERIFY(saved.size() > 40);
}

void tst_StoreDamage::killedOpenIsFinishedByTheNextOne()
{
    // Of the tables. An index that belongs to the making of its table is not made up for later.
    const QString schema = QStringLiteral("SELECT group_concat(sql) FROM "
                                          "(SELECT sql FROM sqlite_master WHERE type = 'table' ORDER BY name)");
    QVERIFY(putFile(m_sound));
    const QString whole = ask(schema);
    QVERIFY(!whole.isEmpty());
    QRandomGenerator random(4);
    for (int round = 0; round < 30; ++round) {
        QVERIFY(QFile::remove(m_strFile));
        QList<int> saved;
        killWhenItSays(QStringLiteral("0"), 1, random.bounded(15000), &saved);
        QVERIFY(DB::checkDB(m_strFolder, true));
        QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
        DB::closeDB();
        QCOMPARE(ask(schema), whole);
        QCOMPARE(ask(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    }
}

QTEST_GUILESS_MAIN(tst_StoreDamage)
#include "tst_StoreDamage.moc"
