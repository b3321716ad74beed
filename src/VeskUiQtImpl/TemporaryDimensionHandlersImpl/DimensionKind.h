#pragma once

#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionField.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKeys.h"

#include <array>

namespace vesk
{

/// What tells one kind of handler from another; it begins with what most kinds have in common.
struct DimensionKind
{
    /// Kinds that take one value leave the second out.
    std::array<DimensionField, 2> fields;

    /// The field that the first typed character opens.
    InputState start = InputState::IS_None;

    /// What is reported when a value is to be taken in a state that is none of the fields'.
    const wchar_t* wrongState = nullptr;

    OpeningKeys openingKeys = OpeningKeys::Digits;
    bool hasKeyText = false;      ///< Keys of the view become key presses with their text.
    bool needsNumber = true;      ///< Else a text that is no number counts as 0.
    bool commitsWithSpace = true; ///< As with Return.
    bool switchesWithTab = false; ///< Else Tab is the editor's own.
    bool handsEscapeOn = true;    ///< To the view, after the input has ended.
};

/// The field of a state, null when the kind has none.
const DimensionField* FindField(const DimensionKind& kind, InputState state);

/// The field that a key opens and what it shows; none when the key opens nothing.
std::optional<FieldRequest> FindOpening(const DimensionKind& kind, const QKeyEvent& event);

}
