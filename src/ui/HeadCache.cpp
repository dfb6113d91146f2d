#include "ui/HeadCache.h"

#include <QFile>

#include <sys/stat.h>

namespace {

// A list of more pictures than this starts its cache anew.
constexpr qint64 cMostBytes = Q_INT64_C(16) * 1024 * 1024;
constexpr int cMostHeads = 4096;

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1000 * 1000 * 1000 + time.tv_nsec;
}

qint64 bytesOf(const QPixmap &picture)
{
    return qint64(picture.width()) * picture.height() * 4;
}

} // namespace

HeadCache::FileState HeadCache::stateOf(const QString &strPath)
{
    // A picture among the program's resources never changes.
    if (strPath.startsWith(QLatin1Char(':'))) {
        return {0, 0, 0};
    }
    // This is asked at every painting of a row, and QFileInfo would convert its times by the time zone, which costs
    // more than all the rest.
    struct stat file = {};
    if (stat(QFile::encodeName(strPath).constData(), &file) != 0 || !S_ISREG(file.st_mode)) {
        return {};
    }
    return {nanoseconds(file.st_mtim), nanoseconds(file.st_ctim), qint64(file.st_size)};
}

QPixmap HeadCache::picture(const QString &strPath, int iSide, qreal dRatio)
{
    const int iPixels = qMax(1, qRound(iSide * dRatio));
    const FileState file = stateOf(strPath);
    const QPair<QString, int> key(strPath, iPixels);
    const auto known = m_heads.constFind(key);
    if (known != m_heads.constEnd() && known->file == file) {
        return known->picture;
    }

    Head head{file, file == FileState() ? QPixmap() : m_draw(strPath, iPixels)};
    if (!head.picture.isNull()) {
        head.picture.setDevicePixelRatio(dRatio);
    }
    if (known != m_heads.constEnd()) {
        m_iBytes -= bytesOf(known->picture);
    }
    if (m_iBytes + bytesOf(head.picture) > cMostBytes || m_heads.size() >= cMostHeads) {
        m_heads.clear();
        m_iBytes = 0;
    }
    m_iBytes += bytesOf(head.picture);
    m_heads.insert(key, head);
    return head.picture;
}
