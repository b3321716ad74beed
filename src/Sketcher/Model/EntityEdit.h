#pragma once

#include "Journal/CommandParameters.h"

#include <optional>
#include <string>
#include <vector>

class Sketch;

/// Gives one value of some entities another number: what the command `Sketcher.SetProperty` does.
struct EntityEdit
{
    static constexpr wchar_t CommandId[] = L"Sketcher.SetProperty";

    std::vector<int> entities;
    std::wstring property;
    double value = 0.0; ///< In millimetres or degrees.

    vesk::CommandParameters ToParameters() const;

    /// Nothing when the parameters are no edit.
    static std::optional<EntityEdit> From(const vesk::CommandParameters& parameters);

    /// False when an entity is missing, has no such value or could not be drawn with it.
    bool IsPossible(const Sketch& sketch) const;

    /// Changes the entities in one undo step. False, and nothing changes, when that is not possible
    /// or they have the value already.
    bool Apply(Sketch& sketch) const;
};
