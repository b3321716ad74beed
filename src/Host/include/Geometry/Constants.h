#pragma once

namespace vesk
{

/// Limits of the model, in millimetres.
struct Constants
{
    static constexpr double DOUBLE_EPS = 1e-9;     ///< Closer points are one point.
    static constexpr double MIN_MODEL_SIZE = 1e-6; ///< Shortest length, least radius.
    static constexpr double MAX_MODEL_SIZE = 1e9;  ///< Greatest length and radius.
};

}
