#pragma once

// Turns what is seen between a plug-in and a call process into a scenario, statement by statement as things happen:
// what the plug-in says is expected, what the call process says is sent, with its pauses. The plug-in's pauses, its
// nick name and its registration value are left out. Times are in milliseconds on any one clock. Values only, no thread
// of its own.

#include <QByteArray>
#include <QString>

#include <functional>

class ScenarioWriter
{
public:
    /// `write` takes the text piece by piece, each of whole lines.
    explicit ScenarioWriter(std::function<void(const QByteArray &text)> write);

    /// Writes what stands ahead of every recording.
    void begin();

    /// One line from the plug-in, without its line feed. After "quit" nothing more is recorded but how the call process
    /// ended.
    void said(qint64 now, const QByteArray &line);

    /// What one read has brought from the call process.
    void written(qint64 now, const QByteArray &bytes);

    /// What the call process does besides: a statement without arguments, "drop", "die", ...
    void happened(qint64 now, const char *statement);

    /// What the plug-in does besides: "await-client" or "await-gone".
    void pluginDid(qint64 now, const char *statement);

    /// The recording is over, for a reason that no statement tells; empty: none is needed.
    void end(const QString &remark);

private:
    void pause(qint64 now);
    void flushPart();
    void add(const QByteArray &line);

    std::function<void(const QByteArray &)> m_write;
    qint64 m_last = 0;     // when something last happened
    QByteArray m_part;     // a read that ended inside a line, until the next one shows what it was
    qint64 m_partTime = 0; // when it came
    bool m_quit = false;
};

/// A word of the scenario language that is read back as `text`, quoted where that is needed.
QByteArray wordFor(const QByteArray &text);
