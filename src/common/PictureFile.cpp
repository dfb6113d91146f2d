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

// No picture format says more pixels with a byte of its file. A damaged file that declares more would cost the memory
// and the time of a picture that it does not hold.
constexpr qint64 MOST_PIXELS_PER_BYTE = 10000;

// A bitmap that is stored from its top row down declares a negative height.
bool isAllowedSize(const QSize &size, qint64 iFileBytes)
{
    const qint64 iWidth = size.width();
    const qint64 iHeight = qAbs(qint64(size.height()));
    const qint64 iMost = qMin(iMOST_PICTURE_PIXELS, iFileBytes * MOST_PIXELS_PER_BYTE);
    return iWidth > 0 && iHeight > 0 && iWidth * iHeight <= iMost;
}

} // namespace

QPixmap readPictureFile(const QString &strPath)
{
    // Anything but a plain file could also keep the reader waiting.
    const QFileInfo file(strPath);
    if (!file.isFile()) {
        return {};
    }
    QImageReader reader(strPath);
    reader.setDecideFormatFromContent(true);
    if (!isAllowedSize(reader.size(), file.size()) || !isPictureFormat(reader.format())) {
        return {};
    }
    return QPixmap::fromImageReader(&reader);
}
