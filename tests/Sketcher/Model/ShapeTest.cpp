#include "Model/Shape.h"

#include "ShapeValues.h"
#include "Support/TestValues.h"

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(Shape)

using vesk::Vector3d;

namespace
{

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
const Vector3d s_up(0, 0, 1);

const LineShape s_line{{1, 2, 3}, {4, 5, 6}};
const CircleShape s_circle{{1, 2, 0}, 3, s_up};
const ArcShape s_arc{{1, 2, 0}, 2, {3, 2, 0}, {1, 4, 0}, s_up};

RectangleShape MakeRectangle(double width, double height)
{
    return {{Vector3d(0, 0, 0), Vector3d(width, 0, 0), Vector3d(width, height, 0),
             Vector3d(0, height, 0)}};
}

}

class ShapeTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatHasASizeCanBeDrawn_data()
    {
        QTest::addColumn<Shape>("shape");

        QTest::newRow("shortest line") << Shape(LineShape{{0, 0, 0}, {1e-6, 0, 0}});
        QTest::newRow("longest line") << Shape(LineShape{{0, 0, 0}, {0, 1e9, 0}});
        QTest::newRow("least circle") << Shape(CircleShape{{5, 5, 0}, 1e-6, s_up});
        QTest::newRow("greatest circle") << Shape(CircleShape{{5, 5, 0}, 1e9, s_up});
        QTest::newRow("arc") << Shape(ArcShape{{1, 1, 0}, 2, {3, 1, 0}, {1, 3, 0}, s_up});
        QTest::newRow("whole turn") << Shape(ArcShape{{1, 1, 0}, 2, {3, 1, 0}, {3, 1, 0}, -s_up});
        QTest::newRow("arc with rounded ends")
            << Shape(ArcShape{{1e6, 0, 0}, 0.1, {1e6 + 0.1, 0, 0}, {1e6, 0.1, 0}, s_up});
        QTest::newRow("longest line, rounded up")
            << Shape(LineShape{{0, 0, 0}, {0, std::nextafter(1e9, 2e9), 0}});
        QTest::newRow("rectangle") << Shape(MakeRectangle(1e-6, 1e9));
        const double sine = std::sin(0.6);
        const double cosine = std::cos(0.6);
        QTest::newRow("rectangle with rounded corners") << Shape(
            RectangleShape{{Vector3d(0, 0, 0), Vector3d(1e6 * cosine, 1e6 * sine, 0),
                            Vector3d(1e6 * cosine - 3e5 * sine, 1e6 * sine + 3e5 * cosine, 0),
                            Vector3d(-3e5 * sine, 3e5 * cosine, 0)}});
        QTest::newRow("turned rectangle") << Shape(RectangleShape{
            {Vector3d(0, 0, 0), Vector3d(3, 4, 0), Vector3d(-1, 7, 0), Vector3d(-4, 3, 0)}});
    }

    void whatHasASizeCanBeDrawn()
    {
        QFETCH(Shape, shape);

        QVERIFY(IsDrawable(shape));
    }

    void whatHasNoneCannotBeDrawn_data()
    {
        QTest::addColumn<Shape>("shape");

        QTest::newRow("no line") << Shape(LineShape{{1, 1, 0}, {1, 1, 0}});
        QTest::newRow("too long a line") << Shape(LineShape{{-6e8, 0, 0}, {6e8, 0, 0}});
        QTest::newRow("line from nowhere") << Shape(LineShape{{NaN, 0, 0}, {1, 0, 0}});
        QTest::newRow("no circle") << Shape(CircleShape{{0, 0, 0}, 0.0, s_up});
        QTest::newRow("negative radius") << Shape(CircleShape{{0, 0, 0}, -1.0, s_up});
        QTest::newRow("radius without a value") << Shape(CircleShape{{0, 0, 0}, NaN, s_up});
        QTest::newRow("too great a circle") << Shape(CircleShape{{0, 0, 0}, 1.1e9, s_up});
        QTest::newRow("circle about nothing") << Shape(CircleShape{{0, NaN, 0}, 1.0, s_up});
        QTest::newRow("circle without a plane") << Shape(CircleShape{{0, 0, 0}, 1.0, {0, 0, 0}});
        QTest::newRow("start off the circle")
            << Shape(ArcShape{{0, 0, 0}, 2, {2.1, 0, 0}, {0, 2, 0}, s_up});
        QTest::newRow("end off the circle")
            << Shape(ArcShape{{0, 0, 0}, 2, {2, 0, 0}, {0, 1.9, 0}, s_up});
        QTest::newRow("end above the plane")
            << Shape(ArcShape{{0, 0, 0}, 2, {2, 0, 0}, {0, 0, 2}, s_up});
        QTest::newRow("too short an arc")
            << Shape(ArcShape{{0, 0, 0}, 2, {2, 0, 0}, {2, 0.9e-6, 0}, s_up});
        QTest::newRow("line to infinity")
            << Shape(LineShape{{0, 0, 0}, {std::numeric_limits<double>::infinity(), 0, 0}});
        QTest::newRow("line at infinity")
            << Shape(LineShape{{std::numeric_limits<double>::infinity(), 0, 0},
                               {std::numeric_limits<double>::infinity(), 1, 0}});
        QTest::newRow("no width") << Shape(MakeRectangle(0, 1));
        QTest::newRow("no height") << Shape(MakeRectangle(1, 0.9e-6));
        QTest::newRow("too wide") << Shape(MakeRectangle(1.1e9, 1));
        QTest::newRow("slanted") << Shape(RectangleShape{
            {Vector3d(0, 0, 0), Vector3d(4, 0, 0), Vector3d(5, 2, 0), Vector3d(1, 2, 0)}});
        QTest::newRow("not closed") << Shape(RectangleShape{
            {Vector3d(0, 0, 0), Vector3d(4, 0, 0), Vector3d(4, 2, 0), Vector3d(0, 3, 0)}});
    }

    void whatHasNoneCannotBeDrawn()
    {
        QFETCH(Shape, shape);

        QVERIFY(!IsDrawable(shape));
    }

    /// A computed number may be off by the rounding of sizes and positions of that magnitude.
    void whatIsOffButForRoundingCanBeDrawn_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<bool>("isDrawable");

        AddLines();
        AddRoundOnes();
        AddRectangles();
    }

    void whatIsOffButForRoundingCanBeDrawn()
    {
        QFETCH(Shape, shape);
        QFETCH(bool, isDrawable);

        QCOMPARE(IsDrawable(shape), isDrawable);
    }

    void aShapeWithoutNumbersCannotBeDrawn()
    {
        QVERIFY(!IsDrawable(CircleShape{Vector3d::Zero()}));
        QCOMPARE_EXACTLY(CircleShape().radius, 0.0);
        QCOMPARE_EXACTLY(ArcShape().radius, 0.0);
    }

    void shapesAreTheSameWhenEveryNumberIs_data()
    {
        QTest::addColumn<Shape>("shape");

        QTest::newRow("line") << Shape(s_line);
        QTest::newRow("circle") << Shape(s_circle);
        QTest::newRow("arc") << Shape(s_arc);
        QTest::newRow("rectangle") << Shape(MakeRectangle(1, 2));
    }

    void shapesAreTheSameWhenEveryNumberIs()
    {
        QFETCH(Shape, shape);
        const Shape same = shape;

        QCOMPARE(same, shape);
    }

    void shapesDifferWhenOneNumberDoes_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<Shape>("other");

        AddOther("start of a line", s_line, [](LineShape& line) { line.start.y() = 9; });
        AddOther("end of a line", s_line, [](LineShape& line) { line.end.x() = 9; });
        AddOther("centre of a circle", s_circle, [](CircleShape& c) { c.centre.x() = 9; });
        AddOther("radius of a circle", s_circle, [](CircleShape& c) { c.radius = 9; });
        AddOther("side of a circle", s_circle, [](CircleShape& c) { c.normal = -s_up; });
        AddOther("centre of an arc", s_arc, [](ArcShape& arc) { arc.centre.y() = 9; });
        AddOther("radius of an arc", s_arc, [](ArcShape& arc) { arc.radius = 9; });
        AddOther("start of an arc", s_arc, [](ArcShape& arc) { arc.start.x() = 9; });
        AddOther("end of an arc", s_arc, [](ArcShape& arc) { arc.end.x() = 9; });
        AddOther("side of an arc", s_arc, [](ArcShape& arc) { arc.normal = -s_up; });
        AddOther("first corner", MakeRectangle(1, 2),
                 [](RectangleShape& rectangle) { rectangle.corners[0].x() = 9; });
        AddOther("last corner", MakeRectangle(1, 2),
                 [](RectangleShape& rectangle) { rectangle.corners[3].y() = 9; });
        QTest::newRow("kind") << Shape(s_circle) << Shape(s_line);
    }

    void shapesDifferWhenOneNumberDoes()
    {
        QFETCH(Shape, shape);
        QFETCH(Shape, other);

        QVERIFY(!(shape == other));
        QVERIFY(!(other == shape));
    }

