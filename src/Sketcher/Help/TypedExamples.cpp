#include "Help/TypedExamples.h"

using vesk::Quantity;

const QVector<TypedExample>& AcceptedExamples()
{
    static const QVector<TypedExample> s_examples = {
        {QStringLiteral("125.5"), QStringLiteral("数，用所示的单位；角度为度")},
        {QStringLiteral("3,5"), QStringLiteral("小数逗号，即 3.5")},
        {QStringLiteral("2*(3+4)"), QStringLiteral("算式：+ - * / ^ 和括号")},
        {QStringLiteral("10cm"), QStringLiteral("带单位：mm cm dm m km in \" ft '")},
        {QStringLiteral("10'6\""), QStringLiteral("英尺和英寸")},
        {QStringLiteral("1/2 in"), QStringLiteral("分数，单位前可有空格")},
        {QStringLiteral("1m+5cm"), QStringLiteral("带单位的算式")},
        {QStringLiteral("sqrt(2)*50"), QStringLiteral("函数 sqrt 和 abs")},
        {QStringLiteral("50*sin(30d)"), QStringLiteral("sin cos tan，角度后写 d")},
        {QStringLiteral("pi*10"), QStringLiteral("圆周率")},
        {QStringLiteral("30d"), QStringLiteral("角度：d、deg 或 °"), Quantity::Angle},
        {QStringLiteral("atan(3/4)"), QStringLiteral("asin acos atan 得出角度"), Quantity::Angle},
    };
    return s_examples;
}

const QVector<TypedExample>& RejectedExamples()
{
    static const QVector<TypedExample> s_examples = {
        {QStringLiteral("1,000"), QStringLiteral("一千还是一？")},
        {QStringLiteral("sin(30)"), QStringLiteral("度还是弧度？写 sin(30d)")},
        {QStringLiteral("1m+5"), QStringLiteral("5 的单位是什么？")},
        {QStringLiteral("10'6"), QStringLiteral("6 的单位是什么？")},
        {QStringLiteral("-2^2"), QStringLiteral("请用括号")},
        {QStringLiteral("2(3+4)"), QStringLiteral("缺少运算符")},
        {QStringLiteral("10CM"), QStringLiteral("单位用小写")},
        {QStringLiteral("30d"), QStringLiteral("长度不能用度")},
    };
    return s_examples;
}
