#pragma once

// Where windows may go. Main thread.

class QPoint;
class QRect;

class ScreenPlace
{
public:
    /// `point` as the top left corner of a window of the size of `rect`, moved as little as it takes to keep 10 pixels
    /// of the window on the primary screen's available area, in both directions.
    static QPoint getAvailableMovePos(QPoint point, QRect rect);
};
