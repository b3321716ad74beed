#include "Host/Dimension/CurrentView.h"
#include "Host/Dimension/DrawnNodes.h"
#include "Host/Dimension/GeneratorKinds.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <cmath>
#include <limits>
#include <vector>

Q_DECLARE_METATYPE(vesk::GeneratorPoints)

namespace vesk
{

namespace
{

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

struct NamedPoints
{
    const char* pName;
    GeneratorPoints points;
};

std::vector<NamedPoints> GetDegeneratePoints()
{
    const Vector3d o = Vector3d::Zero();
    const Vector3d x = Vector3d::UnitX();
    const Vector3d y = Vector3d::UnitY();
    const Vector3d z = Vector3d::UnitZ();
    const Vector3d far(1e9, -1e9, 1e9);
    return {
        {"one point", {o, o, o, o}},
        {"one point far away", {far, far, far, far}},
        {"one point of negative zeros", {-o, -o, -o, -o}},
        {"first and second equal", {x, x, y, y}},
        {"second and last equal", {o, x, x, x}},
        {"first and last equal", {x, o, x, x}},
        {"on one line", {o, 10 * x, 20 * x, 30 * x}},
        {"on a slanting line", {o, x + y, 3 * x + 3 * y, 7 * x + 7 * y}},
        {"nearly on one line", {-100 * x, 100 * x, 1e-9 * y, 1e-9 * y}},
        {"a right angle", {o, 10 * x, 10 * y, 20 * y}},
        {"a half turn", {o, 10 * x, -10 * x, -20 * x}},
        {"a half turn back", {o, 10 * x, -10 * x - 1e-15 * y, -20 * x}},
        {"a full turn", {10 * x, 10 * x, -10 * x, -10 * x}},
        {"opposite corners of the model", {far, -far, Vector3d(-1e9, -1e9, 0), far}},
        {"steps of the last place", {far, far + 1e-6 * x, far + 1e-6 * y, far}},
        {"closer than points can be", {o, 1e-12 * x, 1e-12 * y, 1e-12 * y}},
        {"hardly more than nothing", {o, 1e-300 * x, 1e-300 * y, 1e-310 * y}},
        {"above each other", {o, 5 * z, -5 * z, z}},
        {"mirrored", {o, -10 * x - 20 * y, -20 * x - 10 * y, -30 * x}},
        {"beyond the model", {1e30 * x, -1e30 * x, 1e30 * y, -1e30 * y}},
    };
}

std::vector<Coordinate3d> GetPlanes()
{
    return {Coordinate3d(), Coordinate3d({1, 2, 3}, {0, 1, 0}, {-1, 0, 0}),
            Coordinate3d({1, 2, 3}, {1, 0, 0}, {0, -1, 0}),
            Coordinate3d({0, 0, 0}, {0, 1, 0}, {0, 0, 1}),
            Coordinate3d({0, 0, 0}, {0.3, -0.4, 0.5}, {0.7, 0.1, -0.9})};
}

bool AreNumbers(const TemporaryDimensionData::Entry& entry)
{
    return entry.textPosition.allFinite() && std::isfinite(entry.value);
}

/// Verifies that in every plane only numbers are drawn and computed.
void VerifyNumbers(const GeneratorKind& generator, const GeneratorPoints& points)
{
    for (const Coordinate3d& plane : GetPlanes())
    {
        GeneratorInput input;
        input.coordinate = plane;

        const OwnerPtr<IGraphicsNodeGroup> opGroup = generator.pGenerate(points, input);

        QVERIFY(DrawnNodes(*opGroup).AreNumbers());
        QVERIFY(AreNumbers(input.data[generator.field]));
    }
}

}

class DegenerateDimensionsTest : public QObject
{
    Q_OBJECT

private slots:
    void everythingDrawnIsANumber_data();
    void everythingDrawnIsANumber();
    void everythingDrawnInAViewIsANumber_data();
    void everythingDrawnInAViewIsANumber();
    void whatIsNoPointLeavesTheData_data();
    void whatIsNoPointLeavesTheData();
    void whatIsNoPixelCountsAsOne_data();
    void whatIsNoPixelCountsAsOne();
    void anglesNeverReachMinusAHalfTurn_data();
    void anglesNeverReachMinusAHalfTurn();
};

void DegenerateDimensionsTest::everythingDrawnIsANumber_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<GeneratorPoints>("points");
    for (int kind = 0; kind < static_cast<int>(GetGeneratorKinds().size()); ++kind)
    {
        for (const NamedPoints& named : GetDegeneratePoints())
            QTest::addRow("%s, %s", GetGeneratorKinds()[kind].pName, named.pName)
                << kind << named.points;
    }
}

