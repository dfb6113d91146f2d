// What a test program writes: of Qt's warnings those that nobody expects, and no other.

#include "fakes/Patience.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

class tst_TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void warns()
    {
        qWarning("Could not parse stylesheet of object CLineEditEx(0x55d0, name = \"lineEdit\")");
        qWarning("QXcbConnection: XCB error: 3 (BadWindow), sequence: 7, resource id: 9, major code: 20 (GetProperty)");
        qWarning("Could not parse stylesheet of object QLabel(0x55d0)");
        QTest::ignoreMessage(QtWarningMsg, "expected");
        qWarning("expected");
    }

    void onlyUnknownWarningsAreWritten()
    {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {"tst_TestProgram", "warns"});
        QVERIFY(program.waitForFinished(cPatienceMs));
        QCOMPARE(program.exitCode(), 0);
        const QByteArray words = program.readAllStandardOutput();
        QCOMPARE(words.count("QWARN"), 1);
        QVERIFY2(words.contains("Could not parse stylesheet of object QLabel("), words.constData());
        QVERIFY2(words.contains("3 passed, 0 failed"), words.constData());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TestProgram, Guiless)
#include "tst_TestProgram.moc"
