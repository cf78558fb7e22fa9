#include "platform/ActiveWindow.h"

#include <QGuiApplication>
#include <QWindow>

#if defined(Q_OS_UNIX) && QT_CONFIG(xcb)
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>
#endif

namespace
{

#if defined(Q_OS_UNIX) && QT_CONFIG(xcb)
struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Type> using Reply = std::unique_ptr<Type, Free>;

/// The window that the window manager calls the active one; none while it names none.
xcb_window_t activeWindow(xcb_connection_t* connection)
{
    constexpr std::string_view name = "_NET_ACTIVE_WINDOW";
    const Reply<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 1, name.size(), name.data()), nullptr));
    if (atom == nullptr || atom->atom == XCB_ATOM_NONE) {
        return XCB_WINDOW_NONE;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const Reply<xcb_get_property_reply_t> value(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr));
    if (value == nullptr || xcb_get_property_value_length(value.get()) < int(sizeof(xcb_window_t))) {
        return XCB_WINDOW_NONE;
    }
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(value.get()));
}

bool isOwn(xcb_window_t window)
{
    const QWindowList windows = QGuiApplication::allWindows();
    return std::any_of(windows.begin(), windows.end(),
        [window](const QWindow* own) { return own->handle() != nullptr && own->winId() == window; });
}
#endif

} // namespace

bool isAnotherProgramActive()
{
    if (QGuiApplication::focusWindow() != nullptr) {
        return false;
    }
#if defined(Q_OS_UNIX) && QT_CONFIG(xcb)
    // Other platforms of the toolkit offer the interface too, without a display behind it.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 != nullptr && x11->connection() != nullptr) {
        const xcb_window_t active = activeWindow(x11->connection());
        return active != XCB_WINDOW_NONE && !isOwn(active);
    }
#endif
    return true;
}