void DegenerateDimensionsTest::everythingDrawnIsANumber()
{
    QFETCH(int, kind);
    QFETCH(GeneratorPoints, points);

    VerifyNumbers(GetGeneratorKinds()[kind], points);
}

void DegenerateDimensionsTest::everythingDrawnInAViewIsANumber_data()
{
    everythingDrawnIsANumber_data();
}

void DegenerateDimensionsTest::everythingDrawnInAViewIsANumber()
{
    QFETCH(int, kind);
    QFETCH(GeneratorPoints, points);
    CurrentView current;
    current.camera.SetSize(300, 200);

    VerifyNumbers(GetGeneratorKinds()[kind], points);
}

void DegenerateDimensionsTest::whatIsNoPointLeavesTheData_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("number");
    for (int kind = 0; kind < static_cast<int>(GetGeneratorKinds().size()); ++kind)
    {
        const GeneratorKind& generator = GetGeneratorKinds()[kind];
        for (int index = 0; index < generator.pointCount; ++index)
        {
            for (const double number : {Nan, Infinity, -Infinity, 1e31})
                QTest::addRow("%s, point %d, %g", generator.pName, index, number)
                    << kind << index << number;
        }
    }
}

void DegenerateDimensionsTest::whatIsNoPointLeavesTheData()
{
    QFETCH(int, kind);
    QFETCH(int, index);
    QFETCH(double, number);
    const GeneratorKind& generator = GetGeneratorKinds()[kind];
    GeneratorPoints points{Vector3d(0, 0, 0), Vector3d(9, 2, 0), Vector3d(5, 7, 0),
                           Vector3d(6, 8, 0)};
    points[static_cast<std::size_t>(index)].y() = number;
    GeneratorInput input;
    input.data[generator.field] = {Vector3d(1, 2, 3), 4.0};

    const OwnerPtr<IGraphicsNodeGroup> opGroup = generator.pGenerate(points, input);

    QCOMPARE(opGroup->GetChildCount(), 0);
    QCOMPARE(input.data[generator.field].textPosition, Vector3d(1, 2, 3));
    QCOMPARE_EXACTLY(input.data[generator.field].value, 4.0);
}

void DegenerateDimensionsTest::whatIsNoPixelCountsAsOne_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("pixel");
    for (int kind = 0; kind < static_cast<int>(GetGeneratorKinds().size()); ++kind)
    {
        for (const double pixel : {0.0, -1.0, Nan, Infinity, 1e-320, 1e300})
            QTest::addRow("%s, %g", GetGeneratorKinds()[kind].pName, pixel) << kind << pixel;
    }
}

void DegenerateDimensionsTest::whatIsNoPixelCountsAsOne()
{
    QFETCH(int, kind);
    QFETCH(double, pixel);
    const GeneratorKind& generator = GetGeneratorKinds()[kind];
    const GeneratorPoints points{Vector3d(0, 0, 0), Vector3d(90, 20, 0), Vector3d(50, 70, 0),
                                 Vector3d(60, 80, 0)};
    GeneratorInput one;
    GeneratorInput none;
    none.pixel = pixel;

    generator.pGenerate(points, one);
    const OwnerPtr<IGraphicsNodeGroup> opGroup = generator.pGenerate(points, none);

    QVERIFY(DrawnNodes(*opGroup).AreNumbers());
    QCOMPARE(none.data[generator.field].textPosition, one.data[generator.field].textPosition);
}

void DegenerateDimensionsTest::anglesNeverReachMinusAHalfTurn_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<GeneratorPoints>("points");
    const Vector3d o = Vector3d::Zero();
    const Vector3d x = Vector3d::UnitX();
    const Vector3d y = Vector3d::UnitY();
    const Vector3d back = -10 * x - 1e-20 * y;
    QTest::newRow("angle") << 1 << GeneratorPoints{o, back, o, o};
    QTest::newRow("central angle") << 6 << GeneratorPoints{o, 10 * x, back, back};
    QTest::newRow("rotation") << 8 << GeneratorPoints{o, 10 * x, back, o};
}

void DegenerateDimensionsTest::anglesNeverReachMinusAHalfTurn()
{
    QFETCH(int, kind);
    QFETCH(GeneratorPoints, points);
    const GeneratorKind& generator = GetGeneratorKinds()[kind];
    GeneratorInput input;

    const OwnerPtr<IGraphicsNodeGroup> opGroup = generator.pGenerate(points, input);

    QCOMPARE_EXACTLY(input.data[generator.field].value, 180.0);
    QVERIFY(DrawnNodes(*opGroup).arcs.at(0)->GetSweep() > 3.14);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::DegenerateDimensionsTest);
#include "DegenerateDimensionsTest.moc"
