#pragma once

#include <any>

namespace vesk
{

/// A value of any copyable type; read it back with `std::any_cast`.
using Any = std::any;

}
