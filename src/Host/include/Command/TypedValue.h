#pragma once

#include <optional>
#include <string>

namespace vesk
{

/// What was in the editor when a value was taken.
struct TypedValue
{
    std::wstring text; ///< As it stood there.

    /// The field was shown with its current value and nobody typed in it.
    bool isUnchanged = false;

    /// What the text stands for, in model units: rounded once, which the delivered value, in the
    /// unit shown, may not be when it is converted. Nothing where nobody judged the text.
    std::optional<double> modelValue;
};

}
