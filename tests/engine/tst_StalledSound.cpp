// A sound server that takes clients and answers none of them: a call is placed all the same and rings all the same, and
// Qt is not asked for its list, which would wait for it. A real server that is stopped and goes on is asked then.

#include "engine/AudioInputs.h"
#include "fakes/EngineFixture.h"
#include "fakes/Patience.h"
#include "fakes/QtMessages.h"

#include <QAudioDeviceInfo>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTest>

#include <csignal>

namespace {

/// Puts a sound server's socket where clients look for it.
void useServer(const QString &path)
{
    qputenv("PULSE_SERVER", "unix:" + path.toLocal8Bit());
}

} // namespace

class tst_StalledSound : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString path = QDir::current().filePath(QStringLiteral("silent"));
        QVERIFY(m_silent.listen(path));
        useServer(path);
    }

    void silentServerHoldsUpNoCall()
    {
        EngineFixture f;
        f.manager->m_strUserId = QStringLiteral("me");
        const QtMessages messages;
        f.manager->callSingleUser(QStringLiteral("anna"), false);
        QCOMPARE(f.state(), QString("outgoing anna, invite"));
        QCOMPARE(f.boxes.texts, QStringList());
        // Who waits for Qt's own patience to end is told so by Qt.
        QCOMPARE(messages.warnings.filter(QStringLiteral("PulseAudioService")), QStringList());
    }

    void silentServerLetsTheRingRing()
    {
        EngineFixture f;
        f.notify(Code::IncomingCall, "bert");
        QCOMPARE(f.state(), QString("incoming bert, receive, ring"));
        f.manager->responseVoipRequest(true);
        QCOMPARE(f.state(), QString("incoming bert, receive"));
    }

    void stoppedServerIsAskedWhenItGoesOn()
    {
        const QString path = QDir::current().filePath(QStringLiteral("real"));
        qputenv("PULSE_RUNTIME_PATH", QDir::currentPath().toLocal8Bit());
        QProcess server;
        server.start(QStringLiteral("pulseaudio"),
                     {"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm=yes", "-L",
                      "module-native-protocol-unix auth-anonymous=1 socket=" + path, "-L",
                      "module-null-source source_name=the_microphone"});
        const auto takesClients = [&path] {
            QLocalSocket socket;
            socket.connectToServer(path);
            return socket.waitForConnected(1000);
        };
        QTRY_VERIFY_WITH_TIMEOUT(takesClients(), cPatienceMs);
        useServer(path);
        const QtMessages messages;

        QCOMPARE(kill(pid_t(server.processId()), SIGSTOP), 0);
        QVERIFY(AudioInputs::exist());
        QCOMPARE(kill(pid_t(server.processId()), SIGCONT), 0);
        QVERIFY(AudioInputs::exist());
        // Made only now, from what the server says.
        QStringList names;
        for (const QAudioDeviceInfo &input : QAudioDeviceInfo::availableDevices(QAudio::AudioInput)) {
            names += input.deviceName();
        }
        QVERIFY2(names.contains(QStringLiteral("the_microphone")), qPrintable(names.join(' ')));
        QCOMPARE(messages.warnings.filter(QStringLiteral("PulseAudioService")), QStringList());
        // The engine's list outlives the server, and ends with it: this process has no other.
        server.terminate();
        QVERIFY(server.waitForFinished(cPatienceMs));
    }

private:
    QLocalServer m_silent;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StalledSound, Widgets)
#include "tst_StalledSound.moc"
