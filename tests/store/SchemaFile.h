#pragma once

// One user's file for the tests of its schema: written and read beside the session, opened by DB.

#include "store/StoreFixture.h"

#include <functional>

class SchemaFile : public StoreFixture
{
public:
    /// Opens a file that is there for signing in only: DB looks after the login table and nothing else.
    bool openForSignIn() const;

    /// Opens the store, closes it, and does the same again; whether all went well, without a warning of Qt's.
    bool openTwice() const;

    /// Runs statements on the file, which comes into being when it is missing; one that fails ends the program.
    void run(const QStringList &statements) const;

    /// The rows that a statement gives, the values of a row joined by "|".
    QStringList rows(const QString &statement) const;

    /// The tables in the order in which they were created.
    QStringList tables() const;

    /// One line a column: name, type, not null, default as SQL, place in the primary key.
    QStringList columnsOf(const QString &table) const;

    /// The names of the indexes on a table that a statement made, sorted.
    QStringList indexesOf(const QString &table) const;

    /// The text that the file keeps of that table or index; empty when there is none.
    QString storedSql(const QString &name) const;

    /// The whole schema as the file keeps it, and the cookie that changes with it.
    QStringList schema() const;

    /// The bytes of the file.
    QByteArray bytes() const;

    /// Runs a function on the open session; the statements that it executed there, the SELECTs left out, exactly as
    /// they reached the database.
    static QStringList writesOf(void (*work)());

    /// The same with the SELECTs, and with the values in the places that they were bound to.
    static QStringList statementsOf(void (*work)());

    /// Runs a function; what the connections that it opens execute from their first statement on, as the texts that
    /// reached the database, each with " | " and the same text with its values behind it when it has some.
    static QStringList statementsOfNewConnections(const std::function<void()> &work);
};
