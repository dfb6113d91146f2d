#include "callprocess/Options.h"

#include <QtTest>

class tst_Options : public QObject
{
    Q_OBJECT

private slots:
    void optionWinsOverEnvironment()
    {
        qputenv("VOIPSDK_TRACE", "from-environment");
        qputenv("VOIPSDK_SPEED", "4");
        qputenv("VOIPSDK_IDLE_SECONDS", "0.5");
        Options options;
        QString error;
        QVERIFY(options.read({QStringLiteral("VoipSDK"), QStringLiteral("--speed"), QStringLiteral("8")}, &error));
        qunsetenv("VOIPSDK_TRACE");
        qunsetenv("VOIPSDK_SPEED");
        qunsetenv("VOIPSDK_IDLE_SECONDS");
        QCOMPARE(options.trace, QStringLiteral("from-environment"));
        QCOMPARE(options.speed, 8.0);
        QCOMPARE(options.idleSeconds, 0.5);
        QCOMPARE(options.scenario, QString());
        QCOMPARE(options.socketName, QStringLiteral("VoipSDK"));
    }

    void environmentAloneTells()
    {
        qputenv("VOIPSDK_SCENARIO", "a.scn");
        qputenv("VOIPSDK_SPEED", "4");
        Options options;
        QString error;
        QVERIFY(options.read({QStringLiteral("VoipSDK")}, &error));
        qunsetenv("VOIPSDK_SCENARIO");
        qunsetenv("VOIPSDK_SPEED");
        QCOMPARE(options.scenario, QStringLiteral("a.scn"));
        QCOMPARE(options.speed, 4.0);
    }

    void badOptionsAreRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const auto row = [](const char *name, const char *arguments) {
            QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '));
        };
        row("unknown", "VoipSDK --loud");
        row("surplus", "VoipSDK more");
        row("speed 0", "VoipSDK --speed 0");
        row("speed negative", "VoipSDK --speed=-1");
        row("speed no number", "VoipSDK --speed fast");
        row("speed not a number", "VoipSDK --speed nan");
        row("idle negative", "VoipSDK --idle-seconds=-1");
        row("idle infinite", "VoipSDK --idle-seconds inf");
    }

    void badOptionsAreRefused()
    {
        QFETCH(QStringList, arguments);
        Options options;
        QString error;
        QVERIFY(!options.read(arguments, &error));
        QVERIFY(!error.isEmpty());
    }

    void delaysAreDividedBySpeed()
    {
        QCOMPARE(scaledDelay(1500, 1.0), 1500);
        QCOMPARE(scaledDelay(1500, 100.0), 15);
        QCOMPARE(scaledDelay(2000000000, 0.001), std::numeric_limits<int>::max());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Options, Appless)
#include "tst_Options.moc"
