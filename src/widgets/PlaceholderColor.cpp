#include "widgets/PlaceholderColor.h"

#include <QPalette>
#include <QWidget>

void PlaceholderColor::fade(QWidget *pField)
{
    QPalette palette = pField->palette();
    bool bChanged = false;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QColor color = palette.color(group, QPalette::Text);
        color.setAlpha((color.alpha() + 1) / 2);
        bChanged = bChanged || palette.color(group, QPalette::PlaceholderText) != color;
        palette.setColor(group, QPalette::PlaceholderText, color);
    }
    if (bChanged) {
        pField->setPalette(palette);
    }
}
