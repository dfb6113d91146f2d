#pragma once

#include <QString>

struct xcb_connection_t;

/// The keyboard of the X server, pressed for real: what it types reaches the window that the server gives the keys to.
/// GUI thread.
class ScreenKeys
{
public:
    /// Takes the X server that DISPLAY names.
    ScreenKeys();
    ~ScreenKeys();
    ScreenKeys(const ScreenKeys &) = delete;
    ScreenKeys &operator=(const ScreenKeys &) = delete;

    /// Types small Latin letters, digits and spaces; false, with nothing typed, when the keyboard lacks one of them.
    bool type(const QString &strText);

    /// Presses the Return key; false when the keyboard lacks it.
    bool enter();

    /// Presses the arrow upwards or downwards so many times while Ctrl is held; false, with nothing pressed, when the
    /// keyboard lacks one of them.
    bool turn(bool bUp, int iTimes);

private:
    unsigned char codeOf(unsigned int keysym) const;
    void send(unsigned char type, unsigned char code);
    void press(unsigned char code);

    xcb_connection_t *m_pConnection;
};
