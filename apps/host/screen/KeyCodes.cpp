#include "screen/KeyCodes.h"

#include <QtGlobal>

#include <xcb/xcb.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

struct Freed
{
    void operator()(void *reply) const { std::free(reply); }
};

constexpr int cModifiers = 8;

} // namespace

unsigned char KeyCodes::codeOf(xcb_connection_t *pConnection, unsigned int symbol, Reach reach)
{
    if (xcb_connection_has_error(pConnection) != 0) {
        return 0;
    }
    const xcb_setup_t *setup = xcb_get_setup(pConnection);
    const auto count = std::uint8_t(setup->max_keycode - setup->min_keycode + 1);
    const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, Freed> map(xcb_get_keyboard_mapping_reply(
        pConnection, xcb_get_keyboard_mapping(pConnection, setup->min_keycode, count), nullptr));
    if (map == nullptr) {
        return 0;
    }
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(map.get());
    const int columns = map->keysyms_per_keycode;
    // A symbol that a key gives plainly is that key's first of all.
    for (int column = 0; column < (reach == Plain ? qMin(1, columns) : columns); ++column) {
        for (int key = 0; key < count; ++key) {
            if (symbols[std::ptrdiff_t(key) * columns + column] == symbol) {
                return std::uint8_t(setup->min_keycode + key);
            }
        }
    }
    return 0;
}

unsigned short KeyCodes::modifierOf(xcb_connection_t *pConnection, unsigned char code)
{
    const std::unique_ptr<xcb_get_modifier_mapping_reply_t, Freed> map(
        xcb_get_modifier_mapping_reply(pConnection, xcb_get_modifier_mapping(pConnection), nullptr));
    if (map == nullptr || code == 0) {
        return 0;
    }
    const xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(map.get());
    const int perModifier = map->keycodes_per_modifier;
    for (int place = 0; place < cModifiers * perModifier; ++place) {
        if (codes[place] == code) {
            return std::uint16_t(1U << unsigned(place / perModifier));
        }
    }
    return 0;
}
