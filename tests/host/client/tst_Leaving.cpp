// How the built programs leave: whenever they are interrupted, no call process stays behind, and no folder of traces or
// of the gallery's user.

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <csignal>

namespace {

QByteArray bytesOf(const QString &strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Process ids of the call processes that this test's clients have started.
QList<qint64> callProcesses()
{
    QList<qint64> found;
    const QByteArray mark = "TMPDIR=" + QFile::encodeName(QDir::tempPath());
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        const QString folder = QStringLiteral("/proc/") + entry;
        if (QFile::symLinkTarget(folder + QStringLiteral("/exe")).contains(QStringLiteral("/VoipSDK/Contents/")) &&
            bytesOf(folder + QStringLiteral("/environ")).split('\0').contains(mark)) {
            found << entry.toLongLong();
        }
    }
    return found;
}

QStringList foldersNamed(const char *strPattern)
{
    return QDir(QDir::tempPath()).entryList({QLatin1String(strPattern)}, QDir::Dirs);
}

/// Whether a trace in one of these folders tells of a registration.
bool isRegistered(const QStringList &folders)
{
    return std::any_of(folders.begin(), folders.end(), [](const QString &folder) {
        return bytesOf(QDir(QDir::tempPath()).filePath(folder + QStringLiteral("/wire.txt"))).contains("RegeditUser");
    });
}

} // namespace

