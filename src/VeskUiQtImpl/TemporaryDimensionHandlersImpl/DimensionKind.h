#pragma once

#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionField.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKeys.h"

#include <array>

namespace vesk
{

/// What distinguishes the kinds of handlers; the defaults are what most kinds share.
struct DimensionKind
{
    /// Kinds with a single value leave the second out.
    std::array<DimensionField, 2> fields;

    /// The field that the first typed character opens.
    InputState start = InputState::IS_None;

    /// Reported when a value is committed in a state that matches no field.
    const wchar_t* wrongState = nullptr;

    OpeningKeys openingKeys = OpeningKeys::Digits;
    bool hasKeyText = false;      ///< Key presses made from keys of the view carry their text.
    bool needsNumber = true;      ///< Otherwise a text that is not a number counts as 0.
    bool commitsWithSpace = true; ///< Like Return.
    bool switchesWithTab = false; ///< Otherwise the editor handles Tab itself.
    bool handsEscapeOn = true;    ///< Passed to the view after the input has ended.
};

/// What a key does in the editor.
enum class EditorKey
{
    Commit,
    Cancel,
    Switch, ///< Commits, and leads to the other field.
    Other,
};

/// The field of a state; null if the kind has none.
const DimensionField* FindField(const DimensionKind& kind, InputState state);

/// The field that a key opens and what it shows; empty optional if the key opens nothing.
std::optional<FieldRequest> FindOpening(const DimensionKind& kind, const QKeyEvent& event);

EditorKey FindEditorKey(const DimensionKind& kind, int key);

}
