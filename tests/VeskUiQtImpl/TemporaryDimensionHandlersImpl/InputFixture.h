#pragma once

#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

namespace vesk::test
{

/// A handler whose values an action takes.
struct InputFixture : HandlerFixture
{
    explicit InputFixture(bool isLengthEnabled = true, bool isAngleEnabled = true)
        : HandlerFixture(isLengthEnabled, isAngleEnabled)
    {
        host.BeginAction();
    }

    void TypeAngle(const QString& text) { Type(InputState::IS_Angle, text); }
};

}
