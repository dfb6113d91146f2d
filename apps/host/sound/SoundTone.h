#pragma once

#include "sound/SoundLink.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

/// Plays a tone by which a person hears whether a speaker works. GUI thread; the tone goes out on a thread of its own.
class SoundTone : public QObject
{
    Q_OBJECT

public:
    /// How long the tone is, in milliseconds.
    static constexpr int cLengthMs = 1200;
    /// How long it may take until it is over, a silent server's patience with it, in milliseconds.
    static constexpr int cLimitMs = 4000;

    explicit SoundTone(QObject *parent = nullptr);
    ~SoundTone() override;

    /// Plays the tone at the device of that name, at the desktop's where it is empty; one that still sounds ends.
    void play(const QString &strDevice);

    /// Ends it at once; nothing more is told of it.
    void stop();

signals:
    /// The tone is over: it was played to its end, or the device could not be opened, went or did not play it in time.
    void ended(bool bPlayed);

private:
    class Mouth;

    void end(bool bPlayed);

    std::unique_ptr<Mouth> m_pMouth;
    QTimer m_limit;
};
