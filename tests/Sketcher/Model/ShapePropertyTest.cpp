#include "Model/ShapeProperty.h"

#include "ShapeValues.h"
#include "Support/TestValues.h"

#include <QSet>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

using vesk::Vector3d;

Q_DECLARE_METATYPE(Shape)

namespace
{

/// All points are at this height, which no property changes.
constexpr double Z = 7.0;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

using Corners = std::array<Vector3d, 4>;

Shape Line()
{
    return LineShape{{1, 2, Z}, {4, 6, Z}};
}

Shape Circle()
{
    return CircleShape{{1, 2, Z}, 3};
}

Shape Arc()
{
    return ArcShape{{1, 2, Z}, 5, {4, 6, Z}, {-4, 2, Z}};
}

Shape Upright()
{
    return RectangleShape{Corners{{{1, 2, Z}, {5, 2, Z}, {5, 5, Z}, {1, 5, Z}}}};
}

/// Width 5 and height 10, rotated by the angle whose cosine is 0.8.
Shape Turned()
{
    return RectangleShape{Corners{{{1, 2, Z}, {5, 5, Z}, {-1, 13, Z}, {-5, 10, Z}}}};
}

std::vector<Vector3d> PointsOf(const Shape& shape)
{
    if (const auto* pLine = std::get_if<LineShape>(&shape))
        return {pLine->start, pLine->end};
    if (const auto* pCircle = std::get_if<CircleShape>(&shape))
        return {pCircle->centre, pCircle->normal, Vector3d(pCircle->radius, 0, 0)};
    if (const auto* pArc = std::get_if<ArcShape>(&shape))
        return {pArc->centre, pArc->start, pArc->end, pArc->normal, Vector3d(pArc->radius, 0, 0)};
    const Corners& corners = std::get<RectangleShape>(shape).corners;
    return {corners.begin(), corners.end()};
}

bool IsNear(const Shape& shape, const Shape& expected)
{
    const std::vector<Vector3d> points = PointsOf(shape);
    const std::vector<Vector3d> expectedPoints = PointsOf(expected);
    bool isNear = shape.index() == expected.index();
    for (std::size_t i = 0; isNear && i < points.size(); ++i)
        isNear = (points[i] - expectedPoints[i]).norm() < 1e-12;
    return isNear;
}

const ShapeProperty& Find(const Shape& shape, const QString& name)
{
    const ShapeProperty* pProperty = FindProperty(shape, name.toStdWString());
    if (pProperty == nullptr)
        qFatal("no such property: %s", qPrintable(name));
    return *pProperty;
}

QStringList NamesOf(const std::vector<ShapeProperty>& properties)
{
    QStringList names;
    for (const ShapeProperty& property : properties)
        names << QString::fromStdWString(property.name);
    return names;
}

}

/// The readable and settable properties of shapes.
class ShapePropertyTest final : public QObject
{
    Q_OBJECT

private slots:
    void eachKindHasItsValuesInOrder_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<QString>("names");

