#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/LengthUnit.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Foundation/OwnerPtr.h"
#include "Support/TestValues.h"

#include <functional>
#include <vector>

namespace vesk
{

/// What a context was constructed from: three points of its plane, then its points.
using Points = std::vector<Vector3d>;
using Listing = std::function<Points()>;
using ContextMaking = std::function<OwnerPtr<ITemporaryDimensionContext>()>;

}

Q_DECLARE_METATYPE(vesk::Points)
Q_DECLARE_METATYPE(vesk::Listing)
Q_DECLARE_METATYPE(vesk::ContextMaking)

namespace vesk
{

namespace
{

const Vector3d s_a(1, 2, 3);
const Vector3d s_b(4, 5, 6);
const Vector3d s_c(7, 8, 9);
const Vector3d s_d(10, 11, 12);

/// A plane other than the default one.
Coordinate3d Plane()
{
    return {{1, 1, 1}, {0, 1, 0}, {0, 0, 1}};
}

CentralAngleTemporaryDimensionContext MakeCentralAngle()
{
    return {Plane(), s_a, s_b, s_c, s_d};
}

RadiusTemporaryDimensionContext MakeRadius()
{
    return {Plane(), s_a, s_b, s_c};
}

RectangleTemporaryDimensionContext MakeRectangle()
{
    return {Plane(), s_a, s_b};
}

RotationTemporaryDimensionContext MakeRotation()
{
    return {Plane(), s_a, s_b, s_c};
}

Points WithPlane(const Coordinate3d& plane, Points points)
{
    points.insert(points.begin(), {plane.GetX(), plane.GetY(), plane.ToWorld(Vector3d::Zero())});
    return points;
}

}

/// The contexts of all dimensions but the linear one.
class TemporaryDimensionContextTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LengthUnit::SetCurrent(LengthUnit::Millimetre()); }

    void aContextKeepsWhatItWasMadeOf_data();
    void aContextKeepsWhatItWasMadeOf();
    void lengthsAndAnglesOfTheModelMayBeTyped_data();
    void lengthsAndAnglesOfTheModelMayBeTyped();
    void lengthsAreInTheUnitThatWasShownThen_data();
    void lengthsAreInTheUnitThatWasShownThen();
    void theRangeOfARadiusCanBeNarrowed();
    void theRangeOfARectangleCanBeNarrowed();
    void theRangeOfACentralAngleCanBeSet();
    void theRangeOfARotationCanBeSet();
    void theCentralAngleOfARadiusIsShownOnDemand();
};

void TemporaryDimensionContextTest::aContextKeepsWhatItWasMadeOf_data()
{
    QTest::addColumn<Listing>("list");
    QTest::addColumn<Points>("points");
    QTest::newRow("central angle") << Listing([] {
        const auto context = MakeCentralAngle();
        return WithPlane(context.GetCoordinate(),
                         {context.GetCentre(), context.GetStartPoint(), context.GetEndPoint(),
                          context.GetCursorPoint()});
    }) << WithPlane(Plane(), {s_a, s_b, s_c, s_d});
    QTest::newRow("radius") << Listing([] {
        const auto context = MakeRadius();
        return WithPlane(
            context.GetCoordinate(),
            {context.GetFirstPoint(), context.GetSecondPoint(), context.GetThirdPoint()});
    }) << WithPlane(Plane(), {s_a, s_b, s_c});
    QTest::newRow("rectangle") << Listing([] {
        const auto context = MakeRectangle();
        return WithPlane(context.GetCoordinate(),
                         {context.GetFirstCorner(), context.GetOppositeCorner()});
    }) << WithPlane(Plane(), {s_a, s_b});
    QTest::newRow("rotation") << Listing([] {
        const auto context = MakeRotation();
        return WithPlane(context.GetCoordinate(),
                         {context.GetCentre(), context.GetFromPoint(), context.GetToPoint()});
    }) << WithPlane(Plane(), {s_a, s_b, s_c});
}

void TemporaryDimensionContextTest::aContextKeepsWhatItWasMadeOf()
{
    QFETCH(Listing, list);
    QFETCH(Points, points);

    QVERIFY(list() == points);
}

