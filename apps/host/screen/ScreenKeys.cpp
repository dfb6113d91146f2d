#include "screen/ScreenKeys.h"

#include "screen/KeyCodes.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

// What X calls the Return key.
constexpr unsigned int cReturnSymbol = 0xff0d;
constexpr unsigned int cControlSymbol = 0xffe3;
constexpr unsigned int cUpSymbol = 0xff52;
constexpr unsigned int cDownSymbol = 0xff54;

} // namespace

ScreenKeys::ScreenKeys() : m_pConnection(xcb_connect(nullptr, nullptr)) {}

ScreenKeys::~ScreenKeys()
{
    xcb_disconnect(m_pConnection);
}

unsigned char ScreenKeys::codeOf(unsigned int keysym) const
{
    return KeyCodes::codeOf(m_pConnection, keysym, KeyCodes::Plain);
}

void ScreenKeys::send(unsigned char type, unsigned char code)
{
    xcb_test_fake_input(m_pConnection, type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}

void ScreenKeys::press(unsigned char code)
{
    send(XCB_KEY_PRESS, code);
    send(XCB_KEY_RELEASE, code);
    // The server's answer shows that the keys have arrived: they may be lost when the connection ends before.
    std::free(xcb_get_input_focus_reply(m_pConnection, xcb_get_input_focus(m_pConnection), nullptr));
}

bool ScreenKeys::type(const QString &strText)
{
    std::vector<unsigned char> codes;
    // A Latin-1 character is its own symbol.
    std::transform(strText.begin(), strText.end(), std::back_inserter(codes),
                   [this](QChar letter) { return codeOf(letter.unicode()); });
    const bool bAll = std::find(codes.begin(), codes.end(), 0) == codes.end();
    if (bAll) {
        std::for_each(codes.begin(), codes.end(), [this](unsigned char code) { press(code); });
    }
    return bAll;
}

bool ScreenKeys::enter()
{
    const unsigned char code = codeOf(cReturnSymbol);
    if (code != 0) {
        press(code);
    }
    return code != 0;
}

bool ScreenKeys::turn(bool bUp, int iTimes)
{
    const unsigned char control = codeOf(cControlSymbol);
    const unsigned char arrow = codeOf(bUp ? cUpSymbol : cDownSymbol);
    if (control == 0 || arrow == 0) {
        return false;
    }
    send(XCB_KEY_PRESS, control);
    for (int i = 0; i < iTimes; ++i) {
        press(arrow);
    }
    send(XCB_KEY_RELEASE, control);
    std::free(xcb_get_input_focus_reply(m_pConnection, xcb_get_input_focus(m_pConnection), nullptr));
    return true;
}
