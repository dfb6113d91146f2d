#include "traffic/WireTrace.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTest>

/// The built demo client, started as a user's would be: by hand, and guiding itself through every way a call can go.
class tst_Tour : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The tour counts Qt's warnings, and a missing runtime folder would be one more.
        QVERIFY(QDir().mkdir(QStringLiteral("run")));
        QVERIFY(QFile::setPermissions(QStringLiteral("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        m_environment.insert(QStringLiteral("XDG_RUNTIME_DIR"),
                             QDir::current().absoluteFilePath(QStringLiteral("run")));
    }

    void everyStepHasItsEffect()
    {
        QProcess demo;
        demo.setProcessEnvironment(m_environment);
        demo.setProcessChannelMode(QProcess::MergedChannels);
        demo.start(m_strDemo, {QStringLiteral("--tour"), QStringLiteral("tour")});
        QVERIFY(demo.waitForFinished(500000));
        const QByteArray words = demo.readAll();
        // A message holds about a thousand characters, so the last ones are what tells the missing effect.
        QVERIFY2(demo.exitStatus() == QProcess::NormalExit && demo.exitCode() == 0, words.right(900).constData());
        QVERIFY2(!words.contains("MISS"), words.right(900).constData());
        QVERIFY(words.contains("steps had their effect"));
        // What is filtered out is not shown either, and no line is a number that nobody can place.
        for (const char *filtered : {"stylesheet", "QObject::connect:", "QXcbConnection"}) {
            QVERIFY2(!words.contains(filtered), words.constData());
        }
        for (const QByteArray &line : words.split('\n')) {
            bool bNumber = false;
            line.trimmed().toLongLong(&bNumber);
            QVERIFY2(!bNumber, line.constData());
        }
        // Closing the window quits, and so does the end of the program behind it.
        QCOMPARE(words.count("4763 quit"), 1);
    }

    void pictureOfEveryWindowIsTaken()
    {
        const QStringList pictures = QDir(QStringLiteral("tour")).entryList({QStringLiteral("*.png")});
        QCOMPARE(pictures, (QStringList{QStringLiteral("answered-over-dialog.png"),
                                        QStringLiteral("call-incoming.png"),
                                        QStringLiteral("call-outgoing.png"),
                                        QStringLiteral("call-service-again.png"),
                                        QStringLiteral("call-service-lost.png"),
                                        QStringLiteral("call-video.png"),
                                        QStringLiteral("call-voice.png"),
                                        QStringLiteral("centre-card.png"),
                                        QStringLiteral("centre-detail.png"),
                                        QStringLiteral("centre-list.png"),
                                        QStringLiteral("centre-menu.png"),
                                        QStringLiteral("close-question.png"),
                                        QStringLiteral("conference-invited.png"),
                                        QStringLiteral("conference-more.png"),
                                        QStringLiteral("conference-muted.png"),
                                        QStringLiteral("conference-picker.png"),
                                        QStringLiteral("conference.png"),
                                        QStringLiteral("demo-window.png"),
                                        QStringLiteral("desktop.png"),
                                        QStringLiteral("happenings-conference.png"),
                                        QStringLiteral("happenings.png"),
                                        QStringLiteral("history-restarted.png"),
                                        QStringLiteral("history-search.png"),
                                        QStringLiteral("history.png"),
                                        QStringLiteral("incoming-prompt.png"),
                                        QStringLiteral("message-no-process.png"),
                                        QStringLiteral("prompt-over-dialog.png"),
                                        QStringLiteral("second-call.png"),
                                        QStringLiteral("second-user.png"),
                                        QStringLiteral("settings.png")}));
        for (const QString &picture : pictures) {
            const QImage image(QStringLiteral("tour/") + picture);
            QVERIFY2(image.width() > 80 && image.height() > 60, qPrintable(picture));
        }
    }

    void pictureOfTheDocumentationIsTaken_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"call-video", "call-voice", "centre-detail", "centre-list", "conference", "desktop"}) {
            QTest::newRow(name) << QLatin1String(name) + QStringLiteral(".png");
        }
    }

    void pictureOfTheDocumentationIsTaken()
    {
        QFETCH(QString, name);
        const QImage documented(QStringLiteral(VOIP_SOURCE_DIR "/docs/pictures/") + name);
        QVERIFY(!documented.isNull());
        // What the pictures show differs in clocks and dates; their windows do not.
        if (name != QStringLiteral("desktop.png")) {
            QCOMPARE(QImage(QStringLiteral("tour/") + name).size(), documented.size());
        }
    }

    void endedByASignalItEndsTheCallProcess()
    {
        const QString trace = QDir::current().absoluteFilePath(QStringLiteral("wire.txt"));
        m_environment.insert(QStringLiteral("VOIPSDK_TRACE"), trace);
        QProcess demo;
        demo.setProcessEnvironment(m_environment);
        demo.start(m_strDemo, QStringList());
        QTRY_VERIFY_WITH_TIMEOUT(isTraced(trace, WireLine::FromPlugin, QStringLiteral("RegeditUser")), cPatienceMs);
        demo.terminate();
        QVERIFY(demo.waitForFinished(cPatienceMs));
        QCOMPARE(demo.exitStatus(), QProcess::NormalExit);
        QCOMPARE(demo.exitCode(), 130);
        QTRY_VERIFY_WITH_TIMEOUT(isTraced(trace, WireLine::Event, QStringLiteral("stopped listening")), cPatienceMs);
        QVERIFY(isTraced(trace, WireLine::FromPlugin, QStringLiteral("quit")));
    }

    void withoutTheModuleTheClientSaysSoAndEnds()
    {
        const QString lonely = QDir::current().absoluteFilePath(QStringLiteral("kelvarim-demo"));
        QVERIFY(QFile::copy(m_strDemo, lonely));
        QProcess demo;
        demo.setProcessEnvironment(m_environment);
        demo.start(lonely, {QStringLiteral("--tour"), QStringLiteral("tour-without")});
        QVERIFY(demo.waitForFinished(cPatienceMs));
        QCOMPARE(demo.exitCode(), 1);
        QVERIFY(demo.readAllStandardError().contains("libVoipManage.so"));
    }

private:
    /// Whether the trace holds the text in a line of that direction by now.

    static bool isTraced(const QString &strFile, WireLine::Direction direction, const QString &strText)
    {
        const QList<WireLine> lines = WireTrace(strFile).readNew();
        return std::any_of(lines.begin(), lines.end(), [&](const WireLine &line) {
            return line.direction == direction && line.text.contains(strText);
        });
    }

    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    const QString m_strDemo = QStringLiteral(VOIP_BIN_DIR "/kelvarim-demo");
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Tour, Guiless)
#include "tst_Tour.moc"
