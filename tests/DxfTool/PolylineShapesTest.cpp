// SPDX-License-Identifier: GPL-3.0-or-later

#include "PolylineShapes.h"

#include "Support/TestValues.h"

#include <cmath>

using vesk::Vector3d;

namespace
{

using Corners = std::vector<PolylineVertex>;

const Corners s_square = {{{0, 0, 0}}, {{4, 0, 0}}, {{4, 4, 0}}, {{0, 4, 0}}};

}

Q_DECLARE_METATYPE(Vector3d)

class PolylineShapesTest final : public QObject
{
    Q_OBJECT

private slots:
    void closedRightAngledPolylineIsARectangle()
    {
        Corners repeated = s_square;
        repeated.push_back(s_square.front());

        QVERIFY(std::holds_alternative<RectangleShape>(ShapesOfPolyline(s_square, true).at(0)));
        QVERIFY(std::holds_alternative<RectangleShape>(ShapesOfPolyline(repeated, false).at(0)));
    }

    void othersAreLines()
    {
        Corners slanted = s_square;
        slanted[2].point.x() = 5;

        Corners bulged = s_square;
        bulged[1].bulge = 0.5;

        QCOMPARE(ShapesOfPolyline(bulged, true).size(), std::size_t(4));
        QCOMPARE(ShapesOfPolyline(s_square, false).size(), std::size_t(3));
        QCOMPARE(ShapesOfPolyline(slanted, true).size(), std::size_t(4));
        QVERIFY(ShapesOfPolyline(slanted, true).at(3) == Shape(LineShape{{0, 4, 0}, {0, 0, 0}}));
    }

    void bulgesAreArcs_data()
    {
        QTest::addColumn<double>("bulge");
        QTest::addColumn<Vector3d>("centre");
        QTest::addColumn<bool>("isTurned");

        const double quarter = std::tan(std::acos(-1.0) / 8.0);
        QTest::newRow("half") << 1.0 << Vector3d(2, 0, 0) << false;
        QTest::newRow("half clockwise") << -1.0 << Vector3d(2, 0, 0) << true;
        QTest::newRow("quarter") << quarter << Vector3d(2, 2, 0) << false;
        QTest::newRow("quarter clockwise") << -quarter << Vector3d(2, -2, 0) << true;
        QTest::newRow("three quarters") << 1.0 / quarter << Vector3d(2, -2, 0) << false;
    }

    void bulgesAreArcs()
    {
        QFETCH(double, bulge);
        QFETCH(Vector3d, centre);
        QFETCH(bool, isTurned);
        const Vector3d from(0, 0, 0);
        const Vector3d to(4, 0, 0);

        const auto shapes = ShapesOfPolyline({{from, bulge}, {to}}, false);

        const auto& arc = std::get<ArcShape>(shapes.at(0));
        QVERIFY((arc.centre - centre).norm() < 1e-12);
        QVERIFY(std::abs(arc.radius - (from - centre).norm()) < 1e-12);
        QCOMPARE(arc.start, isTurned ? to : from);
        QCOMPARE(arc.end, isTurned ? from : to);
        QVERIFY(IsDrawable(arc));
    }

    void bulgeTooFlatToSeeIsALine_data()
    {
        QTest::addColumn<double>("bulge");
        QTest::newRow("flat") << 1e-11;
        QTest::newRow("no number") << std::nan("");
    }

    void bulgeTooFlatToSeeIsALine()
    {
        QFETCH(double, bulge);

        const auto shapes = ShapesOfPolyline({{{0, 0, 0}, bulge}, {{4, 0, 0}}}, false);

        QVERIFY(shapes.at(0) == Shape(LineShape{{0, 0, 0}, {4, 0, 0}}));
    }

    void shortFlatBulgeIsALine()
    {
        const auto shapes = ShapesOfPolyline({{{0, 0, 0}, 1e-9}, {{0.001, 0, 0}}}, false);

        QVERIFY(shapes.at(0) == Shape(LineShape{{0, 0, 0}, {0.001, 0, 0}}));
    }

    void pointsMakeNoShape()
    {
        QVERIFY(ShapesOfPolyline({}, true).empty());
        QVERIFY(ShapesOfPolyline({{{1, 1, 0}}}, true).empty());
        QVERIFY(ShapesOfPolyline({{{1, 1, 0}}, {{1, 1, 0}}}, true).empty());
    }
};

VESK_TESTS_WITHOUT_APPLICATION(PolylineShapesTest);
#include "PolylineShapesTest.moc"
