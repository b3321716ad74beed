#include "Validation/NumberValidator.h"

#include "Host/DecimalPointScope.h"
#include "Support/TestValues.h"

#include <clocale>
#include <limits>
#include <string>

Q_DECLARE_METATYPE(std::wstring)

namespace vesk
{

namespace
{

const double s_nan = std::numeric_limits<double>::quiet_NaN();
const double s_infinity = std::numeric_limits<double>::infinity();

using Real = NumberValidator<double>;
using Whole = NumberValidator<int>;

}

class NumberValidatorTest : public QObject
{
    Q_OBJECT

private slots:
    void aRealNumberIsOneAsAWhole_data();
    void aRealNumberIsOneAsAWhole();
    void aWholeNumberIsOneAsAWhole_data();
    void aWholeNumberIsOneAsAWhole();
    void aZeroCharacterEndsNoNumber();
    void theCurrentLocaleDoesNotMatter();
    void aBoundBelongsToTheRangeWhereItIsInclusive_data();
    void aBoundBelongsToTheRangeWhereItIsInclusive();
    void boundsCanBeChanged();
    void everyNumberIsAcceptedByDefault();
    void notANumberIsOutsideEveryRange();
    void infinityIsOutsideEveryRange();
    void decimalsNeverRefuseANumber();
    void theGivenTipIsTold();
    void otherwiseTheTipNamesTheRange_data();
    void otherwiseTheTipNamesTheRange();
    void theTipForWholeNumbersSaysSo_data();
    void theTipForWholeNumbersSaysSo();
    void theTipFollowsTheBounds();
};

void NumberValidatorTest::aRealNumberIsOneAsAWhole_data()
{
    QTest::addColumn<std::wstring>("text");
    QTest::addColumn<bool>("isNumber");

    QTest::newRow("whole") << std::wstring(L"12") << true;
    QTest::newRow("point") << std::wstring(L"12.5") << true;
    QTest::newRow("nothing before the point") << std::wstring(L".5") << true;
    QTest::newRow("nothing behind the point") << std::wstring(L"5.") << true;
    QTest::newRow("minus") << std::wstring(L"-12.5") << true;
    QTest::newRow("plus") << std::wstring(L"+12.5") << true;
    QTest::newRow("exponent") << std::wstring(L"1e3") << true;
    QTest::newRow("signed exponent") << std::wstring(L"1.5E-3") << true;
    QTest::newRow("many digits") << std::wstring(L"0.1000000000000000055511151231257827") << true;
    QTest::newRow("empty") << std::wstring() << false;
    QTest::newRow("blank") << std::wstring(L" ") << false;
    QTest::newRow("leading blank") << std::wstring(L" 1") << false;
    QTest::newRow("trailing blank") << std::wstring(L"1 ") << false;
    QTest::newRow("letter behind") << std::wstring(L"12mm") << false;
    QTest::newRow("two points") << std::wstring(L"1.2.3") << false;
    QTest::newRow("comma") << std::wstring(L"1,5") << false;
    QTest::newRow("sign alone") << std::wstring(L"-") << false;
    QTest::newRow("plus alone") << std::wstring(L"+") << false;
    QTest::newRow("point alone") << std::wstring(L".") << false;
    QTest::newRow("two signs") << std::wstring(L"+-1") << false;
    QTest::newRow("two plus signs") << std::wstring(L"++1") << false;
    QTest::newRow("unfinished exponent") << std::wstring(L"1e") << false;
    QTest::newRow("hexadecimal") << std::wstring(L"0x10") << false;
    QTest::newRow("inf") << std::wstring(L"inf") << false;
    QTest::newRow("signed infinity") << std::wstring(L"-infinity") << false;
    QTest::newRow("nan") << std::wstring(L"nan") << false;
    QTest::newRow("signed nan") << std::wstring(L"+NAN") << false;
    QTest::newRow("more than a double holds") << std::wstring(L"1e400") << false;
    QTest::newRow("full-width digits") << std::wstring(L"\uff11\uff12") << false;
    QTest::newRow("formula") << std::wstring(L"1+2") << false;
}

void NumberValidatorTest::aRealNumberIsOneAsAWhole()
{
    QFETCH(std::wstring, text);
    QFETCH(bool, isNumber);

    QCOMPARE(Real().ValidateInput(text), isNumber);
}

void NumberValidatorTest::aWholeNumberIsOneAsAWhole_data()
{
    QTest::addColumn<std::wstring>("text");
    QTest::addColumn<bool>("isNumber");

    QTest::newRow("whole") << std::wstring(L"12") << true;
    QTest::newRow("zeros in front") << std::wstring(L"007") << true;
    QTest::newRow("minus") << std::wstring(L"-12") << true;
    QTest::newRow("plus") << std::wstring(L"+12") << true;
    QTest::newRow("greatest") << std::wstring(L"2147483647") << true;
    QTest::newRow("least") << std::wstring(L"-2147483648") << true;
    QTest::newRow("one more than the greatest") << std::wstring(L"2147483648") << false;
    QTest::newRow("one less than the least") << std::wstring(L"-2147483649") << false;
    QTest::newRow("empty") << std::wstring() << false;
    QTest::newRow("point") << std::wstring(L"12.0") << false;
    QTest::newRow("point alone") << std::wstring(L".") << false;
    QTest::newRow("exponent") << std::wstring(L"1e3") << false;
    QTest::newRow("hexadecimal") << std::wstring(L"0x10") << false;
    QTest::newRow("two signs") << std::wstring(L"+-1") << false;
    QTest::newRow("blank behind") << std::wstring(L"1 ") << false;
    QTest::newRow("nan") << std::wstring(L"nan") << false;
}

void NumberValidatorTest::aWholeNumberIsOneAsAWhole()
{
    QFETCH(std::wstring, text);
    QFETCH(bool, isNumber);

    QCOMPARE(Whole().ValidateInput(text), isNumber);
}

void NumberValidatorTest::aZeroCharacterEndsNoNumber()
{
    QVERIFY(!Real().ValidateInput(std::wstring(L"1\0002", 3)));
    QVERIFY(!Whole().ValidateInput(std::wstring(L"1\0", 2)));
}

void NumberValidatorTest::theCurrentLocaleDoesNotMatter()
{
    const DecimalPointScope locale(",");
    QCOMPARE(QByteArray(localeconv()->decimal_point), QByteArray(","));

    const bool takesPoint = Real().ValidateInput(L"1.5");
    const bool takesComma = Real().ValidateInput(L"1,5");
    const std::wstring tip = Real(1.5, 2, L"", true, true, 3).GetTip();

    QVERIFY(takesPoint);
    QVERIFY(!takesComma);
    QCOMPARE(tip, std::wstring(L"请输入 1.5 到 2 之间的数"));
}

void NumberValidatorTest::aBoundBelongsToTheRangeWhereItIsInclusive_data()
{
    QTest::addColumn<bool>("isBottomInclusive");
    QTest::addColumn<bool>("isTopInclusive");
    QTest::addColumn<std::wstring>("text");
    QTest::addColumn<bool>("isAccepted");

    QTest::newRow("inside") << false << false << std::wstring(L"1") << true;
    QTest::newRow("below") << true << true << std::wstring(L"-0.000001") << false;
    QTest::newRow("above") << true << true << std::wstring(L"10.000001") << false;
    QTest::newRow("bottom, inclusive") << true << false << std::wstring(L"0") << true;
    QTest::newRow("bottom, exclusive") << false << true << std::wstring(L"0") << false;
    QTest::newRow("minus zero, exclusive") << false << true << std::wstring(L"-0") << false;
    QTest::newRow("top, inclusive") << false << true << std::wstring(L"10") << true;
    QTest::newRow("top, exclusive") << true << false << std::wstring(L"10") << false;
}

void NumberValidatorTest::aBoundBelongsToTheRangeWhereItIsInclusive()
{
    QFETCH(bool, isBottomInclusive);
    QFETCH(bool, isTopInclusive);
    QFETCH(std::wstring, text);
    QFETCH(bool, isAccepted);

    const Real validator(0, 10, L"", isBottomInclusive, isTopInclusive, 3);

    QCOMPARE(validator.ValidateInput(text), isAccepted);
    QCOMPARE(validator.ValidateValue(std::stod(text)), isAccepted);
}

void NumberValidatorTest::boundsCanBeChanged()
{
    Whole validator;

    validator.SetBottom(1, false);
    validator.SetTop(5, true);

    QCOMPARE(validator.GetBottom(), 1);
    QCOMPARE(validator.GetTop(), 5);
    QVERIFY(!validator.ValidateValue(1));
    QVERIFY(validator.ValidateValue(2));
    QVERIFY(validator.ValidateValue(5));
    QVERIFY(!validator.ValidateValue(6));
}

void NumberValidatorTest::everyNumberIsAcceptedByDefault()
{
    QVERIFY(Real().ValidateValue(std::numeric_limits<double>::lowest()));
    QVERIFY(Real().ValidateValue(std::numeric_limits<double>::max()));
    QVERIFY(Whole().ValidateValue(std::numeric_limits<int>::lowest()));
    QVERIFY(Whole().ValidateValue(std::numeric_limits<int>::max()));
}

void NumberValidatorTest::notANumberIsOutsideEveryRange()
{
    QVERIFY(!Real().ValidateValue(s_nan));
    QVERIFY(!Real(-s_infinity, s_infinity, L"", true, true, 3).ValidateValue(s_nan));
}

void NumberValidatorTest::infinityIsOutsideEveryRange()
{
    const Real unbounded(-s_infinity, s_infinity, L"", true, true, 3);

    QVERIFY(!Real().ValidateValue(s_infinity));
    QVERIFY(!unbounded.ValidateInput(L"1e400"));
    QVERIFY(!unbounded.ValidateValue(s_infinity));
    QVERIFY(unbounded.ValidateInput(L"1e300"));
}

void NumberValidatorTest::decimalsNeverRefuseANumber()
{
    Real validator;
    QCOMPARE(validator.GetDecimals(), 3);

    validator.SetDecimals(2);

    QCOMPARE(validator.GetDecimals(), 2);
    QVERIFY(validator.ValidateInput(L"1.23456789"));
}

void NumberValidatorTest::theGivenTipIsTold()
{
    const Real validator(0, 1, L"tip", true, true, 3);

    QCOMPARE(validator.GetTip(), std::wstring(L"tip"));
}

void NumberValidatorTest::otherwiseTheTipNamesTheRange_data()
{
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("top");
    QTest::addColumn<bool>("isBottomInclusive");
    QTest::addColumn<bool>("isTopInclusive");
    QTest::addColumn<std::wstring>("tip");

    const double lowest = std::numeric_limits<double>::lowest();
    const double max = std::numeric_limits<double>::max();
    QTest::newRow("both bounds") << 1e-6 << 1e9 << true << true
                                 << std::wstring(L"请输入 0.000001 到 1000000000 之间的数");
    QTest::newRow("negative") << -360.0 << 360.0 << true << true
                              << std::wstring(L"请输入 -360 到 360 之间的数");
    QTest::newRow("exponents where digits would not be legible")
        << 1e-20 << 1e300 << true << true << std::wstring(L"请输入 1e-20 到 1e+300 之间的数");
    QTest::newRow("exclusive bottom")
        << 0.0 << 0.1 << false << true << std::wstring(L"请输入大于 0 且不大于 0.1 的数");
    QTest::newRow("exclusive top")
        << 0.0 << 2.5 << true << false << std::wstring(L"请输入不小于 0 且小于 2.5 的数");
    QTest::newRow("bottom only") << 0.0 << max << false << true
                                 << std::wstring(L"请输入大于 0 的数");
    QTest::newRow("top only") << lowest << 5.0 << true << true
                              << std::wstring(L"请输入不大于 5 的数");
    QTest::newRow("no bounds") << lowest << max << true << true << std::wstring(L"请输入一个数");
}

void NumberValidatorTest::otherwiseTheTipNamesTheRange()
{
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(bool, isBottomInclusive);
    QFETCH(bool, isTopInclusive);
    QFETCH(std::wstring, tip);

    const Real validator(bottom, top, L"", isBottomInclusive, isTopInclusive, 3);

    QCOMPARE(QString::fromStdWString(validator.GetTip()), QString::fromStdWString(tip));
}

void NumberValidatorTest::theTipForWholeNumbersSaysSo_data()
{
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("top");
    QTest::addColumn<std::wstring>("tip");

    QTest::newRow("both bounds") << -1 << 100 << std::wstring(L"请输入 -1 到 100 之间的整数");
    QTest::newRow("no bounds") << std::numeric_limits<int>::min() << std::numeric_limits<int>::max()
                               << std::wstring(L"请输入一个整数");
}

void NumberValidatorTest::theTipForWholeNumbersSaysSo()
{
    QFETCH(int, bottom);
    QFETCH(int, top);
    QFETCH(std::wstring, tip);

    const Whole validator(bottom, top, L"", true, true, 0);

    QCOMPARE(QString::fromStdWString(validator.GetTip()), QString::fromStdWString(tip));
}

void NumberValidatorTest::theTipFollowsTheBounds()
{
    Whole validator(0, 9, L"", true, true, 0);

    validator.SetTop(5, true);

    QCOMPARE(validator.GetTip(), std::wstring(L"请输入 0 到 5 之间的整数"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::NumberValidatorTest);
#include "NumberValidatorTest.moc"
