#pragma once

#include <cstdint>

namespace vesk
{

/// The window system's id of a native window; 0 is none.
using WindowId = std::uintptr_t;

}
