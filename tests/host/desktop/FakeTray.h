#pragma once

// The tray of a desktop on the X server: takes the icons that ask for a place, and shows them in a corner of the
// screen. GUI thread.

#include <QProcess>

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

class FakeTray
{
public:
    FakeTray() : m_pServer(xcb_connect(nullptr, nullptr))
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_pServer)).data;
        m_window = xcb_generate_id(m_pServer);
        const std::uint32_t isUnmanaged = 1;
        xcb_create_window(m_pServer, XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0, 2 * cMiddle, 2 * cMiddle, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_OVERRIDE_REDIRECT, &isUnmanaged);
        xcb_map_window(m_pServer, m_window);
        const xcb_atom_t selection = atom("_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(m_pServer, m_window, selection, XCB_CURRENT_TIME);
        xcb_client_message_event_t news{};
        news.response_type = XCB_CLIENT_MESSAGE;
        news.format = 32;
        news.window = screen->root;
        news.type = atom("MANAGER");
        news.data.data32[1] = selection;
        news.data.data32[2] = m_window;
        xcb_send_event(m_pServer, 0, screen->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                       reinterpret_cast<const char *>(&news));
        xcb_flush(m_pServer);
    }
    ~FakeTray() { xcb_disconnect(m_pServer); }
    FakeTray(const FakeTray &) = delete;
    FakeTray &operator=(const FakeTray &) = delete;

    /// Gives a place to whoever asks for one; how many have got one so far.
    int icons()
    {
        const xcb_atom_t opcode = atom("_NET_SYSTEM_TRAY_OPCODE");
        while (const auto event = std::unique_ptr<xcb_generic_event_t, Freed>(xcb_poll_for_event(m_pServer))) {
            const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event.get());
            if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE && message->type == opcode &&
                message->data.data32[1] == 0) {
                const std::uint32_t icon = message->data.data32[2];
                xcb_reparent_window(m_pServer, icon, m_window, 0, 0);
                const std::uint32_t size[] = {2 * cMiddle, 2 * cMiddle};
                xcb_configure_window(m_pServer, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size);
                xcb_map_window(m_pServer, icon);
                xcb_flush(m_pServer);
                m_icons.push_back(icon);
            }
        }
        return int(m_icons.size());
    }

    /// Clicks with the real mouse in the middle of the first icon.
    bool click() const
    {
        const QString middle = QString::number(cMiddle);
        return QProcess::execute(QStringLiteral("xdotool"),
                                 {QStringLiteral("mousemove"), QStringLiteral("--window"), QString::number(m_window),
                                  middle, middle, QStringLiteral("click"), QStringLiteral("1")}) == 0;
    }

    /// Whether the last icon is still there.
    bool isShown()
    {
        const std::unique_ptr<xcb_get_window_attributes_reply_t, Freed> icon(
            xcb_get_window_attributes_reply(m_pServer, xcb_get_window_attributes(m_pServer, m_icons.back()), nullptr));
        return icon != nullptr && icon->map_state == XCB_MAP_STATE_VIEWABLE;
    }

private:
    // Where the middle of an icon is.
    static constexpr int cMiddle = 16;

    struct Freed
    {
        void operator()(void *reply) const { std::free(reply); }
    };

    xcb_atom_t atom(const char *strName)
    {
        const std::unique_ptr<xcb_intern_atom_reply_t, Freed> reply(xcb_intern_atom_reply(
            m_pServer, xcb_intern_atom(m_pServer, 0, std::uint16_t(std::strlen(strName)), strName), nullptr));
        return reply == nullptr ? xcb_atom_t(XCB_ATOM_NONE) : reply->atom;
    }

    xcb_connection_t *m_pServer;
    xcb_window_t m_window = 0;
    std::vector<xcb_window_t> m_icons;
};
