#pragma once

#include "Journal/CommandParameters.h"

#include <optional>
#include <string>
#include <vector>

class Sketch;

/// Sets one property of some entities: the effect of the command `Sketcher.SetProperty`.
struct EntityEdit
{
    static constexpr wchar_t CommandId[] = L"Sketcher.SetProperty";

    std::vector<int> entities;
    std::wstring property;
    double value = 0.0; ///< In millimetres or degrees.

    vesk::CommandParameters ToParameters() const;

    /// Nothing if the parameters do not describe an edit.
    static std::optional<EntityEdit> From(const vesk::CommandParameters& parameters);

    /// False if an entity is missing, has no such property, or could not be drawn with the value.
    bool IsPossible(const Sketch& sketch) const;

    /// Changes the entities in one undo step. Returns false and changes nothing if that is
    /// impossible or they already have the value.
    bool Apply(Sketch& sketch) const;
};
