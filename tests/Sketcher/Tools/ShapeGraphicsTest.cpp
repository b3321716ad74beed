#include "Tools/ShapeGraphics.h"

#include "Model/ShapeMeasure.h"

#include "Graphics/IGraphicsNode.h"
#include "Support/TestValues.h"

#include <cmath>
#include <optional>

using namespace vesk;

namespace
{

constexpr double Tolerance = 1e-9;

/// Counts the nodes and measures their length and their greatest deviation from a shape.
class StrayMeter final : public IGraphicsNodeVisitor
{
public:
    explicit StrayMeter(const Shape& shape) : m_shape(shape) {}

    void Visit(const IGraphicsLine& line) override
    {
        ++lines;
        Begin(line.GetStart(), line.GetRole());
        length += (line.GetEnd() - line.GetStart()).norm();
        for (int i = 0; i <= Steps; ++i)
            Note(line.GetStart() + (line.GetEnd() - line.GetStart()) * i / Steps);
    }

    void Visit(const IGraphicsArc& arc) override
    {
        ++arcs;
        Begin(arc.GetCentre() + arc.GetRadius() * arc.GetXAxis(), arc.GetRole());
        length += arc.GetRadius() * arc.GetSweep();
        for (int i = 0; i <= Steps; ++i)
        {
            const double angle = arc.GetSweep() * i / Steps;
            Note(arc.GetCentre() + arc.GetRadius() * (std::cos(angle) * arc.GetXAxis() +
                                                      std::sin(angle) * arc.GetYAxis()));
        }
    }

    void Visit(const IGraphicsText&) override {}

    int lines = 0;
    int arcs = 0;
    double stray = 0.0;
    double length = 0.0;
    std::optional<Vector3d> start;
    bool isAllRubberBand = true;

private:
    static constexpr int Steps = 50;

    void Begin(const Vector3d& point, GraphicsRole role)
    {
        start = start.value_or(point);
        isAllRubberBand = isAllRubberBand && role == GraphicsRole::RubberBand;
    }

    void Note(const Vector3d& point) { stray = std::max(stray, DistanceTo(m_shape, point)); }

    const Shape& m_shape;
};

}

Q_DECLARE_METATYPE(Shape)
Q_DECLARE_METATYPE(Vector3d)

class ShapeGraphicsTest final : public QObject
{
    Q_OBJECT

private slots:
    void graphicsLieOnTheShape_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("arcs");
        QTest::addColumn<double>("length");
        QTest::addColumn<Vector3d>("start");

        const Vector3d up(0, 0, 1);
        const double turn = 2.0 * std::acos(-1.0);
        const Vector3d right(14, 2, 0);
        QTest::newRow("line") << Shape(LineShape{{1, 2, 0}, {5, -1, 0}}) << 1 << 0 << 5.0
                              << Vector3d(1, 2, 0);
        QTest::newRow("circle") << Shape(CircleShape{{10, 2, 0}, 4, up}) << 0 << 1 << 4 * turn
                                << right;
        QTest::newRow("arc") << Shape(ArcShape{{9, 2, 0}, 5, right, {9, 7, 0}, up}) << 0 << 1
                             << 5 * turn / 4 << right;
        QTest::newRow("arc seen from behind")
            << Shape(ArcShape{{9, 2, 0}, 5, right, {9, 7, 0}, -up}) << 0 << 1 << 5 * turn * 3 / 4
            << right;
        QTest::newRow("rectangle") << Shape(RectangleShape{{Vector3d(1, 0, 0), Vector3d(9, 0, 0),
                                                            Vector3d(9, 6, 0), Vector3d(1, 6, 0)}})
                                   << 4 << 0 << 28.0 << Vector3d(1, 0, 0);
    }

    void graphicsLieOnTheShape()
    {
        QFETCH(Shape, shape);
        StrayMeter meter(shape);

        MakeRubberBand(shape)->Accept(meter);

        QTEST(meter.lines, "lines");
        QTEST(meter.arcs, "arcs");
        QVERIFY(meter.stray <= Tolerance);
        QTEST(meter.length, "length");
        QTEST(*meter.start, "start");
        QVERIFY(meter.isAllRubberBand);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ShapeGraphicsTest);
#include "ShapeGraphicsTest.moc"
