#include "client/FileAside.h"
#include "client/HostStore.h"

#include "fakes/LogCapture.h"
#include "fakes/QtMessages.h"
#include "store/DB.h"
#include "store/DBConfInfo.h"
#include "store/Hardship.h"
#include "store/LockHolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

#include <memory>

class tst_HostStore : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pLog = std::make_unique<LogCapture>(); }
    void cleanupTestCase() { m_pLog.reset(); }

    void init()
    {
        m_strBase = QDir::current().absoluteFilePath(QStringLiteral("round%1").arg(++m_iRound));
        m_strFolder = m_strBase + QLatin1Char('/') + m_strUser;
        m_pLog->take();
        m_pMessages = std::make_unique<QtMessages>();
        m_pStore = std::make_unique<HostStore>();
    }

    void cleanup()
    {
        m_pStore.reset();
        const QStringList warnings = m_pMessages->warnings;
        m_pMessages.reset();
        QCOMPARE(warnings, QStringList());
        QVERIFY(!QSqlDatabase::contains(QStringLiteral("KelvarIM")));
    }

    void firstLoginMakesTheStore()
    {
        QVERIFY(open());
        QVERIFY(m_pStore->isOpen());
        QCOMPARE(m_pStore->reports(), QStringList());
        QCOMPARE(fileNames(), QStringList(m_strFile));
        QVERIFY(DB::isExistTable(QStringLiteral("voipConferenceInfo")));
        QVERIFY(DB::isExistTable(QStringLiteral("msgrecord")));
    }

    void secondLoginFindsTheRecords()
    {
        QVERIFY(open());
        QVERIFY(DBConfInfo::saveConfInfo(record()));
        m_pStore->close();
        QVERIFY(open());
        QCOMPARE(m_pStore->reports(), QStringList());
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), 1);
    }

    void plugInReachesTheStoreThroughTheContext()
    {
        QVERIFY(open());
        QVERIFY(m_pLog->context.getSqlDatabase() != nullptr);
        QCOMPARE(m_pLog->context.getSqlDatabase()->databaseName(), m_strFolder + QLatin1Char('/') + m_strFile);
        QVERIFY(m_pLog->context.getSqlDatabase()->isOpen());
    }

    void closedStoreIsTakenFromTheContext()
    {
        QVERIFY(open());
        m_pStore->close();
        QVERIFY(!m_pStore->isOpen());
        QVERIFY(m_pLog->context.getSqlDatabase() == nullptr);
        m_pStore->close();
    }

    void storeThatIsGoneIsClosed()
    {
        QVERIFY(open());
        m_pStore.reset();
        QVERIFY(m_pLog->context.getSqlDatabase() == nullptr);
    }

    void damagedFileIsMovedAsideWholeAndTold_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no database") << QByteArray("Dear reader,\nthis is a letter.\n").repeated(100);
        QTest::newRow("a header without its pages") << QByteArray("SQLite format 3").append('\0');
    }

    void damagedFileIsMovedAsideWholeAndTold()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(write(m_strFile, bytes));
        QVERIFY(open());
        QCOMPARE(asideNames().size(), 1);
        const QString aside = asideNames().constFirst();
        QVERIFY2(QRegularExpression(QStringLiteral("^localData\\.damaged-\\d{8}-\\d{6}\\.db$")).match(aside).hasMatch(),
                 qPrintable(aside));
        QCOMPARE(read(aside), bytes);
        QVERIFY(told(QStringLiteral("was damaged. The file is kept as %1/%2;").arg(m_strFolder, aside)));
        QVERIFY(DBConfInfo::saveConfInfo(record()));
    }

    void hiddenDamageIsFoundToo()
    {
        QVERIFY(open());
        QSqlQuery query(DB::getDB());
        QVERIFY(query.exec(QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = 'voipConferenceInfo'")));
        QVERIFY(query.next());
        const int page = query.value(0).toInt();
        query = QSqlQuery(QSqlDatabase());
        m_pStore->close();
        QByteArray bytes = read(m_strFile);
        constexpr int pageSize = 4096;
        bytes.replace((page - 1) * pageSize, pageSize, QByteArray(pageSize, '\x77'));
        QVERIFY(write(m_strFile, bytes));
        // The trial write does not come near that page.
        QVERIFY(open());
        QCOMPARE(asideNames().size(), 1);
        QCOMPARE(read(asideNames().constFirst()), bytes);
    }

    void halfWriteOfTheDamagedFileGoesWithIt()
    {
        QVERIFY(write(m_strFile, QByteArray("no database").repeated(100)));
        // SQLite leaves a journal that begins like this one alone.
        const QByteArray half = QByteArray("\0half a write", 13);
        QVERIFY(write(m_strFile + QStringLiteral("-journal"), half));
        QVERIFY(open());
        QCOMPARE(asideNames().size(), 1);
        QCOMPARE(read(asideNames().constFirst() + QStringLiteral("-journal")), half);
        QVERIFY(!fileNames().contains(m_strFile + QStringLiteral("-journal")));
    }

    void takenNameGetsAnother_data()
    {
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QString>("name");
        const QString first = QStringLiteral("localData.damaged-20240301-101112.db");
        const QString second = QStringLiteral("localData.damaged-20240301-101112-2.db");
        const QString third = QStringLiteral("localData.damaged-20240301-101112-3.db");
        QTest::newRow("nothing there") << QStringList() << first;
        QTest::newRow("one there") << QStringList{first} << second;
        QTest::newRow("two there") << QStringList{first, second} << third;
        QTest::newRow("a journal of that name") << QStringList{first + QStringLiteral("-journal")} << second;
    }

    void takenNameGetsAnother()
    {
        QFETCH(QStringList, present);
        QFETCH(QString, name);
        for (const QString &taken : present) {
            QVERIFY(write(taken, "kept before"));
        }
        const QDateTime when(QDate(2024, 3, 1), QTime(10, 11, 12));
        QCOMPARE(FileAside::path(m_strFolder + QStringLiteral("/localData.db"), when),
                 m_strFolder + QLatin1Char('/') + name);
    }

    void damagedFileThatCannotBeMovedStaysAndIsTold()
    {
        const QByteArray bytes = QByteArray("no database").repeated(100);
        QVERIFY(write(m_strFile, bytes));
        QVERIFY(write(m_strFile + QStringLiteral("-journal"), "half a write"));
        QVERIFY(QFile::setPermissions(m_strFolder, QFile::ReadOwner | QFile::ExeOwner));
        {
            const OrdinaryRights rights;
            QVERIFY(!open());
        }
        QVERIFY(QFile::setPermissions(m_strFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(!m_pStore->isOpen());
        QVERIFY(m_pLog->context.getSqlDatabase() == nullptr);
        QVERIFY(told(QStringLiteral("is damaged and cannot be moved aside")));
        QCOMPARE(read(m_strFile), bytes);
        QCOMPARE(read(m_strFile + QStringLiteral("-journal")), QByteArray("half a write"));
    }

    void heldFileIsLeftAloneAndTold_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<bool>("readable");
        QTest::newRow("from reading") << QStringLiteral("BEGIN EXCLUSIVE") << false;
        QTest::newRow("from writing") << QStringLiteral("BEGIN IMMEDIATE") << true;
    }

    void heldFileIsLeftAloneAndTold()
    {
        QFETCH(QString, statement);
        QFETCH(bool, readable);
        QVERIFY(open());
        QVERIFY(!m_pStore->isHeldByAnother());
        QVERIFY(DBConfInfo::saveConfInfo(record()));
        m_pStore->close();
        const QByteArray bytes = read(m_strFile);
        LockHolder holder(m_strFolder + QLatin1Char('/') + m_strFile, statement);
        QVERIFY(holder.hasHeld());
        QCOMPARE(open(), readable);
        QVERIFY(holder.holds());
        QVERIFY(m_pStore->isHeldByAnother());
        QVERIFY(told(QStringLiteral("is in use by another program")));
        QVERIFY(asideNames().isEmpty());
        QCOMPARE(m_pLog->context.getSqlDatabase() != nullptr, readable);
        m_pStore->close();
        QVERIFY(holder.letGo());
        QCOMPARE(fileNames(), QStringList(m_strFile));
        QCOMPARE(read(m_strFile), bytes);

        QVERIFY(open());
        QVERIFY(!m_pStore->isHeldByAnother());
        QCOMPARE(m_pStore->reports(), QStringList());
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), 1);
    }

    void shortHoldIsWaitedFor()
    {
        QVERIFY(open());
        m_pStore->close();
        constexpr int shortHold = 800;
        LockHolder holder(m_strFolder + QLatin1Char('/') + m_strFile, QStringLiteral("BEGIN EXCLUSIVE"), shortHold);
        QVERIFY(holder.hasHeld());
        QVERIFY(open());
        QCOMPARE(m_pStore->reports(), QStringList());
        QVERIFY(asideNames().isEmpty());
        QVERIFY(holder.letGo());
    }

    void storeThatTakesNoWritesIsTold_data()
    {
        QTest::addColumn<QString>("readOnly");
        QTest::newRow("a read-only file") << QStringLiteral("/30010000/localData.db");
        QTest::newRow("a read-only folder") << QStringLiteral("/30010000");
        QTest::newRow("a full disk") << QString();
    }

    void storeThatTakesNoWritesIsTold()
    {
        QFETCH(QString, readOnly);
        QVERIFY(open());
        QVERIFY(DBConfInfo::saveConfInfo(record()));
        m_pStore->close();
        const QByteArray bytes = read(m_strFile);
        const QString path = m_strBase + readOnly;
        {
            const OrdinaryRights rights;
            std::unique_ptr<FullDisk> full;
            if (readOnly.isEmpty()) {
                full = std::make_unique<FullDisk>(0);
            } else {
                QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner));
            }
            QVERIFY(open());
        }
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(told(QStringLiteral("cannot be written to")));
        QCOMPARE(DBConfInfo::getAllConfInfo().size(), 1);
        m_pStore->close();
        QCOMPARE(read(m_strFile), bytes);
        QCOMPARE(fileNames(), QStringList(m_strFile));
    }

    void storeThatCannotBeOpenedIsTold()
    {
        QVERIFY(QDir().mkpath(m_strFolder + QLatin1Char('/') + m_strFile));
        QVERIFY(!open());
        QVERIFY(!m_pStore->isOpen());
        QVERIFY(m_pLog->context.getSqlDatabase() == nullptr);
        QVERIFY(told(QStringLiteral("cannot be opened")));
    }

    void oldGenerationIsToldAndStays()
    {
        QVERIFY(write(QStringLiteral("data.db"), "the old one"));
        QVERIFY(open());
        QVERIFY(told(m_strFolder + QStringLiteral("/data.db is the store of an older client")));
        QCOMPARE(read(QStringLiteral("data.db")), QByteArray("the old one"));
        QCOMPARE(fileNames(), (QStringList{QStringLiteral("data.db"), m_strFile}));
    }

    void nextLoginHasNothingToTell()
    {
        QVERIFY(write(m_strFile, "no database"));
        QVERIFY(open());
        QCOMPARE(m_pStore->reports().size(), 1);
        QVERIFY(open());
        QCOMPARE(m_pStore->reports(), QStringList());
        QCOMPARE(asideNames().size(), 1);
    }

