#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKind.h"

#include "HostUi/QtText.h"

#include <QKeyEvent>

#include <algorithm>

namespace vesk
{

const DimensionField* FindField(const DimensionKind& kind, InputState state)
{
    if (state == InputState::IS_None)
        return nullptr;
    const auto found =
        std::find_if(kind.fields.begin(), kind.fields.end(),
                     [state](const DimensionField& field) { return field.state == state; });
    return found != kind.fields.end() ? &*found : nullptr;
}

std::optional<FieldRequest> FindOpening(const DimensionKind& kind, const QKeyEvent& event)
{
    const bool isShift = event.modifiers().testFlag(Qt::ShiftModifier);
    if (HasComma(kind.openingKeys) && IsCommaKey(event.key()) && isShift && kind.switchesWithTab)
        return FieldRequest{kind.fields[1].state, false, false, {}};
    const std::optional<QString> text = OpeningText(event, kind.openingKeys);
    if (!text.has_value())
        return std::nullopt;
    return FieldRequest{kind.start, false, true, ToWide(*text)};
}

EditorKey FindEditorKey(const DimensionKind& kind, int key)
{
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        return EditorKey::Commit;
    if (key == Qt::Key_Space && kind.commitsWithSpace)
        return EditorKey::Commit;
    if (key == Qt::Key_Escape)
        return EditorKey::Cancel;
    return key == Qt::Key_Tab && kind.switchesWithTab ? EditorKey::Switch : EditorKey::Other;
}

}
