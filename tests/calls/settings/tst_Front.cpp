// The front of the call process: which program it becomes, and what it says where it can become none.

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

namespace {

constexpr const char *cFolder = "client/VoipSDK/Contents/MacOS";

QByteArray bytesOf(const QString &strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString procOf(qint64 pid, const char *strFile)
{
    return QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1String(strFile));
}

/// Children of the process, by the system's table.
QList<qint64> childrenOf(qint64 pid)
{
    QList<qint64> found;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        const QByteArray status = bytesOf(QStringLiteral("/proc/%1/stat").arg(entry));
        if (status.mid(status.lastIndexOf(')') + 2).split(' ').value(1).toLongLong() == pid) {
            found.append(entry.toLongLong());
        }
    }
    return found;
}

} // namespace

class tst_Front : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        QVERIFY(QDir(m_folder->path()).mkpath(cFolder));
        QVERIFY(QFile::copy(QStringLiteral(VOIP_FRONT), program("VoipSDK")));
        QVERIFY(QFile::copy(QStringLiteral(VOIP_ROBOTS), program("kelvarim-robots")));
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.remove("VOIPSDK_KIND");
        m_environment.remove("VOIPSDK_CALLS_INI");
        m_environment.insert("XDG_CONFIG_HOME", m_folder->filePath("user"));
        m_environment.insert("XDG_CONFIG_DIRS", m_folder->filePath("system"));
        m_front = std::make_unique<QProcess>();
    }

    void cleanup()
    {
        m_front->kill();
        m_front->waitForFinished(cPatienceMs);
    }

    void itBecomesTheRobotsUnderItsOwnName()
    {
        start({"--idle-seconds", "100"});
        const qint64 pid = m_front->processId();
        QTRY_COMPARE_WITH_TIMEOUT(bytesOf(procOf(pid, "comm")), QByteArray("VoipSDK\n"), cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(QFile::symLinkTarget(procOf(pid, "exe")),
                                  QFileInfo(program("kelvarim-robots")).canonicalFilePath(), cPatienceMs);
        QCOMPARE(QFile::decodeName(bytesOf(procOf(pid, "cmdline")).split('\0').value(0)), program("VoipSDK"));
        QVERIFY(connectClient());
        // The name that is searched for comes with the program's begin.
        QTRY_COMPARE_WITH_TIMEOUT(bytesOf(procOf(pid, "comm")), QByteArray("VoipSDK\n"), cPatienceMs);
        m_client.write("quit\n");
        QVERIFY(m_client.waitForBytesWritten(cPatienceMs));
        QVERIFY(m_front->waitForFinished(cPatienceMs));
        QCOMPARE(m_front->exitCode(), 0);
        QCOMPARE(m_front->processId(), qint64(0));
    }

    void itBecomesTheKindThatIsSet_data()
    {
        QTest::addColumn<QString>("place");
        QTest::newRow("the user's file") << "user/kelvarim-voip/calls.ini";
        QTest::newRow("the system's file") << "system/kelvarim-voip/calls.ini";
        QTest::newRow("beside the client") << "client/calls.ini";
        QTest::newRow("environment") << QString();
    }

    void itBecomesTheKindThatIsSet()
    {
        QFETCH(QString, place);
        if (place.isEmpty()) {
            m_environment.insert("VOIPSDK_KIND", "calls");
        } else {
            write(place, "[process]\nkind = calls\n");
        }
        // Says which process it is and what it was told.
        write(QString::fromLatin1(cFolder) + "/kelvarim-calls", "#!/bin/sh\necho $$\nprintf '%s\\n' \"$@\"\nexit 7\n");
        QVERIFY(QFile::setPermissions(program("kelvarim-calls"), QFile::ReadOwner | QFile::ExeOwner));
        start({"--trace", "two words", ""});
        const qint64 pid = m_front->processId();
        QVERIFY(m_front->waitForFinished(cPatienceMs));
        QCOMPARE(m_front->exitCode(), 7);
        QCOMPARE(m_front->readAllStandardOutput(), QByteArray::number(pid) + "\n--trace\ntwo words\n\n");
    }

    void whatStandsInTheWayIsToldToThePlugin_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QString>("told");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("no such program")
            << QByteArray("[process]\nkind=calls\n")
            << "process/kind is calls, and %2/kelvarim-calls cannot be started: No such file or directory" << 1;
        QTest::newRow("bad value") << QByteArray("[process]\nkind=\"calls\\\n")
                                   << "%1:2: process/kind is robots or calls, not \"\"calls\\\"" << 2;
        QTest::newRow("unknown key") << QByteArray("[process]\n\ncolour=1\n")
                                     << "%1:3: there is no setting process/colour" << 2;
    }

    void whatStandsInTheWayIsToldToThePlugin()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QString, told);
        QFETCH(int, exitCode);
        write("client/calls.ini", settings);
        const QString folder = QFileInfo(m_folder->filePath(cFolder)).canonicalFilePath();
        told = told.replace("%1", QFileInfo(m_folder->filePath("client/calls.ini")).canonicalFilePath())
                   .replace("%2", folder);
        start({"--trace", m_folder->filePath("trace")});
        QVERIFY(connectClient());
        QTRY_VERIFY_WITH_TIMEOUT(m_client.canReadLine(), cPatienceMs);
        const QJsonObject line = QJsonDocument::fromJson(m_client.readLine()).object();
        QCOMPARE(line.value("resultCode").toInt(), 999);
        QCOMPARE(line.value("content").toString(), told);
        QVERIFY(m_front->state() == QProcess::NotRunning || m_front->waitForFinished(cPatienceMs));
        QCOMPARE(m_front->exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_front->exitCode(), exitCode);
        QCOMPARE(QString::fromUtf8(m_front->readAllStandardError()), "VoipSDK: " + told + '\n');
        QVERIFY(bytesOf(m_folder->filePath("trace")).contains("> {"));
    }

    void whatASecretIsCanBeKeptOutOfTheTrace_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<bool>("kept");
        QTest::newRow("not hidden") << QStringList() << true;
        QTest::newRow("hidden") << QStringList{"--hide-secrets"} << false;
    }

    void whatASecretIsCanBeKeptOutOfTheTrace()
    {
        QFETCH(QStringList, options);
        QFETCH(bool, kept);
        start(options << "--trace" << m_folder->filePath("trace"));
        QVERIFY(connectClient());
        m_client.write(
            R"({"messagetype":"RegeditUser","param1":"100","param2":"Nick","param3":"t0psecret","param4":false})"
            "\nquit\n");
        QVERIFY(m_client.waitForBytesWritten(cPatienceMs));
        QVERIFY(m_front->waitForFinished(cPatienceMs));
        const QByteArray trace = bytesOf(m_folder->filePath("trace"));
        QVERIFY(trace.contains("RegeditUser"));
        QCOMPARE(trace.contains("t0psecret"), kept);
    }

    void withNoProgramAtAllItSaysSoAndGoes()
    {
        QVERIFY(QFile::remove(program("kelvarim-robots")));
        start({});
        QVERIFY(m_front->waitForFinished(cPatienceMs));
        QCOMPARE(m_front->exitCode(), 1);
        QVERIFY(m_front->readAllStandardError().contains(
            "/kelvarim-robots cannot be started: No such file or directory\n"));
    }

    void whoSpeaksForItEndsWithIt()
    {
        write("client/calls.ini", "[process]\nkind=calls\n");
        start({"--trace", m_folder->filePath("trace")});
        QTRY_VERIFY_WITH_TIMEOUT(!childrenOf(m_front->processId()).isEmpty(), cPatienceMs);
        const QList<qint64> children = childrenOf(m_front->processId());
        // Its trace is the one that the calls would write.
        QTRY_VERIFY_WITH_TIMEOUT(bytesOf(procOf(children.first(), "cmdline")).split('\0').contains("--hide-secrets"),
                                 cPatienceMs);
        m_front->kill();
        QVERIFY(m_front->waitForFinished(cPatienceMs));
        QVERIFY(!children.isEmpty());
        for (const qint64 child : children) {
            QTRY_VERIFY_WITH_TIMEOUT(::kill(pid_t(child), 0) != 0 || bytesOf(procOf(child, "stat")).contains(") Z "),
                                     cPatienceMs);
        }
        // Not by itself, after a while without a client.
        QVERIFY(!bytesOf(m_folder->filePath("trace")).contains("= idle"));
    }

private:
    QString program(const char *name) const { return m_folder->filePath(cFolder) + '/' + QLatin1String(name); }

    void write(const QString &place, const QByteArray &text)
    {
        const QString whole = m_folder->filePath(place);
        QVERIFY(QDir().mkpath(QFileInfo(whole).path()));
        QFile file(whole);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void start(const QStringList &arguments)
    {
        m_front->setProcessEnvironment(m_environment);
        m_front->start(program("VoipSDK"), arguments);
        QVERIFY(m_front->waitForStarted(cPatienceMs));
    }

    bool connectClient()
    {
        const QDeadlineTimer deadline(cPatienceMs);
        while (!deadline.hasExpired()) {
            m_client.abort();
            m_client.connectToServer(QStringLiteral("VoipSDK"));
            if (m_client.waitForConnected(cPatienceMs)) {
                return true;
            }
            QTest::qWait(2);
        }
        return false;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;
    std::unique_ptr<QProcess> m_front;
    QLocalSocket m_client;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Front, Guiless)
#include "tst_Front.moc"
