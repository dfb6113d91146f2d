#pragma once

// A sound server of the test's own, with a pair of null devices for each person: what is played to the sink "mic-NAME"
// is what the source "voice-NAME" hears, and what is played to the sink "ear-NAME" can be listened to. Main thread.

#include "calls/peers/ChildProgram.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>

class SoundBox
{
public:
    SoundBox();
    ~SoundBox();

    /// Starts the server with devices for these people, and waits until it answers. Whether it does. PULSE_SERVER of
    /// this process and its children is the server then.
    bool start(const QStringList &people);

    static QString microphoneOf(const QString &name) { return QStringLiteral("voice-") + name; }
    static QString speakerOf(const QString &name) { return QStringLiteral("ear-") + name; }

    /// Has the person speak: a tone, from now on, with pauses for breath when asked for.
    bool speak(const QString &name, int hertz, bool withPauses = false);

    /// Has the person's microphone "loop-NAME" hear what his loudspeaker gets. Whether the server obeyed.
    bool loop(const QString &name);
    static QString loopOf(const QString &name) { return QStringLiteral("loop-") + name; }

    /// Plays a tone to the person's loudspeaker, a tenth of a second once.
    bool beep(const QString &name, int hertz);

    /// Takes the person's loudspeaker away, or gives it back. Whether the server obeyed.
    bool takeSpeaker(const QString &name) { return unload(speakerModule(name)); }
    bool giveSpeaker(const QString &name) { return load(speakerModule(name)); }

    /// The same for his microphone.
    bool takeMicrophone(const QString &name) { return unload(microphoneModule(name)); }
    bool giveMicrophone(const QString &name) { return load(microphoneModule(name)); }

    /// Has the desktop choose this person's loudspeaker. Whether the server obeyed.
    bool chooseSpeaker(const QString &name);

    /// Has the person's loudspeaker recorded, from now on.
    bool listen(const QString &name);

    /// How loud a tone was in the last part of what the loudspeaker got, 0 to 32767; 0 before there is as much.
    double heard(const QString &name, int hertz, double seconds = 0.5) const;

    /// When the tone began in what was recorded, in seconds of the recording, each time after a silence.
    QList<double> begins(const QString &name, int hertz) const;

private:
    /// A module of the server's and its arguments.
    static QString speakerModule(const QString &name);
    static QString microphoneModule(const QString &name);
    bool load(const QString &module) const;
    bool unload(const QString &module) const;
    bool control(const QStringList &arguments) const;
    QString file(const QString &name, const char *ending) const;
    bool write(const QString &file, const QByteArray &sound) const;
    bool play(const QString &voice, const QString &sink, const QString &file);

    QString m_folder;
    std::unique_ptr<ChildProgram> m_server;
    QMap<QString, std::shared_ptr<ChildProgram>> m_voices;
    QMap<QString, std::shared_ptr<ChildProgram>> m_ears;
};
