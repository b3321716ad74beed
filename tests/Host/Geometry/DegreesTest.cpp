#include "Geometry/Degrees.h"

#include "Support/TestValues.h"

#include <cmath>

using namespace vesk;

namespace
{

const long double s_degreesPerRadian = 180.0L / std::acos(-1.0L);

/// The double nearest to a value computed with more digits; exactly zero if it should be.
double Nearest(long double value)
{
    return std::abs(value) < 1e-15L ? 0.0 : static_cast<double>(value);
}

void AddAngles(int first, int last)
{
    QTest::addColumn<int>("degrees");
    for (int degrees = first; degrees <= last; degrees += 15)
        QTest::addRow("%d", degrees) << degrees;
}

/// All digits and the sign, which Qt omits before a zero.
QString Text(double value)
{
    return (std::signbit(value) ? "-" : "") + QString::number(std::abs(value), 'g', 17);
}

}

/// Trigonometric functions. Numbers are compared to the last bit, including their signs.
class DegreesTest final : public QObject
{
    Q_OBJECT

private slots:
    void usualAngleHasTheNearestValues_data() { AddAngles(-720, 720); }

    void usualAngleHasTheNearestValues()
    {
        QFETCH(int, degrees);
        const long double radians = degrees / s_degreesPerRadian;

        const double sine = Degrees::Sine(degrees);
        const double cosine = Degrees::Cosine(degrees);

        QCOMPARE(Text(sine), Text(Nearest(std::sin(radians))));
        QCOMPARE(Text(cosine), Text(Nearest(std::cos(radians))));
    }

    void usualAngleHasTheNearestTangent_data() { AddAngles(-75, 75); }

    void usualAngleHasTheNearestTangent()
    {
        QFETCH(int, degrees);

        const double tangent = Degrees::Tangent(degrees);

        QCOMPARE(Text(tangent), Text(Nearest(std::tan(degrees / s_degreesPerRadian))));
        QCOMPARE(Text(Degrees::Tangent(degrees + 180.0)), Text(tangent));
        QCOMPARE(Text(Degrees::Tangent(degrees - 540.0)), Text(tangent));
    }

    void rightAngleHasNoTangent()
    {
        QVERIFY(std::isinf(Degrees::Tangent(90.0)));
        QVERIFY(std::isinf(Degrees::Tangent(-270.0)));
    }

    void usualAngleComesBack_data() { AddAngles(-90, 90); }

    void usualAngleComesBack()
    {
        QFETCH(int, degrees);

        QCOMPARE(Text(Degrees::ArcSine(Degrees::Sine(degrees))), Text(degrees));
        QCOMPARE(Text(Degrees::ArcCosine(Degrees::Cosine(degrees + 90))), Text(degrees + 90));
        QCOMPARE(Text(Degrees::ArcTangent(Degrees::Tangent(degrees))), Text(degrees));
    }

    void otherAngleIsRightToTheLastPlace_data()
    {
        QTest::addColumn<double>("degrees");

        for (const double degrees :
             {0.1, 12.5, 29.999, 44.9, 45.1, 59.5, 89.9, 100.3, 135.7, 271.0})
            QTest::addRow("%g", degrees) << degrees;
    }

    void otherAngleIsRightToTheLastPlace()
    {
        QFETCH(double, degrees);
        const long double radians = degrees / s_degreesPerRadian;

        const double sine = Degrees::Sine(degrees);
        const double cosine = Degrees::Cosine(-degrees);
        const double tangent = Degrees::Tangent(degrees);

        QCOMPARE(Text(sine), Text(Nearest(std::sin(radians))));
        QCOMPARE(Text(cosine), Text(Nearest(std::cos(radians))));
        QCOMPARE(Text(tangent), Text(Nearest(std::tan(radians))));
        QCOMPARE(Text(Degrees::Sine(-degrees)), Text(-sine));
    }

    void nearbyAngleIsNotTakenForAUsualOne()
    {
        QVERIFY(Degrees::ArcSine(0.5000000000001) > 30.0);
        QVERIFY(Degrees::ArcSine(0.9999999999999998) < 89.99999999);
        QVERIFY(Degrees::ArcCosine(0.9999999999999998) > 1e-7);
        QCOMPARE(Text(Degrees::ArcTangent(1e-300)),
                 Text(static_cast<double>(1e-300L * s_degreesPerRadian)));
    }

    void zeroHasNoSign()
    {
        QCOMPARE(Text(Degrees::Sine(-0.0)), Text(0.0));
        QCOMPARE(Text(Degrees::Tangent(-0.0)), Text(0.0));
        QCOMPARE(Text(Degrees::ArcSine(-0.0)), Text(0.0));
        QCOMPARE(Text(Degrees::ArcTangent(-0.0)), Text(0.0));
    }

    void whatHasNoValueIsNoNumber()
    {
        QVERIFY(std::isnan(Degrees::ArcSine(1.1)));
        QVERIFY(std::isnan(Degrees::ArcCosine(-1.1)));
        QVERIFY(std::isnan(Degrees::Sine(HUGE_VAL)));
        QVERIFY(std::isnan(Degrees::Cosine(-HUGE_VAL)));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(DegreesTest);
#include "DegreesTest.moc"
