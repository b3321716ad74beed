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
    NotANumber,     ///< Neither a number nor a formula.
    UnknownName,    ///< A name that is not a unit, function or constant.
    AmbiguousComma, ///< A comma that may be a decimal comma or something else.
    Ambiguous,      ///< Can be read in two ways; parentheses would resolve it.
    MixedUnits,     ///< The parts do not make one quantity.
    WrongQuantity,  ///< A length instead of an angle, or vice versa.
    AngleUnit,      ///< Does not say whether it means degrees or radians.
    NoValue,        ///< For example, a division by zero.
};

/// The result of reading a text.
struct TypedReading
{
    TypedTextFault fault = TypedTextFault::None; ///< Why there is no value; None if there is one.

    /// In the display unit, or in degrees for an angle; finite. Zero if there is a fault.
    double value = 0.0;

    /// A plain number, which needs no rewriting.
    bool isPlain = false;

    /// In millimetres, or in degrees for an angle: the double nearest to the exact value of the
    /// text, not to `value`, which is itself rounded. Zero if there is a fault.
    double modelValue = 0.0;
};

/// Reads what users type for a length, shown in `unit`, or for an angle: numbers, formulas, units.
/// A text that can be read in two ways is a fault. Independent of the locale.
VESK_HOST_UI_API TypedReading ReadTypedText(const QString& text, Quantity quantity,
                                            const LengthUnit& unit);

/// The shortest text of a finite number that reads back to the same double.
VESK_HOST_UI_API QString ShortestNumber(double value);

/// The message for the user about a fault; empty for None.
VESK_HOST_UI_API QString DescribeFault(TypedTextFault fault);

}
