#include "Input/InputJudge.h"

#include "Texts/HostUiText.h"

#include "Command/IAction.h"
#include "Command/IActionManager.h"
#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "HostUi/QtText.h"

#include <QRegularExpression>

namespace vesk
{
namespace
{

/// As dimensions show it, without trailing zeros; with a few significant digits if it would round
/// to zero.
QString Round(double value, Quantity quantity)
{
    constexpr int FewDigits = 3;
    const TemporaryDimensionStyle style;
    const QString text = ToQString(quantity == Quantity::Length ? style.FormatLength(value)
                                                                : style.FormatAngle(value));
    if (text.toDouble() == 0.0)
        return QString::number(value, 'g', FewDigits);
    static const QRegularExpression s_lastZeros(QStringLiteral("\\.?0*$"));
    return QString(text).remove(s_lastZeros);
}

}

QString DescribeRange(const Intervald& range)
{
    return "请输入 %1 到 %2 之间的数"_tr.arg(QString::number(range.GetMin(), 'g', 12),
                                             QString::number(range.GetMax(), 'g', 12));
}

InputVerdict JudgeInput(const QString& text, const InputField& field, const LengthUnit& unit)
{
    const TypedReading reading = ReadTypedText(text, field.quantity, unit);
    if (reading.fault != TypedTextFault::None)
        return {DescribeFault(reading.fault), std::nullopt, std::nullopt};
    if (!field.range.Contains(reading.value))
        return {DescribeRange(field.range), std::nullopt, std::nullopt};
    if (reading.isPlain)
        return {{}, std::nullopt, reading.modelValue};
    return {{}, ShortestNumber(reading.value), reading.modelValue};
}

QString AskAction(InputState field, double modelValue)
{
    IAction* pAction = IActionManager::CurrentAction();
    return pAction != nullptr ? ToQString(pAction->GetRefusal(field, modelValue)) : QString();
}

QString DescribeValue(const TypedReading& reading, Quantity quantity, const LengthUnit& unit)
{
    if (reading.fault != TypedTextFault::None || reading.isPlain)
        return {};
    const QString symbol = quantity == Quantity::Length
                               ? QLatin1Char(' ') + ToQString(unit.GetSymbol())
                               : QString(QChar(0xb0));
    return QStringLiteral("= ") + Round(reading.value, quantity) + symbol;
}

bool IsTakenWithSpace(const TypedReading& reading, const InputField& field)
{
    return field.takesWithSpace && reading.isPlain;
}

QString DescribeLateUnit(const QString& unit)
{
    return "空格已经确定了数值，其后的“%1”没有采用；撤销（Ctrl+Z）一次即可取回"_tr.arg(unit);
}

QString DescribeKeys(const InputField& field, bool isTakenWithSpace)
{
    return DescribeKeys(ToQString(CaptionOf(field.next)), isTakenWithSpace);
}

QString DescribeKeys(const QString& next, bool isTakenWithSpace)
{
    QString keys;
    if (!next.isEmpty())
        keys = QStringLiteral("<b>Tab</b>&nbsp;") + next + QStringLiteral(" · ");
    keys += QStringLiteral("<b>Enter</b>");
    if (isTakenWithSpace)
        keys += QStringLiteral("/<b>") + "空格"_tr + QStringLiteral("</b>");
    return keys + QStringLiteral("&nbsp;") + "确定"_tr + QStringLiteral(" · <b>Esc</b>&nbsp;") +
           "取消"_tr;
}

}
