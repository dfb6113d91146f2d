#pragma once

// Where windows may go. Main thread.

class QPoint;
class QRect;

class ScreenPlace
{
public:
    /// The primary screen's area without the desktop's bars; a null rectangle while there is no screen.
    static QRect workArea();

    /// `point` as the top left corner of a window of the size of `rect`, moved as little as it takes to keep 10 pixels
    /// of the window in the work area, in both directions; unmoved while there is no screen.
    static QPoint getAvailableMovePos(QPoint point, QRect rect);
};
