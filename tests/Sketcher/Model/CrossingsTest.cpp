#include "Model/Crossings.h"

#include "Geometry/Constants.h"
#include "Model/ArcGeometry.h"
#include "Model/ShapeMeasure.h"
#include "Support/TestValues.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

using vesk::Constants;
using vesk::Vector3d;
using Points = std::vector<Vector3d>;

Q_DECLARE_METATYPE(Piece)
Q_DECLARE_METATYPE(Points)

namespace
{

const Vector3d s_up(0, 0, 1);

Piece Line(double x1, double y1, double x2, double y2)
{
    return LineShape{{x1, y1, 0}, {x2, y2, 0}};
}

Piece Circle(double x, double y, double radius)
{
    return ToArc(CircleShape{{x, y, 0}, radius, s_up});
}

/// The upper half of a circle.
Piece Arch(double x, double y, double radius)
{
    return ArcShape{{x, y, 0}, radius, {x + radius, y, 0}, {x - radius, y, 0}, s_up};
}

Points Sorted(const Crossings& crossings)
{
    Points points(crossings.begin(), crossings.end());
    std::sort(points.begin(), points.end(), [](const Vector3d& a, const Vector3d& b) {
        return std::abs(a.x() - b.x()) > 1e-6 ? a.x() < b.x() : a.y() < b.y();
    });
    return points;
}

}

class CrossingsTest final : public QObject
{
    Q_OBJECT

private slots:
    void piecesMeetWhereTheyShould_data()
    {
        QTest::addColumn<Piece>("first");
        QTest::addColumn<Piece>("second");
        QTest::addColumn<Points>("expected");

        QTest::newRow("crossing lines")
            << Line(0, 0, 100, 0) << Line(80, -30, 80, 70) << Points{{80, 0, 0}};
        QTest::newRow("line that ends on another")
            << Line(0, 0, 100, 0) << Line(30, 0, 30, 70) << Points{{30, 0, 0}};
        QTest::newRow("lines that would meet")
            << Line(0, 0, 100, 0) << Line(30, 5, 30, 70) << Points{};
        QTest::newRow("parallel lines") << Line(0, 0, 100, 0) << Line(0, 5, 100, 5) << Points{};
        QTest::newRow("line along another") << Line(0, 0, 100, 0) << Line(20, 0, 60, 0) << Points{};

        QTest::newRow("line across a circle")
            << Line(-20, 6, 20, 6) << Circle(0, 0, 10) << Points{{-8, 6, 0}, {8, 6, 0}};
        QTest::newRow("line into a circle")
            << Line(0, 6, 20, 6) << Circle(0, 0, 10) << Points{{8, 6, 0}};
        QTest::newRow("tangent") << Line(-20, 10, 20, 10) << Circle(0, 0, 10) << Points{{0, 10, 0}};
        QTest::newRow("line past a circle")
            << Line(-20, 10.01, 20, 10.01) << Circle(0, 0, 10) << Points{};
        QTest::newRow("line within a circle") << Line(-5, 0, 5, 0) << Circle(0, 0, 10) << Points{};
        QTest::newRow("line through an arch")
            << Line(6, -20, 6, 20) << Arch(0, 0, 10) << Points{{6, 8, 0}};
        QTest::newRow("line through an arch and its start")
            << Line(10, 0, -10, 20) << Arch(0, 0, 10) << Points{{0, 10, 0}, {10, 0, 0}};

        QTest::newRow("circles") << Circle(0, 0, 10) << Circle(12, 0, 10)
                                 << Points{{6, -8, 0}, {6, 8, 0}};
        QTest::newRow("arch and circle")
            << Arch(0, 0, 10) << Circle(12, 0, 10) << Points{{6, 8, 0}};
        QTest::newRow("circles that touch")
            << Circle(0, 0, 10) << Circle(13, 0, 3) << Points{{10, 0, 0}};
        QTest::newRow("circle that touches from within")
            << Circle(0, 0, 10) << Circle(7, 0, 3) << Points{{10, 0, 0}};
        QTest::newRow("circles apart") << Circle(0, 0, 10) << Circle(20.1, 0, 10) << Points{};
        QTest::newRow("circle within") << Circle(0, 0, 10) << Circle(1, 0, 3) << Points{};
        QTest::newRow("about one centre") << Circle(0, 0, 10) << Circle(0, 0, 3) << Points{};
        QTest::newRow("the same circle") << Circle(0, 0, 10) << Circle(0, 0, 10) << Points{};
    }

    void piecesMeetWhereTheyShould()
    {
        QFETCH(Piece, first);
        QFETCH(Piece, second);
        QFETCH(Points, expected);

        for (const Points& points : {Sorted(Cross(first, second)), Sorted(Cross(second, first))})
        {
            QCOMPARE(points.size(), expected.size());
            for (std::size_t i = 0; i < points.size(); ++i)
                QVERIFY((points[i] - expected[i]).norm() <= 1e-6);
        }
    }

