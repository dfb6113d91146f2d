#include "callcheck/CheckOptions.h"

#include <QtTest>

class tst_CheckOptions : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        qunsetenv("CALLCHECK_OUT");
        qunsetenv("CALLCHECK_PROGRAM");
    }

    void recordTakesAProgramWithItsOwnOptions()
    {
        CheckOptions options;
        QString error;
        QVERIFY2(options.read({"callcheck", "record", "--out", "run.scn", "--", "peer", "--speed", "10"}, &error),
                 qPrintable(error));
        QVERIFY(options.mode == CheckOptions::Mode::Record);
        QVERIFY(!options.inPlace);
        QCOMPARE(options.output, QString("run.scn"));
        QCOMPARE(options.socketName, QString("VoipSDK"));
        QCOMPARE(options.patience, 10.0);
        QCOMPARE(options.program, QString("peer"));
        QCOMPARE(options.arguments, (QStringList{"--speed", "10"}));
    }

    void replayTakesItsScenarioFirst()
    {
        CheckOptions options;
        QString error;
        QVERIFY2(options.read({"callcheck", "replay", "--patience", "0.5", "run.scn", "--attach", "other"}, &error),
                 qPrintable(error));
        QVERIFY(options.mode == CheckOptions::Mode::Replay);
        QCOMPARE(options.scenario, QString("run.scn"));
        QCOMPARE(options.attachTo, QString("other"));
        QCOMPARE(options.program, QString());
        QCOMPARE(options.patience, 0.5);
        QCOMPARE(options.userId, QString("30010000"));
    }

    void environmentTellsToRecordInPlaceOfACallProcess()
    {
        qputenv("CALLCHECK_OUT", "run.scn");
        qputenv("CALLCHECK_PROGRAM", "peer");
        CheckOptions options;
        QString error;
        QVERIFY2(options.read({"callcheck"}, &error), qPrintable(error));
        QVERIFY(options.mode == CheckOptions::Mode::Record);
        QVERIFY(options.inPlace);
        QCOMPARE(options.output, QString("run.scn"));
        QCOMPARE(options.program, QString("peer"));
    }

    void environmentCountsOnlyWithoutArguments()
    {
        qputenv("CALLCHECK_OUT", "run.scn");
        qputenv("CALLCHECK_PROGRAM", "peer");
        CheckOptions options;
        QString error;
        QVERIFY(options.read({"callcheck", "replay", "a.scn", "other"}, &error));
        QVERIFY(options.mode == CheckOptions::Mode::Replay);
        QVERIFY(!options.inPlace);
        QCOMPARE(options.program, QString("other"));
        QCOMPARE(options.output, QString());
    }

    void badUsageIsRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("nothing") << QStringList{};
        QTest::newRow("unknown command") << QStringList{"play", "a", "b"};
        QTest::newRow("unknown option") << QStringList{"record", "--nothing"};
        QTest::newRow("record without a file") << QStringList{"record", "--", "peer"};
        QTest::newRow("record without a peer") << QStringList{"record", "--out", "a"};
        QTest::newRow("replay without a scenario") << QStringList{"replay"};
        QTest::newRow("replay without a peer") << QStringList{"replay", "a"};
        QTest::newRow("two peers") << QStringList{"replay", "--attach", "x", "a", "peer"};
        QTest::newRow("no patience") << QStringList{"replay", "--patience", "0", "a", "peer"};
        QTest::newRow("patience in words") << QStringList{"replay", "--patience", "long", "a", "peer"};
        QTest::newRow("two registration values")
            << QStringList{"replay", "--registration", "a", "--registration-file", "b", "a", "peer"};
        QTest::newRow("no socket name") << QStringList{"record", "--socket-name", "", "--out", "a", "peer"};
    }

    void badUsageIsRefused()
    {
        QFETCH(QStringList, arguments);
        CheckOptions options;
        QString error;
        QVERIFY(!options.read(QStringList{"callcheck"} + arguments, &error));
        QVERIFY(!error.isEmpty());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CheckOptions, Guiless)
#include "tst_CheckOptions.moc"
