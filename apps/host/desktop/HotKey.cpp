#include "desktop/HotKey.h"

#include "screen/KeyCodes.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <utility>

namespace {

struct Freed
{
    void operator()(void *reply) const { std::free(reply); }
};

// What X calls the keys: Latin ones go by their character, the small one of a letter, F1 to F35 by their number.
constexpr unsigned int cF1Symbol = 0xffbe;
constexpr unsigned int cNumLockSymbol = 0xff7f;

struct KeyRow
{
    Qt::Key key;
    unsigned int symbol;
};

constexpr std::array<KeyRow, 14> cOtherKeys{{{Qt::Key_Return, 0xff0d},
                                             {Qt::Key_Home, 0xff50},
                                             {Qt::Key_Left, 0xff51},
                                             {Qt::Key_Up, 0xff52},
                                             {Qt::Key_Right, 0xff53},
                                             {Qt::Key_Down, 0xff54},
                                             {Qt::Key_PageUp, 0xff55},
                                             {Qt::Key_PageDown, 0xff56},
                                             {Qt::Key_End, 0xff57},
                                             {Qt::Key_Insert, 0xff63},
                                             {Qt::Key_Pause, 0xff13},
                                             {Qt::Key_ScrollLock, 0xff14},
                                             {Qt::Key_Print, 0xff61},
                                             {Qt::Key_Menu, 0xff67}}};

constexpr std::array<std::pair<Qt::KeyboardModifier, xcb_mod_mask_t>, 4> cModifiers{
    {{Qt::ShiftModifier, XCB_MOD_MASK_SHIFT},
     {Qt::ControlModifier, XCB_MOD_MASK_CONTROL},
     {Qt::AltModifier, XCB_MOD_MASK_1},
     {Qt::MetaModifier, XCB_MOD_MASK_4}}};

int firstOf(const QKeySequence &key)
{
    return key.isEmpty() ? 0 : key[0];
}

bool isFunctionKey(int iKey)
{
    return iKey >= Qt::Key_F1 && iKey <= Qt::Key_F35;
}

unsigned int symbolOf(int iKey)
{
    if (isFunctionKey(iKey)) {
        return cF1Symbol + unsigned(iKey - Qt::Key_F1);
    }
    if (iKey >= Qt::Key_Space && iKey <= Qt::Key_AsciiTilde) {
        return unsigned(QChar::toLower(unsigned(iKey)));
    }
    const auto *found =
        std::find_if(cOtherKeys.begin(), cOtherKeys.end(), [iKey](const KeyRow &row) { return int(row.key) == iKey; });
    return found == cOtherKeys.end() ? 0 : found->symbol;
}

std::uint16_t maskOf(int iKey)
{
    unsigned int mask = 0;
    for (const auto &[modifier, bit] : cModifiers) {
        mask |= (unsigned(iKey) & unsigned(modifier)) != 0 ? unsigned(bit) : 0U;
    }
    return std::uint16_t(mask);
}

} // namespace

HotKey::HotKey(QObject *parent) : QObject(parent) {}

HotKey::~HotKey()
{
    release();
    m_pReader.reset();
    if (m_pConnection != nullptr) {
        xcb_disconnect(m_pConnection);
    }
}

bool HotKey::isFit(const QKeySequence &key)
{
    const int first = firstOf(key);
    const int code = first & ~int(Qt::KeyboardModifierMask);
    const bool isHeld = (first & int(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    return symbolOf(code) != 0 && (isHeld || isFunctionKey(code));
}

HotKey::Outcome HotKey::take(const QKeySequence &key)
{
    release();
    m_key = QKeySequence(firstOf(key));
    if (key.isEmpty()) {
        m_outcome = Off;
    } else if (!isFit(key)) {
        m_outcome = Unfit;
    } else {
        m_outcome = grab();
    }
    if (m_outcome != On) {
        release();
    }
    return m_outcome;
}

bool HotKey::reachServer()
{
    // Xwayland gets no keys of other programs.
    if (QGuiApplication::platformName() != QLatin1String("xcb") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
        return false;
    }
    if (m_pConnection != nullptr) {
        return xcb_connection_has_error(m_pConnection) == 0;
    }
    int screen = 0;
    m_pConnection = xcb_connect(nullptr, &screen);
    if (xcb_connection_has_error(m_pConnection) != 0) {
        return false;
    }
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_pConnection));
    for (; screen > 0 && screens.rem > 1; --screen) {
        xcb_screen_next(&screens);
    }
    m_root = screens.data->root;
    m_pReader = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_pConnection), QSocketNotifier::Read);
    connect(m_pReader.get(), &QSocketNotifier::activated, this, &HotKey::read);
    return true;
}

HotKey::Outcome HotKey::grab()
{
    if (!reachServer()) {
        return Unoffered;
    }
    const int key = firstOf(m_key) & ~int(Qt::KeyboardModifierMask);
    m_code = KeyCodes::codeOf(m_pConnection, symbolOf(key), KeyCodes::Any);
    if (m_code == 0) {
        return Unfit;
    }
    const unsigned int numLock =
        KeyCodes::modifierOf(m_pConnection, KeyCodes::codeOf(m_pConnection, cNumLockSymbol, KeyCodes::Any));
    const unsigned int mask = maskOf(firstOf(m_key));
    bool bFree = true;
    // The locks count as modifiers; the key is heard whether they are on or not.
    for (const unsigned int locks : {0U, unsigned(XCB_MOD_MASK_LOCK), numLock, numLock | XCB_MOD_MASK_LOCK}) {
        const auto all = std::uint16_t(mask | locks);
        const std::unique_ptr<xcb_generic_error_t, Freed> error(
            xcb_request_check(m_pConnection, xcb_grab_key_checked(m_pConnection, 1, m_root, all, m_code,
                                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
        bFree = bFree && error == nullptr;
    }
    // Waiting for the answers has read events into the queue too, and nothing signals those.
    QMetaObject::invokeMethod(this, &HotKey::read, Qt::QueuedConnection);
    return bFree ? On : Taken;
}

void HotKey::release()
{
    if (m_pConnection != nullptr && m_code != 0) {
        // Waits until it is done, so that whoever takes the key next gets it.
        const std::unique_ptr<xcb_generic_error_t, Freed> error(
            xcb_request_check(m_pConnection, xcb_ungrab_key_checked(m_pConnection, m_code, m_root, XCB_MOD_MASK_ANY)));
        m_code = 0;
    }
}

void HotKey::read()
{
    bool bPressed = false;
    bool bRemapped = false;
    while (const auto event = std::unique_ptr<xcb_generic_event_t, Freed>(xcb_poll_for_event(m_pConnection))) {
        constexpr unsigned int sentByProgram = 0x80;
        const unsigned int type = event->response_type & ~sentByProgram;
        bPressed = bPressed || type == XCB_KEY_PRESS;
        bRemapped = bRemapped || type == XCB_MAPPING_NOTIFY;
    }
    if (xcb_connection_has_error(m_pConnection) != 0) {
        // The server has gone, and with it soon this program.
        m_pReader->setEnabled(false);
    } else if (bRemapped) {
        take(m_key);
    }
    if (bPressed) {
        emit pressed();
    }
}
