#include "FuzzTargets.h"

#include "common/PictureFun.h"
#include "common/pictures/HeadImages.h"
#include "common/pictures/ImagePath.h"
#include "common/pictures/NinePatch.h"
#include "common/pictures/PictureFile.h"
#include "common/pictures/PictureNames.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/SystemSetData.h"

#include <QDir>
#include <QFile>

#include <iterator>

namespace {

void read(const QString &path)
{
    const QPixmap picture = readPictureFile(path);
    requirePromise(qint64(picture.width()) * picture.height() <= cMostPicturePixels, "no picture is too large");
}

void names(const QString &path)
{
    PictureNames::getPicSaveSuffixes(PictureNames::getImageType(path));
}

void scale(const QString &path)
{
    for (const QSize &size : {QSize(40, 40), QSize(1, 300), QSize(300, 1)}) {
        const QPixmap picture = HeadImages::getScaledPixmap(path, size);
        requirePromise(picture.width() <= size.width() && picture.height() <= size.height(),
                       "a scaled picture fits its size");
    }
}

void round(const QString &path)
{
    const QPixmap picture = HeadImages::getRoundedImage(path, 40);
    requirePromise(picture.isNull() || picture.size() == QSize(40, 40), "a round head has its size");
}

void shape(const QString &path)
{
    HeadImages::getIrregularPix(path, 40);
}

void store(const QString &path)
{
    const QPixmap picture = readPictureFile(path);
    HeadImages::getFormattedImage(QString(), QStringLiteral("anna@kelvar.im"), picture, QSize(60, 60),
                                  QStringLiteral("jpg"));
}

void frame(const QString &path)
{
    const QPixmap source = readPictureFile(path);
    requirePromise(NinePatch::drawNinePatch(QSize(100, 60), source).size() == QSize(100, 60), "a frame has its size");
    NinePatch::drawNinePatch(QSize(5, 3), source);
}

void rename(const QString &path)
{
    const QString corrected = ImagePath::getTrueImagePath(path, QString());
    requirePromise(corrected.isEmpty() || QFile::exists(corrected), "a corrected path names the file");
    if (corrected != path) {
        QFile::remove(corrected);
    }
}

constexpr void (*cReaders[])(const QString &path) = {read, names, scale, round, shape, store, frame, rename};

} // namespace

// The first byte says which of the readers gets the rest as a file.
void FuzzTargets::picture(const QByteArray &input)
{
    static CommonData s_context;
    static SystemSetData s_settings;
    s_settings.m_strHeadImageFolder = QDir::currentPath() + QLatin1String("/heads/");
    s_context.setSystemSetData(&s_settings);
    const GivenContext given(s_context);

    if (input.isEmpty()) {
        return;
    }
    const QByteArray bytes = input.mid(1);
    PictureFun::getSuffixOfType(PictureFun::getFileType(bytes));
    PictureFun::saveByteArrayToLocalFile(bytes, QStringLiteral("head"));
    const QString path = QDir::current().absoluteFilePath(QStringLiteral("picture.dat"));
    QFile file(path);
    requirePromise(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the picture can be written");
    file.close();
    cReaders[uchar(input.at(0)) % std::size(cReaders)](path);
    QFile::remove(path);
}
