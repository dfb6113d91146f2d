#include "widgets/CustomIconStyle.h"

#include <QStyleOption>
#include <QWidget>

void CustomIconStyle::SetCustomSize(int iSize)
{
    m_iSize = iSize;
}

int CustomIconStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    return metric == QStyle::PM_SmallIconSize ? m_iSize : QCommonStyle::pixelMetric(metric, option, widget);
}
