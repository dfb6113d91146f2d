#include "screen/ScreenPointer.h"

#include <QGuiApplication>

#include <xcb/xtest.h>

namespace {

constexpr unsigned char cAbsolute = 0;

unsigned char buttonNumber(Qt::MouseButton button)
{
    return button == Qt::RightButton    ? XCB_BUTTON_INDEX_3
           : button == Qt::MiddleButton ? XCB_BUTTON_INDEX_2
                                        : XCB_BUTTON_INDEX_1;
}

bool hasTestExtension(xcb_connection_t *pConnection)
{
    if (xcb_connection_has_error(pConnection) != 0) {
        return false;
    }
    const xcb_query_extension_reply_t *reply = xcb_get_extension_data(pConnection, &xcb_test_id);
    return reply != nullptr && reply->present != 0;
}

} // namespace

ScreenPointer::ScreenPointer() : m_pConnection(xcb_connect(nullptr, nullptr)), m_bReady(hasTestExtension(m_pConnection))
{
}

ScreenPointer::~ScreenPointer()
{
    xcb_disconnect(m_pConnection);
}

void ScreenPointer::send(unsigned char type, unsigned char detail, const QPoint &place)
{
    if (!m_bReady) {
        return;
    }
    xcb_test_fake_input(m_pConnection, type, detail, XCB_CURRENT_TIME, XCB_NONE, qint16(place.x()), qint16(place.y()),
                        0);
    xcb_flush(m_pConnection);
}

void ScreenPointer::moveTo(const QPoint &place)
{
    send(XCB_MOTION_NOTIFY, cAbsolute, place * qGuiApp->devicePixelRatio());
}

void ScreenPointer::press(Qt::MouseButton button)
{
    send(XCB_BUTTON_PRESS, buttonNumber(button), QPoint());
}

void ScreenPointer::release(Qt::MouseButton button)
{
    send(XCB_BUTTON_RELEASE, buttonNumber(button), QPoint());
}

void ScreenPointer::click(Qt::MouseButton button)
{
    press(button);
    release(button);
}
