#pragma once

#include <QPoint>
#include <Qt>

struct xcb_connection_t;

/// The pointer of the X server, moved and pressed for real: what it does reaches whichever window the server finds
/// below it, as with a mouse. Points are Qt's, on a screen that begins at (0,0). GUI thread.
class ScreenPointer
{
public:
    /// Takes the X server that DISPLAY names.
    ScreenPointer();
    ~ScreenPointer();
    ScreenPointer(const ScreenPointer &) = delete;
    ScreenPointer &operator=(const ScreenPointer &) = delete;

    /// Whether there is an X server that lets its pointer be moved; without one nothing happens.
    bool isReady() const { return m_bReady; }

    /// Moves the pointer.
    void moveTo(const QPoint &place);

    /// Presses the left, middle or right button where the pointer is, and holds it.
    void press(Qt::MouseButton button);

    /// Lets that button go.
    void release(Qt::MouseButton button);

    /// Presses and releases the button.
    void click(Qt::MouseButton button);

private:
    void send(unsigned char type, unsigned char detail, const QPoint &place);

    xcb_connection_t *m_pConnection;
    bool m_bReady;
};
