#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/GeneratorFixture.h"
#include "TemporaryDimensionHandlersImpl/KindTable.h"

namespace vesk::test
{
namespace
{

Vector3d Point(int number)
{
    return {1.0 + 10 * number, 2.0 * number * number, 0};
}

std::vector<Vector3d> Points(int count)
{
    std::vector<Vector3d> points;
    for (int i = 0; i < count; ++i)
        points.push_back(Point(i));
    return points;
}

/// A context in TiltedPlane() with the given points in order.
template <typename Context, int... numbers>
OwnerPtr<ITemporaryDimensionContext> Create()
{
    return MakeOwner<Context>(TiltedPlane(), Point(numbers)...);
}

/// A segment in TiltedPlane().
template <bool isLengthEnabled, bool isAngleEnabled>
OwnerPtr<ITemporaryDimensionContext> CreateSegment()
{
    OwnerPtr<ITemporaryDimensionContext> opContext =
        Create<LinearTemporaryDimensionContext, 0, 1>();
    auto& context = static_cast<LinearTemporaryDimensionContext&>(*opContext);
    context.SetLengthEnabled(isLengthEnabled);
    context.SetAngleEnabled(isAngleEnabled);
    return opContext;
}

/// A kind that generates graphics, and what it generates first or second.
struct ExpectedCall
{
    const char* row;
    OwnerPtr<ITemporaryDimensionContext> (*pCreateContext)();
    InputState typed; ///< What is being typed meanwhile.
    int callCount;
    int index;
    const char* generator;
    int pointCount; ///< Number of the context's points used, starting with the first.
    bool hasLines;
};

constexpr auto TiltedRadius = &Create<RadiusTemporaryDimensionContext, 0, 1, 2>;
constexpr auto TiltedCentralAngle = &Create<CentralAngleTemporaryDimensionContext, 0, 1, 2, 3>;
constexpr auto TiltedRectangle = &Create<RectangleTemporaryDimensionContext, 0, 1>;
constexpr auto TiltedRotation = &Create<RotationTemporaryDimensionContext, 0, 1, 2>;

// clang-format off
constexpr ExpectedCall Calls[]{
    {"segment, the length", &CreateSegment<true, true>, InputState::IS_Angle,
     2, 0, "length", 2, false},
    {"segment, the angle", &CreateSegment<true, true>, InputState::IS_Length,
     2, 1, "angle", 2, false},
    {"segment, only the length", &CreateSegment<true, false>, InputState::IS_None,
     1, 0, "length", 2, false},
    {"segment, only the angle", &CreateSegment<false, true>, InputState::IS_None,
     1, 0, "angle", 2, false},
    {"radius", TiltedRadius, InputState::IS_Radius,
     1, 0, "radius of 3 points", 3, false},
    {"central angle, the angle", TiltedCentralAngle, InputState::IS_CentralAngle,
     2, 0, "central angle", 4, true},
    {"central angle, the radius", TiltedCentralAngle, InputState::IS_CentralAngle,
     2, 1, "radius", 3, true},
    {"rectangle, the width", TiltedRectangle, InputState::IS_Height,
     2, 0, "width", 2, false},
    {"rectangle, the height", TiltedRectangle, InputState::IS_Height,
     2, 1, "height", 2, false},
    {"rotation", TiltedRotation, InputState::IS_CentralAngle,
     1, 0, "rotation", 3, false},
};
// clang-format on

}

/// What the kinds generate from the points of their contexts.
class DimensionGraphicsTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheDimensionsOfItsPointsInOrder_data();
    void showsTheDimensionsOfItsPointsInOrder();
    void cannotBePicked_data();
    void cannotBePicked();
};

void DimensionGraphicsTest::showsTheDimensionsOfItsPointsInOrder_data()
{
    QTest::addColumn<int>("call");
    for (std::size_t i = 0; i < std::size(Calls); ++i)
        QTest::newRow(Calls[i].row) << int(i);
}

void DimensionGraphicsTest::showsTheDimensionsOfItsPointsInOrder()
{
    QFETCH(int, call);
    const ExpectedCall& expected = Calls[call];
    GeneratorFixture f(expected.pCreateContext());
    f.SetState(expected.typed);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(expected.callCount));
    const GeneratorCall& actual = f.recorder.GetCalls()[std::size_t(expected.index)];
    QCOMPARE(actual.name, std::string(expected.generator));
    QCOMPARE(actual.points, Points(expected.pointCount));
    QCOMPARE(actual.hasLines, expected.hasLines);
    QVERIFY(f.IsOwnCall(actual));
    QCOMPARE(opGroup->GetChildCount(), expected.callCount);
    QCOMPARE(opGroup->GetChild(expected.index), actual.pResult);
}

void DimensionGraphicsTest::cannotBePicked_data()
{
    AddKindRows();
}

void DimensionGraphicsTest::cannotBePicked()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());

    QVERIFY(!f.opHandler->GenerateGraphics(f.opContext.Get())->IsPickable());
}

}

VESK_TESTS(vesk::test::DimensionGraphicsTest);
#include "DimensionGraphicsTest.moc"
