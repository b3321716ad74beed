#pragma once

struct xcb_connection_t;

namespace vesk
{

/// The application's connection to the X server; null on other window systems.
xcb_connection_t* GetXConnection();

}
