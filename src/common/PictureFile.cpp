#include "common/PictureFile.h"

#include <QByteArray>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <iterator>

namespace {

// Other formats may hold pictures within pictures, whose size is not the declared one.
constexpr const char *PICTURE_FORMATS[] = {"png", "jpg", "jpeg", "bmp", "gif"};

bool isPictureFormat(const QByteArray &format)
{
    return std::any_of(std::begin(PICTURE_FORMATS), std::end(PICTURE_FORMATS),
                       [&format](const char *pFormat) { return format == pFormat; });
}

// A bitmap that is stored from its top row down declares a negative height.
bool isAllowedSize(const QSize &size)
{
    const qint64 iWidth = size.width();
    const qint64 iHeight = qAbs(qint64(size.height()));
    return iWidth > 0 && iHeight > 0 && iWidth * iHeight <= iMOST_PICTURE_PIXELS;
}

} // namespace

QPixmap readPictureFile(const QString &strPath)
{
    // Anything but a plain file could also keep the reader waiting.
    if (!QFileInfo(strPath).isFile()) {
        return {};
    }
    QImageReader reader(strPath);
    reader.setDecideFormatFromContent(true);
    if (!isAllowedSize(reader.size()) || !isPictureFormat(reader.format())) {
        return {};
    }
    return QPixmap::fromImageReader(&reader);
}
