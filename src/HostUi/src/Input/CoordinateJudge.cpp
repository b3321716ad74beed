#include "Input/CoordinateJudge.h"

#include "Dimension/LengthUnit.h"
#include "Geometry/Constants.h"
#include "HostUi/TypedText.h"
#include "Input/InputJudge.h"
#include "Texts/HostUiText.h"

#include <cmath>

namespace vesk
{
namespace
{

/// What was read from the text after an `@`; that alone is no distance from the last point.
TypedReading ReadDistance(const QString& text, const LengthUnit& unit)
{
    if (text.isEmpty())
        return {};
    return ReadTypedText(text, Quantity::Length, unit);
}

CoordinateVerdict Reject(const QString& refusal)
{
    return {refusal, std::nullopt, {}};
}

}

CoordinateVerdict JudgeCoordinate(const QString& text, const std::optional<double>& last,
                                  const LengthUnit& unit)
{
    const QString typed = text.trimmed();
    const bool isRelative = typed.startsWith(RelativeMark);
    if (isRelative && !last.has_value())
        return Reject("还没有上一点，不能用“@”"_tr);
    const TypedReading reading = isRelative ? ReadDistance(typed.mid(1).trimmed(), unit)
                                            : ReadTypedText(typed, Quantity::Length, unit);
    if (reading.fault != TypedTextFault::None)
        return Reject(DescribeFault(reading.fault));
    // A sum with zero is never -0.
    const double coordinate = reading.modelValue + (isRelative ? *last : 0.0);
    const double most = unit.ToShown(Constants::MAX_MODEL_SIZE);
    if (std::abs(coordinate) > Constants::MAX_MODEL_SIZE)
        return Reject(DescribeRange({-most, most}));
    const TypedReading shown{TypedTextFault::None, unit.ToShown(coordinate),
                             !isRelative && reading.isPlain, coordinate};
    return {{}, coordinate, DescribeValue(shown, Quantity::Length, unit)};
}

}
