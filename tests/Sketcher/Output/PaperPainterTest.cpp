#include "Output/PaperPainter.h"

#include "Output/DrawnOnPaper.h"

#include "Support/TestValues.h"

#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <optional>

using vesk::Vector3d;

namespace
{

constexpr double PixelsPerMillimetre = 20.0;

/// A sheet of 10 x 10 mm whose lower left corner is (0, 0).
void PaintSheet(QPainter& painter, const SketchContent& content, double scale)
{
    const PaperPlacement placement{scale, {0.0, 10.0 / scale, 0.0}, {10.0, 10.0}};
    PaintOnPaper(painter, content, placement, [](double) { return true; });
}

/// The sheet, painted with 20 pixels per millimetre.
QImage Paint(const SketchContent& content, double scale = 1.0)
{
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(PixelsPerMillimetre, PixelsPerMillimetre);
    PaintSheet(painter, content, scale);
    return image;
}

/// Takes the paths that are painted as they are.
class PathEngine final : public QPaintEngine
{
public:
    PathEngine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPath(const QPainterPath& drawn) override { path.addPath(drawn); }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    Type type() const override { return User; }

    QPainterPath path;
};

class PathRecorder final : public QPaintDevice
{
public:
    QPaintEngine* paintEngine() const override { return &m_engine; }
    const QPainterPath& GetPath() const { return m_engine.path; }

private:
    int metric(PaintDeviceMetric) const override { return 1000; }

    mutable PathEngine m_engine;
};

/// The greatest share of the radius that a path of curves is off a circle.
double ErrorOf(const QPainterPath& path, const QPointF& centre, double radius)
{
    constexpr int StepsPerCurve = 40;
    double error = 0.0;
    for (int i = 1; i + 2 < path.elementCount(); i += 3)
    {
        QPainterPath curve(path.elementAt(i - 1));
        curve.cubicTo(path.elementAt(i), path.elementAt(i + 1), path.elementAt(i + 2));
        for (int step = 0; step <= StepsPerCurve; ++step)
        {
            const QPointF spoke = curve.pointAtPercent(double(step) / StepsPerCurve) - centre;
            error = std::max(error, std::abs(std::hypot(spoke.x(), spoke.y()) / radius - 1.0));
        }
    }
    return error;
}

QColor At(const QImage& image, double x, double y)
{
    return image.pixelColor(static_cast<int>(x * PixelsPerMillimetre),
                            static_cast<int>((10.0 - y) * PixelsPerMillimetre));
}

/// The height in millimetres of what is not white in a column of the picture.
double InkAt(const QImage& image, double x)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        count += image.pixelColor(static_cast<int>(x * PixelsPerMillimetre), y) != Qt::white;
    return count / PixelsPerMillimetre;
}

int WidthIndex(double millimetres)
{
    int index = 0;
    for (const LineWidth& width : LineWidths())
    {
        if (width.millimetres == millimetres)
            return index;
        ++index;
    }
    return -1;
}

}

Q_DECLARE_METATYPE(Shape)

class PaperPainterTest final : public QObject
{
    Q_OBJECT

private slots:
    void linesHaveTheirWidthsOnPaperAtAnyScale_data()
    {
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("scale");

        QTest::newRow("thick") << 1.0 << 1.0;
        QTest::newRow("thin") << 0.5 << 1.0;
        QTest::newRow("reduced") << 1.0 << 0.01;
        QTest::newRow("enlarged") << 1.0 << 4.0;
    }

    void linesHaveTheirWidthsOnPaperAtAnyScale()
    {
        QFETCH(double, width);
        QFETCH(double, scale);
        QVERIFY(WidthIndex(width) >= 0);
        SketchContent content =
            ContentOf({LineShape{{0.0, 5.0 / scale, 0.0}, {10.0 / scale, 5.0 / scale, 0.0}}});
        content.entities.front().pen.width = WidthIndex(width);

        const QImage image = Paint(content, scale);

        QCOMPARE(InkAt(image, 3.0), width);
        QCOMPARE(At(image, 3.0, 5.0), QColor(Qt::black));
    }

    void roundShapesAreExact_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<QPointF>("within");
        QTest::addColumn<QPointF>("without");

