#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// One line of the call process's trace.
struct WireLine
{
    /// Who said it.
    enum Direction
    {
        FromPlugin,
        ToPlugin,
        Event ///< something that happened to the call process, not a line of the protocol
    };

    Direction direction = Event;
    QString text;
};

/// Follows the file into which the call process writes every line of its socket. The file may not exist yet, and grows
/// while it is read. GUI thread.
class WireTrace
{
public:
    explicit WireTrace(const QString &strFile) : m_strFile(strFile) {}

    /// The whole lines written since the last call, oldest first. A line still being written comes with the next call;
    /// a line of another form is left out.
    QList<WireLine> readNew();

    /// Path of the file.
    QString file() const { return m_strFile; }

private:
    QString m_strFile;
    qint64 m_iRead = 0;
    QByteArray m_rest;
};
