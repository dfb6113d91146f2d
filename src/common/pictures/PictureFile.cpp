#include "common/pictures/PictureFile.h"

#include <QByteArray>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <iterator>

namespace {

struct PictureFormat
{
    const char *pName;
    /// The most pixels that one byte of such a file can stand for. A file that declares more is damaged: it would cost
    /// the memory and the time of a picture that it does not hold.
    qint64 iMostPixelsPerByte;
};

// No others: a picture of another format may have further pictures in it, whose sizes are not the declared one.
constexpr PictureFormat cPictureFormats[] = {
    {"png", 10000}, {"jpg", 10000}, {"jpeg", 10000}, {"bmp", 128}, {"gif", 10000}};

// Whether a file of that format and length may declare that size. The height of a bitmap whose rows are stored from the
// top down is negative.
bool isAllowed(const QByteArray &format, const QSize &size, qint64 iFileBytes)
{
    const auto row = std::find_if(std::begin(cPictureFormats), std::end(cPictureFormats),
                                  [&format](const PictureFormat &known) { return format == known.pName; });
    if (row == std::end(cPictureFormats)) {
        return false;
    }
    const qint64 iWidth = size.width();
    const qint64 iHeight = qAbs(qint64(size.height()));
    const qint64 iMost = qMin(cMostPicturePixels, iFileBytes * row->iMostPixelsPerByte);
    return iWidth > 0 && iHeight > 0 && iWidth * iHeight <= iMost;
}

} // namespace

QPixmap readPictureFile(const QString &strPath)
{
    // Reading from something else, such as a pipe, could wait for ever.
    const QFileInfo file(strPath);
    if (!file.isFile()) {
        return {};
    }
    QImageReader reader(strPath);
    reader.setDecideFormatFromContent(true);
    if (!isAllowed(reader.format(), reader.size(), file.size())) {
        return {};
    }
    return QPixmap::fromImageReader(&reader);
}
