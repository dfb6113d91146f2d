#pragma once

// A style that fixes the size of small icons and leaves all else to Qt's common style.
// GUI thread only. QWidget::setStyle does not take it over: the creator owns it unless he gives it a parent.

#include <QCommonStyle>

class CustomIconStyle : public QCommonStyle
{
    Q_OBJECT

public:
    /// Sets the side of a small icon, in pixels; 20 until then.
    void SetCustomSize(int iSize);

    /// The size set for QStyle::PM_SmallIconSize, the common style's answer for all other metrics.
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;

private:
    int m_iSize = 20;
};
