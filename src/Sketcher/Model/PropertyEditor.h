#pragma once

#include "Model/Pen.h"

#include <optional>
#include <string>

class Selection;
class Sketch;

namespace vesk
{
struct PropertyRecord;
}

/// Sets the properties of the drawing, for the user or for a replay.
///
/// "name" of "drawing" is its name. "style", "colour", "width" and "layer" of "pen" apply to the
/// next entities; those of "selection" change the selected entities in one undo step and leave the
/// pen unchanged. A layer is given by its id, which does not change when it is renamed.
class PropertyEditor final
{
public:
    /// The arguments are not owned and outlive the editor.
    PropertyEditor(Sketch& sketch, const Selection& selection);

    /// Records a property and sets it. Returns false and does nothing if there is no property of
    /// that name or it has no such value.
    bool Set(const vesk::PropertyRecord& record);

private:
    bool SetKnown(const vesk::PropertyRecord& record);
    bool SetPenPart(const vesk::PropertyRecord& record);
    bool SetPen(const vesk::PropertyRecord& record, int Pen::*part, std::optional<int> value);
    std::optional<int> FindLayer(const std::wstring& idText) const;

    Sketch& m_sketch;
    const Selection& m_selection;
};
