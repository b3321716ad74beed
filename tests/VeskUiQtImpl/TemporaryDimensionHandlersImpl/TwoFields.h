#pragma once

#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKind.h"

namespace vesk::test
{

/// A kind with two fields, complete enough for an opening key.
inline DimensionKind TwoFields()
{
    DimensionKind kind;
    kind.fields[0].state = InputState::IS_Width;
    kind.fields[1].state = InputState::IS_Angle;
    kind.start = InputState::IS_Width;
    kind.openingKeys = OpeningKeys::AllCharacters;
    kind.switchesWithTab = true;
    return kind;
}

}
