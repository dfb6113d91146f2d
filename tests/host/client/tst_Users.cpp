// The built client, started more than once: by the same user, by another user of the client, by another user of the
// machine. Windows are those that the window manager has, call processes those that run.

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr const char *cOwner = "小明 (30010000)";
constexpr const char *cOther = "李雷 (30010001)";

QString said(const QString &strProgram, const QStringList &arguments)
{
    QProcess process;
    process.start(strProgram, arguments);
    process.waitForFinished(cPatienceMs);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// The window manager's ids of the windows whose title begins so, hidden ones too.
QStringList windowsOf(const char *strTitle)
{
    const QString title = QLatin1Char('^') + QString::fromUtf8(strTitle).replace('(', "\\(").replace(')', "\\)");
    return said(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--name"), title})
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool isActive(const char *strTitle)
{
    return said(QStringLiteral("xdotool"), {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")})
        .startsWith(QString::fromUtf8(strTitle));
}

QByteArray bytesOf(const QString &strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

mode_t modeOf(const QString &strPath)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(strPath).constData(), &status) == 0 ? status.st_mode : 0;
}

QString temp(const QString &strName)
{
    return QDir(QDir::tempPath()).filePath(strName);
}

QString nameFor(uid_t user, const char *strUid)
{
    return QStringLiteral("kelvarim-%1-%2").arg(user).arg(QLatin1String(strUid));
}

} // namespace

class tst_Users : public QObject
{
    Q_OBJECT

private slots:
    void init() { QCOMPARE(::chmod(QFile::encodeName(QDir::tempPath()).constData(), S_IRWXU), 0); }

    void secondStartOfAUserBringsTheFirstWindowToTheFront()
    {
        const auto first = start({}, QStringLiteral("first.txt"));
        QTRY_COMPARE_WITH_TIMEOUT(windowsOf(cOwner).size(), 1, cPatienceMs);
        const auto other = start({"--user", "30010001"}, QStringLiteral("other.txt"));
        QTRY_VERIFY_WITH_TIMEOUT(isActive(cOther), cPatienceMs);
        said(QStringLiteral("xdotool"), {QStringLiteral("windowminimize"), windowsOf(cOwner).constFirst()});

        for (const QStringList &arguments : {QStringList(), QStringList{"--user", "30010000"}}) {
            const auto second = start(arguments, QStringLiteral("second.txt"));
            QVERIFY(second->waitForFinished(cPatienceMs));
            QCOMPARE(second->exitCode(), 0);
            QVERIFY(second->readAllStandardError().contains("runs already, as process " +
                                                            QByteArray::number(first->processId())));
            QTRY_VERIFY_WITH_TIMEOUT(isActive(cOwner), cPatienceMs);
            QCOMPARE(windowsOf(cOwner).size(), 1);
            // No call process of its own.
            QVERIFY(!QFile::exists(QStringLiteral("second.txt")));
            said(QStringLiteral("xdotool"), {QStringLiteral("windowactivate"), windowsOf(cOther).constFirst()});
            QTRY_VERIFY_WITH_TIMEOUT(isActive(cOther), cPatienceMs);
        }
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(QStringLiteral("first.txt"), "30010000"), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(QStringLiteral("other.txt"), "30010001"), cPatienceMs);
        QVERIFY(quit(*first));
        QVERIFY(quit(*other));
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(QStringLiteral("first.txt")), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(QStringLiteral("other.txt")), cPatienceMs);
    }

    void afterAKilledOneTheNextIsTheFirst()
    {
        const auto first = start({}, QStringLiteral("killed.txt"));
        QTRY_COMPARE_WITH_TIMEOUT(windowsOf(cOwner).size(), 1, cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(QStringLiteral("killed.txt"), "30010000"), cPatienceMs);
        first->kill();
        QVERIFY(first->waitForFinished(cPatienceMs));
        QTRY_COMPARE_WITH_TIMEOUT(windowsOf(cOwner).size(), 0, cPatienceMs);
        const auto next = start({}, QStringLiteral("next.txt"));
        QTRY_COMPARE_WITH_TIMEOUT(windowsOf(cOwner).size(), 1, cPatienceMs);
        // It registers with the call process that the killed one has left, and ends it.
        QTRY_COMPARE_WITH_TIMEOUT(bytesOf(QStringLiteral("killed.txt")).count("\"resultCode\":17"), 2, cPatienceMs);
        QVERIFY(quit(*next));
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(QStringLiteral("killed.txt")), cPatienceMs);
    }

    void twoUsersHaveEachACallProcess()
    {
        const auto one = start({}, QStringLiteral("one.txt"));
        const auto two = start({"--user", "30010001"}, QStringLiteral("two.txt"));
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(QStringLiteral("one.txt"), "30010000"), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(QStringLiteral("two.txt"), "30010001"), cPatienceMs);
        const QString folder = temp(nameFor(::geteuid(), "30010001"));
        QCOMPARE(modeOf(folder) & 07777, mode_t(0700));
        QVERIFY(S_ISSOCK(modeOf(folder + "/VoipSDK")));
        QVERIFY(S_ISSOCK(modeOf(temp(QStringLiteral("VoipSDK")))));
        // The end of one is none of the other's.
        QVERIFY(quit(*one));
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(QStringLiteral("one.txt")), cPatienceMs);
        QVERIFY(!bytesOf(QStringLiteral("two.txt")).contains("disconnected"));
        QVERIFY(quit(*two));
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(QStringLiteral("two.txt")), cPatienceMs);
    }

    void inASharedTemporaryFolderUsersOfTheMachineDoNotMeet()
    {
        QCOMPARE(::chmod(QFile::encodeName(QDir::tempPath()).constData(), 01777), 0);
        const auto mine = start({}, QStringLiteral("mine.txt"));
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(QStringLiteral("mine.txt"), "30010000"), cPatienceMs);
        const QString folder = temp(nameFor(::geteuid(), "30010000"));
        QCOMPARE(modeOf(folder) & 07777, mode_t(0700));
        QVERIFY(S_ISSOCK(modeOf(folder + "/VoipSDK")));
        QVERIFY(!QFile::exists(temp(QStringLiteral("VoipSDK"))));
        QVERIFY(quit(*mine));
    }

    void nameTakenByAnotherIsLeftToThem()
    {
        QCOMPARE(::chmod(QFile::encodeName(QDir::tempPath()).constData(), 01777), 0);
        const QString taken = temp(nameFor(::geteuid(), "30010002"));
        const QString place = temp(QStringLiteral("elsewhere"));
        QVERIFY(QDir().mkdir(place) && QFile::link(place, taken));
        // Only root can make a folder of another user's as well.
        const QString next = taken + QStringLiteral("-1");
        if (::geteuid() == 0) {
            QVERIFY(QDir().mkdir(next));
            QCOMPARE(::chmod(QFile::encodeName(next).constData(), 0700), 0);
            QCOMPARE(::chown(QFile::encodeName(next).constData(), 65534, 65534), 0);
        }
        const auto mine = start({"--user", "30010002"}, QStringLiteral("taken.txt"));
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(QStringLiteral("taken.txt"), "30010002"), cPatienceMs);
        QVERIFY(QDir(place).isEmpty());
        QVERIFY(S_ISSOCK(modeOf(taken + (::geteuid() == 0 ? "-2" : "-1") + "/VoipSDK")));
        QVERIFY(quit(*mine));
    }

    void longTemporaryFolderIsLeftForAShortOne()
    {
        const QString longer = temp(QString(80, QLatin1Char('x')));
        QVERIFY(QDir().mkdir(longer));
        m_environment.insert(QStringLiteral("TMPDIR"), longer);
        m_environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), QDir::tempPath());
        const auto mine = start({"--user", "30010003"}, QStringLiteral("long.txt"));
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(QStringLiteral("long.txt"), "30010003"), cPatienceMs);
        QVERIFY(S_ISSOCK(modeOf(temp(nameFor(::geteuid(), "30010003")) + "/VoipSDK")));
        QVERIFY(quit(*mine));
        m_environment = QProcessEnvironment::systemEnvironment();
    }

    void strangersCannotSignIn()
    {
        const auto demo = start({"--user", "4711"}, QStringLiteral("none.txt"));
        QVERIFY(demo->waitForFinished(cPatienceMs));
        QCOMPARE(demo->exitCode(), 2);
        QVERIFY(demo->readAllStandardError().contains("no contact 4711; there are 30010000, 30010001, "));
    }

private:
    /// Starts the client; its call process writes to that file.
    std::unique_ptr<QProcess> start(const QStringList &arguments, const QString &strTrace) const
    {
        auto demo = std::make_unique<QProcess>();
        QProcessEnvironment environment = m_environment;
        environment.insert(QStringLiteral("VOIPSDK_TRACE"), QDir::current().absoluteFilePath(strTrace));
        demo->setProcessEnvironment(environment);
        demo->start(QStringLiteral(VOIP_BIN_DIR "/kelvarim-demo"), arguments);
        return demo;
    }

    static bool isRegistered(const QString &strTrace, const QByteArray &uid)
    {
        const QByteArray trace = bytesOf(strTrace);
        return trace.contains("\"param1\":\"" + uid + '"') && trace.contains("\"resultCode\":17");
    }

    /// Whether the call process that writes there has ended, and the next client starts another.
    static bool hasEnded(const QString &strTrace) { return bytesOf(strTrace).contains("stopped listening"); }

    static bool quit(QProcess &demo)
    {
        demo.terminate();
        return demo.waitForFinished(cPatienceMs) && demo.exitCode() == 130;
    }

    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Users, Guiless)
#include "tst_Users.moc"
