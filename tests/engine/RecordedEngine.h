#pragma once

// A call engine with the signed-in user's store: a real file in a temporary folder, opened as the client opens it.
// Build one in each test function. GUI thread.

#include "fakes/EngineFixture.h"

#include <QTemporaryDir>

class RecordedEngine : public EngineFixture
{
public:
    explicit RecordedEngine(Start start = WithCallProcess);

    /// Closes the store.
    ~RecordedEngine();

    /// The conference records as the file holds them, by id: each column as an SQL literal, in the table's order, so
    /// that an empty text ('') and none (NULL) differ.
    QList<QStringList> rows() const;

    /// The rows, each with its columns joined by blanks.
    QStringList records() const;

    /// How many records the file holds.
    int count() const;

    /// Puts the beginning of the connection that many seconds back.
    void connectedFor(qint64 seconds);

private:
    QTemporaryDir m_folder;
};
