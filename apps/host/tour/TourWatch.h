#pragma once

#include "traffic/CallRecord.h"
#include "traffic/WireTrace.h"

#include <QList>
#include <QObject>
#include <QString>

class HostSession;

/// The tour's eyes: collects wire lines, host events, call records and the state of the call window, says each on
/// standard output as it comes, and answers what has been seen since the present step began. GUI thread.
class TourWatch : public QObject
{
    Q_OBJECT

public:
    TourWatch(HostSession &session, const QString &strTraceFile);

    /// A new step begins: what was seen before no longer counts.
    void mark();

    /// Takes in what is new in the trace file and in the call window.
    void look();

    /// A command of the plug-in with this "messagetype"; `strPart` must stand in the same line.
    bool commanded(const QString &strType, const QString &strPart = QString()) const;

    /// Number of such commands.
    int commandCount(const QString &strType, const QString &strPart = QString()) const;

    /// Whether the first command of type `strFirst` came before the first of type `strSecond`.
    bool commandedInOrder(const QString &strFirst, const QString &strSecond) const;

    /// The line "quit" of the plug-in.
    bool quitLine() const;

    /// A notification of the call process with this code.
    bool notified(int iCode) const;

    /// Something that happened to the call process or that it did, whose words contain `strPart`.
    bool happened(const QString &strPart) const;

    /// An event from the plug-in, or to it, whose words or answer contain `strPart`.
    bool told(int iMsgId, const QString &strPart = QString()) const;
    bool asked(int iMsgId, const QString &strPart = QString()) const;

    /// A record with this result and direction.
    bool recorded(int iResult, bool bCaller, bool bConnected) const;

    /// One line of standard output, in UTF-8 whatever the locale.
    static void say(const QString &strLine);

private:
    struct PassedEvent
    {
        bool fromPlugin;
        int msgId;
        QString words;
    };

    void noteEvent(bool bFromPlugin, int iMsgId, const QString &strWords, const QString &strAnswer);
    int firstCommand(const QString &strType) const;
    bool passed(bool bFromPlugin, int iMsgId, const QString &strPart) const;

    WireTrace m_trace;
    QList<WireLine> m_lines;
    QList<PassedEvent> m_events;
    QList<CallRecord> m_records;
    QString m_strWindow;
};
