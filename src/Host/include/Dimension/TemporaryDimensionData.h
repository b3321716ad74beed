#pragma once

#include "Dimension/InputState.h"
#include "Geometry/Vector3d.h"

#include <array>
#include <cstddef>

namespace vesk
{

/// The output of the generators: the position of the text and the value, for each value that can be
/// typed.
struct TemporaryDimensionData
{
    /// One value.
    struct Entry
    {
        Vector3d textPosition = Vector3d::Zero(); ///< World position of the text's centre.
        double value = 0.0;                       ///< In the display unit; angles in degrees.
    };

    /// One for each value that can be typed.
    static constexpr int EntryCount = 6;

    /// The entry of a state from IS_Length to IS_Height.
    Entry& operator[](InputState state) { return m_entries[static_cast<std::size_t>(state) - 1]; }

    /// The same, to read.
    const Entry& operator[](InputState state) const
    {
        return m_entries[static_cast<std::size_t>(state) - 1];
    }

private:
    std::array<Entry, EntryCount> m_entries;
};

}
