#pragma once

// A top window that no window manager touches: it stands in the screen's corner without a frame, and it shows and hides
// at once, as often as a test likes. For tests whose subject is what stands in the window. The cursor rests in the
// opposite corner (tools/display.sh), so the only mouse events are the test's own.

#include "fakes/Patience.h"

#include <QCoreApplication>
#include <QTest>
#include <QWidget>

class BareWindow : public QWidget
{
public:
    BareWindow() : QWidget(nullptr, Qt::Window | Qt::X11BypassWindowManagerHint) {}

    /// Comes up in this size with its child `part` at that place and the mouse beside it.
    void showAround(QWidget *part, const QRect &place, const QSize &size)
    {
        resize(size);
        part->setGeometry(place);
        show();
        QVERIFY(QTest::qWaitForWindowExposed(this, cPatienceMs));
        moveOut();
        QCoreApplication::processEvents();
    }

    /// Moves the mouse to a point of the shown window, or to its corner, where no part stands.
    void moveTo(const QPoint &point) { QTest::mouseMove(windowHandle(), point); }
    void moveOut() { moveTo(QPoint(2, 2)); }

    /// Deletes the part and hides the window, the mouse in its corner.
    void takeAway(QWidget *part)
    {
        moveOut();
        delete part;
        hide();
    }
};
