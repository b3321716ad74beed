#include "Input/CoordinateJudge.h"

#include "Dimension/LengthUnit.h"
#include "Support/TestValues.h"

using namespace vesk;

/// Which texts are coordinates of a point, and of which.
class CoordinateJudgeTest final : public QObject
{
    Q_OBJECT

private slots:
    void textIsReadAsALengthOfEitherSign_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("coordinate");
        QTest::addColumn<QString>("shown");

        QTest::newRow("number") << "12.5" << 12.5 << "";
        QTest::newRow("negative") << "-12.5" << -12.5 << "";
        QTest::newRow("zero") << "0" << 0.0 << "";
        QTest::newRow("blanks") << " 7 " << 7.0 << "";
        QTest::newRow("unit") << "10cm" << 100.0 << "= 100 mm";
        QTest::newRow("negative formula") << "2*(3-10)" << -14.0 << "= -14 mm";
    }

    void textIsReadAsALengthOfEitherSign()
    {
        QFETCH(QString, text);
        QFETCH(double, coordinate);
        QFETCH(QString, shown);

        const CoordinateVerdict verdict = JudgeCoordinate(text, 1000.0, LengthUnit::Millimetre());

        QCOMPARE(verdict.refusal, QString());
        QCOMPARE(verdict.coordinate, std::optional(coordinate));
        QCOMPARE(verdict.shown, shown);
    }

    void atSignCountsFromTheLastPoint_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("coordinate");
        QTest::addColumn<QString>("shown");

        QTest::newRow("forwards") << "@10" << 110.0 << "= 110 mm";
        QTest::newRow("backwards") << "@-10" << 90.0 << "= 90 mm";
        QTest::newRow("blanks") << " @ 10 " << 110.0 << "= 110 mm";
        QTest::newRow("unit") << "@1cm" << 110.0 << "= 110 mm";
        QTest::newRow("alone") << "@" << 100.0 << "= 100 mm";
    }

    void atSignCountsFromTheLastPoint()
    {
        QFETCH(QString, text);
        QFETCH(double, coordinate);
        QFETCH(QString, shown);

        const CoordinateVerdict verdict = JudgeCoordinate(text, 100.0, LengthUnit::Millimetre());

        QCOMPARE(verdict.coordinate, std::optional(coordinate));
        QCOMPARE(verdict.shown, shown);
    }

    void numbersAreInTheUnitShown()
    {
        const CoordinateVerdict plain = JudgeCoordinate("1.2", {}, LengthUnit::Inch());
        const CoordinateVerdict relative = JudgeCoordinate("@1", 25.4, LengthUnit::Inch());

        QCOMPARE(plain.coordinate, std::optional(30.48));
        QCOMPARE(relative.coordinate, std::optional(50.8));
        QCOMPARE(relative.shown, QStringLiteral("= 2 in"));
    }

    void zeroIsNeverNegative()
    {
        const CoordinateVerdict verdict = JudgeCoordinate("@-5", 5.0, LengthUnit::Millimetre());

        QVERIFY(!std::signbit(*verdict.coordinate));
        QVERIFY(!std::signbit(*JudgeCoordinate("-0", {}, LengthUnit::Millimetre()).coordinate));
    }

    void whatHasNoClearValueIsRejected_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("refusal");

        QTest::newRow("empty") << ""
                               << "这不是一个数，也不是算式";
        QTest::newRow("comma") << "1,000"
                               << "逗号有歧义，小数点请用“.”";
        QTest::newRow("angle") << "30d"
                               << "单位与此处的量不符";
        QTest::newRow("two signs") << "@@5"
                                   << "这不是一个数，也不是算式";
        QTest::newRow("sign at the end") << "5@"
                                         << "这不是一个数，也不是算式";
        QTest::newRow("too far") << "1e10"
                                 << "请输入 -1000000000 到 1000000000 之间的数";
        QTest::newRow("too far from it") << "@1e9"
                                         << "请输入 -1000000000 到 1000000000 之间的数";
    }

    void whatHasNoClearValueIsRejected()
    {
        QFETCH(QString, text);
        QFETCH(QString, refusal);

        const CoordinateVerdict verdict = JudgeCoordinate(text, 100.0, LengthUnit::Millimetre());

        QCOMPARE(verdict.refusal, refusal);
        QVERIFY(!verdict.coordinate.has_value());
        QCOMPARE(verdict.shown, QString());
    }

    void withoutALastPointNothingCountsFromIt()
    {
        const CoordinateVerdict verdict = JudgeCoordinate("@10", {}, LengthUnit::Millimetre());

        QCOMPARE(verdict.refusal, QStringLiteral("还没有上一点，不能用“@”"));
        QVERIFY(!verdict.coordinate.has_value());
    }
};

VESK_TESTS(CoordinateJudgeTest);
#include "CoordinateJudgeTest.moc"
