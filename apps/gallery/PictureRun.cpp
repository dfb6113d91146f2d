#include "PictureRun.h"

#include "DialogModes.h"
#include "DialogPicture.h"
#include "GalleryPages.h"

#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <memory>

namespace {

constexpr QSize cGroundMargin(10, 10);
const QColor cGround(0xc8, 0xcf, 0xd6);

QString fileOf(const GalleryPage &page)
{
    return QString::fromLatin1(page.name).toLower() + QStringLiteral(".png");
}

QString fileOf(const DialogMode &mode)
{
    return QStringLiteral("dialog-") + QLatin1String(mode.id) + QStringLiteral(".png");
}

/// The dialog on a plain ground, which shows where its corners are transparent.
QPixmap pictureOf(const DialogMode &mode)
{
    const QPixmap dialog = DialogPicture::of(mode);
    const QSize size = dialog.size() / dialog.devicePixelRatio();
    QImage picture((size + 2 * cGroundMargin) * dialog.devicePixelRatio(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(dialog.devicePixelRatio());
    picture.fill(cGround);
    QPainter painter(&picture);
    painter.drawPixmap(cGroundMargin.width(), cGroundMargin.height(), dialog);
    painter.end();
    return QPixmap::fromImage(picture);
}

QPixmap pictureOf(const GalleryPage &page)
{
    const std::unique_ptr<QWidget> sheet(page.create(nullptr));
    sheet->ensurePolished();
    sheet->resize(sheet->sizeHint());
    return sheet->grab();
}

bool save(const QPixmap &picture, const QDir &folder, const QString &strFile, QString *strError)
{
    const QString path = folder.filePath(strFile);
    if (picture.save(path, "png")) {
        return true;
    }
    *strError = QStringLiteral("cannot write ") + path;
    return false;
}

} // namespace

bool PictureRun::write(const QString &strFolder, const GalleryPage *page, QString *strError)
{
    const QDir folder(strFolder);
    if (!folder.mkpath(QStringLiteral("."))) {
        *strError = QStringLiteral("cannot make the folder ") + strFolder;
        return false;
    }
    if (page != nullptr) {
        return save(pictureOf(*page), folder, fileOf(*page), strError);
    }
    for (const GalleryPage &each : GalleryPages::all()) {
        if (!save(pictureOf(each), folder, fileOf(each), strError)) {
            return false;
        }
    }
    for (const DialogMode &mode : DialogModes::all()) {
        if (!save(pictureOf(mode), folder, fileOf(mode), strError)) {
            return false;
        }
    }
    return true;
}

QStringList PictureRun::files()
{
    QStringList names;
    for (const GalleryPage &page : GalleryPages::all()) {
        names.append(fileOf(page));
    }
    for (const DialogMode &mode : DialogModes::all()) {
        names.append(fileOf(mode));
    }
    return names;
}
