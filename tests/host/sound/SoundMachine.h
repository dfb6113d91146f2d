#pragma once

// A machine with sound of its own: a real sound server in the present folder, its devices coming and going, what its
// microphones hear and what its speakers play. GUI thread.

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <cmath>
#include <csignal>
#include <cstring>
#include <memory>
#include <vector>

class SoundMachine
{
public:
    static constexpr int cRate = 44100;
    static constexpr const char *cVoice = "voice.raw";

    ~SoundMachine() { stop(); }

    /// Starts the server with a speaker "desk", a speaker "headset", a microphone "usb", which hears what is played to
    /// "voice", and a microphone "quiet", which hears nothing. Clients of this process find it from now on.
    bool start()
    {
        const QString path = QDir::current().filePath(QStringLiteral("sound"));
        qputenv("PULSE_RUNTIME_PATH", QDir::currentPath().toLocal8Bit());
        qputenv("PULSE_SERVER", "unix:" + path.toLocal8Bit());
        QStringList arguments{"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm=yes"};
        const QString shown = QStringLiteral("_properties=device.description=");
        for (const QString &module :
             {"module-native-protocol-unix auth-anonymous=1 socket=" + path,
              "module-null-sink sink_name=desk sink" + shown + "Desk",
              QStringLiteral("module-null-sink sink_name=headset sink") + shown + "Headset",
              QStringLiteral("module-null-sink sink_name=voice sink") + shown + "Voice",
              QStringLiteral("module-null-source source_name=quiet description=Quiet"),
              QStringLiteral("module-remap-source master=voice.monitor source_name=usb source") + shown + "USB"}) {
            arguments << QStringLiteral("-L") << module;
        }
        m_server.start(QStringLiteral("pulseaudio"), arguments);
        return QTest::qWaitFor([] { return pactl({QStringLiteral("info")}, nullptr); }, cPatienceMs) &&
               pactl({"set-default-sink", "desk"}, nullptr) && pactl({"set-default-source", "quiet"}, nullptr);
    }
    void stop()
    {
        goOn();
        m_server.terminate();
        m_server.waitForFinished(cPatienceMs);
    }

    /// The server neither hears nor says anything, until goOn().
    void freeze() { ::kill(pid_t(m_server.processId()), SIGSTOP); }
    void goOn()
    {
        if (m_server.state() != QProcess::NotRunning) {
            ::kill(pid_t(m_server.processId()), SIGCONT);
        }
    }

    /// Plugs the headset in again, and out.
    static bool plugIn()
    {
        return pactl(
            {"load-module", "module-null-sink", "sink_name=headset", "sink_properties=device.description=Headset"},
            nullptr);
    }
    static bool plugOut()
    {
        QByteArray modules;
        pactl({"list", "short", "modules"}, &modules);
        for (const QByteArray &module : modules.split('\n')) {
            if (module.contains("sink_name=headset ")) {
                return pactl({"unload-module", QString::fromLatin1(module.split('\t').first())}, nullptr);
            }
        }
        return false;
    }

    /// Somebody speaks, in one tone, until the process ends.
    static std::unique_ptr<QProcess> speak()
    {
        writeVoice();
        return run({"--playback", "--device=voice", cVoice});
    }

    /// The same tone, played by a program that asks for no device.
    static std::unique_ptr<QProcess> play() { return run({"--playback", cVoice}); }

    /// How many streams take sound from a microphone or a recording.
    static int listeners()
    {
        QByteArray streams;
        pactl({"list", "short", "source-outputs"}, &streams);
        int count = 0;
        for (const QByteArray &stream : streams.split('\n')) {
            // The server's own, of the microphone that hears another device, has no client.
            count += stream.split('\t').value(2, "-") != "-" ? 1 : 0;
        }
        return count;
    }

    /// Records what the speaker plays; the caller reads it from the process.
    static std::unique_ptr<QProcess> record(const QString &strSpeaker)
    {
        return run({"--record", "--device=" + strSpeaker + ".monitor"});
    }

    struct Heard
    {
        float peak = 0;
        int hertz = 0; ///< of a pure tone: how often a second it rises through nothing, from the first time to the last
    };
    static Heard hear(const QByteArray &recording)
    {
        std::vector<float> samples(std::size_t(recording.size()) / sizeof(float));
        std::memcpy(samples.data(), recording.constData(), samples.size() * sizeof(float));
        Heard heard;
        std::size_t first = 0;
        std::size_t last = 0;
        int rises = 0;
        for (std::size_t i = 1; i < samples.size(); ++i) {
            heard.peak = std::max(heard.peak, std::fabs(samples[i]));
            if (samples[i - 1] < 0 && samples[i] >= 0) {
                first = rises == 0 ? i : first;
                last = i;
                ++rises;
            }
        }
        heard.hertz = rises < 2 ? 0 : int(std::lround(double(rises - 1) * cRate / double(last - first)));
        return heard;
    }

private:
    static bool pactl(const QStringList &arguments, QByteArray *said)
    {
        QProcess process;
        process.start(QStringLiteral("pactl"), arguments);
        const bool bOk = process.waitForFinished(cPatienceMs) && process.exitCode() == 0;
        if (said != nullptr) {
            *said = process.readAllStandardOutput();
        }
        return bOk;
    }
    static void writeVoice()
    {
        constexpr int seconds = 120;
        constexpr float loudness = 0.5F;
        std::vector<float> samples(std::size_t(cRate) * seconds);
        for (std::size_t i = 0; i < samples.size(); ++i) {
            samples[i] = loudness * std::sin(0.06F * float(i));
        }
        QFile file(cVoice);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(reinterpret_cast<const char *>(samples.data()), qint64(samples.size() * sizeof(float)));
        }
    }
    static std::unique_ptr<QProcess> run(const QStringList &arguments)
    {
        auto process = std::make_unique<QProcess>();
        process->start(QStringLiteral("pacat"),
                       QStringList{"--raw", "--format=float32le", "--channels=1", "--rate=" + QString::number(cRate)} +
                           arguments);
        return process;
    }

    QProcess m_server;
};
