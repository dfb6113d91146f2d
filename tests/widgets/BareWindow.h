#pragma once

// A top window that no window manager touches: it stands in the screen's corner without a frame, and it shows and hides
// at once, as often as a test likes. For tests whose subject is what stands in the window. The cursor rests in the
// opposite corner (tools/display.sh), so the only mouse events are the test's own.

#include <QWidget>

class BareWindow : public QWidget
{
public:
    BareWindow() : QWidget(nullptr, Qt::Window | Qt::X11BypassWindowManagerHint) {}
};
