#pragma once

#include "Journal/CommandParameters.h"

#include <optional>
#include <string>
#include <variant>

class Sketch;
struct Layer;

/// Adds a layer: the effect of the command `Sketcher.AddLayer`.
struct LayerAddition
{
    static constexpr wchar_t CommandId[] = L"Sketcher.AddLayer";

    std::wstring name;

    vesk::CommandParameters ToParameters() const;

    /// Nothing if the parameters do not describe an addition.
    static std::optional<LayerAddition> From(const vesk::CommandParameters& parameters);

    /// False if the name is empty or taken, or ids of layers have run out.
    bool IsPossible(const Sketch& sketch) const;

    /// Adds the layer in one undo step. Returns false and changes nothing if that is impossible.
    bool Apply(Sketch& sketch) const;
};

/// Removes a layer: the effect of the command `Sketcher.RemoveLayer`.
struct LayerRemoval
{
    static constexpr wchar_t CommandId[] = L"Sketcher.RemoveLayer";

    int layer = 0;

    vesk::CommandParameters ToParameters() const;

    /// Nothing if the parameters do not describe a removal.
    static std::optional<LayerRemoval> From(const vesk::CommandParameters& parameters);

    /// False if the layer does not exist, has entities or is the base layer.
    bool IsPossible(const Sketch& sketch) const;

    /// Removes the layer in one undo step. Returns false and changes nothing if that is impossible.
    bool Apply(Sketch& sketch) const;
};

/// Sets one property of a layer: the effect of the command `Sketcher.SetLayer`.
///
/// The properties are "name" and "colour" (a name of LineColours()), which are texts, and "visible"
/// and "locked", which are truth values.
struct LayerEdit
{
    static constexpr wchar_t CommandId[] = L"Sketcher.SetLayer";

    int layer = 0;
    std::wstring property;
    std::variant<bool, std::wstring> value;

    vesk::CommandParameters ToParameters() const;

    /// Nothing if the parameters do not describe an edit.
    static std::optional<LayerEdit> From(const vesk::CommandParameters& parameters);

    /// False if there is no such layer or property, the property has no such value, or another
    /// layer has the name.
    bool IsPossible(const Sketch& sketch) const;

    /// Changes the layer in one undo step. Returns false and changes nothing if that is impossible
    /// or the layer already has the value.
    bool Apply(Sketch& sketch) const;

private:
    std::optional<Layer> Changed(const Sketch& sketch) const;
};
