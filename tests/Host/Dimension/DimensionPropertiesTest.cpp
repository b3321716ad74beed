#include "Host/Dimension/DrawnNodes.h"
#include "Host/Dimension/GeneratorKinds.h"
#include "Host/Dimension/RandomPlane.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <cmath>
#include <limits>

namespace vesk
{

namespace
{

constexpr int SceneCount = 20000;

/// The largest error of a measured value against the value it was constructed from.
class LargestError
{
public:
    explicit LargestError(const char* pName) : m_pName(pName) {}

    /// True if the error is at most `limit`, in units of `unit`.
    bool IsWithin(Wide error, Wide unit, Wide limit)
    {
        m_largest = std::max(m_largest, std::abs(error) / unit);
        return std::abs(error) <= limit * unit;
    }

    void Print() const { qInfo("%s: largest error %.3Lf", m_pName, m_largest); }

private:
    const char* m_pName;
    Wide m_largest = 0;
};

/// The difference of two angles in degrees, from -180 to 180.
Wide AngleBetween(Wide a, Wide b)
{
    return std::remainder(a - b, Wide(360));
}

/// An angle that would be shown as negative zero becomes zero.
Wide WithoutNegativeZero(Wide degrees)
{
    return degrees < 0 && degrees > -0.005L ? 0 : degrees;
}

constexpr Wide Limit = 4;

using WideVector = Eigen::Matrix<Wide, 3, 1>;

/// The unsigned angle between two vectors in degrees.
Wide AngleBetween(const WideVector& a, const WideVector& b)
{
    const WideVector scaledA = b.norm() * a;
    const WideVector scaledB = a.norm() * b;
    return 2 * std::atan2((scaledA - scaledB).norm(), (scaledA + scaledB).norm()) *
           DegreesPerRadian;
}

Wide LastPlaceOf(double value)
{
    return std::nextafter(std::abs(value), std::numeric_limits<double>::infinity()) -
           std::abs(value);
}

}

/// Random planes, near and far, with points constructed from known lengths and angles.
///
/// Lengths may be off by four units in the last place of the largest coordinate, including each
/// point's own rounding; angles by the same amount at the distance of the nearer point.
class DimensionPropertiesTest : public QObject
{
    Q_OBJECT

private slots:
    void lengthsAreWhatTheyWereMadeFrom();
    void anglesAreWhatTheyWereMadeFrom();
    void arcsAreWhatTheyWereMadeFrom();
    void aValueIsRoundedOnce();
    void straightDimensionsStandAsConstructed();
    void turnsStandAsConstructed();
    void leadersStandAsConstructed();
};

void DimensionPropertiesTest::lengthsAreWhatTheyWereMadeFrom()
{
    RandomPlane random(20251);
    LargestError length("length, in units of the last place of the largest coordinate");
    LargestError size("width and height");
    LargestError radius("radius about a centre");
    for (int i = 0; i < SceneCount; ++i)
    {
        random.Next();
        const Complex centre = random.MakePoint();
        const Complex along = random.MakeOffset();
        const GeneratorPoints points = random.ToWorld({centre, centre + along, centre - along});
        const Wide unit = LastPlaceOf(points, 3);
        GeneratorInput input = random.MakeInput();

        GetGeneratorKinds()[0].pGenerate(points, input);
        GetGeneratorKinds()[2].pGenerate(points, input);
        GetGeneratorKinds()[3].pGenerate(points, input);
        GetGeneratorKinds()[7].pGenerate(points, input);

        const TemporaryDimensionData& data = input.data;
        const Wide distance = std::abs(along);
        QVERIFY(length.IsWithin(data[InputState::IS_Length].value - distance, unit, Limit));
        QVERIFY(
            size.IsWithin(data[InputState::IS_Width].value - std::abs(along.real()), unit, Limit));
        QVERIFY(
            size.IsWithin(data[InputState::IS_Height].value - std::abs(along.imag()), unit, Limit));
        QVERIFY(radius.IsWithin(data[InputState::IS_Radius].value - distance, unit, Limit));
    }
    length.Print();
    size.Print();
    radius.Print();
}

void DimensionPropertiesTest::anglesAreWhatTheyWereMadeFrom()
{
    RandomPlane random(20252);
    LargestError direction("angle to the x axis, in units of that at the distance of the point");
    LargestError central("central angle and rotation");
    for (int i = 0; i < SceneCount; ++i)
    {
        random.Next();
        const Complex centre = random.MakePoint();
        const Complex from = random.MakeOffset();
        const Complex to = std::polar(random.Between(0.1, 1) * std::abs(from), random.MakeAngle());
        const GeneratorPoints points =
            random.ToWorld({centre, centre + from, centre + to, centre + to});
        const Wide unit = LastPlaceOf(points, 4) / std::abs(to) * DegreesPerRadian;
        const Wide turn = WithoutNegativeZero(std::arg(to / from) * DegreesPerRadian);
        GeneratorInput input = random.MakeInput();

        GetGeneratorKinds()[1].pGenerate(points, input);
        GetGeneratorKinds()[6].pGenerate(points, input);
        const double angle = input.data[InputState::IS_CentralAngle].value;
        GetGeneratorKinds()[8].pGenerate(points, input);

        const Wide along = input.data[InputState::IS_Angle].value;
        const Wide expected = WithoutNegativeZero(std::arg(from) * DegreesPerRadian);
        QVERIFY(direction.IsWithin(AngleBetween(along, expected), unit, Limit));
        QVERIFY(central.IsWithin(AngleBetween(angle, turn), unit, Limit));
        QCOMPARE_EXACTLY(input.data[InputState::IS_CentralAngle].value, angle);
        QVERIFY(angle > -180.0 && angle <= 180.0);
    }
    direction.Print();
    central.Print();
}

void DimensionPropertiesTest::arcsAreWhatTheyWereMadeFrom()
{
    RandomPlane random(20253);
    LargestError radius("radius of three points, in units that they leave open");
    LargestError sweep("central angle of three points");
    for (int i = 0; i < SceneCount; ++i)
    {
        random.Next();
        const Complex centre = random.MakePoint();
        const Wide size = std::abs(random.MakeOffset());
        const Wide start = random.MakeAngle();
        const Wide turn = random.Between(-6.28, 6.28);
        const Wide part = random.Between(0.01, 0.99);
        const Complex first = std::polar(size, start);
        const Complex second = std::polar(size, start + turn);
        const Complex third = std::polar(size, start + part * turn);
        const GeneratorPoints points =
            random.ToWorld({centre + first, centre + second, centre + third});
        GeneratorInput input = random.MakeInput();

        GetGeneratorKinds()[4].pGenerate(points, input);
        GetGeneratorKinds()[5].pGenerate(points, input);

        // How far a step of one point moves the circle and rotates the lines to the third point.
        const Wide shortest =
            std::min({std::abs(third - first), std::abs(third - second), std::abs(second - first)});
        const Wide sharp = size / shortest;
        const Wide unit = LastPlaceOf(points, 3) * (1 + sharp * sharp);
        QVERIFY(radius.IsWithin(input.data[InputState::IS_Radius].value - size, unit, Limit));
        const Wide turned = input.data[InputState::IS_CentralAngle].value;
        const Wide turnUnit = 2 * LastPlaceOf(points, 3) / shortest * DegreesPerRadian;
        QVERIFY(sweep.IsWithin(turned - turn * DegreesPerRadian, turnUnit, Limit));
    }
    radius.Print();
    sweep.Print();
}

void DimensionPropertiesTest::aValueIsRoundedOnce()
{
    // Without a type wider than the result every step rounds, even in the reference.
    constexpr bool IsWider =
        std::numeric_limits<Wide>::digits > std::numeric_limits<double>::digits;
    constexpr Wide OwnLimit = IsWider ? 0.51L : Limit;
    RandomPlane random(20257);
    LargestError length("length, in units of its own last place");
    LargestError angle("angle, in units of its own last place or of that of 1");
    for (int i = 0; i < SceneCount; ++i)
    {
        random.Next();
        const Complex centre = random.MakePoint();
        const GeneratorPoints points =
            random.ToWorld({centre, centre + random.MakeOffset(), centre + random.MakeOffset()});
        const WideVector from = points[1].cast<Wide>() - points[0].cast<Wide>();
        const WideVector to = points[2].cast<Wide>() - points[0].cast<Wide>();
        GeneratorInput input = random.MakeInput();

        GetGeneratorKinds()[0].pGenerate(points, input);
        GetGeneratorKinds()[8].pGenerate(points, input);

        const double distance = input.data[InputState::IS_Length].value;
        const double turn = std::abs(input.data[InputState::IS_CentralAngle].value);
        QVERIFY(length.IsWithin(distance - std::hypot(from.x(), from.y(), from.z()),
                                LastPlaceOf(distance), OwnLimit));
        // For tiny angles this would require more precision than the vectors between the points
        // have.
        const Wide place = LastPlaceOf(std::max(turn, 1.0));
        QVERIFY(angle.IsWithin(turn - AngleBetween(from, to), place, OwnLimit));
    }
    length.Print();
    angle.Print();
}

void DimensionPropertiesTest::straightDimensionsStandAsConstructed()
{
    RandomPlane random(20254);
    for (int i = 0; i < SceneCount; ++i)
    {
        random.Next();
        const Complex start = random.MakePoint();
        const Complex along = random.MakeOffset();
        const GeneratorPoints points = random.ToWorld({start, start + along});
        GeneratorInput input = random.MakeInput();

        const auto opLength = GetGeneratorKinds()[0].pGenerate(points, input);
        const auto opWidth = GetGeneratorKinds()[2].pGenerate(points, input);
        const auto opHeight = GetGeneratorKinds()[3].pGenerate(points, input);

        const Complex left = along / std::abs(along) * Complex(0, 1);
        const Complex width(along.real(), 0);
        const Complex height(0, along.imag());
        QVERIFY(random.IsStraight(*opLength, start, along, along.imag() >= 0 ? left : -left));
        QVERIFY(random.IsStraight(*opWidth, start, width, {0, along.imag() >= 0 ? -1.0L : 1.0L}));
        QVERIFY(random.IsStraight(*opHeight, start, height, {along.real() >= 0 ? -1.0L : 1.0L, 0}));
    }
}

void DimensionPropertiesTest::turnsStandAsConstructed()
{
    RandomPlane random(20255);
    for (int i = 0; i < SceneCount; ++i)
    {
        random.Next();
        const Complex centre = random.MakePoint();
        const Complex from = random.MakeOffset();
        const Wide turn = random.Between(-3.14, 3.14);
        const Complex to = from * std::polar(Wide(1), turn);
        const Complex through = from * std::polar(Wide(1), turn / 2);
        const GeneratorPoints points =
            random.ToWorld({centre, centre + from, centre + to, centre + to});
        const GeneratorPoints arc = random.ToWorld({centre + from, centre + to, centre + through});
        GeneratorInput input = random.MakeInput();

        const auto opCentral = GetGeneratorKinds()[6].pGenerate(points, input);
        const auto opTurn = GetGeneratorKinds()[8].pGenerate(points, input);
        const auto opArc = GetGeneratorKinds()[5].pGenerate(arc, input);

        QVERIFY(random.IsTurn(*opCentral, centre, from, turn, 2));
        QVERIFY(random.IsTurn(*opTurn, centre, from, turn, 1));
        QVERIFY(std::abs(turn) < 0.1L || random.IsTurn(*opArc, centre, from, turn, 2));
    }
}

void DimensionPropertiesTest::leadersStandAsConstructed()
{
    RandomPlane random(20256);
    for (int i = 0; i < SceneCount; ++i)
    {
        random.Next();
        const Complex centre = random.MakePoint();
        const Complex tip = random.MakeOffset();
        const Complex third = std::polar(Wide(1), Wide(2));
        const GeneratorPoints points = random.ToWorld({centre, centre + tip, centre + tip * third});
        const GeneratorPoints circle =
            random.ToWorld({centre + tip * third, centre - tip * third, centre + tip});
        GeneratorInput input = random.MakeInput();

        const auto opAbout = GetGeneratorKinds()[7].pGenerate(points, input);
        const auto opCircle = GetGeneratorKinds()[4].pGenerate(circle, input);

        QVERIFY(random.IsLeader(*opAbout, centre, tip));
        QVERIFY(random.IsLeader(*opCircle, centre, tip));
    }
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::DimensionPropertiesTest);
#include "DimensionPropertiesTest.moc"
