#include "calls/exchange/ExchangeFolder.h"

#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr const char *cName = "kelvarim-exchange";
constexpr mode_t cOthers = S_IRWXG | S_IRWXO;
// Names below /tmp that another user of the machine may have taken first.
constexpr int cNamesTried = 10;
constexpr qint64 cMostBytes = 65536;
// Behind the socket's name while it is made: a point and the greatest number of a process.
constexpr int cRoomForDraft = 8;

bool isPrivate(const struct stat &status)
{
    return status.st_uid == ::geteuid() && (status.st_mode & cOthers) == 0;
}

/// Whether the path can stand between quotes in Kamailio's configuration.
bool isPlain(const QByteArray &path)
{
    return path.startsWith('/') && std::all_of(path.begin(), path.end(), [](char c) {
               return c < 0 || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                      std::strchr("/._-+@~,= ", c) != nullptr;
           });
}

/// What is wrong with the folder, which is made where it is not there. One of this user's that others can look into is
/// closed.
QString fault(const QString &folder)
{
    const QByteArray path = QFile::encodeName(folder);
    struct stat status = {};
    if (QFile::encodeName(ExchangeFolder::path(folder, ExchangeFolder::cKeeper)).size() + cRoomForDraft >=
        int(sizeof(sockaddr_un::sun_path))) {
        return QStringLiteral("its path is too long");
    }
    if (!isPlain(path)) {
        return QStringLiteral("its path is none that Kamailio can read");
    }
    if (::mkdir(path.constData(), S_IRWXU) != 0 && errno != EEXIST) {
        return QString::fromLocal8Bit(std::strerror(errno));
    }
    if (::lstat(path.constData(), &status) != 0 || !S_ISDIR(status.st_mode)) {
        return QStringLiteral("it is no folder");
    }
    if (status.st_uid != ::geteuid()) {
        return QStringLiteral("it is another user's");
    }
    if (status.st_mode & cOthers && ::chmod(path.constData(), S_IRWXU) != 0) {
        return QString::fromLocal8Bit(std::strerror(errno));
    }
    return {};
}

/// The user's run-time folder; empty where he has none.
QString runTimeFolder()
{
    for (const QString &folder :
         {qEnvironmentVariable("XDG_RUNTIME_DIR"), QStringLiteral("/run/user/%1").arg(::geteuid())}) {
        struct stat status = {};
        if (folder.startsWith(QLatin1Char('/')) && ::stat(QFile::encodeName(folder).constData(), &status) == 0 &&
            S_ISDIR(status.st_mode) && isPrivate(status)) {
            return folder;
        }
    }
    return {};
}

} // namespace

QString ExchangeFolder::take(const QString &set, QString *error)
{
    QStringList candidates{set};
    if (set.isEmpty()) {
        const QString runTime = runTimeFolder();
        const QString common = QStringLiteral("/tmp/%1-%2").arg(QLatin1String(cName)).arg(::geteuid());
        candidates.clear();
        if (!runTime.isEmpty()) {
            candidates << runTime + QLatin1Char('/') + QLatin1String(cName);
        }
        for (int i = 0; i < cNamesTried; ++i) {
            candidates << common + (i == 0 ? QString() : QStringLiteral("-%1").arg(i));
        }
    }
    for (const QString &folder : candidates) {
        const QString wrong = fault(folder);
        if (wrong.isEmpty()) {
            return folder;
        }
        *error = QStringLiteral("the exchange has no folder, %1: %2").arg(folder, wrong);
    }
    return {};
}

QString ExchangeFolder::path(const QString &folder, const char *name)
{
    return folder + QLatin1Char('/') + QLatin1String(name);
}

QByteArray ExchangeFolder::readPrivate(const QString &file)
{
    struct stat status = {};
    QFile opened(file);
    // What is looked at is what is read, whoever moves files meanwhile.
    if (::lstat(QFile::encodeName(file).constData(), &status) != 0 || !S_ISREG(status.st_mode) ||
        !opened.open(QIODevice::ReadOnly) || ::fstat(opened.handle(), &status) != 0 || !isPrivate(status)) {
        return {};
    }
    return opened.read(cMostBytes);
}

bool ExchangeFolder::writePrivate(const QString &file, const QByteArray &content)
{
    QSaveFile saved(file);
    return saved.open(QIODevice::WriteOnly) && saved.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
           saved.write(content) == content.size() && saved.commit();
}
