#include "widgets/WindowManager.h"

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace
{

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Type> using Reply = std::unique_ptr<Type, Free>;

/// Source indication of a request: "made by the user", as a task bar does.
constexpr uint32_t ByTheUser = 2;

/// The X server, if Qt is connected to one.
class Server
{
public:
    Server()
    {
        // Other platform plugins offer the interface, too, but without a display.
        if (const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
            m_connection = x11->connection();
        }
    }

    bool isThere() const { return m_connection != nullptr; }
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root; }

    /// The first number of a property of a window; 0 when it has none.
    uint32_t number(xcb_window_t window, std::string_view property) const
    {
        const xcb_atom_t name = atom(property);
        if (name == XCB_ATOM_NONE) {
            return 0;
        }
        const Reply<xcb_get_property_reply_t> value(xcb_get_property_reply(m_connection,
            xcb_get_property(m_connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, 1), nullptr));
        if (value == nullptr || xcb_get_property_value_length(value.get()) < int(sizeof(uint32_t))) {
            return 0;
        }
        return *static_cast<const uint32_t*>(xcb_get_property_value(value.get()));
    }

    bool isOnScreen(xcb_window_t window) const
    {
        const Reply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
            m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
        return attributes != nullptr && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    }

    bool isBehindActive(xcb_window_t window) const
    {
        const xcb_window_t active = frameOf(number(root(), "_NET_ACTIVE_WINDOW"));
        const xcb_window_t frame = frameOf(window);
        return active != XCB_WINDOW_NONE && frame != active && lowerOf(frame, active) == frame;
    }

    void setAbove(xcb_window_t window, bool above) const
    {
        xcb_client_message_data_t wish{};
        wish.data32[0] = above ? 1 : 0;
        wish.data32[1] = atom("_NET_WM_STATE_ABOVE");
        wish.data32[3] = ByTheUser;
        tellManager(window, "_NET_WM_STATE", wish);
    }

    void tellManager(xcb_window_t window, std::string_view message, xcb_client_message_data_t data) const
    {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = window;
        event.type = atom(message);
        event.data = data;
        xcb_send_event(m_connection, 0, root(),
            XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
            reinterpret_cast<const char*>(&event));
        xcb_flush(m_connection);
    }

private:
    /// The child of the root window that holds `window`, its frame; none when it is gone.
    xcb_window_t frameOf(xcb_window_t window) const
    {
        while (window != XCB_WINDOW_NONE) {
            const Reply<xcb_query_tree_reply_t> tree = treeOf(window);
            if (tree != nullptr && tree->parent == root()) {
                return window;
            }
            window = tree == nullptr ? xcb_window_t(XCB_WINDOW_NONE) : tree->parent;
        }
        return XCB_WINDOW_NONE;
    }

    /// The lower one of two frames; none when both are gone.
    xcb_window_t lowerOf(xcb_window_t one, xcb_window_t other) const
    {
        const Reply<xcb_query_tree_reply_t> tree = treeOf(root());
        if (tree == nullptr) {
            return XCB_WINDOW_NONE;
        }
        const xcb_window_t* first = xcb_query_tree_children(tree.get());
        const xcb_window_t* end = first + xcb_query_tree_children_length(tree.get());
        const xcb_window_t* found = std::find_if(
            first, end, [one, other](xcb_window_t frame) { return frame == one || frame == other; });
        return found == end ? xcb_window_t(XCB_WINDOW_NONE) : *found;
    }

    Reply<xcb_query_tree_reply_t> treeOf(xcb_window_t window) const
    {
        return Reply<xcb_query_tree_reply_t>(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    }

    xcb_atom_t atom(std::string_view name) const
    {
        constexpr bool OnlyIfItExists = true;
        const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection,
            xcb_intern_atom(m_connection, OnlyIfItExists, static_cast<uint16_t>(name.size()), name.data()),
            nullptr));
        return reply == nullptr ? xcb_atom_t(XCB_ATOM_NONE) : reply->atom;
    }

    xcb_connection_t* m_connection = nullptr;
};

} // namespace

bool isKeyboardTaken()
{
    if (QGuiApplication::focusWindow() != nullptr) {
        return true;
    }
    if (const Server server; server.isThere()) {
        // openbox still names a window here that has been hidden.
        return server.isOnScreen(server.number(server.root(), "_NET_ACTIVE_WINDOW"));
    }
    return true;
}

bool isManaged(const QWindow& window)
{
    if (const Server server; server.isThere()) {
        const bool hasManager = server.number(server.root(), "_NET_SUPPORTING_WM_CHECK") != XCB_WINDOW_NONE;
        return !hasManager || server.number(static_cast<xcb_window_t>(window.winId()), "WM_STATE") != 0;
    }
    return true;
}

void acceptKeyboard(QWindow& window, bool accepts)
{
    if (Server().isThere()) {
        window.setFlag(Qt::WindowDoesNotAcceptFocus, !accepts);
    }
}

void giveKeyboard(QWindow& window)
{
    window.requestActivate();
    if (const Server server; server.isThere()) {
        xcb_client_message_data_t wish{};
        wish.data32[0] = ByTheUser;
        server.tellManager(static_cast<xcb_window_t>(window.winId()), "_NET_ACTIVE_WINDOW", wish);
    }
}

void putInFront(QWindow& window)
{
    if (const Server server; server.isThere()) {
        const auto id = static_cast<xcb_window_t>(window.winId());
        // fluxbox leaves it behind the active window unless its layer changes.
        if (!window.flags().testFlag(Qt::WindowStaysOnTopHint) && server.isBehindActive(id)) {
            server.setAbove(id, true);
            server.setAbove(id, false);
        }
        window.raise();
        // metacity ignores a program while its user is busy elsewhere.
        xcb_client_message_data_t wish{};
        wish.data32[0] = ByTheUser;
        wish.data32[2] = XCB_STACK_MODE_ABOVE;
        server.tellManager(id, "_NET_RESTACK_WINDOW", wish);
        return;
    }
    window.raise();
}

void setStaysOnTop(QWindow& window, bool on)
{
    window.setFlag(Qt::WindowStaysOnTopHint, on);
}

void cancelSystemDialogs()
{
    // All boxes are ours.
}

bool tellsDoubleClicks(const QRect& trayIcon)
{
    // A StatusNotifierItem host draws the icon itself and reports neither its geometry nor double clicks
    // (that protocol has none).
    return !trayIcon.isEmpty();
}