private:
    QByteArray read(const QString &strName) const
    {
        QFile file(m_strFolder + QLatin1Char('/') + strName);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    bool write(const QString &strName, const QByteArray &bytes) const
    {
        QDir().mkpath(m_strFolder);
        QFile file(m_strFolder + QLatin1Char('/') + strName);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    QStringList fileNames() const { return QDir(m_strFolder).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QStringList asideNames() const
    {
        return QDir(m_strFolder).entryList({QStringLiteral("localData.damaged-*.db")}, QDir::Files);
    }
    bool open() { return m_pStore->open(m_strUser, m_strBase); }
    /// The store said exactly one thing, with that part in it, and said it in the log too.

    bool told(const QString &strPart)
    {
        const QStringList lines = m_pLog->take();
        return m_pStore->reports().size() == 1 && m_pStore->reports().at(0).contains(strPart) && lines.size() == 1 &&
               lines.at(0).startsWith(QLatin1String("[WARN]")) && lines.at(0).endsWith(m_pStore->reports().at(0));
    }

    static ConfInfoData record()
    {
        ConfInfoData record;
        record.m_strConfID = QStringLiteral("conference");
        record.m_strCreatUserID = QStringLiteral("30010001");
        record.m_listMember = QStringList{QStringLiteral("30010001"), QStringLiteral("30010002")};
        return record;
    }

    const QString m_strUser = QStringLiteral("30010000");
    const QString m_strFile = QStringLiteral("localData.db");
    QString m_strBase;
    QString m_strFolder;
    int m_iRound = 0;
    std::unique_ptr<LogCapture> m_pLog;
    std::unique_ptr<QtMessages> m_pMessages;
    std::unique_ptr<HostStore> m_pStore;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HostStore, Guiless)
#include "tst_HostStore.moc"
