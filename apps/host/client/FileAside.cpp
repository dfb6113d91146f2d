#include "client/FileAside.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

// What SQLite keeps beside a file. It belongs to that file: it may hold the half of a write that was cut short.
constexpr const char *cCompanions[] = {"-journal", "-wal", "-shm"};

} // namespace

QString FileAside::path(const QString &strFile, const QDateTime &when)
{
    const QFileInfo file(strFile);
    const QString stem = file.path() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral(".damaged-") +
                         when.toString(QStringLiteral("yyyyMMdd-hhmmss"));
    const auto isTaken = [](const QString &strPath) {
        return QFileInfo::exists(strPath) ||
               std::any_of(std::begin(cCompanions), std::end(cCompanions), [&](const char *companion) {
                   return QFileInfo::exists(strPath + QLatin1String(companion));
               });
    };
    QString path = stem + QStringLiteral(".db");
    for (int i = 2; isTaken(path); ++i) {
        path = QStringLiteral("%1-%2.db").arg(stem).arg(i);
    }
    return path;
}

bool FileAside::move(const QString &strFrom, const QString &strTo)
{
    QStringList moved;
    const auto move = [&](const QString &strSuffix) {
        const bool ok = QFile::rename(strFrom + strSuffix, strTo + strSuffix);
        if (ok) {
            moved.append(strSuffix);
        }
        return ok;
    };
    // The companions go first: one that was left behind would be taken for that of the next file.
    const bool all = std::all_of(std::begin(cCompanions), std::end(cCompanions),
                                 [&](const char *companion) {
                                     const QString suffix = QLatin1String(companion);
                                     return !QFileInfo::exists(strFrom + suffix) || move(suffix);
                                 }) &&
                     move(QString());
    if (!all) {
        for (const QString &suffix : moved) {
            QFile::rename(strTo + suffix, strFrom + suffix);
        }
    }
    return all;
}
