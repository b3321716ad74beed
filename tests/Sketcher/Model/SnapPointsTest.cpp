#include "Model/SnapPoints.h"

#include "ShapeValues.h"
#include "Support/TestValues.h"

#include <cmath>

using vesk::Vector3d;
using Points = std::vector<Vector3d>;

namespace
{

const Vector3d s_up(0, 0, 1);
const ArcShape s_arc{{0, 0, 0}, 5, {5, 0, 0}, {0, 5, 0}, s_up};
const RectangleShape s_rectangle{
    {Vector3d(0, 0, 0), Vector3d(8, 0, 0), Vector3d(8, 6, 0), Vector3d(0, 6, 0)}};

}

class SnapPointsTest final : public QObject
{
    Q_OBJECT

private slots:
    void endsAreWhereAPieceBegins()
    {
        QCOMPARE(EndsOf(LineShape{{1, 2, 0}, {3, 4, 0}}), (Points{{1, 2, 0}, {3, 4, 0}}));
        QCOMPARE(EndsOf(s_arc), (Points{{5, 0, 0}, {0, 5, 0}}));
        QCOMPARE(EndsOf(s_rectangle), (Points{{0, 0, 0}, {8, 0, 0}, {8, 6, 0}, {0, 6, 0}}));
        QVERIFY(EndsOf(CircleShape{{1, 1, 0}, 2, s_up}).empty());
        QCOMPARE(EndsOf(ArcShape{{0, 0, 0}, 5, {5, 0, 0}, {5, 0, 0}, s_up}), (Points{{5, 0, 0}}));
    }

    void middlesLieOnTheOutline()
    {
        QCOMPARE(MiddlesOf(LineShape{{1, 2, 0}, {3, 4, 0}}), (Points{{2, 3, 0}}));
        QCOMPARE(MiddlesOf(s_rectangle), (Points{{4, 0, 0}, {8, 3, 0}, {4, 6, 0}, {0, 3, 0}}));
        QVERIFY(MiddlesOf(CircleShape{{1, 1, 0}, 2, s_up}).empty());

        const double half = 5 / std::sqrt(2.0);
        QVERIFY((MiddlesOf(s_arc)[0] - Vector3d(half, half, 0)).norm() <= 1e-12);
        const ArcShape rest{{0, 0, 0}, 5, {5, 0, 0}, {0, 5, 0}, -s_up};
        QVERIFY((MiddlesOf(rest)[0] - Vector3d(-half, -half, 0)).norm() <= 1e-12);
    }

    void whatIsRoundOrClosedHasACentre()
    {
        QVERIFY(!CentreOf(LineShape{{1, 2, 0}, {3, 4, 0}}).has_value());
        QCOMPARE(CentreOf(CircleShape{{1, 2, 0}, 2, s_up}), Vector3d(1, 2, 0));
        QCOMPARE(CentreOf(s_arc), Vector3d(0, 0, 0));
        QCOMPARE(CentreOf(s_rectangle), Vector3d(4, 3, 0));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(SnapPointsTest);
#include "SnapPointsTest.moc"
