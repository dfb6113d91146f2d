#include "calls/account/Credentials.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int cPasswordLimit = 4096;
constexpr qint64 cFileLimit = 1048576;

Credentials checked(const Credentials &credentials, QString *fault)
{
    if (credentials.password.isEmpty()) {
        *fault = QStringLiteral("no password");
    } else if (credentials.password.size() > cPasswordLimit || credentials.name.size() > cPasswordLimit) {
        *fault = QStringLiteral("a password beyond %1 characters").arg(cPasswordLimit);
    }
    return fault->isEmpty() ? credentials : Credentials();
}

/// Why nobody's secret is read from what is open there; empty: it is a file of this user's alone.
QString faultOf(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        return QStringLiteral("is no file");
    }
    if (status.st_uid != ::geteuid()) {
        return QStringLiteral("is another user's");
    }
    return (status.st_mode & (S_IRWXG | S_IRWXO)) != 0 ? QStringLiteral("is open to other users") : QString();
}

} // namespace

Credentials passwordCredentials(const QString &userId, const QString &registrationValue, QString *fault)
{
    fault->clear();
    return checked({userId, registrationValue}, fault);
}

Credentials tokenCredentials(const QString &userId, const QString &registrationValue, QString *fault)
{
    fault->clear();
    const QJsonObject token = QJsonDocument::fromJson(registrationValue.toUtf8()).object();
    const QString name = token.value(QStringLiteral("username")).toString();
    // The end of a token stands before its user: "1700000000:30010001".
    if (name != userId && !name.endsWith(QLatin1Char(':') + userId)) {
        *fault = name.isEmpty() ? QStringLiteral("the registration value is no token")
                                : QStringLiteral("the token is made out to somebody else");
        return {};
    }
    return checked({name, token.value(QStringLiteral("password")).toString()}, fault);
}

Credentials fileCredentials(const QString &userId, const QString &file, QString *fault)
{
    fault->clear();
    // What is looked at is what is read, whoever moves files meanwhile; nobody may ever write into a pipe.
    const int descriptor = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        *fault = QStringLiteral("cannot read %1: %2").arg(file, qt_error_string(errno));
        return {};
    }
    QFile lines;
    lines.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    const QString wrong = faultOf(descriptor);
    if (!wrong.isEmpty()) {
        *fault = file + QLatin1Char(' ') + wrong;
        return {};
    }
    const QList<QByteArray> rows = lines.read(cFileLimit).split('\n');
    for (const QByteArray &row : rows) {
        const QString text = QString::fromUtf8(row);
        if (text.section(QLatin1Char(':'), 0, 0) == userId) {
            return checked({userId, text.section(QLatin1Char(':'), 1).trimmed()}, fault);
        }
    }
    *fault = QStringLiteral("%1 has no line of this user").arg(file);
    return {};
}
