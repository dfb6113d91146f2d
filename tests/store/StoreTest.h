#pragma once

// What the tests of the store's session share: a store of its own for each test, and no warning of Qt's in any.

#include "store/DB.h"
#include "store/StoreFixture.h"

#include <QTest>

#include <memory>

class StoreTest : public QObject
{
    Q_OBJECT

protected:
    /// Runs a statement beside the session, in the file of "anna"; false when it fails.
    bool run(const QString &statement) { return BesideFile(m_store->file()).run(statement); }

    /// The rows that a query gives there.
    QStringList stored(const QString &statement) { return BesideFile(m_store->file()).rows(statement); }

    std::unique_ptr<StoreFixture> m_store;

protected slots:
    void init() { m_store = std::make_unique<StoreFixture>(); }

    // No test may make Qt warn: not of a connection in use, not of a closed one.
    void cleanup()
    {
        DB::closeDB();
        const QStringList warnings = m_store->messages.warnings;
        m_store.reset();
        QCOMPARE(warnings, QStringList());
    }
};
