#include "tour/TourTurns.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

TourTurns::TourTurns(const QString &strFolder, const QString &strUid, const QStringList &all)
    : m_strFolder(strFolder), m_strUid(strUid), m_all(all)
{
    QFile::remove(fileOf(m_strUid));
}

QString TourTurns::fileOf(const QString &strUid) const
{
    return QStringLiteral("%1/at-%2").arg(m_strFolder, strUid);
}

void TourTurns::arrive(int iStep)
{
    // As many bytes as steps have been begun.
    QFile file(fileOf(m_strUid));
    if (file.open(QIODevice::Append) && file.size() == iStep) {
        file.write(".");
    }
}

bool TourTurns::areAllAt(int iStep) const
{
    return std::all_of(m_all.begin(), m_all.end(),
                       [&](const QString &uid) { return QFileInfo(fileOf(uid)).size() > iStep; });
}

void TourTurns::mark(double seconds, const QString &strWhat) const
{
    QFile marks(m_strFolder + QStringLiteral("/marks.txt"));
    if (marks.open(QIODevice::Append)) {
        marks.write(QStringLiteral("%1\t%2\n").arg(seconds, 0, 'f', 1).arg(strWhat).toUtf8());
    }
}
