#pragma once

// Stands between a plug-in and a call process and changes nothing: what one side writes goes to the other, what one
// read of the call process brings in one write; a connection that one side closes is closed at the other; the server
// for the plug-in is open while the call process's is. What happens is recorded. Owned by main; main thread.

#include "callcheck/ScenarioWriter.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <utility>
#include <vector>

class Channel;
class QLocalSocket;
class Subject;

class RecordingRelay : public QObject
{
    Q_OBJECT

public:
    /// `subject` has been started or attached to; `channel`, which is for the plug-in, does not listen yet. All three
    /// outlive the relay.
    RecordingRelay(Subject &subject, Channel &channel, ScenarioWriter &writer, QObject *parent = nullptr);

    /// Begins.
    void start();

    /// Ends the recording and the call process with it, as a signal from outside does.
    void stop();

signals:
    /// The call process is gone. `exitCode` is its own; with `died` it was killed, or has ended with a failure without
    /// having been told to.
    void finished(int exitCode, bool died);
    /// The relay cannot do its work.
    void failed(const QString &reason);

private:
    void look();
    void openServer();
    void closeServer();
    void clientArrives();
    void clientGoes();
    void passOn(const QByteArray &bytes);
    void takeAnswer();
    void subjectCloses();
    void dropClient();
    void doubt(qint64 time, const char *statement);
    void settleDoubts();
    void subjectEnds();
    void settleEnd();
    void tellEnd();
    void releaseFarEnd();

    Subject &m_subject;
    Channel &m_channel;
    ScenarioWriter &m_writer;
    QLocalSocket *m_farEnd = nullptr;
    QTimer m_lookTimer;
    QTimer m_doubtTimer;
    QElapsedTimer m_clock;
    qint64 m_heardTime = 0;                                // when the plug-in's latest bytes came
    qint64 m_silentTime = 0;                               // when nobody was found to listen for the first time
    std::vector<std::pair<qint64, const char *>> m_doubts; // what happened and may have been the end
    int m_looksUnanswered = 0;
    bool m_wasOpen = false; // the server has been open before
    bool m_open = false;
    bool m_closing = false; // the call process has closed; what it wrote before is still on its way
    bool m_quit = false;
    bool m_stopped = false;
    bool m_ended = false; // the call process has
    bool m_told = false;  // and `finished` or `failed` has said so
};
