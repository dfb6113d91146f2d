#include "calls/sound/Loudness.h"
#include "calls/sound/Tones.h"

#include <QFile>
#include <QtTest>

#include <cmath>

class tst_Loudness : public QObject
{
    Q_OBJECT

private slots:
    void stepsAreEven()
    {
        QCOMPARE(libraryGainOf(10), 0.0F);
        for (int volume = 1; volume <= 10; ++volume) {
            // The library's factor is 10^(gain/10): 3 dB a step.
            const double factor = std::pow(10, (libraryGainOf(volume) - libraryGainOf(volume - 1)) / 10);
            QVERIFY(std::abs(20 * std::log10(factor) - 3) < 0.01);
        }
        QCOMPARE(libraryGainOf(11), libraryGainOf(10));
        QCOMPARE(libraryGainOf(-1), libraryGainOf(0));
    }

    void silenceIsASwitchOrVolumeNone()
    {
        Loudness loudness;
        constexpr auto side = Loudness::Side::Microphone;
        QVERIFY(!loudness.isMuted(side));
        loudness.setVolume(side, 0);
        QVERIFY(loudness.isMuted(side));
        QVERIFY(!loudness.isMuted(Loudness::Side::Speaker));
        loudness.setVolume(side, 1);
        loudness.setEnabled(side, false);
        QVERIFY(loudness.isMuted(side));
        loudness.setEnabled(side, true);
        QVERIFY(!loudness.isMuted(side));
    }

    void toneIsAWavFile()
    {
        QVERIFY(writeTone(QStringLiteral("tone.wav"), {425, 100, 50}, 2));
        QFile file(QStringLiteral("tone.wav"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QCOMPARE(bytes.size(), 44 + 2 * 2 * 16000 * 150 / 1000);
        QVERIFY(bytes.startsWith("RIFF") && bytes.mid(8, 8) == "WAVEfmt ");
        // Sound, then silence.
        const QByteArray on = bytes.mid(44, 2 * 1600);
        QVERIFY(on.count('\0') < on.size() / 4);
        QCOMPARE(bytes.mid(44 + 2 * 1600, 2 * 800), QByteArray(2 * 800, '\0'));
        QVERIFY(!writeTone(QStringLiteral("no/such/folder.wav"), cBusyTone, 1));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Loudness, Appless)
#include "tst_Loudness.moc"
