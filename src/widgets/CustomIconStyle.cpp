#include "widgets/CustomIconStyle.h"

void CustomIconStyle::SetCustomSize(int iSize)
{
    m_iSize = iSize;
}

int CustomIconStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    return metric == QStyle::PM_SmallIconSize ? m_iSize : QCommonStyle::pixelMetric(metric, option, widget);
}
