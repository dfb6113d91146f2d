#include "client/PrivateTemp.h"

#include "traffic/CallChannel.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// What a server for one user alone is made as, below the folder, before it gets its name.
constexpr int cLongestName = int(sizeof("/.XXXXXX/s"));
constexpr mode_t cOthers = S_IRWXG | S_IRWXO;
constexpr int cNamesTried = 10;

bool isMine(const struct stat &status)
{
    return status.st_uid == ::geteuid();
}

bool isShort(const QByteArray &path)
{
    return path.size() + cLongestName <= int(sizeof(sockaddr_un::sun_path));
}

bool isPrivate(const QByteArray &path)
{
    struct stat status = {};
    return ::stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) && isMine(status) &&
           (status.st_mode & cOthers) == 0 && isShort(path);
}

/// Whether a call process of this user, started by whomever, listens in the present folder.
bool isServed()
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(CallChannel::socketFile()).constData(), &status) == 0 && isMine(status) &&
           CallChannel::isListening();
}

/// Makes the folder, or takes one that an earlier start made. A folder of another's, or a link, is not taken.
bool take(const QByteArray &path)
{
    struct stat status = {};
    return isShort(path) && (::mkdir(path.constData(), S_IRWXU) == 0 || errno == EEXIST) &&
           ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) && isPrivate(path);
}

} // namespace

bool PrivateTemp::use(const QString &strUid, bool bOwn, QString *strError)
{
    const QString present = QDir::tempPath();
    if (!bOwn && (isPrivate(QFile::encodeName(present)) || isServed())) {
        return qputenv("TMPDIR", QFile::encodeName(present));
    }
    const QString name = QStringLiteral("/kelvarim-%1-%2").arg(::geteuid()).arg(strUid);
    for (const QString &base : {present, qEnvironmentVariable("XDG_RUNTIME_DIR"), QStringLiteral("/tmp")}) {
        for (int i = 0; i < cNamesTried && !base.isEmpty(); ++i) {
            // Where another user of the machine has taken the name, the next one does.
            const QString path = base + name + (i == 0 ? QString() : QStringLiteral("-%1").arg(i));
            if (take(QFile::encodeName(path))) {
                return qputenv("TMPDIR", QFile::encodeName(path));
            }
        }
    }
    *strError = QStringLiteral("No private temporary folder can be made in %1").arg(present);
    return false;
}
