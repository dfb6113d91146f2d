#include "screen/ScreenKeys.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

// What X calls the Return key.
constexpr unsigned int cReturnSymbol = 0xff0d;

struct Freed
{
    void operator()(void *reply) const { std::free(reply); }
};

} // namespace

ScreenKeys::ScreenKeys() : m_pConnection(xcb_connect(nullptr, nullptr)) {}

ScreenKeys::~ScreenKeys()
{
    xcb_disconnect(m_pConnection);
}

/// The key that gives the symbol without a modifier; 0 when there is none.
unsigned char ScreenKeys::codeOf(unsigned int keysym) const
{
    if (xcb_connection_has_error(m_pConnection) != 0) {
        return 0;
    }
    const xcb_setup_t *setup = xcb_get_setup(m_pConnection);
    const auto count = std::uint8_t(setup->max_keycode - setup->min_keycode + 1);
    const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, Freed> map(xcb_get_keyboard_mapping_reply(
        m_pConnection, xcb_get_keyboard_mapping(m_pConnection, setup->min_keycode, count), nullptr));
    if (map == nullptr) {
        return 0;
    }
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(map.get());
    for (int key = 0; key < count; ++key) {
        if (symbols[std::ptrdiff_t(key) * map->keysyms_per_keycode] == keysym) {
            return std::uint8_t(setup->min_keycode + key);
        }
    }
    return 0;
}

void ScreenKeys::press(unsigned char code)
{
    for (const std::uint8_t type : {std::uint8_t(XCB_KEY_PRESS), std::uint8_t(XCB_KEY_RELEASE)}) {
        xcb_test_fake_input(m_pConnection, type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    }
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
