#pragma once

// What a test of the store stands on: a client context, a folder of its own, Qt's messages taken down, and a way to the
// file that does not lead through the code under test.

#include "fakes/GivenContext.h"
#include "fakes/QtMessages.h"
#include "model/CommonData.h"
#include "store/DB.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

#include <optional>

/// A file opened beside the session, with a connection of its own.
class BesideFile
{
public:
    explicit BesideFile(const QString &fileName)
    {
        m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("beside"));
        m_db.setDatabaseName(fileName);
        m_db.open();
    }
    ~BesideFile()
    {
        m_db = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("beside"));
    }
    BesideFile(const BesideFile &) = delete;
    BesideFile &operator=(const BesideFile &) = delete;

    /// Executes one statement; false when it fails.
    bool run(const QString &statement) { return QSqlQuery(m_db).exec(statement); }

    /// The rows of a query, their values joined by "|", NULL as "NULL".
    QStringList rows(const QString &statement)
    {
        QStringList all;
        QSqlQuery query(m_db);
        query.exec(statement);
        while (query.next()) {
            QStringList values;
            for (int column = 0; query.value(column).isValid(); ++column) {
                values.append(query.isNull(column) ? QStringLiteral("NULL") : query.value(column).toString());
            }
            all.append(values.join(QLatin1Char('|')));
        }
        return all;
    }

    /// Everything that sqlite_master tells of the file.
    QStringList schema() { return rows(QStringLiteral("SELECT type,name,tbl_name,sql FROM sqlite_master")); }

private:
    QSqlDatabase m_db;
};

/// One test's context and folder; the session is closed with it.
class StoreFixture
{
public:
    StoreFixture() = default;
    ~StoreFixture();
    StoreFixture(const StoreFixture &) = delete;
    StoreFixture &operator=(const StoreFixture &) = delete;

    QString base() const { return m_dir.path(); }
    QString folder(const QString &user = QStringLiteral("anna")) const { return m_dir.filePath(user); }
    QString file(const QString &user = QStringLiteral("anna")) const { return folder(user) + "/localData.db"; }

    /// Opens the store of `user` in this fixture's folder.
    bool open(const QString &user = QStringLiteral("anna")) const { return DB::initByUserName(user, base(), true); }

    /// Makes the folder of `user` and in it a store with these statements' outcome.
    void make(const QStringList &statements, const QString &user = QStringLiteral("anna")) const
    {
        QDir().mkpath(folder(user));
        QFile(file(user)).open(QIODevice::WriteOnly);
        BesideFile beside(file(user));
        for (const QString &statement : statements) {
            beside.run(statement);
        }
    }

    CommonData context;
    std::optional<GivenContext> given{context}; ///< a test may take the context away
    QtMessages messages;

private:
    QTemporaryDir m_dir;
};
