#include "traffic/CallChannel.h"

#include "endpoint/EndpointVariables.h"
#include "wire/Commands.h"
#include "wire/SocketProbe.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

QString procOf(qint64 pid, const char *strFile)
{
    return QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1String(strFile));
}

/// The texts of a file of the process's that are ended by zeros each.
QList<QByteArray> textsOf(qint64 pid, const char *strFile)
{
    QFile file(procOf(pid, strFile));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\0') : QList<QByteArray>();
}

/// What the process was told by its option.
QByteArray traceOption(const QList<QByteArray> &arguments)
{
    const QByteArray option = "--trace";
    for (int i = 1; i < arguments.size(); ++i) {
        if (arguments.at(i) == option) {
            return arguments.value(i + 1);
        }
        if (arguments.at(i).startsWith(option + '=')) {
            return arguments.at(i).mid(option.size() + 1);
        }
    }
    return {};
}

/// Whether a call process listens under this name. A server for one user alone is made in a hidden folder beside the
/// place where it is then moved to, and keeps the name that it was made with.
bool isServerName(const QString &strName)
{
    const QFileInfo name(strName);
    const QFileInfo wanted(CallChannel::socketFile());
    if (name.filePath() == wanted.filePath()) {
        return true;
    }
    const QFileInfo folder(name.path());
    return name.fileName() == QLatin1String("s") && folder.fileName().startsWith(QLatin1Char('.')) &&
           folder.path() == wanted.path();
}

/// The process at the far end of this descriptor, when it is a connection to the call process; 0 otherwise.
qint64 peerOf(int iDescriptor)
{
    sockaddr_un address{};
    socklen_t length = sizeof(address);
    if (::getpeername(iDescriptor, reinterpret_cast<sockaddr *>(&address), &length) != 0 ||
        address.sun_family != AF_UNIX) {
        return 0;
    }
    const QByteArray name(address.sun_path, int(qstrnlen(address.sun_path, sizeof(address.sun_path))));
    ucred peer{};
    length = sizeof(peer);
    return isServerName(QFile::decodeName(name)) &&
                   ::getsockopt(iDescriptor, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0
               ? peer.pid
               : 0;
}

} // namespace

QString CallChannel::socketFile()
{
    return QDir(QDir::tempPath()).filePath(QString::fromLatin1(Wire::cServerName));
}

qint64 CallChannel::peer()
{
    const QStringList descriptors = QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::Files);
    for (const QString &descriptor : descriptors) {
        const qint64 pid = peerOf(descriptor.toInt());
        if (pid > 0) {
            return pid;
        }
    }
    return 0;
}

bool CallChannel::isListening()
{
    return Wire::isAnswered(QFile::encodeName(socketFile()).toStdString());
}

CallChannel::Trace CallChannel::traceOf(qint64 pid)
{
    QByteArray place = traceOption(textsOf(pid, "cmdline"));
    if (place.isEmpty()) {
        place = variableOf(pid, EndpointVariables::cTrace);
    }
    if (place.isEmpty()) {
        return {};
    }
    if (place == "-") {
        return {Trace::StandardError, QString()};
    }
    const QDir folder(QFile::symLinkTarget(procOf(pid, "cwd")));
    return {Trace::File, QDir::cleanPath(folder.absoluteFilePath(QFile::decodeName(place)))};
}

QByteArray CallChannel::variableOf(qint64 pid, const QByteArray &name)
{
    const QByteArray beginning = name + '=';
    const QList<QByteArray> environment = textsOf(pid, "environ");
    const auto found = std::find_if(environment.begin(), environment.end(),
                                    [&](const QByteArray &variable) { return variable.startsWith(beginning); });
    return found == environment.end() ? QByteArray() : found->mid(beginning.size());
}

QString CallChannel::programOf(qint64 pid)
{
    return QFile::symLinkTarget(procOf(pid, "exe"));
}
