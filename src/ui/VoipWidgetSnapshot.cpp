// The call window's snapshot of the video.

#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include "common/PictureNames.h"

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPixmap>
#include <QStandardPaths>

void CVoipWidget::savePicture()
{
    // Deliberate: the place in the parent, not the widget's own rectangle.
    const QPixmap picture = ui->playFramWidget->grab(ui->playFramWidget->geometry());
    const QString strDefault =
        QStandardPaths::writableLocation(QStandardPaths::DesktopLocation) + QLatin1Char('/') + tr("tarvoPhoto") +
        QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmsszzz")) + QStringLiteral(".jpg");
    const QString strPath = QFileDialog::getSaveFileName(nullptr, tr("savepic"), strDefault,
                                                         PictureNames::getPicSaveSuffixes(QStringLiteral(".jpg")));
    if (strPath.isEmpty())
        return;
    const QFileInfo file(strPath);
    if (file.exists())
        file.absoluteDir().remove(file.fileName());
    picture.save(strPath);
}
