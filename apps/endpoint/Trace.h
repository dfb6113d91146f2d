#pragma once

// The record of everything that goes over the channel and happens around it, one record a line, written at once:
//     ms dir text
// ms is a monotonic time since the process began; dir is "<" from the plug-in, ">" to the plug-in, "=" an event,
// "!" a complaint. Owned by main; main thread. Without a file all records are dropped.

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <functional>

class Trace
{
public:
    Trace();

    /// Appends to the file at `path`, "-" being standard error. An empty path leaves the trace off. False with `error`
    /// set when the file cannot be opened. A named pipe has to have its reader already; what it has no room for is left
    /// out.
    bool open(const QString &path, QString *error);

    /// Whether the records go to standard error.
    bool isOnStandardError() const { return m_onStandardError; }

    /// Has what comes in recorded as `veil` gives it back: what a line must not leave behind on the disk. Without one a
    /// line is recorded as it came.
    void setVeil(std::function<QByteArray(const QByteArray &line)> veil);

    /// One line that came in, without its line feed.
    void received(const QByteArray &line);

    /// The complaint about a line that came in without its end.
    void receivedHalf(const QByteArray &line);

    /// The bytes of one write: a final line feed is not shown, bytes that end in the middle of a line end in "…".
    void sent(const QByteArray &bytes);

    /// Something that happened to the call process, in words.
    void event(const QString &text);

    /// Something that should not be, in words.
    void complaint(const QString &text);

    /// The bytes as one line of text: control characters as their pictures (a line feed is "␊", a NUL "␀"), bytes that
    /// are no UTF-8 as \xNN.
    static QString printable(const QByteArray &bytes);

private:
    bool openPipe(const QString &path);
    void record(char direction, const QString &text);
    QString veiled(const QByteArray &line) const;

    std::function<QByteArray(const QByteArray &line)> m_veil;
    QElapsedTimer m_clock;
    QFile m_file;
    bool m_onStandardError = false;
};
