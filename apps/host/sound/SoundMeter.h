#pragma once

#include "sound/SoundLink.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

/// Listens to a microphone and says how loud it is. Nothing of what is said is kept. GUI thread; the sound comes in on
/// a thread of its own.
class SoundMeter : public QObject
{
    Q_OBJECT

public:
    /// The quietest sound that is told from silence, in decibels of the loudest one.
    static constexpr int cQuietest = -60;
    /// How long a device may say nothing, not even that it is silent, in milliseconds, before it counts as failed.
    static constexpr int cPatienceMs = 2000;

    explicit SoundMeter(QObject *parent = nullptr);
    ~SoundMeter() override;

    /// Listens to the device of that name, to the desktop's where it is empty; to none that was listened to before.
    void listen(const QString &strDevice);

    /// Listens no longer: the microphone is let go.
    void stop();

    /// Whether listen() was called last.
    bool isListening() const { return m_pEar != nullptr; }

    /// The level of a peak between 0 and 1 (louder ones count as 1), by decibels: 0 for silence to 100.
    static int levelOf(float peak);

signals:
    /// How loud it is now, from 0 to 100; some 25 times a second.
    void levelChanged(int iLevel);
    /// The device cannot be listened to, has gone, or the server has stalled.
    void failed();

private:
    class Ear;

    std::unique_ptr<Ear> m_pEar;
    QTimer m_patience;
};
