#pragma once

#include "Geometry/Vector3d.h"
#include "Journal/CommandParameters.h"

#include <optional>
#include <string>

class Sketch;
struct SketchContent;
struct Workspace;

/// Pastes a drawing that is kept beside the journal: the effect of the command
/// `Sketcher.PasteContent`.
struct ContentPasting
{
    static constexpr wchar_t CommandId[] = L"Sketcher.PasteContent";

    std::wstring digest; ///< Of the bytes of the drawing's file (KeptContent).
    vesk::Vector3d way = vesk::Vector3d::Zero();

    vesk::CommandParameters ToParameters() const;

    /// Nothing if the parameters do not describe it.
    static std::optional<ContentPasting> From(const vesk::CommandParameters& parameters);

    /// False if the drawing is not kept, is damaged or empty, or cannot be drawn there.
    bool IsPossible() const;

    /// Draws it in one step and selects it. Returns false and changes nothing if that is
    /// impossible.
    bool Apply(Workspace& workspace) const;

private:
    SketchContent Read() const;
};

/// Draws copies of what is selected beside it: the effect of the command `Sketcher.DuplicateBy`.
struct SelectionDuplication
{
    static constexpr wchar_t CommandId[] = L"Sketcher.DuplicateBy";

    vesk::Vector3d way = vesk::Vector3d::Zero();

    vesk::CommandParameters ToParameters() const;

    /// Nothing if the parameters do not describe it.
    static std::optional<SelectionDuplication> From(const vesk::CommandParameters& parameters);

    /// False if nothing is selected or the copies cannot be drawn there.
    bool IsPossible(const Workspace& workspace) const;

    /// Draws the copies in one step and selects them. Returns false and changes nothing if that is
    /// impossible.
    bool Apply(Workspace& workspace) const;
};
