#pragma once

namespace vesk
{

/// Limits of the model, in millimetres.
struct Constants
{
    static constexpr double DOUBLE_EPS = 1e-9;     ///< Points closer than this are equal.
    static constexpr double MIN_MODEL_SIZE = 1e-6; ///< Smallest length and radius.
    static constexpr double MAX_MODEL_SIZE = 1e9;  ///< Greatest length and radius.
};

}
