#pragma once

// The X server's cursor for the tests of the windows: moved for real, and waited for. GUI thread.

#include "fakes/Patience.h"

#include <QMouseEvent>
#include <QTest>

namespace RealCursor {

/// Whether the widget has been told that the cursor is at a place.
class ArrivedMove : public QObject
{
public:
    ArrivedMove(QWidget *pWidget, const QPoint &position) : m_position(position) { pWidget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseMove && static_cast<QMouseEvent *>(event)->pos() == m_position) {
            bArrived = true;
        }
        return false;
    }
    bool bArrived = false;

private:
    QPoint m_position;
};

/// Moves the cursor to a place in the widget, where it must not be yet. False when the widget never hears of it.
inline bool moveTo(QWidget *pWidget, const QPoint &position)
{
    const ArrivedMove move(pWidget, position);
    QTest::mouseMove(pWidget, position);
    return QTest::qWaitFor([&move] { return move.bArrived; }, cPatienceMs);
}

} // namespace RealCursor
