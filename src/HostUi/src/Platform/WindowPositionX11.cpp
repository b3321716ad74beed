#include "Platform/WindowPosition.h"

#include "Platform/XConnection.h"

#include <QScreen>
#include <QWindow>

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace vesk
{
namespace
{

using Place = std::unique_ptr<xcb_translate_coordinates_reply_t, decltype(&std::free)>;
using Geometry = std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)>;

Geometry AskForGeometry(xcb_connection_t* pConnection, const QWindow& window)
{
    const xcb_get_geometry_cookie_t cookie =
        xcb_get_geometry(pConnection, static_cast<xcb_window_t>(window.winId()));
    return {xcb_get_geometry_reply(pConnection, cookie, nullptr), &std::free};
}

Place AskForPlace(xcb_connection_t* pConnection, const QWindow& window, xcb_window_t root)
{
    const xcb_translate_coordinates_cookie_t cookie = xcb_translate_coordinates(
        pConnection, static_cast<xcb_window_t>(window.winId()), root, 0, 0);
    return {xcb_translate_coordinates_reply(pConnection, cookie, nullptr), &std::free};
}

/// In the window system's pixels. A screen keeps its corner, whatever its scale.
QPoint PositionOf(const QWindow& window)
{
    const QPoint corner = window.screen()->geometry().topLeft();
    return corner + (window.position() - corner) * window.devicePixelRatio();
}

/// What a window manager sends when it has moved a window without changing its size, which is
/// that of the geometry: from the toolkit's it cannot be told at every scale.
void SendConfigureNotify(xcb_connection_t* pConnection, const QWindow& window, QPoint position,
                         const xcb_get_geometry_reply_t& geometry)
{
    xcb_configure_notify_event_t event{};
    event.response_type = XCB_CONFIGURE_NOTIFY;
    event.event = event.window = static_cast<xcb_window_t>(window.winId());
    event.x = static_cast<std::int16_t>(position.x());
    event.y = static_cast<std::int16_t>(position.y());
    event.width = geometry.width;
    event.height = geometry.height;
    xcb_send_event(pConnection, 0, event.window, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(pConnection);
}

}

void TellPosition(const QWindow& window)
{
    xcb_connection_t* pConnection = GetXConnection();
    if (pConnection == nullptr)
        return;
    const Geometry pGeometry = AskForGeometry(pConnection, window);
    if (pGeometry == nullptr)
        return;
    const Place pPlace = AskForPlace(pConnection, window, pGeometry->root);
    if (pPlace == nullptr)
        return;
    const QPoint position(pPlace->dst_x, pPlace->dst_y);
    if (position != PositionOf(window))
        SendConfigureNotify(pConnection, window, position, *pGeometry);
}

}
