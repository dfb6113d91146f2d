#include "widgets/VcardHeadLabel.h"

#include "common/BuiltInPictures.h"
#include "common/pictures/HeadImages.h"
#include "common/pictures/ImagePath.h"

VcardHeadLabel::VcardHeadLabel(QWidget *parent) : QLabel(parent) {}

void VcardHeadLabel::setHeadPictrue(const QString &path)
{
    // In the screen's own pixels, so that a head is as sharp as the text beside it.
    const qreal dRatio = devicePixelRatioF();
    const int iWidth = qRound(width() * dRatio);
    QPixmap head = HeadImages::getRoundedImage(ImagePath::getTrueImagePath(path, strDEFAULT_HEAD_PATH), iWidth);
    if (head.isNull()) {
        head = HeadImages::getRoundedImage(strDEFAULT_HEAD_PATH, iWidth);
    }
    head.setDevicePixelRatio(dRatio);
    setPixmap(head);
    update(rect());
}
