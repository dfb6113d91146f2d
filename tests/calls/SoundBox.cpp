#include "calls/SoundBox.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QTest>

#include <cmath>

namespace {

constexpr int cRate = 16000;
constexpr int cSpeechSeconds = 600;
constexpr double cAmplitude = 6000;
constexpr double cTurn = 6.283185307179586;
const QStringList cFormat{QStringLiteral("--format=s16le"), QStringLiteral("--rate=%1").arg(cRate),
                          QStringLiteral("--channels=1"), QStringLiteral("--raw")};

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
    const auto load = [&](const QString &module) { arguments << QStringLiteral("-L") << module; };
    load(QStringLiteral("module-native-protocol-unix socket=%1 auth-anonymous=1").arg(socket));
    for (const QString &name : people) {
        load(
            QStringLiteral("module-null-sink sink_name=%1 sink_properties=device.description=%1").arg(speakerOf(name)));
        load(QStringLiteral("module-null-sink sink_name=mic-%1").arg(name));
        load(QStringLiteral("module-remap-source source_name=%1 master=mic-%2.monitor "
                            "source_properties=device.description=%1")
                 .arg(microphoneOf(name), name));
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
    QFile speech(file(name, ".speech"));
    if (!speech.open(QIODevice::WriteOnly)) {
        return false;
    }
    QByteArray second;
    for (int i = 0; i < cRate; ++i) {
        const bool pause = withPauses && i > cRate / 2;
        const auto sample = static_cast<qint16>(pause ? 0 : cAmplitude * std::sin(cTurn * hertz * i / cRate));
        second.append(char(sample & 0xFF)).append(char(sample >> 8));
    }
    speech.write(second.repeated(cSpeechSeconds));
    speech.close();
    m_voices[name] = std::make_shared<ChildProgram>(m_folder + QStringLiteral("/log"));
    return m_voices[name]->begin(QStringLiteral("pacat"),
                                 QStringList{QStringLiteral("--playback"), QStringLiteral("--latency-msec=100"),
                                             QStringLiteral("--device=mic-") + name} +
                                     cFormat + QStringList{speech.fileName()});
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
    const auto count = static_cast<int>(cRate * seconds);
    if (!recording.open(QIODevice::ReadOnly) || recording.size() < 2 * count) {
        return 0;
    }
    recording.seek(recording.size() / 2 * 2 - 2 * count);
    const QByteArray bytes = recording.read(2 * count);
    // Goertzel's filter: the share of one frequency.
    const double turn = 2 * std::cos(cTurn * hertz / cRate);
    double last = 0;
    double beforeLast = 0;
    for (int i = 0; i < count; ++i) {
        const auto sample = static_cast<qint16>(uchar(bytes[2 * i]) | uchar(bytes[2 * i + 1]) << 8);
        const double next = sample + turn * last - beforeLast;
        beforeLast = std::exchange(last, next);
    }
    return std::sqrt(std::max(0.0, last * last + beforeLast * beforeLast - turn * last * beforeLast)) * 2 / count;
}

bool SoundBox::takeSpeaker(const QString &name)
{
    // By its kind, a module that was loaded with these arguments cannot be named.
    ChildProgram list(file(name, ".modules"));
    if (!list.begin(QStringLiteral("pactl"),
                    {QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("modules")}) ||
        !list.waitForFinished(cPatienceMs)) {
        return false;
    }
    QFile modules(file(name, ".modules"));
    if (!modules.open(QIODevice::ReadOnly)) {
        return false;
    }
    for (const QByteArray &row : modules.readAll().split('\n')) {
        if (row.contains(speakerModule(name).toUtf8())) {
            modules.remove();
            return control({QStringLiteral("unload-module"), QString::fromUtf8(row.split('\t').first())});
        }
    }
    return false;
}

bool SoundBox::giveSpeaker(const QString &name)
{
    return control(QStringList{QStringLiteral("load-module"), QStringLiteral("module-null-sink")} +
                   speakerModule(name).split(QLatin1Char(' ')));
}

bool SoundBox::chooseSpeaker(const QString &name)
{
    return control({QStringLiteral("set-default-sink"), speakerOf(name)});
}

QString SoundBox::speakerModule(const QString &name)
{
    return QStringLiteral("sink_name=%1 sink_properties=device.description=%1").arg(speakerOf(name));
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
