// What is heard: each person's microphone gives a tone of its own, and what the loudspeakers get is measured.

#include "calls/CallsTest.h"
#include "calls/sound/Tones.h"

#include "host/tour/ToneLevel.h"

#include <QProcess>

#include <functional>
#include <sys/inotify.h>

class tst_CallSound : public CallsTest
{
    Q_OBJECT

private slots:
    void init()
    {
        m_caller = std::make_unique<Person>(m_exchange, QStringLiteral("100"));
        m_called = std::make_unique<Person>(m_exchange, QStringLiteral("200"));
        QVERIFY(m_sound.speak(m_caller->id(), cCallersHz) && m_sound.speak(m_called->id(), cCalledsHz));
        QVERIFY(m_sound.listen(m_caller->id()) && m_sound.listen(m_called->id()));
        QVERIFY(m_caller->arrive() && m_called->arrive());
    }

    void cleanup()
    {
        m_caller.reset();
        m_called.reset();
    }

    void eachHearsTheOtherAndNotHimself()
    {
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_called, cCallersHz), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_caller, cCalledsHz), cPatienceMs);
        // What is left of the ring-back tone in the last piece goes.
        QTRY_VERIFY_WITH_TIMEOUT(isSilent(*m_caller, cCallersHz), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(isSilent(*m_called, cCalledsHz), cPatienceMs);
        m_caller->say("HangUpCall");
        QCOMPARE(m_called->hears(), QStringLiteral("8"));
        QTRY_VERIFY_WITH_TIMEOUT(isSilent(*m_called, cCallersHz), cPatienceMs);
    }

    void switchesAndVolumesAreHeard()
    {
        struct Row
        {
            Person &person;
            const char *command;
            QJsonValue value;
            double part; // of the tone that is left
        };
        Person &speaks = *m_caller;
        Person &listens = *m_called;
        const Row rows[] = {
            {speaks, "SetMicVolume", 7, 0.355},      {speaks, "SetMicVolume", 4, 0.126},
            {speaks, "SetMicVolume", 0, 0},          {speaks, "SetMicVolume", 10, 1},
            {speaks, "SetMicEnable", false, 0},      {speaks, "SetMicEnable", true, 1},
            {listens, "SetSpeakerVolume", 7, 0.355}, {listens, "SetSpeakerVolume", 0, 0},
            {listens, "SetSpeakerVolume", 11, 1},    {listens, "SetSpeakerEnble", false, 0},
            {listens, "SetSpeakerEnble", true, 1},
        };
        QVERIFY(connectCall(speaks, listens));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(listens, cCallersHz), cPatienceMs);
        for (const Row &row : rows) {
            row.person.say(row.command, {row.value});
            const double level = row.part * cFull;
            const auto follows = [&] {
                return std::abs(m_sound.heard(listens.id(), cCallersHz, 0.2) - level) <
                       std::max(0.15 * level, cSilence);
            };
            QVERIFY2(QTest::qWaitFor(follows, cPatienceMs),
                     qPrintable(QStringLiteral("%1 %2").arg(row.command).arg(row.part)));
        }
    }

    void switchBeforeTheCallHoldsInIt()
    {
        m_caller->say("SetMicEnable", {false});
        m_called->say("SetSpeakerVolume", {4});
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_caller, cCalledsHz), cPatienceMs);
        QVERIFY(m_sound.heard(m_called->id(), cCallersHz) < cSilence);
        m_caller->say("SetMicEnable", {true});
        QTRY_VERIFY_WITH_TIMEOUT(std::abs(m_sound.heard(m_called->id(), cCallersHz) - 0.126 * cFull) < 0.03 * cFull,
                                 cPatienceMs);
    }

    void speechPassesWhatIsOnByDefault_data()
    {
        QTest::addColumn<int>("hertz");
        QTest::newRow("a voice") << cCallersHz;
        QTest::newRow("an s") << 7000;
    }

    void speechPassesWhatIsOnByDefault()
    {
        QFETCH(int, hertz);
        m_caller = std::make_unique<Person>(m_exchange, QStringLiteral("300"));
        m_caller->set(QStringLiteral("sound/echo-cancelling"), QStringLiteral("yes"));
        m_caller->set(QStringLiteral("sound/noise-handling"), QStringLiteral("yes"));
        QVERIFY(m_sound.speak(m_caller->id(), hertz, true));
        QVERIFY(m_caller->arrive());
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.heard(m_called->id(), hertz, 0.2) > cLoud, cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.heard(m_called->id(), hertz, 0.2) < cSilence, cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.heard(m_called->id(), hertz, 0.2) > cLoud, cPatienceMs);
    }

    void speakerHeardByTheMicrophoneDoesNotComeBack()
    {
        m_caller = std::make_unique<Person>(m_exchange, QStringLiteral("300"));
        m_caller->set(QStringLiteral("sound/echo-cancelling"), QStringLiteral("yes"));
        m_caller->set(QStringLiteral("sound/microphone"), SoundBox::loopOf(m_caller->id()));
        QVERIFY(m_sound.loop(m_caller->id()) && m_sound.listen(m_caller->id()));
        QVERIFY(m_sound.speak(m_called->id(), cCalledsHz, true));
        QVERIFY(m_caller->arrive());
        QVERIFY(connectCall(*m_caller, *m_called));
        // A loudspeaker that has begun so often has been heard by the microphone for as many seconds.
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.begins(m_caller->id(), cCalledsHz).size() > 5, cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(10 * m_sound.heard(m_called->id(), cCalledsHz, 1) <
                                     m_sound.heard(m_caller->id(), cCalledsHz, 1),
                                 cPatienceMs);
    }

    void eachCallGoesWhereTheDesktopHasChosen()
    {
        QVERIFY(m_sound.chooseSpeaker(m_called->id()));
        m_caller = std::make_unique<Person>(m_exchange, QStringLiteral("300"));
        m_caller->set(QStringLiteral("sound/speaker"), QString());
        QVERIFY(m_sound.listen(m_caller->id()));
        QVERIFY(m_caller->arrive());
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_called, cCalledsHz), cPatienceMs);
        QVERIFY(m_sound.chooseSpeaker(m_caller->id()));
        m_caller->say("HangUpCall");
        QCOMPARE(m_called->hears(), QStringLiteral("8"));
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_caller, cCalledsHz), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(isSilent(*m_called, cCalledsHz), cPatienceMs);
    }

    void lostLoudspeakerEndsNoCall()
    {
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_caller, cCalledsHz), cPatienceMs);
        QVERIFY(m_sound.chooseSpeaker(m_called->id()));
        QVERIFY(m_sound.takeSpeaker(m_caller->id()));
        // The sound server moves the sound to its own choice: the called one's loudspeaker gets both.
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_called, cCalledsHz) && isLoud(*m_called, cCallersHz), cPatienceMs);
        QVERIFY(m_sound.giveSpeaker(m_caller->id()));
        QVERIFY(m_sound.listen(m_caller->id()));
        m_called->say("HangUpCall");
        QCOMPARE(m_caller->hears(), QStringLiteral("8"));
        // The next call finds the loudspeaker that has come back.
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_caller, cCalledsHz), cPatienceMs);
    }

    void lostMicrophoneEndsNoCall()
    {
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_called, cCallersHz), cPatienceMs);
        QVERIFY(m_sound.takeMicrophone(m_caller->id()));
        QTRY_VERIFY_WITH_TIMEOUT(isSilent(*m_called, cCallersHz), cPatienceMs);
        QVERIFY(m_sound.giveMicrophone(m_caller->id()));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_caller, cCalledsHz), cPatienceMs);
        m_called->say("HangUpCall");
        QCOMPARE(m_caller->hears(), QStringLiteral("8"));
        // The sound server leaves a call at the microphone that it was moved to.
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_called, cCallersHz), cPatienceMs);
    }

    void alsaCarriesTheSoundWhereNoSoundServerAnswers()
    {
        const QString home = QDir::current().absoluteFilePath(QStringLiteral("alsa"));
        QVERIFY(QDir().mkpath(home));
        QFile devices(home + QStringLiteral("/.asoundrc"));
        QVERIFY(devices.open(QIODevice::WriteOnly));
        const QString id = QStringLiteral("300");
        devices.write(
            QStringLiteral("pcm.!default {\n type asym\n"
                           " playback.pcm { type pulse server \"%1\" device \"%2\" }\n"
                           " capture.pcm { type pulse server \"%1\" device \"%3\" }\n}\n")
                .arg(qEnvironmentVariable("PULSE_SERVER"), SoundBox::speakerOf(id), SoundBox::microphoneOf(id))
                .toUtf8());
        devices.close();
        m_caller = std::make_unique<Person>(m_exchange, id);
        m_caller->set(QStringLiteral("sound/microphone"), QStringLiteral("default"));
        m_caller->set(QStringLiteral("sound/speaker"), QStringLiteral("default"));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home);
        environment.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("unix:/nowhere"));
        m_caller->peer().process().setProcessEnvironment(environment);
        QVERIFY(m_sound.speak(id, cCallersHz) && m_sound.listen(id));
        QVERIFY(m_caller->arrive());
        QVERIFY2(!m_caller->peer().trace().filter(QStringLiteral("ALSA")).isEmpty(),
                 qPrintable(m_caller->peer().trace().join('\n')));
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_called, cCallersHz), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_caller, cCalledsHz), cPatienceMs);
    }

    void callerHearsItRing()
    {
        m_caller->call(*m_called);
        QCOMPARE(m_called->hears(), QStringLiteral("0 100"));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_caller, cToneHz), cPatienceMs);
        m_called->say("AcceptCall");
        QCOMPARE(m_caller->hears(), QStringLiteral("18"));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_caller, cCalledsHz) && isSilent(*m_caller, cToneHz), cPatienceMs);
    }

    void callerHearsHowItEnded_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("remark");
        QTest::newRow("busy") << QStringLiteral("100") << QStringLiteral("22") << QStringLiteral("486 ");
        QTest::newRow("nobody") << QStringLiteral("nobody") << QStringLiteral("23") << QStringLiteral("404 Not found");
        QTest::newRow("nobody's id") << QStringLiteral("1\u202E00") << QStringLiteral("23")
                                     << QStringLiteral("404 nobody has such an id");
        QTest::newRow("not registered") << QStringLiteral("200") << QStringLiteral("19")
                                        << QStringLiteral("the caller is not registered");
    }

    void callerHearsHowItEnded()
    {
        QFETCH(QString, id);
        QFETCH(QString, word);
        QFETCH(QString, remark);
        if (word == QLatin1String("19")) {
            m_caller->say("UnReg", {m_caller->id()});
        }
        m_caller->say("CallUser", {id, false});
        QCOMPARE(m_caller->hears(), word);
        QVERIFY(m_caller->peer().waitTrace(QStringLiteral("the call ended: ") + remark));
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.heard(m_caller->id(), cToneHz, 0.1) > cLoud, cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.heard(m_caller->id(), cToneHz, 1) < cSilence, cPatienceMs);
    }

    void filesTakeThePlaceOfDevices()
    {
        m_caller = std::make_unique<Person>(m_exchange, QStringLiteral("300"));
        const QDir here = QDir::current();
        m_caller->set(QStringLiteral("sound/wav-in"), here.absoluteFilePath(QStringLiteral("voice.wav")));
        m_caller->set(QStringLiteral("sound/wav-out"), here.absoluteFilePath(QStringLiteral("heard.wav")));
        QVERIFY(writeTone(QStringLiteral("voice.wav"), Tone{cFileHz, 1000, 0}, 600));
        QVERIFY(m_caller->arrive());
        QVERIFY(connectCall(*m_caller, *m_called));
        QTRY_VERIFY_WITH_TIMEOUT(isLoud(*m_called, cFileHz), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(levelAtTheEndOf(QStringLiteral("heard.wav"), cCalledsHz) > cLoud, cPatienceMs);
        m_caller->say("HangUpCall");
        QCOMPARE(m_called->hears(), QStringLiteral("8"));
        // What was heard is a whole file now.
        QFile heard(QStringLiteral("heard.wav"));
        QVERIFY(heard.open(QIODevice::ReadOnly));
        QTRY_VERIFY_WITH_TIMEOUT(heard.seek(0) && heard.read(12).endsWith("WAVE"), cPatienceMs);
    }

    void echoRepeatsAfterASecond()
    {
        ChildProgram echo;
        QVERIFY(startEcho(echo));
        m_caller = std::make_unique<Person>(m_exchange, QStringLiteral("300"));
        m_caller->set(QStringLiteral("sound/microphone"), SoundBox::loopOf(m_caller->id()));
        QVERIFY(m_sound.loop(m_caller->id()) && m_sound.listen(m_caller->id()));
        QVERIFY(m_caller->arrive());
        m_caller->say("CallUser", {QStringLiteral("echo"), false});
        QCOMPARE(m_caller->hears(), QStringLiteral("18"));
        // The caller's microphone stands before his loudspeaker: what comes back goes out once more.
        QVERIFY(m_sound.beep(m_caller->id(), cCallersHz));
        QTRY_VERIFY_WITH_TIMEOUT(m_sound.begins(m_caller->id(), cCallersHz).size() > 2, cPatienceMs);
        const QList<double> begins = m_sound.begins(m_caller->id(), cCallersHz);
        for (int i = 1; i < begins.size(); ++i) {
            const double later = begins.at(i) - begins.at(i - 1);
            QVERIFY2(later >= 1, qPrintable(QString::number(later)));
        }
    }

    void secretOfTheEchoIsReadOnce()
    {
        const int watch = ::inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
        QFile looks;
        QVERIFY(looks.open(watch, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle));
        ChildProgram echo;
        // Events that are the same become one: between two begins there has to be an end.
        const auto look = [&] { return ::inotify_add_watch(watch, "secrets", IN_OPEN | IN_CLOSE) >= 0; };
        QVERIFY(startEcho(echo, look));
        QCOMPARE(looks.read(10 * sizeof(inotify_event)).size(), int(2 * sizeof(inotify_event)));
    }

    void echoWithoutAPasswordSaysSoAndGoes()
    {
        QFile settings(QStringLiteral("mute.ini"));
        QVERIFY(settings.open(QIODevice::WriteOnly));
        settings.write("[exchange]\nservers = voice.test\n");
        settings.close();
        QProcess echo;
        echo.start(QStringLiteral(VOIPSDK_PROGRAM), {QStringLiteral("--settings"), settings.fileName(),
                                                     QStringLiteral("--echo"), QStringLiteral("echo")});
        QVERIFY(echo.waitForFinished(cPatienceMs));
        QCOMPARE(echo.exitCode(), 2);
        QCOMPARE(echo.readAllStandardError(), QByteArray("kelvarim-calls: the echo cannot sign in: no password\n"));
    }

private:
    /// How loud a tone is at the end of a WAV file of one channel with 48000 samples a second.
    static double levelAtTheEndOf(const QString &name, int hertz)
    {
        constexpr int rate = 48000;
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly) || file.size() < 2LL * rate || !file.seek((file.size() - rate) / 2 * 2)) {
            return 0;
        }
        return toneLevel(file.readAll(), hertz, rate);
    }

    /// The process that answers every call as "echo"; its files are written `before`. Whether it has begun.
    bool startEcho(
        ChildProgram &echo, const std::function<bool()> &before = [] { return true; }) const
    {
        QFile secrets(QStringLiteral("secrets"));
        QFile settings(QStringLiteral("echo.ini"));
        if (!secrets.open(QIODevice::WriteOnly) || !settings.open(QIODevice::WriteOnly)) {
            return false;
        }
        secrets.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        secrets.write("echo:" + TestExchange::secretOf(QStringLiteral("echo")).toUtf8() + '\n');
        settings.write(QStringLiteral("[exchange]\nservers = %1:%2\ndomain = %3\nca-file = %4\n"
                                      "[account]\nsecret = file\nsecret-file = %5\n")
                           .arg(m_exchange.host())
                           .arg(m_exchange.port())
                           .arg(TestExchange::domain(), m_exchange.caFile(), QFileInfo(secrets).absoluteFilePath())
                           .toUtf8());
        secrets.close();
        settings.close();
        const QString trace = QDir::current().absoluteFilePath(QStringLiteral("echo.trace"));
        QFile::remove(trace);
        return before() &&
               echo.begin(QStringLiteral(VOIPSDK_PROGRAM),
                          {QStringLiteral("--settings"), settings.fileName(), QStringLiteral("--echo"),
                           QStringLiteral("echo"), QStringLiteral("--trace"), trace}) &&
               QTest::qWaitFor(
                   [&] {
                       QFile file(trace);
                       return file.open(QIODevice::ReadOnly) && file.readAll().contains("the echo is registered");
                   },
                   cPatienceMs);
    }

    static constexpr int cCallersHz = 440;
    static constexpr int cCalledsHz = 660;
    static constexpr int cToneHz = 425;
    static constexpr int cFileHz = 1000;
    static constexpr double cFull = 6000;
    static constexpr double cLoud = 2000;
    static constexpr double cSilence = 120;

    bool isLoud(const Person &person, int hertz) const { return m_sound.heard(person.id(), hertz) > cLoud; }
    bool isSilent(const Person &person, int hertz) const { return m_sound.heard(person.id(), hertz) < cSilence; }

    std::unique_ptr<Person> m_caller;
    std::unique_ptr<Person> m_called;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallSound, Guiless)
#include "tst_CallSound.moc"
