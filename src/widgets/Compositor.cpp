#include "widgets/Compositor.h"

#include <QByteArray>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace {

struct Disconnect
{
    void operator()(xcb_connection_t *pConnection) const { xcb_disconnect(pConnection); }
};

struct Free
{
    void operator()(void *pReply) const { std::free(pReply); }
};

/// A compositor of a screen owns the selection with this name.
QByteArray selectionName(int iScreen)
{
    return QByteArrayLiteral("_NET_WM_CM_S") + QByteArray::number(iScreen);
}

} // namespace

bool Compositor::isRunning()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return true;
    int iScreen = 0;
    const std::unique_ptr<xcb_connection_t, Disconnect> pServer(xcb_connect(nullptr, &iScreen));
    if (xcb_connection_has_error(pServer.get()) != 0)
        return false;
    const QByteArray name = selectionName(iScreen);
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> pAtom(xcb_intern_atom_reply(
        pServer.get(), xcb_intern_atom(pServer.get(), 0, uint16_t(name.size()), name.constData()), nullptr));
    if (!pAtom)
        return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, Free> pOwner(
        xcb_get_selection_owner_reply(pServer.get(), xcb_get_selection_owner(pServer.get(), pAtom->atom), nullptr));
    return pOwner && pOwner->owner != XCB_NONE;
}
