#pragma once

#include "sound/SoundLink.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

/// The microphones and speakers of the machine, as the sound server has them at every moment. It is asked by a thread
/// of the connection's own and asked again where it went or was not there. GUI thread.
class SoundDevices : public QObject
{
    Q_OBJECT

public:
    /// A microphone or a speaker.
    struct Device
    {
        QString name;  ///< as the server knows it
        QString shown; ///< as a person knows it

        bool operator==(const Device &other) const { return name == other.name && shown == other.shown; }
    };

    /// What the server has.
    struct Lists
    {
        QList<Device> microphones; ///< without what only repeats a speaker
        QList<Device> speakers;
        QString microphone; ///< the name of the one that the desktop has chosen; empty for none
        QString speaker;    ///< the same of the speakers
    };
    enum State
    {
        Asking,    ///< it has not yet answered
        Answering, ///< the lists hold
        Silent,    ///< it takes clients and does not answer
        Absent     ///< there is none
    };

    /// How long the server has time to answer, in milliseconds, before it counts as silent.
    static constexpr int cPatienceMs = 1000;

    explicit SoundDevices(QObject *parent = nullptr);
    ~SoundDevices() override;

    /// Begins to ask; a second call does nothing.
    void start();

    /// Asks anew, by a new connection: the one there is may have stalled.
    void lookAgain();
    State state() const { return m_state; }

    /// Empty until the server has answered. What it said last stays when it falls silent or goes.
    const Lists &lists() const { return m_lists; }

signals:
    /// The state or the lists have changed.
    void changed();

private:
    class Inquiry;

    void connectToServer();
    void take(State state, const Lists &lists);

    std::unique_ptr<Inquiry> m_pInquiry;
    QTimer m_patience;
    QTimer m_pause;
    State m_state = Asking;
    Lists m_lists;
};
