#pragma once

#include <QByteArray>
#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// The call process that host processes meet, the folder with their user's store, and a look into that store from
/// outside. GUI thread; one in a process.
class HostWorld
{
public:
    /// Starts a call process that lives on when a host ends.
    HostWorld();

    /// Ends the call process.
    ~HostWorld();
    HostWorld(const HostWorld &) = delete;
    HostWorld &operator=(const HostWorld &) = delete;

    /// Starts a host over the user's store that gives a conference so long to connect.
    std::unique_ptr<QProcess> startHost(int iPatienceMs) const;

    /// Why the store is not sound, or which record is not whole; empty when all is well. With `bMayLackCall` a record
    /// may be one of a conference that was never heard of again.
    QString fault(bool bMayLackCall) const;

    /// The ids of the conference records in the store; one may be empty.
    QStringList records() const;

    /// The ids of the conferences that the call process has told a host as created.
    QStringList created() const;

    /// What the call process wrote down.
    QByteArray trace() const;

private:
    /// All rows of the statement, each with its columns; by a connection of its own.
    QList<QStringList> ask(const QString &strStatement) const;
    QString filePath(const QString &strName) const { return m_folder.filePath(strName); }

    QTemporaryDir m_folder;
    QProcess m_callProcess;
};

/// Reads what a host says until it has said `iLines` more that begin with `word`; false when it ends before. Each line
/// is appended to `pSaid`.
bool readLines(QProcess &host, const QByteArray &word, int iLines, QList<QByteArray> *pSaid);

/// Reads the lines that are there without waiting.
void readRest(QProcess &host, QList<QByteArray> *pSaid);
