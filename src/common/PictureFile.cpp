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

} // namespace

QPixmap readPictureFile(const QString &strPath)
{
    // Anything but a plain file could also keep the reader waiting.
    if (!QFileInfo(strPath).isFile()) {
        return {};
    }
    QImageReader reader(strPath);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > iMOST_PICTURE_PIXELS ||
        !isPictureFormat(reader.format())) {
        return {};
    }
    return QPixmap::fromImageReader(&reader);
}
