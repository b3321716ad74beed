#pragma once

#include "Dimension/InputState.h"

#include <cstdint>
#include <string>

namespace vesk
{

/// Which of a handler's two values: it decides validator and decimals.
enum class ValueSlot
{
    First,
    Second,
};

/// What a field shows, and whether that is selected, so that the next key replaces it. Every field
/// shows the given text when told to, else its current value.
enum class FieldRule
{
    /// In an editor just fetched, the given text in any case, and nothing selected: the caret
    /// follows the character that opened it. In one that is open, all is selected.
    OpenedByKey,

    /// All is selected where Tab leads from field to field.
    ReachedByTab,

    /// All is selected in an editor that is open.
    StandsAlone,
};

/// One value that a kind of handler takes: how it is judged and shown, under which codes it is
/// delivered, and which field Tab leads to. Kinds without Tab leave the last two out.
struct DimensionField
{
    InputState state = InputState::IS_None;
    ValueSlot slot = ValueSlot::First;
    FieldRule rule = FieldRule::OpenedByKey;
    std::int32_t returnKind = 0;
    std::int32_t tabKind = 0;
    InputState next = InputState::IS_None;
};

/// What is asked of a field when it is shown.
struct FieldRequest
{
    InputState state;
    bool editorReady;  ///< The editor is open already.
    bool useGivenText; ///< Instead of the current value.
    std::wstring text;
};

}
