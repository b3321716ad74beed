#pragma once

#include "Dimension/InputState.h"
#include "Geometry/Intervald.h"
#include "HostUi/TypedText.h"

namespace vesk
{

class ITemporaryDimensionContext;

/// A field of a provisional dimension: what may be typed in it, and what the keys do there.
struct InputField
{
    Quantity quantity = Quantity::Length;
    Intervald range{0.0, 0.0}; ///< Of its values, in the unit shown.
    bool commitsWithSpace = false;

    /// What the field is called that Tab leads to; empty where Tab takes no value.
    QString next;

    /// True for a key that takes the value.
    bool IsCommitting(int key) const;
};

/// The field that a context's handler opens in a state. Where the kind of context is not known, or
/// there is none, only Return and Enter take a value.
InputField FindInputField(const ITemporaryDimensionContext* pContext, InputState state);

}
