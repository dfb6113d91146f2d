#include "calls/sound/SoundBox.h"

#include "fakes/Patience.h"
#include "host/tour/ToneLevel.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QTest>

#include <cmath>

namespace {

constexpr int cRate = 24000;
constexpr int cSpeechSeconds = 400;
constexpr double cAmplitude = 6000;
constexpr double cTurn = 6.283185307179586;
const QStringList cFormat{QStringLiteral("--format=s16le"), QStringLiteral("--rate=%1").arg(cRate),
                          QStringLiteral("--channels=1"), QStringLiteral("--raw")};

/// A second that begins with so many samples of the tone.
QByteArray toneOf(int hertz, int samples)
{
    QByteArray second;
    for (int i = 0; i < cRate; ++i) {
        const auto sample = static_cast<qint16>(i >= samples ? 0 : cAmplitude * std::sin(cTurn * hertz * i / cRate));
        second.append(char(sample & 0xFF)).append(char(sample >> 8));
    }
    return second;
}

} // namespace

SoundBox::SoundBox() : m_folder(QDir::current().absoluteFilePath(QStringLiteral("sound")))
{
    QDir().mkpath(m_folder);
}

SoundBox::~SoundBox() = default;

bool SoundBox::start(const QStringList &people)
{
    const QString socket = m_folder + QStringLiteral("/native");
    qputenv("PULSE_RUNTIME_PATH", QFile::encodeName(m_folder));
    qputenv("PULSE_STATE_PATH", QFile::encodeName(m_folder));
    QStringList arguments{QStringLiteral("-n"), QStringLiteral("--daemonize=no"), QStringLiteral("--exit-idle-time=-1"),
                          QStringLiteral("--use-pid-file=no"), QStringLiteral("--disable-shm=yes")};
    const auto add = [&](const QString &module) { arguments << QStringLiteral("-L") << module; };
    add(QStringLiteral("module-native-protocol-unix socket=%1 auth-anonymous=1").arg(socket));
    for (const QString &name : people) {
        add(speakerModule(name));
        add(QStringLiteral("module-null-sink sink_name=mic-%1").arg(name));
        add(microphoneModule(name));
    }
    m_server = std::make_unique<ChildProgram>(m_folder + QStringLiteral("/log"));
    qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(socket));
    const auto answers = [&] {
        QLocalSocket probe;
        probe.connectToServer(socket);
        return probe.waitForConnected(cPatienceMs);
    };
    return m_server->begin(QStringLiteral("pulseaudio"), arguments) && QTest::qWaitFor(answers, cPatienceMs);
}

bool SoundBox::speak(const QString &name, int hertz, bool withPauses)
{
    const QByteArray second = toneOf(hertz, withPauses ? cRate / 2 : cRate);
    const QString speech = file(QStringLiteral("%1-%2").arg(hertz).arg(withPauses), ".speech");
    return (QFile::exists(speech) || write(speech, second.repeated(cSpeechSeconds))) &&
           play(name, QStringLiteral("mic-") + name, speech);
}

bool SoundBox::loop(const QString &name)
{
    return control({QStringLiteral("load-module"), QStringLiteral("module-remap-source"),
                    QStringLiteral("source_name=") + loopOf(name),
                    QStringLiteral("master=%1.monitor").arg(speakerOf(name)),
                    QStringLiteral("source_properties=device.description=") + loopOf(name)});
}

bool SoundBox::beep(const QString &name, int hertz)
{
    const QString sound = file(name, ".beep");
    return write(sound, toneOf(hertz, cRate / 10)) && play(name, speakerOf(name), sound);
}

bool SoundBox::write(const QString &file, const QByteArray &sound) const
{
    QFile speech(file);
    return speech.open(QIODevice::WriteOnly) && speech.write(sound) == sound.size();
}

