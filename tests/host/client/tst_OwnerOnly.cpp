// What the demo client and its call process make on the disk is for their own user: the channel, the log, the store,
// the settings, the trace. Looked at by file modes, and, where the tests run as root, by the real attempts of another
// user.

#include "fakes/Patience.h"
#include "model/SystemSetData.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <cstring>
#include <fcntl.h>
#include <functional>
#include <grp.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Whether the deed succeeds when another user does it. Only root can become one; for others the answer is what the
/// modes say, which is looked at elsewhere.
bool isDoneByAnother(const std::function<bool()> &deed)
{
    if (::geteuid() != 0) {
        return false;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        const bool changed = ::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 && ::setuid(nobody) == 0;
        ::_exit(!changed ? 2 : deed() ? 0 : 1);
    }
    int status = 0;
    if (::waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) == 2) {
        qFatal("nobody could not be asked");
    }
    return WEXITSTATUS(status) == 0;
}

bool canOpen(const QByteArray &path, int flags)
{
    const int file = ::open(path.constData(), flags | O_CLOEXEC, 0600);
    return file >= 0 && ::close(file) == 0;
}

bool canConnect(const QByteArray &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), qMin<size_t>(path.size(), sizeof(address.sun_path) - 1));
    const int end = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool connected = ::connect(end, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    return ::close(end) == 0 && connected;
}

/// All paths below the folder, with its own subfolders.
QStringList pathsBelow(const QString &folder)
{
    QStringList paths;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        paths.append(walk.next());
    }
    return paths;
}

} // namespace

class tst_OwnerOnly : public QObject
{
    Q_OBJECT

private slots:
    /// A machine whose home directories are open and whose temporary directory is everybody's.
    void initTestCase()
    {
        ::umask(022);
        for (const QString &folder : {box(), QDir::homePath(), QDir::currentPath()}) {
            QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0755), 0);
        }
        QCOMPARE(::chmod(QFile::encodeName(QDir::tempPath()).constData(), 01777), 0);
        SystemSetData settings;
        settings.initCommonData();
        settings.initData(QStringLiteral("30010000"));
        QVERIFY(QDir().mkpath(settings.m_strUserFolder));
        QVERIFY(modeOf(settings.m_strUserFolder) & S_IROTH);
        m_before = pathsBelow(box());

        m_strTrace = QDir::current().absoluteFilePath(QStringLiteral("wire.trace"));
        qputenv("VOIPSDK_TRACE", QFile::encodeName(m_strTrace));
        m_demo.setProcessChannelMode(QProcess::ForwardedChannels);
        m_demo.start(QStringLiteral(VOIP_BIN_DIR "/kelvarim-demo"), QStringList());
        QVERIFY(m_demo.waitForStarted(cPatienceMs));
        // The registration is the last thing of a start.
        QTRY_VERIFY_WITH_TIMEOUT(
            QFile(m_strTrace).exists() &&
                [this] {
                    QFile trace(m_strTrace);
                    return trace.open(QIODevice::ReadOnly) && trace.readAll().contains("RegeditUser");
                }(),
            cPatienceMs);
    }

    void cleanupTestCase()
    {
        m_demo.terminate();
        QVERIFY(m_demo.waitForFinished(cPatienceMs));
    }

    void everythingMadeIsForItsOwnerAlone()
    {
        for (const char *name : {"VoipSDK", "kelvarim-demo.log", "localData.db", "wire.trace"}) {
            QVERIFY2(!find(QString::fromLatin1(name)).isEmpty(), name);
        }
        const QStringList now = pathsBelow(box());
        int made = 0;
        for (const QString &path : now) {
            const mode_t mode = modeOf(path);
            if (m_before.contains(path) || mode == 0 || S_ISLNK(mode)) {
                continue;
            }
            ++made;
            QVERIFY2((mode & 077) == 0, qPrintable(QStringLiteral("%1 has mode %2").arg(path).arg(mode & 07777, 0, 8)));
        }
        QVERIFY(made >= 6);
    }

    void folderOfAnEarlierRunIsClosed()
    {
        const QString folder = QFileInfo(find(QStringLiteral("localData.db"))).path();
        QVERIFY(m_before.contains(folder));
        QCOMPARE(modeOf(folder) & 07777, mode_t(0700));
    }

    /// The attempts below would also fail for want of a way to the files.
    void anotherUserReadsWhatIsNotClosed()
    {
        const QByteArray path = QFile::encodeName(QDir::tempPath() + "/open");
        QVERIFY(canOpen(path, O_CREAT | O_WRONLY));
        QCOMPARE(::chmod(path.constData(), 0644), 0);
        QCOMPARE(isDoneByAnother([&] { return canOpen(path, O_RDONLY); }), ::geteuid() == 0);
    }

    void anotherUserCannotReadOrWriteAFile_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"kelvarim-demo.log", "localData.db", "wire.trace", "VoipSDK.lock"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void anotherUserCannotReadOrWriteAFile()
    {
        QFETCH(QString, name);
        const QString found = name == "VoipSDK.lock" ? meetingPlace() + "/VoipSDK.lock" : find(name);
        const QByteArray path = QFile::encodeName(found);
        for (const int flags : {O_RDONLY, O_WRONLY, O_RDWR, O_WRONLY | O_TRUNC}) {
            QVERIFY(!isDoneByAnother([&] { return canOpen(path, flags); }));
        }
        QVERIFY(!isDoneByAnother([&] { return ::unlink(path.constData()) == 0; }));
    }

    void anotherUserCannotUseTheChannel()
    {
        const QByteArray path = QFile::encodeName(meetingPlace() + "/VoipSDK");
        QVERIFY(S_ISSOCK(modeOf(QFile::decodeName(path))));
        QVERIFY(!isDoneByAnother([&] { return canConnect(path); }));
        QVERIFY(!isDoneByAnother([&] { return ::unlink(path.constData()) == 0; }));
        QVERIFY(!isDoneByAnother([&] { return ::rename(path.constData(), (path + ".mine").constData()) == 0; }));
    }

    void anotherUserCannotPutAFileBesideThem()
    {
        const QByteArray folder = QFile::encodeName(QFileInfo(find(QStringLiteral("localData.db"))).path());
        QVERIFY(!isDoneByAnother([&] { return canOpen(folder + "/localData.db-journal", O_CREAT | O_WRONLY); }));
        const QByteArray log = QFile::encodeName(QFileInfo(find(QStringLiteral("kelvarim-demo.log"))).path());
        QVERIFY(!isDoneByAnother([&] { return canOpen(log + "/kelvarim-demo.log.1", O_CREAT | O_WRONLY); }));
    }

private:
    /// The first file of that name below the test's box; empty when there is none.

    static QString find(const QString &strName)
    {
        QDirIterator walk(box(), {strName}, QDir::AllEntries | QDir::Hidden | QDir::System,
                          QDirIterator::Subdirectories);
        return walk.hasNext() ? walk.next() : QString();
    }

    /// The folder that the client makes for itself where the temporary directory is everybody's.
    static QString meetingPlace()
    {
        return QDir::tempPath() + QStringLiteral("/kelvarim-%1-30010000").arg(::geteuid());
    }

    static QString box() { return QDir::cleanPath(QDir::currentPath() + QStringLiteral("/..")); }

    static mode_t modeOf(const QString &strPath)
    {
        struct stat status = {};
        return ::lstat(QFile::encodeName(strPath).constData(), &status) == 0 ? status.st_mode : 0;
    }

    QProcess m_demo;
    QString m_strTrace;
    QStringList m_before;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_OwnerOnly, Guiless)
#include "tst_OwnerOnly.moc"
