#include "Tour.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTest>

/// The built demo client, started as a user's would be, guides itself through every way a call can go.
class tst_Tour : public QObject
{
    Q_OBJECT

private slots:
    void everyStepHasItsEffectAndNothingIsLeftRunning();
    void withoutTheModuleTheClientSaysSoAndEnds();
};

void tst_Tour::everyStepHasItsEffectAndNothingIsLeftRunning()
{
    QProcess demo;
    demo.setProcessChannelMode(QProcess::MergedChannels);
    // The tour counts Qt's warnings, and a missing runtime folder would be one more.
    QVERIFY(QDir().mkdir(QStringLiteral("run")));
    QVERIFY(QFile::setPermissions(QStringLiteral("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), QDir::current().absoluteFilePath(QStringLiteral("run")));
    demo.setProcessEnvironment(environment);
    demo.start(QStringLiteral(VOIP_BIN_DIR "/kelvarim-demo"), {QStringLiteral("--tour"), QStringLiteral("tour")});
    QVERIFY(demo.waitForFinished(500000));
    const QByteArray words = demo.readAll();
    QVERIFY2(demo.exitStatus() == QProcess::NormalExit && demo.exitCode() == 0, words.right(4000).constData());
    QVERIFY2(!words.contains("MISS"), words.constData());
    QVERIFY(words.contains("steps had their effect"));

    const QStringList pictures = QDir(QStringLiteral("tour")).entryList({QStringLiteral("*.png")});
    QCOMPARE(pictures, (QStringList{QStringLiteral("call-connected.png"), QStringLiteral("call-incoming.png"),
                                    QStringLiteral("call-outgoing.png"), QStringLiteral("call-video.png"),
                                    QStringLiteral("close-question.png"), QStringLiteral("demo-window.png"),
                                    QStringLiteral("desktop.png"), QStringLiteral("incoming-prompt.png"),
                                    QStringLiteral("message-no-process.png"), QStringLiteral("message.png")}));
    for (const QString &picture : pictures) {
        QVERIFY2(!QImage(QStringLiteral("tour/") + picture).isNull(), qPrintable(picture));
    }
}

void tst_Tour::withoutTheModuleTheClientSaysSoAndEnds()
{
    const QString lonely = QDir::current().absoluteFilePath(QStringLiteral("kelvarim-demo"));
    QVERIFY(QFile::copy(QStringLiteral(VOIP_BIN_DIR "/kelvarim-demo"), lonely));
    QProcess demo;
    demo.start(lonely, {QStringLiteral("--tour"), QStringLiteral("tour-without")});
    QVERIFY(demo.waitForFinished(60000));
    QCOMPARE(demo.exitCode(), 1);
    QVERIFY(demo.readAllStandardError().contains("libVoipManage.so"));
}

QTEST_GUILESS_MAIN(tst_Tour)
#include "tst_Tour.moc"
