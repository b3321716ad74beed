#pragma once

#include "Dimension/InputField.h"
#include "HostUi/TypedText.h"

#include <QString>

#include <optional>

namespace vesk
{

class LengthUnit;

/// The verdict on a text to be committed as a field's value.
struct InputVerdict
{
    /// Why it is rejected; empty if it is accepted.
    QString refusal;

    /// The number that replaces it; nothing if it stays as it is.
    std::optional<QString> replacement;

    /// Its value in model units; nothing if it is rejected.
    std::optional<double> modelValue;
};

/// The message about a number out of range.
QString DescribeRange(const Intervald& range);

/// Judges a text. Only numbers in the field's range are ever accepted.
InputVerdict JudgeInput(const QString& text, const InputField& field, const LengthUnit& unit);

/// Why the running action cannot use a value of a field; empty if it can, and without an action.
QString AskAction(InputState field, double modelValue);

/// The value that was read from a text, shown beside it: "= 70.711 mm". Empty for a plain number
/// and for a text without a value.
QString DescribeValue(const TypedReading& reading, Quantity quantity, const LengthUnit& unit);

/// True if Space commits what was read from a text: a plain number, in a field where Space commits.
/// In any other text a blank is a blank.
bool IsTakenWithSpace(const TypedReading& reading, const InputField& field);

/// The message about a unit that was typed after a Space that had committed the value.
QString DescribeLateUnit(const QString& unit);

/// What the keys do in a field: "Tab 角度 · Enter 确定 · Esc 取消", the keys in bold. Includes
/// Space where it commits the value. Of a field of a point only the caption of the next is known,
/// empty if there is none.
QString DescribeKeys(const InputField& field, bool isTakenWithSpace);
QString DescribeKeys(const QString& next, bool isTakenWithSpace);

}