bool SoundBox::play(const QString &voice, const QString &sink, const QString &file)
{
    m_voices[voice] = std::make_shared<ChildProgram>(m_folder + QStringLiteral("/log"));
    return m_voices[voice]->begin(QStringLiteral("pacat"),
                                  QStringList{QStringLiteral("--playback"), QStringLiteral("--latency-msec=100"),
                                              QStringLiteral("--device=") + sink} +
                                      cFormat + QStringList{file});
}

bool SoundBox::listen(const QString &name)
{
    m_ears[name] = std::make_shared<ChildProgram>(m_folder + QStringLiteral("/log"));
    return m_ears[name]->begin(
        QStringLiteral("parec"),
        QStringList{QStringLiteral("--latency-msec=20"), QStringLiteral("--device=%1.monitor").arg(speakerOf(name))} +
            cFormat + QStringList{file(name, ".heard")});
}

double SoundBox::heard(const QString &name, int hertz, double seconds) const
{
    QFile recording(file(name, ".heard"));
    const qint64 bytes = 2 * static_cast<qint64>(cRate * seconds);
    if (!recording.open(QIODevice::ReadOnly) || recording.size() < bytes) {
        return 0;
    }
    recording.seek(recording.size() / 2 * 2 - bytes);
    return toneLevel(recording.read(bytes), hertz, cRate);
}

QList<double> SoundBox::begins(const QString &name, int hertz) const
{
    constexpr int step = cRate / 50;
    constexpr qint64 stepBytes = 2LL * step;
    constexpr double loud = 500;
    QFile recording(file(name, ".heard"));
    QList<double> begins;
    if (!recording.open(QIODevice::ReadOnly)) {
        return begins;
    }
    int silence = cRate;
    for (int at = 0; recording.bytesAvailable() >= stepBytes; at += step) {
        const bool heard = toneLevel(recording.read(stepBytes), hertz, cRate) > loud;
        if (heard && silence > cRate / 3) {
            begins << double(at) / cRate;
        }
        silence = heard ? 0 : silence + step;
    }
    return begins;
}

bool SoundBox::unload(const QString &module) const
{
    // By its kind, a module that was loaded with these arguments cannot be named.
    const QString list = file(QStringLiteral("now"), ".modules");
    QFile::remove(list);
    ChildProgram pactl(list);
    if (!pactl.begin(QStringLiteral("pactl"),
                     {QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("modules")}) ||
        !pactl.waitForFinished(cPatienceMs)) {
        return false;
    }
    QFile modules(list);
    if (!modules.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray row = QString(module).replace(module.indexOf(QLatin1Char(' ')), 1, QLatin1Char('\t')).toUtf8();
    for (const QByteArray &one : modules.readAll().split('\n')) {
        if (one.contains(row)) {
            return control({QStringLiteral("unload-module"), QString::fromUtf8(one.split('\t').first())});
        }
    }
    return false;
}

bool SoundBox::load(const QString &module) const
{
    return control(QStringList{QStringLiteral("load-module")} + module.split(QLatin1Char(' ')));
}

bool SoundBox::chooseSpeaker(const QString &name)
{
    return control({QStringLiteral("set-default-sink"), speakerOf(name)});
}

QString SoundBox::speakerModule(const QString &name)
{
    return QStringLiteral("module-null-sink sink_name=%1 sink_properties=device.description=%1").arg(speakerOf(name));
}

QString SoundBox::microphoneModule(const QString &name)
{
    return QStringLiteral("module-remap-source source_name=%1 master=mic-%2.monitor "
                          "source_properties=device.description=%1")
        .arg(microphoneOf(name), name);
}

bool SoundBox::control(const QStringList &arguments) const
{
    ChildProgram pactl(m_folder + QStringLiteral("/log"));
    return pactl.begin(QStringLiteral("pactl"), arguments) && pactl.waitForFinished(cPatienceMs) &&
           pactl.exitCode() == 0;
}

QString SoundBox::file(const QString &name, const char *ending) const
{
    return m_folder + QLatin1Char('/') + name + QLatin1String(ending);
}
