#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// Reads the file into which call processes write everything that goes over their socket. The file need not exist yet;
/// each question reads it anew. Any thread.
class CallTrace
{
public:
    /// Follows the file at `strFile`.
    explicit CallTrace(const QString &strFile) : m_strFile(strFile) {}

    const QString &file() const { return m_strFile; }

    /// The texts of one kind of record, oldest first: '<' a line from the plug-in, '>' a write to it, '=' an event, '!'
    /// a complaint.
    QList<QByteArray> texts(char direction) const;

    /// The commands that came from the plug-in, each as its name and its parameters in compact JSON ("CallUser "anna"
    /// false"); any other line as it stands.
    QStringList commands() const;

    /// The commands' names alone; an empty one for a line that is no command.
    QStringList commandNames() const;

    /// Codes of the notifications sent to the plug-in; -1 for a write that is no notification.
    QList<int> codes() const;

    /// Process id of the youngest call process; 0 when none was started.
    qint64 processId() const;

private:
    QString m_strFile;
};
