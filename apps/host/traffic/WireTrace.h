#pragma once

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QString>

/// What stands in the trace for a line feed within one write.
inline constexpr QChar cLineFeedPicture(0x240A);

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
    bool complaint = false; ///< an event that should not be
    bool isCut = false;     ///< the line was too long: only its begin stands in `text`
    qint64 length = 0;      ///< bytes of the whole line
    qint64 time = 0;        ///< when it was written, in milliseconds since 1970
};

/// Follows the file into which the call process writes every line of its socket. The file may not exist yet, grows
/// while it is read, and may begin anew. A line of more than 64 KiB comes cut. GUI thread.
class WireTrace
{
public:
    explicit WireTrace(const QString &strFile) : m_strFile(strFile) {}

    /// The whole lines written since the last call, oldest first, of 8 MiB at most: the rest comes with the next call.
    /// A line still being written comes with the next call too; a line of another form is left out. The trace counts
    /// milliseconds from the start of a call process; the file's time of change tells when that was.
    QList<WireLine> readNew();

    /// Path of the file.
    QString file() const { return m_strFile; }

private:
    void take(const QByteArray &bytes, QList<WireLine> *lines);
    void endLine(QList<WireLine> *lines);
    void setTimes(QList<WireLine> *lines);

    QString m_strFile;
    qint64 m_iRead = 0;
    QByteArray m_rest;
    qint64 m_iRestLength = 0;
    qint64 m_iStart = 0;    // when the present call process began, 0 while unknown
    qint64 m_iLastTime = 0; // what the last line read says
};
