#pragma once

#include <QString>

#include <optional>

namespace vesk
{

class LengthUnit;

/// Before a value it counts from the last point.
constexpr QLatin1Char RelativeMark('@');

/// The verdict on a text typed for a coordinate of a point.
struct CoordinateVerdict
{
    /// Why it is rejected; empty if it is accepted.
    QString refusal;

    /// The coordinate in model units; nothing if it is rejected.
    std::optional<double> coordinate;

    /// The coordinate as it is shown beside the text, "= 70.711 mm"; empty for a plain number and
    /// for a text that is rejected.
    QString shown;
};

/// Judges a text: a length of either sign, in `unit` unless it says otherwise. After an `@` it is
/// added to the coordinate of the last point, which an `@` alone means; rejected if there is no
/// last point.
CoordinateVerdict JudgeCoordinate(const QString& text, const std::optional<double>& last,
                                  const LengthUnit& unit);

}
