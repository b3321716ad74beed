#include "Help/TypedExamples.h"

#include "Model/UiText.h"

using vesk::Quantity;

QVector<TypedExample> AcceptedExamples()
{
    return {
        {QStringLiteral("125.5"), "数，用所示的单位；角度为度"_tr},
        {QStringLiteral("3,5"), "小数逗号，即 3.5"_tr},
        {QStringLiteral("2*(3+4)"), "算式：+ - * / ^ 和括号"_tr},
        {QStringLiteral("10cm"), "带单位：mm cm dm m km in \" ft '"_tr},
        {QStringLiteral("10'6\""), "英尺和英寸"_tr},
        {QStringLiteral("1/2 in"), "分数，单位前可有空格"_tr},
        {QStringLiteral("1m+5cm"), "带单位的算式"_tr},
        {QStringLiteral("sqrt(2)*50"), "函数 sqrt 和 abs"_tr},
        {QStringLiteral("50*sin(30d)"), "sin cos tan，角度后写 d"_tr},
        {QStringLiteral("pi*10"), "圆周率"_tr},
        {QStringLiteral("30d"), "角度：d、deg 或 °"_tr, Quantity::Angle},
        {QStringLiteral("atan(3/4)"), "asin acos atan 得出角度"_tr, Quantity::Angle},
    };
}

QVector<TypedExample> RejectedExamples()
{
    return {
        {QStringLiteral("1,000"), "一千还是一？"_tr},
        {QStringLiteral("sin(30)"), "度还是弧度？写 sin(30d)"_tr},
        {QStringLiteral("1m+5"), "5 的单位是什么？"_tr},
        {QStringLiteral("10'6"), "6 的单位是什么？"_tr},
        {QStringLiteral("-2^2"), "请用括号"_tr},
        {QStringLiteral("2(3+4)"), "缺少运算符"_tr},
        {QStringLiteral("10CM"), "单位用小写"_tr},
        {QStringLiteral("30d"), "长度不能用度"_tr},
    };
}
