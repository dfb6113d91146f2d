#pragma once

// The desktop's glass effect behind a window's frame. This platform has none: the operations keep their places in the
// windows' code and do nothing. GUI thread only; no state.

class QWidget;

class QtWin
{
public:
    /// Whether the desktop composes windows with a glass effect: always false.
    static bool isCompositionEnabled();

    /// Takes the effect off a window: does nothing, null is allowed. The window stays the caller's.
    static void removeAeroWindow(QWidget *pWidget);

    /// Extends the effect into a window by these pixels on the left, right, top and bottom: does nothing, null is
    /// allowed. The window stays the caller's.
    static void addAeroWindow(QWidget *pWidget, int iLeft, int iRight, int iTop, int iBottom);
};
