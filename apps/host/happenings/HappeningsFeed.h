#pragma once

#include "happenings/HappeningsModel.h"
#include "traffic/ShownText.h"
#include "traffic/WireTrace.h"

#include <QObject>
#include <QTimer>

#include <deque>

class HostSession;

/// Brings what happens to a HappeningsModel, in order of time: the session's events and the lines of the call process's
/// trace. It looks ten times a second and hands over all that is new in one step. GUI thread; session and model must
/// outlive it.
class HappeningsFeed : public QObject
{
    Q_OBJECT

public:
    /// `strTraceFile` is where the call process writes its trace; empty for none.
    HappeningsFeed(HostSession &session, const QString &strTraceFile, HappeningsModel &model,
                   QObject *parent = nullptr);

    /// Follows another trace from now on, from its beginning; the one that is followed already goes on.
    void follow(const QString &strTraceFile);

    /// While paused, what happens waits, as many rows as the model has place for: the oldest are dropped.
    void setPaused(bool bPaused);
    bool isPaused() const { return m_bPaused; }

    /// Rows that wait for the end of a pause.
    int waiting() const { return int(m_waiting.size()); }

    /// Forgets what waits.
    void clear();

    /// Takes in what is new and hands it over; the timer does the same.
    void look();

signals:
    /// Rows are about to be handed over.
    void aboutToTake();
    /// Rows were handed over or, while paused, are waiting.
    void taken();

private:
    void noteEvent(bool bFromPlugin, int iMsgId, const QString &strWords, const QString &strAnswer,
                   const QByteArray &payload, const QByteArray &reply);
    void noteLine(const WireLine &line);
    void add(Happening happening);

    HappeningsModel &m_model;
    WireTrace m_trace;
    SecretMask m_mask;
    QTimer m_timer;
    std::deque<Happening> m_waiting;
    qint64 m_iLastTime = 0;
    bool m_bPaused = false;
    bool m_bNews = false;
};
