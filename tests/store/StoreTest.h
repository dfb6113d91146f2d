#pragma once

// What the tests of the store's session share: a store of its own for each test, and no warning of Qt's in any.

#include "StoreFixture.h"
#include "store/DB.h"

#include <QTest>

#include <memory>

class StoreTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<StoreFixture> m_store;

private slots:
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
