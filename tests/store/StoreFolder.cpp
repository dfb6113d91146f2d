#include "store/StoreFolder.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

void StoreFolder::initTestCase()
{
    m_given.emplace(m_data);
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

void StoreFolder::init()
{
    m_strBase = QDir::current().absoluteFilePath(QStringLiteral("round%1").arg(++m_iRound));
    m_strFolder = m_strBase + QLatin1Char('/') + m_strUser;
    m_strFile = m_strFolder + QStringLiteral("/localData.db");
    QVERIFY(QDir().mkpath(m_strFolder));
    m_pMessages = std::make_unique<QtMessages>();
}

void StoreFolder::cleanup()
{
    const QStringList warnings = m_pMessages->warnings;
    m_pMessages.reset();
    QCOMPARE(warnings, QStringList());
    QCOMPARE(QSqlDatabase::connectionNames().contains(QStringLiteral("KelvarIM")), false);
}

bool StoreFolder::putFile(const QByteArray &bytes) const
{
    QFile file(m_strFile);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray StoreFolder::fileBytes() const
{
    QFile file(m_strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

QString StoreFolder::ask(const QString &strStatement) const
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

QStringList StoreFolder::fileNames() const
{
    return QDir(m_strFolder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QString StoreFolder::tables() const
{
    return ask(QStringLiteral("SELECT group_concat(sql) FROM (SELECT sql FROM sqlite_master"
                              " WHERE type = 'table' AND name <> 'dingsmsgfileoinfo' ORDER BY name)"));
}
