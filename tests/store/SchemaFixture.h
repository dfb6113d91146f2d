#pragma once

// One user's store in a temporary folder, with the client's shared context that DB needs. Statements given to the
// fixture run on a connection of its own, beside the session's. GUI thread; one at a time.

#include "model/CommonData.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

class SchemaFixture
{
public:
    /// Puts a fresh client context in place; there is no file yet.
    SchemaFixture();
    /// Closes the session and takes the context away.
    ~SchemaFixture();
    SchemaFixture(const SchemaFixture &) = delete;
    SchemaFixture &operator=(const SchemaFixture &) = delete;

    /// Opens the user's store, or opens it once more; DB's answer.
    bool open(bool createAll = true);
    /// Closes the session.
    void close();
    /// Opens the store, closes it, and does the same again.
    bool openTwice();

    /// Runs statements on the file, which comes into being when it is missing; fails the test where one fails.
    void run(const QStringList &statements);
    /// What a statement gives, the columns of a row as texts.
    QVector<QStringList> rows(const QString &statement);
    /// The first column of what a statement gives.
    QStringList column(const QString &statement);

    /// The tables in the order in which they were created.
    QStringList tables();
    /// One line a column: name, type, not null, default as SQL, place in the primary key.
    QStringList columnsOf(const QString &table);
    /// The names of the indexes on a table that a statement made, sorted.
    QStringList indexesOf(const QString &table);
    /// The text that the file keeps of that table, index or other object; empty when there is none.
    QString storedSql(const QString &name);
    /// The whole schema as the file keeps it, and the cookie that changes with it.
    QStringList schema();
    /// The bytes of the file.
    QByteArray bytes() const;

    /// Runs a function on the open session; the statements that it executed there, the SELECTs left out, exactly as
    /// they reached the database.
    QStringList writesOf(void (*work)());

    /// The store's file.
    QString file() const;

    /// The client's context.
    CommonData context;

private:
    QTemporaryDir m_folder;
};
