#pragma once

#include <cstdint>

namespace vesk
{

/// Which value of a provisional dimension is being typed.
enum class InputState : std::int32_t
{
    IS_None = 0,
    IS_Length = 1,
    IS_Angle = 2,
    IS_Radius = 3,
    IS_CentralAngle = 4,
    IS_Width = 5,
    IS_Height = 6,
};

}
