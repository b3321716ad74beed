#include "Input/InputJudge.h"

#include "Dimension/LengthUnit.h"
#include "Support/TestValues.h"

using namespace vesk;

namespace
{

InputField MakeField(Quantity quantity)
{
    InputField field;
    field.quantity = quantity;
    field.range = {0.5, 1000.0};
    return field;
}

InputVerdict Judge(const QString& text)
{
    return JudgeInput(text, MakeField(Quantity::Length), LengthUnit::Millimetre());
}

TypedReading Read(const QString& text)
{
    return ReadTypedText(text, Quantity::Length, LengthUnit::Millimetre());
}

QString Describe(const QString& text, Quantity quantity, const LengthUnit& unit)
{
    return DescribeValue(ReadTypedText(text, quantity, unit), quantity, unit);
}

}

/// What happens to a text that is to be committed.
class InputJudgeTest final : public QObject
{
    Q_OBJECT

private slots:
    void plainNumberInRangeIsLeftAsItIs_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("plain") << "12.50";
        QTest::newRow("zeros first") << "007";
        QTest::newRow("exponent") << "1e2";
        QTest::newRow("point first") << ".5";
        QTest::newRow("least") << "0.5";
        QTest::newRow("greatest") << "1000";
        QTest::newRow("more digits than a double has") << "1.00000000000000000001";
    }

    void plainNumberInRangeIsLeftAsItIs()
    {
        QFETCH(QString, text);

        const InputVerdict verdict = Judge(text);

        QCOMPARE(verdict.refusal, QString());
        QVERIFY(!verdict.replacement.has_value());
    }

    void clearTextGivesWayToItsNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("number");

        QTest::newRow("formula") << "20+2"
                                 << "22";
        QTest::newRow("all its digits") << "sqrt(2)*50"
                                        << "70.71067811865476";
        QTest::newRow("unit") << "10cm"
                              << "100";
        QTest::newRow("comma") << "3,5"
                               << "3.5";
        QTest::newRow("tenth") << "1/10"
                               << "0.1";
    }

    void clearTextGivesWayToItsNumber()
    {
        QFETCH(QString, text);
        QFETCH(QString, number);
        InputField field = MakeField(Quantity::Length);
        field.range = {0.01, 1000.0};

        const InputVerdict verdict = JudgeInput(text, field, LengthUnit::Millimetre());

        QCOMPARE(verdict.refusal, QString());
        QCOMPARE(verdict.replacement.value_or("nothing"), number);
    }

    void valueOutsideTheRangeIsRefused_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("plain, too small") << "0.4999999";
        QTest::newRow("plain, too great") << "1000.0001";
        QTest::newRow("formula, too great") << "500+501";
        QTest::newRow("unit, too great") << "2m";
        QTest::newRow("negative") << "-7";
    }

    void valueOutsideTheRangeIsRefused()
    {
        QFETCH(QString, text);

        const InputVerdict verdict = Judge(text);

        QCOMPARE(verdict.refusal, QStringLiteral("请输入 0.5 到 1000 之间的数"));
        QVERIFY(!verdict.replacement.has_value());
    }

    void rangeIsOfTheUnitShown()
    {
        const InputVerdict verdict =
            JudgeInput("2m", MakeField(Quantity::Length), LengthUnit::Centimetre());

        QCOMPARE(verdict.refusal, QString());
        QCOMPARE(verdict.replacement.value_or("nothing"), QStringLiteral("200"));
    }

    void rangeIsToldWithItsDigits()
    {
        InputField field = MakeField(Quantity::Length);
        field.range = {-0.000125, 1234567.89};

        QCOMPARE(JudgeInput("1e9", field, LengthUnit::Millimetre()).refusal,
                 QStringLiteral("请输入 -0.000125 到 1234567.89 之间的数"));
    }

    void rangeIsToldInTwelveDigits()
    {
        InputField field = MakeField(Quantity::Length);
        field.range = {0.123456789012345, 123456789.012345};

        QCOMPARE(JudgeInput("1e9", field, LengthUnit::Millimetre()).refusal,
                 QStringLiteral("请输入 0.123456789012 到 123456789.012 之间的数"));
    }

    void unclearTextIsRefusedWithItsReason()
    {
        const InputVerdict verdict = Judge("1,000");

        QCOMPARE(verdict.refusal, DescribeFault(TypedTextFault::AmbiguousComma));
        QVERIFY(!verdict.replacement.has_value());
    }

    void valueIsTakenInModelUnits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isAngle");
        QTest::addColumn<double>("modelValue");

        QTest::newRow("plain") << "2.5" << false << 25.0;
        QTest::newRow("formula") << "1+2" << false << 30.0;
        QTest::newRow("another unit") << "12mm" << false << 12.0;
        QTest::newRow("plain angle") << "30" << true << 30.0;
        QTest::newRow("angle with its unit") << "30d" << true << 30.0;
    }

    void valueIsTakenInModelUnits()
    {
        QFETCH(QString, text);
        QFETCH(bool, isAngle);
        QFETCH(double, modelValue);
        const InputField field = MakeField(isAngle ? Quantity::Angle : Quantity::Length);

        const InputVerdict verdict = JudgeInput(text, field, LengthUnit::Centimetre());

        QVERIFY(verdict.modelValue.has_value());
        QCOMPARE_EXACTLY(*verdict.modelValue, modelValue);
    }

    void refusedTextHasNoValue_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("unclear") << "1,000";
        QTest::newRow("unfinished") << "2*(";
        QTest::newRow("out of range") << "1001";
        QTest::newRow("formula out of range") << "1000+1";
    }

    void refusedTextHasNoValue()
    {
        QFETCH(QString, text);

        QVERIFY(!Judge(text).modelValue.has_value());
    }

    void valueIsDescribedWhereItIsNotWhatWasTyped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isAngle");
        QTest::addColumn<QString>("description");

        QTest::newRow("formula") << "sqrt(2)*50" << false << "= 70.711 mm";
        QTest::newRow("whole") << "10cm" << false << "= 100 mm";
        QTest::newRow("zeros inside") << "1000/16" << false << "= 62.5 mm";
        QTest::newRow("out of range") << "5m" << false << "= 5000 mm";
        QTest::newRow("tiny") << "1/81000" << false << "= 1.23e-05 mm";
        QTest::newRow("zero") << "3-3" << false << "= 0 mm";
        QTest::newRow("angle") << "100/3" << true << "= 33.33\u00b0";
        QTest::newRow("degrees") << "30d" << true << "= 30\u00b0";
        QTest::newRow("plain") << "12" << false << "";
        QTest::newRow("unclear") << "1,000" << false << "";
        QTest::newRow("unfinished") << "2*(" << false << "";
    }

    void valueIsDescribedWhereItIsNotWhatWasTyped()
    {
        QFETCH(QString, text);
        QFETCH(bool, isAngle);
        QFETCH(QString, description);
        const Quantity quantity = isAngle ? Quantity::Angle : Quantity::Length;

        QCOMPARE(Describe(text, quantity, LengthUnit::Millimetre()), description);
    }

    void valueIsDescribedInTheUnitShown()
    {
        QCOMPARE(Describe("10cm", Quantity::Length, LengthUnit::Inch()),
                 QStringLiteral("= 3.937 in"));
    }

    void keysAreDescribedWithTheFieldThatTabLeadsTo()
    {
        InputField field = MakeField(Quantity::Length);
        field.next = InputState::IS_Angle;

        QCOMPARE(DescribeKeys(field, false),
                 QStringLiteral("<b>Tab</b>&nbsp;角度 · <b>Enter</b>&nbsp;确定 "
                                "· <b>Esc</b>&nbsp;取消"));
    }

    void keysOfASingleFieldKnowNoTab()
    {
        QCOMPARE(DescribeKeys(MakeField(Quantity::Angle), false),
                 QStringLiteral("<b>Enter</b>&nbsp;确定 · <b>Esc</b>&nbsp;取消"));
    }

    void spaceIsNamedWhereItTakesTheValue()
    {
        QCOMPARE(DescribeKeys(MakeField(Quantity::Angle), true),
                 QStringLiteral("<b>Enter</b>/<b>空格</b>&nbsp;确定 · <b>Esc</b>&nbsp;取消"));
    }

    void spaceTakesANumberAsItStands_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isTaken");

        QTest::newRow("number") << "10" << true;
        QTest::newRow("point") << ".5" << true;
        QTest::newRow("sign") << "-7" << true;
        QTest::newRow("out of range") << "0" << true;
        QTest::newRow("comma") << "3,5" << false;
        QTest::newRow("feet") << "10'" << false;
        QTest::newRow("fraction") << "1/2" << false;
        QTest::newRow("unit") << "10cm" << false;
        QTest::newRow("unfinished") << "2*" << false;
        QTest::newRow("formula") << "20+2" << false;
        QTest::newRow("nothing") << "" << false;
    }

    void spaceTakesANumberAsItStands()
    {
        QFETCH(QString, text);
        QFETCH(bool, isTaken);
        InputField field = MakeField(Quantity::Length);
        field.takesWithSpace = true;

        QCOMPARE(IsTakenWithSpace(Read(text), field), isTaken);
    }

    void spaceTakesNothingWhereItIsABlank()
    {
        QVERIFY(!IsTakenWithSpace(Read("10"), MakeField(Quantity::Length)));
    }

    void lateUnitIsToldByItsName()
    {
        const QString told = DescribeLateUnit("cm");

        QVERIFY(told.contains("空格"));
        QVERIFY(told.contains("cm"));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(InputJudgeTest);
#include "InputJudgeTest.moc"