private:
    /// At the origin and a thousand kilometres to the right.
    static void AddLines()
    {
        const auto upwards = [](double x, double length) {
            return Shape(LineShape{{x, 0, 0}, {x, length, 0}});
        };
        QTest::newRow("just long enough") << upwards(0, 1e-6 - 1e-21) << true;
        QTest::newRow("just too short") << upwards(0, 1e-6 - 1.5e-21) << false;
        QTest::newRow("just short enough") << upwards(0, 1e9 + 1e-6) << true;
        QTest::newRow("just too long") << upwards(0, 1e9 + 1.2e-6) << false;
        QTest::newRow("long enough far away") << upwards(1e6, 1e-6 - 0.9e-9) << true;
        QTest::newRow("too short far away") << upwards(1e6, 1e-6 - 1.1e-9) << false;
    }

    static void AddRoundOnes()
    {
        const auto upright = [](double length) {
            return Shape(CircleShape{{0, 0, 0}, 1, {0, 0, length}});
        };
        QTest::newRow("normal too short, lost in rounding") << upright(1 - 0.9e-9) << true;
        QTest::newRow("normal too short") << upright(1 - 1.1e-9) << false;
        QTest::newRow("normal too long") << upright(1 + 1.1e-9) << false;

        const auto startingAt = [](double x, double z) {
            return Shape(ArcShape{{0, 0, 0}, 2, {x, 0, z}, {0, 2, 0}, s_up});
        };
        QTest::newRow("start beside the circle, lost in rounding")
            << startingAt(2 + 1.9e-9, 0) << true;
        QTest::newRow("start beside the circle") << startingAt(2 + 2.1e-9, 0) << false;
        QTest::newRow("start above the plane, lost in rounding") << startingAt(2, 2e-9) << true;
        QTest::newRow("start above the plane") << startingAt(2, 2.1e-9) << false;

        const auto farAway = [](double right) {
            return Shape(
                ArcShape{{0, 1e6, 0}, 1e-3, {1e-3 + right, 1e6, 0}, {-1e-3, 1e6, 0}, s_up});
        };
        QTest::newRow("small arc far away, lost in rounding") << farAway(0.9e-8) << true;
        QTest::newRow("small arc far away") << farAway(1.1e-8) << false;

        const auto ofLength = [](double radius, double length) {
            return Shape(ArcShape{{0, 0, 0},
                                  radius,
                                  {radius, 0, 0},
                                  {radius, radius * std::tan(length / radius), 0},
                                  s_up});
        };
        QTest::newRow("shortest arc") << ofLength(1, 1e-6) << true;
        QTest::newRow("arc of a great radius") << ofLength(2, 1.1e-6) << true;
        QTest::newRow("too short an arc of a great radius") << ofLength(2, 0.9e-6) << false;
    }

    static void AddRectangles()
    {
        const auto open = [](double gap) {
            RectangleShape rectangle = MakeRectangle(1, 0.5);
            rectangle.corners[3].x() += gap;
            return Shape(rectangle);
        };
        QTest::newRow("as far open as rounding may leave it") << open(1e-9 + 1e-14) << true;
        QTest::newRow("open") << open(1.1e-9) << false;

        const auto slanted = [](double width, double shift) {
            return Shape(RectangleShape{{Vector3d(-width, 0, 0), Vector3d(0, 0, 0),
                                         Vector3d(shift, width / 2, 0),
                                         Vector3d(shift - width, width / 2, 0)}});
        };
        QTest::newRow("as slanted as rounding may make it") << slanted(1, 1e-9) << true;
        QTest::newRow("slanted by more") << slanted(1, 1.1e-9) << false;
        QTest::newRow("large and slanted by rounding") << slanted(100, 0.9e-7) << true;
        QTest::newRow("large and slanted by more") << slanted(100, 1.1e-7) << false;
        QTest::newRow("small and slanted by rounding") << slanted(0.01, 0.9e-11) << true;
        QTest::newRow("small and slanted by more") << slanted(0.01, 1.1e-11) << false;
    }

    /// A row with a shape and a copy in which one number differs.
    template <class Kind, class Change>
    static void AddOther(const char* name, const Kind& shape, const Change& change)
    {
        Kind other = shape;
        change(other);
        QTest::newRow(name) << Shape(shape) << Shape(other);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ShapeTest);
#include "ShapeTest.moc"
