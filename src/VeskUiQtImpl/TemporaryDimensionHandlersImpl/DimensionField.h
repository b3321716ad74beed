#pragma once

#include "Dimension/InputState.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace vesk
{

/// Which of a handler's two values: it decides validator and decimals.
enum class ValueSlot
{
    First,
    Second,
};

/// One value that a kind of handler takes: how it is judged, under which codes it is delivered, and
/// which field Tab leads to. Kinds without Tab leave the last two out.
struct DimensionField
{
    InputState state;
    ValueSlot validator;
    ValueSlot decimals;
    std::int32_t returnKind;
    std::int32_t tabKind = 0;
    InputState next = InputState::IS_None;
};

/// The field of a state, null when the kind has none.
template <std::size_t count>
const DimensionField* FindField(const std::array<DimensionField, count>& fields, InputState state)
{
    for (const DimensionField& field : fields)
    {
        if (field.state == state)
            return &field;
    }
    return nullptr;
}

}