class tst_Leaving : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        const QList<qint64> left = callProcesses();
        for (const qint64 pid : left) {
            ::kill(pid_t(pid), SIGKILL);
        }
        QVERIFY(left.isEmpty());
    }

    void interruptedAtOnceItLeavesNoCallProcess_data()
    {
        QTest::addColumn<QByteArray>("event");
        // The call process has begun, and the plug-in is not connected to it.
        QTest::newRow("started") << QByteArray("started");
        QTest::newRow("listening") << QByteArray("listening");
        QTest::newRow("connected") << QByteArray("connected");
    }

    void interruptedAtOnceItLeavesNoCallProcess()
    {
        QFETCH(QByteArray, event);
        const QString trace = QDir::current().absoluteFilePath(QString::fromLatin1(event) + QStringLiteral(".txt"));
        QProcess demo;
        start(demo, trace);
        while (!bytesOf(trace).contains("= " + event) && demo.state() != QProcess::NotRunning) {
            QTest::qWait(1);
        }
        QCOMPARE(::kill(pid_t(demo.processId()), SIGINT), 0);
        QVERIFY(demo.waitForFinished(cPatienceMs));
        QCOMPARE(demo.exitCode(), 130);
        QTRY_VERIFY_WITH_TIMEOUT(callProcesses().isEmpty(), cPatienceMs);
    }

    void interruptedBeforeItHasSpokenItStartsNone()
    {
        // From the first moment on, again and again, as an impatient user would.
        for (int i = 0; i < 12; ++i) {
            const QString trace = QDir::current().absoluteFilePath(QStringLiteral("early-%1.txt").arg(i));
            QProcess demo;
            start(demo, trace);
            QVERIFY(demo.waitForStarted(cPatienceMs));
            QTest::qWait(40 * i);
            ::kill(pid_t(demo.processId()), SIGINT);
            QVERIFY(demo.waitForFinished(cPatienceMs));
            QTRY_VERIFY_WITH_TIMEOUT(callProcesses().isEmpty(), cPatienceMs);
        }
    }

    void windowComesBackWhereASignalHasEndedIt_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("Ctrl-C") << SIGINT;
        QTest::newRow("end of the session") << SIGTERM;
    }

    void windowComesBackWhereASignalHasEndedIt()
    {
        QFETCH(int, number);
        const QSize size(number == SIGINT ? 901 : 911, 641);
        QProcess demo;
        start(demo, QString());
        const QByteArray window = xdotool({"search", "--sync", "--onlyvisible", "--name", "KelvarIM demo"}).trimmed();
        QVERIFY(!window.isEmpty() && !window.contains('\n'));
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(foldersNamed("kelvarim-trace-*")), cPatienceMs);
        const QByteArray wanted = QByteArray::number(size.width()) + 'x' + QByteArray::number(size.height());
        xdotool({"windowsize", "--sync", window, QByteArray::number(size.width()), QByteArray::number(size.height())});
        QTRY_VERIFY_WITH_TIMEOUT(xdotool({"getwindowgeometry", window}).contains(wanted), cPatienceMs);
        ::kill(pid_t(demo.processId()), number);
        QVERIFY(demo.waitForFinished(cPatienceMs));
        QCOMPARE(demo.exitCode(), 130);
        QTRY_VERIFY_WITH_TIMEOUT(callProcesses().isEmpty(), cPatienceMs);

        QProcess next;
        start(next, QString());
        const QByteArray again = xdotool({"search", "--sync", "--onlyvisible", "--name", "KelvarIM demo"}).trimmed();
        QTRY_VERIFY_WITH_TIMEOUT(xdotool({"getwindowgeometry", again}).contains(wanted), cPatienceMs);
        next.terminate();
        QVERIFY(next.waitForFinished(cPatienceMs));
        QTRY_VERIFY_WITH_TIMEOUT(callProcesses().isEmpty(), cPatienceMs);
    }

    void tracesOfAKilledClientGoWithItsCallProcess()
    {
        QProcess first;
        start(first, QString());
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(foldersNamed("kelvarim-trace-*")), cPatienceMs);
        const QStringList left = foldersNamed("kelvarim-trace-*");
        QCOMPARE(left.size(), 1);
        first.kill();
        QVERIFY(first.waitForFinished(cPatienceMs));
        const QString trace = QDir::tempPath() + '/' + left.constFirst() + "/wire.txt";
        const int before = bytesOf(trace).count("RegeditUser");
        QCOMPARE(callProcesses().size(), 1);

        // The next client finds the old call process, which writes on where it was told to.
        QProcess second;
        start(second, QString());
        QTRY_VERIFY_WITH_TIMEOUT(bytesOf(trace).count("RegeditUser") > before, cPatienceMs);
        second.terminate();
        QVERIFY(second.waitForFinished(cPatienceMs));
        QTRY_VERIFY_WITH_TIMEOUT(callProcesses().isEmpty(), cPatienceMs);
        QCOMPARE(foldersNamed("kelvarim-trace-*"), left);

        QProcess third;
        start(third, QString());
        QTRY_VERIFY_WITH_TIMEOUT(!foldersNamed("kelvarim-trace-*").contains(left.constFirst()), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(foldersNamed("kelvarim-trace-*")), cPatienceMs);
        third.terminate();
        QVERIFY(third.waitForFinished(cPatienceMs));
        QTRY_VERIFY_WITH_TIMEOUT(callProcesses().isEmpty(), cPatienceMs);
        QCOMPARE(foldersNamed("kelvarim-trace-*"), QStringList());
    }

    void galleryTakesItsFolderAlong_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("interrupted") << SIGINT;
        QTest::newRow("terminated") << SIGTERM;
    }

    void galleryTakesItsFolderAlong()
    {
        QFETCH(int, number);
        QProcess gallery;
        gallery.start(QStringLiteral(VOIP_BIN_DIR "/kelvarim-gallery"), QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(foldersNamed("kelvarim-gallery-*").size(), 1, cPatienceMs);
        ::kill(pid_t(gallery.processId()), number);
        QVERIFY(gallery.waitForFinished(cPatienceMs));
        QCOMPARE(gallery.exitStatus(), QProcess::NormalExit);
        QCOMPARE(gallery.exitCode(), 130);
        QCOMPARE(foldersNamed("kelvarim-gallery-*"), QStringList());
    }

private:
    /// What that program says; it works on the test's screen.
    static QByteArray xdotool(const QList<QByteArray> &arguments)
    {
        QStringList words;
        for (const QByteArray &argument : arguments) {
            words << QString::fromUtf8(argument);
        }
        QProcess process;
        process.start(QStringLiteral("xdotool"), words);
        process.waitForFinished(cPatienceMs);
        return process.readAllStandardOutput();
    }
    /// Starts the client; its call process writes to that file, without one where the client says.
    static void start(QProcess &demo, const QString &strTrace)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        if (!strTrace.isEmpty()) {
            environment.insert(QStringLiteral("VOIPSDK_TRACE"), strTrace);
        }
        demo.setProcessEnvironment(environment);
        demo.start(QStringLiteral(VOIP_BIN_DIR "/kelvarim-demo"), QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Leaving, Guiless)
#include "tst_Leaving.moc"