        QTest::newRow("line") << Line() << "start.x start.y end.x end.y length angle";
        QTest::newRow("circle") << Circle() << "centre.x centre.y radius";
        QTest::newRow("arc") << Arc() << "centre.x centre.y radius";
        QTest::newRow("rectangle") << Upright() << "corner.x corner.y width height";
    }

    void eachKindHasItsValuesInOrder()
    {
        QFETCH(Shape, shape);
        QFETCH(QString, names);

        QCOMPARE(NamesOf(PropertiesOf(shape)).join(' '), names);
    }

    void allPropertiesNamesEachOnce()
    {
        QCOMPARE(NamesOf(AllProperties()).join(' '),
                 QStringLiteral("start.x start.y end.x end.y length angle centre.x centre.y radius "
                                "corner.x corner.y width height"));
    }

    void valuesOfOneNameAreCalledAlike()
    {
        for (const ShapeProperty& property : PropertiesOf(Arc()))
        {
            QCOMPARE(property.caption, FindProperty(Circle(), property.name)->caption);
            QCOMPARE(property.isAngle, FindProperty(Circle(), property.name)->isAngle);
        }
    }

    void noTwoValuesOfAKindAreCalledAlike_data() { eachKindHasItsValuesInOrder_data(); }

    void noTwoValuesOfAKindAreCalledAlike()
    {
        QFETCH(Shape, shape);
        QSet<QString> captions;
        for (const ShapeProperty& property : PropertiesOf(shape))
            captions.insert(QString::fromStdWString(property.caption));

        QCOMPARE(captions.size(), static_cast<int>(PropertiesOf(shape).size()));
        QVERIFY(!captions.contains(QString()));
    }

    void onlyTheAngleIsAnAngle()
    {
        for (const ShapeProperty& property : AllProperties())
            QCOMPARE(property.isAngle, property.name == L"angle");
    }

    void whatAKindDoesNotHaveIsNotFound_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<QString>("name");

        QTest::newRow("line") << Line() << "radius";
        QTest::newRow("circle") << Circle() << "length";
        QTest::newRow("arc") << Arc() << "start.x";
        QTest::newRow("rectangle") << Turned() << "angle";
        QTest::newRow("empty") << Line() << "";
        QTest::newRow("case") << Line() << "Length";
    }

    void whatAKindDoesNotHaveIsNotFound()
    {
        QFETCH(Shape, shape);
        QFETCH(QString, name);

        QVERIFY(FindProperty(shape, name.toStdWString()) == nullptr);
    }

    void aValueIsReadAndSetAndAllElseStays_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("before");
        QTest::addColumn<double>("after");
        QTest::addColumn<Shape>("changed");

        const double degrees = std::atan2(4.0, 3.0) * 180.0 / std::acos(-1.0);
        AddRow(Line(), "start.x", 1, -8, LineShape{{-8, 2, Z}, {4, 6, Z}});
        AddRow(Line(), "start.y", 2, -8, LineShape{{1, -8, Z}, {4, 6, Z}});
        AddRow(Line(), "end.x", 4, -8, LineShape{{1, 2, Z}, {-8, 6, Z}});
        AddRow(Line(), "end.y", 6, -8, LineShape{{1, 2, Z}, {4, -8, Z}});
        AddRow(Line(), "length", 5, 10, LineShape{{1, 2, Z}, {7, 10, Z}});
        AddRow(Line(), "angle", degrees, -90, LineShape{{1, 2, Z}, {1, -3, Z}});
        AddRow(Circle(), "centre.x", 1, 9, CircleShape{{9, 2, Z}, 3});
        AddRow(Circle(), "centre.y", 2, 9, CircleShape{{1, 9, Z}, 3});
        AddRow(Circle(), "radius", 3, 9, CircleShape{{1, 2, Z}, 9});
        AddRow(Arc(), "centre.x", 1, 11, ArcShape{{11, 2, Z}, 5, {14, 6, Z}, {6, 2, Z}});
        AddRow(Arc(), "centre.y", 2, 12, ArcShape{{1, 12, Z}, 5, {4, 16, Z}, {-4, 12, Z}});
        AddRow(Arc(), "radius", 5, 10, ArcShape{{1, 2, Z}, 10, {7, 10, Z}, {-9, 2, Z}});
        AddRow(Turned(), "corner.x", 1, 11, Rectangle({11, 2}, {15, 5}, {9, 13}, {5, 10}));
        AddRow(Turned(), "corner.y", 2, 12, Rectangle({1, 12}, {5, 15}, {-1, 23}, {-5, 20}));
        AddRow(Turned(), "width", 5, 10, Rectangle({1, 2}, {9, 8}, {3, 16}, {-5, 10}));
        AddRow(Turned(), "height", 10, 5, Rectangle({1, 2}, {5, 5}, {2, 9}, {-2, 6}));
        AddRow(Upright(), "width", 4, 1, Rectangle({1, 2}, {2, 2}, {2, 5}, {1, 5}));
        AddRow(Upright(), "height", 3, 1, Rectangle({1, 2}, {5, 2}, {5, 3}, {1, 3}));
    }

    void aValueIsReadAndSetAndAllElseStays()
    {
        QFETCH(Shape, shape);
        QFETCH(QString, name);
        QFETCH(double, before);
        QFETCH(double, after);
        QFETCH(Shape, changed);
        const ShapeProperty& property = Find(shape, name);

        const Shape result = property.set(shape, after);

        QCOMPARE(property.get(shape), before);
        QVERIFY(IsNear(result, changed));
        QCOMPARE(property.get(result), after);
        QVERIFY(IsDrawable(result));
    }

    void quartersAreExact_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");

        QTest::newRow("0") << 0.0 << 8.25 << 0.5;
        QTest::newRow("90") << 90.0 << 0.25 << 8.5;
        QTest::newRow("180") << 180.0 << -7.75 << 0.5;
        QTest::newRow("-90") << -90.0 << 0.25 << -7.5;
        QTest::newRow("-180") << -180.0 << -7.75 << 0.5;
        QTest::newRow("360") << 360.0 << 8.25 << 0.5;
    }

    void quartersAreExact()
    {
        QFETCH(double, degrees);
        QFETCH(double, x);
        QFETCH(double, y);
        const Shape line = LineShape{{0.25, 0.5, 0}, {0.25, 8.5, 0}};

        const auto turned = std::get<LineShape>(Find(line, "angle").set(line, degrees));

        QCOMPARE(turned.end, Vector3d(x, y, 0));
    }

    void whatIsNoSizeIsNotDrawable_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("value");

        const std::vector<std::pair<Shape, const char*>> sizes = {
            {Line(), "length"},  {Circle(), "radius"}, {Arc(), "radius"},    {Upright(), "width"},
            {Turned(), "width"}, {Turned(), "height"}, {Upright(), "height"}};
        for (const auto& [shape, name] : sizes)
        {
            for (const double value : {0.0, -5.0, 1e-7, 2e9, NotANumber, Infinity, -Infinity})
                QTest::addRow("%s %g of %zu", name, value, shape.index())
                    << shape << QString(name) << value;
        }
    }

    void whatIsNoSizeIsNotDrawable()
    {
        QFETCH(Shape, shape);
        QFETCH(QString, name);
        QFETCH(double, value);

        QVERIFY(!IsDrawable(Find(shape, name).set(shape, value)));
    }

private:
    struct Place
    {
        double x;
        double y;
    };

    static Shape Rectangle(Place a, Place b, Place c, Place d)
    {
        return RectangleShape{
            Corners{{{a.x, a.y, Z}, {b.x, b.y, Z}, {c.x, c.y, Z}, {d.x, d.y, Z}}}};
    }

    static void AddRow(const Shape& shape, const char* name, double before, double after,
                       const Shape& changed)
    {
        QTest::addRow("%s of %zu, %g", name, shape.index(), before)
            << shape << QString(name) << before << after << changed;
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ShapePropertyTest);
#include "ShapePropertyTest.moc"
