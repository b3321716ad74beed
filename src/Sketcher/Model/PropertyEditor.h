#pragma once

class Selection;
class Sketch;

namespace vesk
{
struct PropertyRecord;
}

/// Sets the properties of the drawing, by the user's hand or by a replay's.
///
/// "name" of "drawing" is its name. "style" and "colour" of "pen" are how the next entities are
/// drawn; of "selection" they are the selected entities', which is one undo step, and the next
/// entities are drawn as before.
class PropertyEditor final
{
public:
    /// The arguments are not owned and outlive the editor.
    PropertyEditor(Sketch& sketch, const Selection& selection);

    /// Records a property and sets it. False, and nothing happens, when there is none of that name
    /// or it has no such value.
    bool Set(const vesk::PropertyRecord& record);

private:
    bool SetPenPart(const vesk::PropertyRecord& record);

    Sketch& m_sketch;
    const Selection& m_selection;
};