    /// A computed point may be off an outline by the rounding of numbers of that size.
    void whatMeetsButForRoundingMeets_data()
    {
        QTest::addColumn<Piece>("first");
        QTest::addColumn<Piece>("second");
        QTest::addColumn<int>("count");

        const auto tolerance = [](double size) { return Constants::DOUBLE_EPS + 1e-12 * size; };
        const double ofCircle = tolerance(10);
        const Piece circle = Circle(0, 0, 10);
        AddTangent("touches", circle, 10 + 0.95 * ofCircle, 1);
        AddTangent("just not", circle, 10 + (ofCircle + 0.5e-12), 0);
        QTest::newRow("just not, far away")
            << Line(1e9, 10 + 1e-4, 1e9 + 40, 10 + 1e-4) << Circle(1e9 + 20, 0, 10) << 0;

        // The rounding of their points exceeds the tolerance of small ones.
        for (int i = 1; i <= 3; ++i)
        {
            QTest::addRow("huge circles %d", i)
                << Circle(0, 0, 1e8) << Circle(1.3e8 / i, 0.7e8, 0.9e8) << 2;
        }

        const double ofLines = tolerance(1e6);
        const Piece level = Line(-1e6, 0, 1e6, 0);
        QTest::newRow("gap lost in rounding") << level << Line(5, 0.9 * ofLines, 5, 100) << 1;
        QTest::newRow("just as wide") << level << Line(0, ofLines, 0, 100) << 1;
        QTest::newRow("gap") << level << Line(5, 1.1 * ofLines, 5, 100) << 0;
    }

    void whatMeetsButForRoundingMeets()
    {
        QFETCH(Piece, first);
        QFETCH(Piece, second);
        QFETCH(int, count);

        for (const Crossings& crossings : {Cross(first, second), Cross(second, first)})
            QCOMPARE(static_cast<int>(crossings.end() - crossings.begin()), count);
    }

    void whatIsFoundByWalkingAlongIsFound()
    {
        std::mt19937 random(7);
        std::uniform_real_distribution<double> place(-100.0, 100.0);
        int found = 0;

        for (int i = 0; i < 400; ++i)
        {
            const ArcShape arc =
                std::get<ArcShape>(i % 2 == 0 ? Arch(place(random), place(random), 50)
                                              : Circle(place(random), place(random), 30 + i % 40));
            const Piece line = Line(place(random), place(random), place(random), place(random));
            const Crossings crossings = Cross(arc, line);
            found += static_cast<int>(crossings.end() - crossings.begin());
            QCOMPARE(crossings.end() - crossings.begin(), CountSignChanges(line, arc));
        }
        QVERIFY(found > 100);
    }

    void hugePiecesMeetToo()
    {
        const Crossings crossings = Cross(
            Line(-1e8, 12.5, 1e8, 12.5),
            ArcShape{
                {5, -1e8 + 10, 0}, 1e8, {5 + 1e8, -1e8 + 10, 0}, {5 - 1e8, -1e8 + 10, 0}, s_up});
        QCOMPARE(crossings.end() - crossings.begin(), 0);

        const Crossings below = Cross(Line(-1e8, 7.5, 1e8, 7.5), Circle(5, -1e8 + 10, 1e8));
        QCOMPARE(below.end() - below.begin(), 2);
        for (const Vector3d& point : below)
        {
            QVERIFY(std::abs(point.y() - 7.5) <= 1e-3);
            QVERIFY(std::abs(std::abs(point.x() - 5) - std::sqrt(2 * 2.5 * 1e8)) <= 1.0);
        }
    }

private:
    /// A horizontal line past a circle about the origin.
    static void AddTangent(const char* name, const Piece& circle, double height, int count)
    {
        QTest::newRow(name) << Line(-20, height, 20, height) << circle << count;
    }

    /// How often a walk along a straight piece crosses the circle within the arc.
    static std::ptrdiff_t CountSignChanges(const Piece& straight, const ArcShape& arc)
    {
        constexpr int Steps = 4000;
        const auto& line = std::get<LineShape>(straight);
        std::ptrdiff_t changes = 0;
        bool wasInside = (line.start - arc.centre).norm() < arc.radius;
        for (int i = 1; i <= Steps; ++i)
        {
            const Vector3d point = line.start + (line.end - line.start) * i / Steps;
            const bool isInside = (point - arc.centre).norm() < arc.radius;
            changes += isInside != wasInside && Spans(arc, point) ? 1 : 0;
            wasInside = isInside;
        }
        return changes;
    }
};

VESK_TESTS_WITHOUT_WINDOWS(CrossingsTest);
#include "CrossingsTest.moc"