        const Vector3d up(0, 0, 1);
        const double half = std::sqrt(0.5);
        const QPointF upperRight(5 + 4 * half, 5 + 4 * half);
        const QPointF lowerLeft(5 - 4 * half, 5 - 4 * half);
        QTest::newRow("circle") << Shape(CircleShape{{5, 5, 0}, 4, up}) << upperRight
                                << QPointF(5, 5);
        QTest::newRow("arc") << Shape(ArcShape{{5, 5, 0}, 4, {9, 5, 0}, {5, 9, 0}, up})
                             << upperRight << lowerLeft;
        QTest::newRow("clockwise")
            << Shape(ArcShape{{5, 5, 0}, 4, {9, 5, 0}, {5, 9, 0}, -up}) << lowerLeft << upperRight;
        QTest::newRow("over the edge")
            << Shape(CircleShape{{-95, 5, 0}, 100, up}) << QPointF(5, 5) << QPointF(5.3, 5);
        QTest::newRow("huge") << Shape(CircleShape{{5 - 1e8, 5, 0}, 1e8, up}) << QPointF(5, 1)
                              << QPointF(5.3, 1);
    }

    void roundShapesAreExact()
    {
        QFETCH(Shape, shape);
        QFETCH(QPointF, within);
        QFETCH(QPointF, without);

        const QImage image = Paint(ContentOf({shape}));

        QCOMPARE(At(image, within.x(), within.y()), QColor(Qt::black));
        QCOMPARE(At(image, without.x(), without.y()), QColor(Qt::white));
    }

    void curvesStayWithinAMillionthOfTheRadius()
    {
        PathRecorder recorder;
        QPainter painter(&recorder);

        PaintSheet(painter, ContentOf({CircleShape{{5, 5, 0}, 4, Vector3d::UnitZ()}}), 1.0);
        painter.end();

        QVERIFY(recorder.GetPath().elementCount() > 3);
        QVERIFY(ErrorOf(recorder.GetPath(), {5, 5}, 4) < 1e-6);
    }

    void roundShapesAreReducedWithTheDrawing()
    {
        const SketchContent large = ContentOf({CircleShape{{10, 10, 0}, 8, Vector3d::UnitZ()}});
        const SketchContent small = ContentOf({CircleShape{{5, 5, 0}, 4, Vector3d::UnitZ()}});

        QCOMPARE(Paint(large, 0.5), Paint(small));
    }

    void anArcStaysOpen()
    {
        const ArcShape arc{{5, 5, 0}, 4, {9, 5, 0}, {5, 9, 0}, Vector3d::UnitZ()};

        QCOMPARE(At(Paint(ContentOf({arc})), 7, 7), QColor(Qt::white));
    }

    void theSidesOfARectangleMeetInSharpCorners()
    {
        SketchContent content =
            ContentOf({RectangleShape{{Vector3d(2, 2, 0), {8, 2, 0}, {8, 8, 0}, {2, 8, 0}}}});
        content.entities.front().pen.width = WidthIndex(1.0);

        const QImage image = Paint(content);

        for (const double x : {1.6, 8.4})
        {
            QCOMPARE(At(image, x, 1.6), QColor(Qt::black));
            QCOMPARE(At(image, x, 8.4), QColor(Qt::black));
        }
    }

    void theDefaultColourIsTheLayersAndItsDefaultBlack()
    {
        SketchContent content =
            ContentOf({LineShape{{0, 2, 0}, {9, 2, 0}}, LineShape{{0, 4, 0}, {9, 4, 0}},
                       LineShape{{0, 6, 0}, {9, 6, 0}}});
        content.layers.push_back({1, L"red", 1, true, false});
        content.entities[1].pen.layer = 1;
        content.entities[2].pen.layer = 1;
        content.entities[2].pen.colour = 4;

        const QImage image = Paint(content);

        QCOMPARE(At(image, 5, 2), QColor(Qt::black));
        QCOMPARE(At(image, 5, 4), LineColours()[1].colour);
        QCOMPARE(At(image, 5, 6), LineColours()[4].colour);
    }

    void hiddenLayersAreLeftOutAndLockedOnesAreNot()
    {
        SketchContent content =
            ContentOf({LineShape{{0, 2, 0}, {9, 2, 0}}, LineShape{{0, 400, 0}, {9, 400, 0}}});
        content.layers.push_back({1, L"hidden", 0, false, false});
        content.layers.push_back({2, L"locked", 0, true, true});
        content.entities[0].pen.layer = 2;
        content.entities[1].pen.layer = 1;

        const QImage image = Paint(content);
        const std::optional<ShapeBounds> bounds = VisibleBounds(content);

        QCOMPARE(At(image, 5, 2), QColor(Qt::black));
        QVERIFY(bounds.has_value());
        QCOMPARE(bounds->high, Vector3d(9, 2, 0));
        content.layers[2].isVisible = false;
        QVERIFY(!VisibleBounds(content).has_value());
        QCOMPARE(Paint(content), Paint(SketchContent()));
    }

    void stylesAreDashed()
    {
        SketchContent content = ContentOf({LineShape{{0, 5, 0}, {10, 5, 0}}});
        content.entities.front().pen.style = 1;
        content.entities.front().pen.width = WidthIndex(0.5);

        const QImage image = Paint(content);

        // Four widths of ink, two of paper.
        QCOMPARE(At(image, 1.9, 5), QColor(Qt::black));
        QCOMPARE(At(image, 2.1, 5), QColor(Qt::white));
        QCOMPARE(At(image, 2.9, 5), QColor(Qt::white));
        QCOMPARE(At(image, 3.1, 5), QColor(Qt::black));
    }

    void theDashesOfAPartAreInThePlacesOfTheWhole_data()
    {
        QTest::addColumn<double>("length");
        QTest::addColumn<QColor>("colour");

        // Two millimetres of ink and one of paper, counted from (7, 5) against the clock.
        QTest::newRow("first dash") << 1.0 << QColor(Qt::black);
        QTest::newRow("first gap") << 2.5 << QColor(Qt::white);
        QTest::newRow("late dash") << 73.0 << QColor(Qt::black);
        QTest::newRow("late gap") << 71.5 << QColor(Qt::white);
    }

    void theDashesOfAPartAreInThePlacesOfTheWhole()
    {
        QFETCH(double, length);
        // It leaves the sheet and comes back.
        SketchContent content = ContentOf({CircleShape{{-5, 5, 0}, 12, Vector3d::UnitZ()}});
        content.entities.front().pen.style = 1;
        content.entities.front().pen.width = WidthIndex(0.5);

        const QImage image = Paint(content);

        const double angle = length / 12.0;
        QTEST(At(image, -5 + 12 * std::cos(angle), 5 + 12 * std::sin(angle)), "colour");
    }

    void theBoundsAreThoseOfAllShapes()
    {
        const SketchContent content =
            ContentOf({LineShape{{10, 30, 0}, {40, 50, 0}}, LineShape{{0, 40, 0}, {60, 45, 0}},
                       LineShape{{20, 20, 0}, {30, 70, 0}}});

        const std::optional<ShapeBounds> bounds = VisibleBounds(content);

        QVERIFY(bounds.has_value());
        QCOMPARE(bounds->low, Vector3d(0, 20, 0));
        QCOMPARE(bounds->high, Vector3d(60, 70, 0));
    }

    void theMarginIsThatOfThePaper()
    {
        const ShapeBounds bounds{{10, 20, 0}, {110, 70, 0}};

        const auto placement = PaperPlacement::Around(bounds, 0.5, 5.0, 1.0);

        QCOMPARE(placement.paper, QSizeF(60, 35));
        QCOMPARE(placement.topLeft, Vector3d(0, 80, 0));
    }

    void sheetAroundADrawingHasAMarginAndWholeUnits()
    {
        const ShapeBounds bounds{{10, 20, 0}, {110.2, 70, 0}};

        const auto placement = PaperPlacement::Around(bounds, 1.0, 5.0, 1.0);

        QCOMPARE(placement.paper, QSizeF(111, 60));
        QCOMPARE(placement.topLeft, Vector3d(5, 75, 0));
    }

    void drawingIsInTheMiddleOfItsSheet()
    {
        const ShapeBounds bounds{{10, 20, 0}, {30, 40, 0}};

        const auto placement = PaperPlacement::Centred(bounds, 0.5, {100.0, 200.0});

        QCOMPARE(placement.topLeft, Vector3d(20 - 100, 30 + 200, 0));
    }

    void stoppedWorkSaysSo()
    {
        const SketchContent content = ContentOf({LineShape{{0, 5, 0}, {10, 5, 0}}});
        QImage image(10, 10, QImage::Format_RGB32);
        QPainter painter(&image);

        QVERIFY(!PaintOnPaper(painter, content, {}, [](double) { return false; }));
        QVERIFY(PaintOnPaper(painter, content, {}, [](double) { return true; }));
    }
};

VESK_TESTS(PaperPainterTest);
#include "PaperPainterTest.moc"
