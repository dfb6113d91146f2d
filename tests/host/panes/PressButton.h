#pragma once

// Presses a button of a window as WindowProbe finds it. GUI thread.

#include "screen/WindowProbe.h"

#include <QTest>

/// Clicks the button, and returns when what it leads to is done; false when it cannot be pressed.
inline bool pressButton(const QWidget *window, const char *strName)
{
    const WindowProbe::Spot spot = WindowProbe::button(window, strName);
    if (spot.widget == nullptr) {
        return false;
    }
    QTest::mouseClick(spot.widget, Qt::LeftButton, Qt::NoModifier, spot.place);
    return true;
}
