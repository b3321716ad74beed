#include "Input/InputJudge.h"

#include "Texts/HostUiText.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "HostUi/QtText.h"

#include <QRegularExpression>
#include <QStringList>

namespace vesk
{
namespace
{

QString DescribeRange(const Intervald& range)
{
    return "请输入 %1 到 %2 之间的数"_tr.arg(QString::number(range.GetMin(), 'g', 12),
                                             QString::number(range.GetMax(), 'g', 12));
}

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

QString DescribeValue(const QString& text, Quantity quantity, const LengthUnit& unit)
{
    const TypedReading reading = ReadTypedText(text, quantity, unit);
    if (reading.fault != TypedTextFault::None || reading.isPlain)
        return {};
    const QString symbol = quantity == Quantity::Length
                               ? QLatin1Char(' ') + ToQString(unit.GetSymbol())
                               : QString(QChar(0xb0));
    return QStringLiteral("= ") + Round(reading.value, quantity) + symbol;
}

bool IsTakenWithSpace(const QString& text, const InputField& field, const LengthUnit& unit)
{
    return field.takesWithSpace && ReadTypedText(text, field.quantity, unit).isPlain;
}

QString DescribeLateUnit(const QString& unit)
{
    return "空格已经确定了数值，其后的“%1”没有采用；撤销（Ctrl+Z）一次即可取回"_tr.arg(unit);
}

QString DescribeKeys(const InputField& field, bool isTakenWithSpace)
{
    const QString pattern = QStringLiteral("<b>%1</b>&nbsp;%2");
    QStringList keys;
    if (field.next != InputState::IS_None)
        keys << pattern.arg(QStringLiteral("Tab"), ToQString(CaptionOf(field.next)));
    const QString taking = isTakenWithSpace ? QStringLiteral("Enter</b>/<b>%1").arg("空格"_tr)
                                            : QStringLiteral("Enter");
    keys << pattern.arg(taking, "确定"_tr) << pattern.arg(QStringLiteral("Esc"), "取消"_tr);
    return keys.join(QStringLiteral(" · "));
}

}
