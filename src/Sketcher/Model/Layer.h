#pragma once

#include <string>

/// A layer of the drawing.
///
/// The entities of a hidden layer are neither painted nor found by picking, snapping or selecting.
/// Those of a locked layer are painted and snapped to, but not picked, selected or changed.
struct Layer
{
    static constexpr int BaseId = 0; ///< The layer that every drawing has.

    int id = BaseId;
    std::wstring name = L"0";
    int colour = 0; ///< Of its entities that have none: index into LineColours().
    bool isVisible = true;
    bool isLocked = false;
};

bool operator==(const Layer& a, const Layer& b);
