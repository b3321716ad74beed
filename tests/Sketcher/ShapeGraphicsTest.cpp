#include "ShapeGraphics.h"

#include "ShapeMeasure.h"

#include "Graphics/IGraphicsNode.h"
#include "Support/TestValues.h"

#include <cmath>

using namespace vesk;

namespace
{

constexpr double Tolerance = 1e-9;

/// Measures how far the nodes stray from a shape, and counts them.
class StrayMeter final : public IGraphicsNodeVisitor
{
public:
    explicit StrayMeter(const Shape& shape) : m_shape(shape) {}

    void Visit(const IGraphicsLine& line) override
    {
        ++lines;
        for (int i = 0; i <= Steps; ++i)
            Note(line.GetStart() + (line.GetEnd() - line.GetStart()) * i / Steps);
    }

    void Visit(const IGraphicsArc& arc) override
    {
        ++arcs;
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

private:
    static constexpr int Steps = 50;

    void Note(const Vector3d& point) { stray = std::max(stray, DistanceTo(m_shape, point)); }

    const Shape& m_shape;
};

}

Q_DECLARE_METATYPE(Shape)

class ShapeGraphicsTest final : public QObject
{
    Q_OBJECT

private slots:
    void graphicsLieOnTheShape_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("arcs");

        const Vector3d up(0, 0, 1);
        QTest::newRow("line") << Shape(LineShape{{1, 2, 0}, {5, -4, 0}}) << 1 << 0;
        QTest::newRow("circle") << Shape(CircleShape{{10, 2, 0}, 3, up}) << 0 << 1;
        QTest::newRow("arc") << Shape(ArcShape{{9, 2, 0}, 5, {14, 2, 0}, {9, 7, 0}, up}) << 0 << 1;
        QTest::newRow("arc seen from behind")
            << Shape(ArcShape{{9, 2, 0}, 5, {14, 2, 0}, {9, 7, 0}, -up}) << 0 << 1;
        QTest::newRow("rectangle") << Shape(RectangleShape{{Vector3d(0, 0, 0), Vector3d(8, 0, 0),
                                                            Vector3d(8, 6, 0), Vector3d(0, 6, 0)}})
                                   << 4 << 0;
    }

    void graphicsLieOnTheShape()
    {
        QFETCH(Shape, shape);
        StrayMeter meter(shape);

        MakeRubberBand(shape)->Accept(meter);

        QTEST(meter.lines, "lines");
        QTEST(meter.arcs, "arcs");
        QVERIFY(meter.stray <= Tolerance);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ShapeGraphicsTest);
#include "ShapeGraphicsTest.moc"
