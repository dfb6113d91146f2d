#include "widgets/VcardHeadLabel.h"

#include "widgets/HeadPicture.h"

VcardHeadLabel::VcardHeadLabel(QWidget *parent) : QLabel(parent) {}

void VcardHeadLabel::setHeadPictrue(const QString &path)
{
    setPixmap(HeadPicture::round(path, width(), devicePixelRatioF()));
    update(rect());
}
