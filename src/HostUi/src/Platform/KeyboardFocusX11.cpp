#include "Platform/KeyboardFocus.h"

#include "Platform/XConnection.h"

#include <QWindow>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace vesk
{
namespace
{

using Focus = std::unique_ptr<xcb_get_input_focus_reply_t, decltype(&std::free)>;

Focus AskForFocus(xcb_connection_t* pConnection)
{
    const xcb_get_input_focus_cookie_t cookie = xcb_get_input_focus(pConnection);
    return {xcb_get_input_focus_reply(pConnection, cookie, nullptr), &std::free};
}

}

void MoveKeyboard(const QWindow& from, const QWindow& to)
{
    xcb_connection_t* pConnection = GetXConnection();
    if (pConnection == nullptr || !to.isExposed())
        return;
    const Focus pFocus = AskForFocus(pConnection);
    if (pFocus == nullptr || pFocus->focus != from.winId())
        return;
    const xcb_void_cookie_t cookie =
        xcb_set_input_focus_checked(pConnection, XCB_INPUT_FOCUS_PARENT,
                                    static_cast<xcb_window_t>(to.winId()), XCB_CURRENT_TIME);
    // The other window may have been hidden in the meantime.
    xcb_discard_reply(pConnection, cookie.sequence);
}

}
