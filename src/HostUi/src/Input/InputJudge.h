#pragma once

#include "Dimension/InputField.h"

#include <QString>

#include <optional>

namespace vesk
{

class LengthUnit;

/// What is to be done with a text that is to be taken as a field's value.
struct InputVerdict
{
    /// Why it is refused; empty for a value that can be taken.
    QString refusal;

    /// The number to put in its place; nothing where it is to stay as it is.
    std::optional<QString> replacement;

    /// What it stands for, in model units; nothing for what is refused.
    std::optional<double> modelValue;
};

/// Judges a text. Only numbers of the field's range are ever taken.
InputVerdict JudgeInput(const QString& text, const InputField& field, const LengthUnit& unit);

/// What a text comes to, for the user to read beside it: "= 70.711 mm". Empty for a plain number
/// and where there is no value.
QString DescribeValue(const QString& text, Quantity quantity, const LengthUnit& unit);

/// True when Space takes a text: a number as it stands, in a field where Space takes values. In any
/// other text a blank is a blank.
bool IsTakenWithSpace(const QString& text, const InputField& field, const LengthUnit& unit);

/// What the user is told of a unit that was typed after a blank that had taken the value.
QString DescribeLateUnit(const QString& unit);

/// What the keys do in a field: "Tab 角度 · Enter 确定 · Esc 取消", the keys in bold. Space is
/// among them where it takes the value.
QString DescribeKeys(const InputField& field, bool isTakenWithSpace);

}
