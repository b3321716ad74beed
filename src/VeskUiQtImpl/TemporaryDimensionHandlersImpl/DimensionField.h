#pragma once

#include "Dimension/InputState.h"

#include <cstdint>
#include <string>

namespace vesk
{

/// Which of the two values of a handler: it selects validator and decimals.
enum class ValueSlot
{
    First,
    Second,
};

/// What a field shows, and whether the text is selected so that the next key replaces it. A field
/// shows the given text when requested, otherwise its current value.
enum class FieldRule
{
    /// An editor that is just being opened always shows the given text with nothing selected, and
    /// the caret follows the character that opened it. In one that is already open, all is
    /// selected.
    OpenedByKey,

    /// All is selected if Tab leads from field to field.
    ReachedByTab,

    /// All is selected if the editor is already open.
    StandsAlone,
};

/// One value that a kind of handler accepts: how it is validated and shown, the codes under which
/// it is delivered, and which field Tab leads to. Kinds without Tab leave the last two out.
struct DimensionField
{
    InputState state = InputState::IS_None;
    ValueSlot slot = ValueSlot::First;
    FieldRule rule = FieldRule::OpenedByKey;
    std::int32_t returnKind = 0;
    std::int32_t tabKind = 0;
    InputState next = InputState::IS_None;
};

/// How a field is to be shown.
struct FieldRequest
{
    InputState state;
    bool editorReady;  ///< The editor is already open.
    bool useGivenText; ///< Instead of the current value.
    std::wstring text;
};

}
