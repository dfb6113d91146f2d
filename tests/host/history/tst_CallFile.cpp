#include "client/FileAside.h"
#include "history/CallFile.h"

#include "fakes/LogCapture.h"
#include "host/history/CallRows.h"
#include "store/Hardship.h"
#include "store/LockHolder.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QTest>

/// The file of the user's calls: what it keeps, and what becomes of one that cannot be used as it is.
class tst_CallFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_pLog = std::make_unique<LogCapture>(); }
    void cleanupTestCase() { m_pLog.reset(); }

    void init()
    {
        m_strFolder = QDir::current().absoluteFilePath(QStringLiteral("round%1").arg(++m_iRound));
        QVERIFY(QDir().mkpath(m_strFolder));
        m_strFile = m_strFolder + QStringLiteral("/callHistory.db");
    }

    void everyFieldIsKept()
    {
        CallEntry call = callRow("30010001");
        call.video = true;
        call.connected = true;
        call.seconds = 65;
        call.outcome = resultHungUp;
        CallEntry conference = conferenceRow("30010001", "30010002", -1);
        conference.confId = QStringLiteral("1700000000000");
        conference.seen = false;
        const CallEntry missed = missedRow("o'hara \" ; 李雷", -2);
        {
            CallFile file;
            QVERIFY(file.open(m_strFolder));
            std::vector<CallEntry> entries{call, conference, missed};
            QVERIFY(file.add(entries));
            QVERIFY(entries[0].id > 0 && entries[1].id > entries[0].id);
        }
        CallFile file;
        QVERIFY(file.open(m_strFolder));
        QCOMPARE(file.reports(), QStringList());
        const std::vector<CallEntry> kept = file.load();
        QCOMPARE(kept.size(), size_t(3));
        QCOMPARE(said(kept[0]), said(call));
        QCOMPARE(said(kept[1]), said(conference));
        QCOMPARE(said(kept[2]), said(missed));
        QCOMPARE(file.knownConferences(), QSet<QString>{conference.confId});
    }

    void callThatRanWhenTheClientEndedHasAnEnd_data()
    {
        QTest::addColumn<int>("running");
        QTest::addColumn<int>("outcome");
        QTest::newRow("an own call") << int(outcomeRunning) << int(outcomeCutOff);
        QTest::newRow("one that still rang") << int(outcomeRunningIn) << int(outcomeMissed);
    }

    void callThatRanWhenTheClientEndedHasAnEnd()
    {
        QFETCH(int, running);
        CallEntry call = callRow("30010001");
        call.outcome = running;
        {
            CallFile file;
            QVERIFY(file.open(m_strFolder));
            std::vector<CallEntry> entries{call};
            QVERIFY(file.add(entries));
        }
        CallFile file;
        QVERIFY(file.open(m_strFolder));
        QCOMPARE(file.load().size(), size_t(1));
        QTEST(file.load()[0].outcome, "outcome");
        QVERIFY(!file.load()[0].seen);
        QCOMPARE(file.load()[0].begun, call.begun);
    }

    void fileOfTheFirstSchemaIsUpgradedInPlace()
    {
        write({"CREATE TABLE calls (id INTEGER PRIMARY KEY AUTOINCREMENT, begun INTEGER NOT NULL, "
               "seconds INTEGER NOT NULL, uid TEXT NOT NULL, members TEXT NOT NULL, outcome INTEGER NOT NULL, "
               "conference INTEGER NOT NULL, video INTEGER NOT NULL, caller INTEGER NOT NULL, "
               "connected INTEGER NOT NULL, seen INTEGER NOT NULL)",
               "INSERT INTO calls VALUES (7, 1700000000000, 65, '30010001', '', 24, 0, 1, 1, 1, 1)",
               "PRAGMA user_version = 1"});
        {
            CallFile file;
            QVERIFY(file.open(m_strFolder));
            QCOMPARE(file.reports(), QStringList());
            QCOMPARE(file.load().size(), size_t(1));
            const CallEntry call = file.load()[0];
            QCOMPARE(call.id, qint64(7));
            QCOMPARE(call.uid, QStringLiteral("30010001"));
            QCOMPARE(call.seconds, qint64(65));
            QVERIFY(call.video && call.connected);
            std::vector<CallEntry> more{conferenceRow("30010001", "30010002")};
            more[0].confId = QStringLiteral("c1");
            QVERIFY(file.add(more));
        }
        QCOMPARE(ask("PRAGMA user_version"), QString::number(CallFile::newestVersion()));
        QCOMPARE(QDir(m_strFolder).entryList(QDir::Files), QStringList{QStringLiteral("callHistory.db")});
    }

    void fileOfANewerClientStaysAsItIs()
    {
        write({"CREATE TABLE other (a)", "PRAGMA user_version = 1000"});
        const QByteArray before = bytes(m_strFile);
        CallFile file;
        QVERIFY(!file.open(m_strFolder));
        QVERIFY(file.reports().value(0).contains(QStringLiteral("newer client")));
        std::vector<CallEntry> entries{callRow("30010001")};
        QVERIFY(!file.add(entries));
        QCOMPARE(bytes(m_strFile), before);
    }

    void damagedFileIsMovedAsideWithAWord_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("no database") << QByteArray("no database").repeated(500);
        QTest::newRow("pages overwritten") << QByteArray();
        QTest::newRow("another's table") << QByteArray("table");
    }

    void damagedFileIsMovedAsideWithAWord()
    {
        QFETCH(QByteArray, content);
        if (content == "table") {
            write({"CREATE TABLE calls (a)", "PRAGMA user_version = 2"});
        } else if (content.isEmpty()) {
            overwriteAPage();
        } else {
            QFile file(m_strFile);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) > 0);
        }
        const QByteArray before = bytes(m_strFile);
        CallFile file;
        QVERIFY(file.open(m_strFolder));
        QCOMPARE(file.reports().size(), 1);
        static const QRegularExpression words(
            QStringLiteral("^The list of calls was damaged. The file is kept as (.*); a new one has been started.$"));
        const QRegularExpressionMatch match = words.match(file.reports().at(0));
        QVERIFY2(match.hasMatch(), qPrintable(file.reports().at(0)));
        QCOMPARE(bytes(match.captured(1)), before);
        QCOMPARE(file.load().size(), size_t(0));
        std::vector<CallEntry> entries{callRow("30010001")};
        QVERIFY(file.add(entries));
    }

    void fileThatAnotherProgramHoldsIsLeftAlone()
    {
        write({"PRAGMA user_version = 0", "CREATE TABLE t (a)"});
        LockHolder holder(m_strFile, QStringLiteral("BEGIN EXCLUSIVE"));
        QVERIFY(holder.hasHeld());
        CallFile file;
        QVERIFY(!file.open(m_strFolder));
        QVERIFY2(file.reports().value(0).contains(QStringLiteral("in use by another program")),
                 qPrintable(file.reports().value(0)));
        QCOMPARE(QDir(m_strFolder).entryList({QStringLiteral("*damaged*")}), QStringList());
        QVERIFY(holder.letGo());
    }

    void folderThatTakesNoFileIsTold()
    {
        const OrdinaryRights rights;
        QVERIFY(QFile::setPermissions(m_strFolder, QFile::ReadOwner | QFile::ExeOwner));
        CallFile file;
        QVERIFY(!file.open(m_strFolder));
        QVERIFY(file.reports().value(0).contains(QStringLiteral("cannot be opened")));
        QVERIFY(QFile::setPermissions(m_strFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    void diskWithoutRoomIsToldOnce()
    {
        CallFile file;
        QVERIFY(file.open(m_strFolder));
        {
            const FullDisk disk(0);
            std::vector<CallEntry> entries{callRow("30010001")};
            QVERIFY(!file.add(entries));
            QVERIFY(!file.add(entries));
            QCOMPARE(file.reports().size(), 1);
            QVERIFY(file.reports().at(0).contains(QStringLiteral("cannot be written to")));
        }
        std::vector<CallEntry> entries{callRow("30010001")};
        QVERIFY(file.add(entries));
        QCOMPARE(file.load().size(), size_t(1));
    }

private:
    static QString said(const CallEntry &entry)
    {
        return QStringList{entry.begun.toString(Qt::ISODateWithMs),
                           QString::number(entry.seconds),
                           entry.uid,
                           entry.members.join(','),
                           entry.confId,
                           QString::number(entry.outcome),
                           QStringLiteral("%1%2%3%4%5")
                               .arg(entry.conference)
                               .arg(entry.video)
                               .arg(entry.caller)
                               .arg(entry.connected)
                               .arg(entry.seen)}
            .join('|');
    }
    static QByteArray bytes(const QString &strFile)
    {
        QFile file(strFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QList<const char *> &statements) const
    {
        withFile([&](QSqlQuery &query) {
            for (const char *statement : statements) {
                QVERIFY2(query.exec(QLatin1String(statement)), statement);
            }
        });
    }
    QString ask(const char *statement) const
    {
        QString answer;
        withFile([&](QSqlQuery &query) {
            query.exec(QLatin1String(statement));
            answer = query.next() ? query.value(0).toString() : QString();
        });
        return answer;
    }
    template <typename Deed>
    void withFile(const Deed &deed) const
    {
        const QString name = QStringLiteral("test");
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            db.setDatabaseName(m_strFile);
            QVERIFY(db.open());
            QSqlQuery query(db);
            deed(query);
        }
        QSqlDatabase::removeDatabase(name);
    }
    void overwriteAPage() const
    {
        {
            CallFile file;
            QVERIFY(file.open(m_strFolder));
            std::vector<CallEntry> entries(2000, callRow("30010001"));
            QVERIFY(file.add(entries));
        }
        QFile file(m_strFile);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.size() > 30000 && file.seek(12288));
        QCOMPARE(file.write(QByteArray(8192, '\xA5')), qint64(8192));
    }

    int m_iRound = 0;
    QString m_strFolder;
    QString m_strFile;
    std::unique_ptr<LogCapture> m_pLog;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallFile, Guiless)
#include "tst_CallFile.moc"
