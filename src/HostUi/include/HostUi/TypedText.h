#pragma once

#include "Dimension/InputField.h"
#include "HostUi/HostUiExport.h"

#include <QString>

namespace vesk
{

class LengthUnit;

/// Why a text has no clear value.
enum class TypedTextFault
{
    None,
    NotANumber,     ///< It is no number and no formula.
    UnknownName,    ///< It holds a name that is no unit, function or constant.
    AmbiguousComma, ///< A comma may be a decimal one or something else.
    Ambiguous,      ///< It can be read in two ways; parentheses would tell.
    MixedUnits,     ///< Its parts do not come to one quantity.
    WrongQuantity,  ///< A length where an angle belongs, or the other way round.
    AngleUnit,      ///< Degrees or radians: it does not say which.
    NoValue,        ///< Such as a division by zero.
};

/// What a text says.
struct TypedReading
{
    TypedTextFault fault = TypedTextFault::None;

    /// In the unit shown, an angle in degrees; finite. Zero where there is a fault.
    double value = 0.0;

    /// A number as it stands, which needs no rewriting.
    bool isPlain = false;

    /// In millimetres, an angle in degrees: the double nearest to what the text says, not to
    /// `value`, which is rounded too. Zero where there is a fault.
    double modelValue = 0.0;
};

/// Reads what people type for a length, shown in `unit`, or for an angle: numbers, formulas, units.
/// Whatever can be read in two ways is a fault. The same in every locale.
VESK_HOST_UI_API TypedReading ReadTypedText(const QString& text, Quantity quantity,
                                            const LengthUnit& unit);

/// The shortest text of a finite number that reads back to the same double.
VESK_HOST_UI_API QString ShortestNumber(double value);

/// What the user is told of a fault; empty for none.
VESK_HOST_UI_API QString DescribeFault(TypedTextFault fault);

}