void TemporaryDimensionContextTest::lengthsAndAnglesOfTheModelMayBeTyped_data()
{
    QTest::addColumn<ContextMaking>("make");
    QTest::newRow("central angle") << ContextMaking(
        [] { return MakeOwner<CentralAngleTemporaryDimensionContext>(MakeCentralAngle()); });
    QTest::newRow("radius") << ContextMaking(
        [] { return MakeOwner<RadiusTemporaryDimensionContext>(MakeRadius()); });
    QTest::newRow("rectangle") << ContextMaking(
        [] { return MakeOwner<RectangleTemporaryDimensionContext>(MakeRectangle()); });
    QTest::newRow("rotation") << ContextMaking(
        [] { return MakeOwner<RotationTemporaryDimensionContext>(MakeRotation()); });
}

void TemporaryDimensionContextTest::lengthsAndAnglesOfTheModelMayBeTyped()
{
    QFETCH(ContextMaking, make);

    const OwnerPtr<ITemporaryDimensionContext> opContext = make();

    QCOMPARE(opContext->GetFirstValueRange().GetMin(), 1e-6);
    QCOMPARE(opContext->GetFirstValueRange().GetMax(), 1e9);
    QCOMPARE(opContext->GetSecondValueRange().GetMin(), -360.0);
    QCOMPARE(opContext->GetSecondValueRange().GetMax(), 360.0);
}

void TemporaryDimensionContextTest::lengthsAreInTheUnitThatWasShownThen_data()
{
    lengthsAndAnglesOfTheModelMayBeTyped_data();
}

void TemporaryDimensionContextTest::lengthsAreInTheUnitThatWasShownThen()
{
    QFETCH(ContextMaking, make);
    LengthUnit::SetCurrent(LengthUnit::Metre());

    const OwnerPtr<ITemporaryDimensionContext> opContext = make();

    QCOMPARE(opContext->GetFirstValueRange().GetMin(), 1e-9);
    QCOMPARE(opContext->GetFirstValueRange().GetMax(), 1e6);
    QCOMPARE(opContext->GetSecondValueRange().GetMax(), 360.0);
}

void TemporaryDimensionContextTest::theRangeOfARadiusCanBeNarrowed()
{
    RadiusTemporaryDimensionContext context = MakeRadius();

    context.SetFirstValueRange({1, 2});

    QCOMPARE(context.GetFirstValueRange().GetMin(), 1.0);
    QCOMPARE(context.GetFirstValueRange().GetMax(), 2.0);
    QCOMPARE(context.GetSecondValueRange().GetMax(), 360.0);
}

void TemporaryDimensionContextTest::theRangeOfARectangleCanBeNarrowed()
{
    RectangleTemporaryDimensionContext context = MakeRectangle();

    context.SetFirstValueRange({1, 2});

    QCOMPARE(context.GetFirstValueRange().GetMin(), 1.0);
    QCOMPARE(context.GetFirstValueRange().GetMax(), 2.0);
    QCOMPARE(context.GetSecondValueRange().GetMax(), 360.0);
}

void TemporaryDimensionContextTest::theRangeOfACentralAngleCanBeSet()
{
    CentralAngleTemporaryDimensionContext context = MakeCentralAngle();

    context.SetSecondValueRange({1, 2});

    QCOMPARE(context.GetSecondValueRange().GetMin(), 1.0);
    QCOMPARE(context.GetSecondValueRange().GetMax(), 2.0);
    QCOMPARE(context.GetFirstValueRange().GetMax(), 1e9);
}

void TemporaryDimensionContextTest::theRangeOfARotationCanBeSet()
{
    RotationTemporaryDimensionContext context = MakeRotation();

    context.SetSecondValueRange({1, 2});

    QCOMPARE(context.GetSecondValueRange().GetMin(), 1.0);
    QCOMPARE(context.GetSecondValueRange().GetMax(), 2.0);
    QCOMPARE(context.GetFirstValueRange().GetMax(), 1e9);
}

void TemporaryDimensionContextTest::theCentralAngleOfARadiusIsShownOnDemand()
{
    RadiusTemporaryDimensionContext context = MakeRadius();
    QVERIFY(!context.IsCentralAngleShown());

    context.SetCentralAngleShown(true);

    QVERIFY(context.IsCentralAngleShown());
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::TemporaryDimensionContextTest);
#include "TemporaryDimensionContextTest.moc"
