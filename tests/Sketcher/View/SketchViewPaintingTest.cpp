#include "View/SketchViewFixture.h"

#include "HostUi/Contrast.h"
#include "Model/Pen.h"
#include "Support/TestValues.h"

#include <QPainter>

#include <cmath>

using namespace vesk;
using vesk::test::SketchViewFixture;

Q_DECLARE_METATYPE(Shape)

namespace
{

/// The highlight of the fixture at the alpha of the band, on white.
const QColor s_band(145, 145, 255);
const QColor s_grip(0, 0, 255);
const QColor s_black(0, 0, 0);
const QColor s_white(255, 255, 255);

/// A horizontal line through the centres of pixels, off the grid.
constexpr int LineY = 35;
const LineShape s_level{{-63, LineY, 0}, {63, LineY, 0}};

/// Shows the whole drawing at once, however busy the machine is.
struct Fixture : SketchViewFixture
{
    Fixture() { view.PaintAtOnce(); }
};

/// A colour painted over the strong lines of the grid.
QColor OverGrid(const QColor& colour)
{
    constexpr int Grid = 219;
    const auto mix = [&colour](int part) { return qRound(Grid + (part - Grid) * colour.alphaF()); };
    return {mix(colour.red()), mix(colour.green()), mix(colour.blue())};
}

/// Apart from rounding.
bool IsLike(const QColor& a, const QColor& b)
{
    return std::abs(a.red() - b.red()) <= 1 && std::abs(a.green() - b.green()) <= 1 &&
           std::abs(a.blue() - b.blue()) <= 1;
}

/// A line style as it appears: where along the row there is ink.
QString InkOf(const QImage& picture, int row)
{
    QString ink;
    for (int x = 0; x < picture.width(); ++x)
        ink += picture.pixelColor(x, row).lightness() < 128 ? QChar('#') : QChar('.');
    return ink;
}

QImage PaintLevelLine(Qt::PenStyle style)
{
    QImage picture(SketchViewFixture::Width, SketchViewFixture::Height, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1.0, style, Qt::SquareCap));
    const QPointF middle = QPointF(SketchViewFixture::PixelOf(0, LineY)) + QPointF(0.5, 0.5);
    painter.drawLine(middle - QPointF(63, 0), middle + QPointF(63, 0));
    return picture;
}

}

/// How the view shows the drawing.
class SketchViewPaintingTest final : public QObject
{
    Q_OBJECT

private slots:
    void theAxesCrossTheWholeView_data()
    {
        QTest::addColumn<QPoint>("centre");

        QTest::newRow("in the middle") << QPoint(0, 0);
        QTest::newRow("moved") << QPoint(40, -30);
    }

    void theAxesCrossTheWholeView()
    {
        QFETCH(QPoint, centre);
        Fixture f;
        const Vector3d middle(centre.x(), centre.y(), 0);
        f.view.Fit(middle, middle);

        const QImage picture = f.Picture();

        // Each is one pixel wide, over a line of the grid.
        const QPoint zero = SketchViewFixture::PixelOf(-centre.x(), -centre.y());
        const QColor red = OverGrid(QColor(0xd0, 0x6a, 0x62, 150));
        const QColor green = OverGrid(QColor(0x5f, 0xa8, 0x6a, 150));
        for (int x = 0; x < picture.width(); ++x)
        {
            const QColor found = picture.pixelColor(x, zero.y());
            QVERIFY2(x == zero.x() || IsLike(found, red), qPrintable(found.name()));
        }
        for (int y = 0; y < picture.height(); ++y)
        {
            const QColor found = picture.pixelColor(zero.x(), y);
            QVERIFY2(y == zero.y() || IsLike(found, green), qPrintable(found.name()));
        }
        for (const int beside : {-1, 1})
        {
            QCOMPARE(picture.pixelColor(zero + QPoint(5, beside)), s_white);
            QCOMPARE(picture.pixelColor(zero + QPoint(beside, 5)), s_white);
        }
    }

    void aLineHasTheColourOfItsPen_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QColor>("colour");

        QTest::newRow("default") << 0 << s_black;
        for (int i = 1; i < static_cast<int>(LineColours().size()); ++i)
            QTest::addRow("%d", i) << i << LineColours()[static_cast<std::size_t>(i)].colour;
    }

    void aLineHasTheColourOfItsPen()
    {
        QFETCH(int, index);
        QFETCH(QColor, colour);
        Fixture f;
        f.workspace.sketch.SetCurrentPen(&Pen::colour, index);

        f.workspace.sketch.Add(s_level);

        QCOMPARE(f.ColourAt(5, LineY), Legible(colour, f.view.palette()));
    }

    void aLineHasTheStyleOfItsPen_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("style");

        QTest::newRow("solid") << 0 << int(Qt::SolidLine);
        QTest::newRow("dashed") << 1 << int(Qt::DashLine);
        QTest::newRow("dotted") << 2 << int(Qt::DotLine);
        QTest::newRow("dashes and dots") << 3 << int(Qt::DashDotLine);
    }

    void aLineHasTheStyleOfItsPen()
    {
        QFETCH(int, index);
        QFETCH(int, style);
        Fixture f;
        f.workspace.sketch.SetCurrentPen(&Pen::style, index);

        f.workspace.sketch.Add(s_level);

        const int row = SketchViewFixture::PixelOf(0, LineY).y();
        QCOMPARE(InkOf(f.Picture(), row),
                 InkOf(PaintLevelLine(static_cast<Qt::PenStyle>(style)), row));
    }

    void aLineIsAsWideAsItsPen_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("reach");

        // So many rows above and below the middle one.
        QTest::newRow("0.25 mm") << 2 << 0;
        QTest::newRow("0.7 mm") << 5 << 1;
    }

    void aLineIsAsWideAsItsPen()
    {
        QFETCH(int, index);
        QFETCH(int, reach);
        Fixture f;
        f.workspace.sketch.SetCurrentPen(&Pen::width, index);

        f.workspace.sketch.Add(s_level);

        for (const int side : {-1, 1})
        {
            QCOMPARE(f.ColourAt(5, LineY + side * reach), s_black);
            QCOMPARE(f.ColourAt(5, LineY + side * (reach + 1)), s_white);
        }
        // The cap is square.
        QCOMPARE(f.ColourAt(63 + reach, LineY), s_black);
        QCOMPARE(f.ColourAt(63 + reach + 1, LineY), s_white);
    }

    void aLineWithoutAColourHasItsLayers()
    {
        Fixture f;
        f.workspace.sketch.Add(s_level);
        Layer layer;
        layer.colour = 4;

        f.workspace.sketch.SetLayer(layer);

        QCOMPARE(f.ColourAt(5, LineY), vesk::Legible(LineColours()[4].colour, f.view.palette()));
    }

    void aHiddenLayerIsNotPainted()
    {
        Fixture f;
        f.workspace.sketch.Add(s_level);
        Layer layer;
        layer.isVisible = false;

        f.workspace.sketch.SetLayer(layer);
        QCOMPARE(f.ColourAt(5, LineY), s_white);

        f.workspace.sketch.Undo();
        QCOMPARE(f.ColourAt(5, LineY), s_black);
    }

    void slantedLinesAreSmooth()
    {
        Fixture f;

        f.workspace.sketch.AddLine({-33, 11, 0}, {38, 27, 0});

        const QImage picture = f.Picture();
        int greyCount = 0;
        for (int y = 0; y < picture.height(); ++y)
        {
            const int lightness =
                picture.pixelColor(SketchViewFixture::PixelOf(6, 0).x(), y).lightness();
            greyCount += lightness > 20 && lightness < 210 ? 1 : 0;
        }
        QVERIFY(greyCount > 0);
    }

    void aChangeOfTheDrawingIsShown()
    {
        Fixture f;
        QCOMPARE(f.ColourAt(5, LineY), s_white);

        f.workspace.sketch.Add(s_level);
        QCOMPARE(f.ColourAt(5, LineY), s_black);

        f.workspace.sketch.Undo();
        QCOMPARE(f.ColourAt(5, LineY), s_white);
    }

    void aBandLiesBelowWhatIsSelected()
    {
        Fixture f;
        const int id = f.workspace.sketch.Add(s_level);
        f.workspace.sketch.AddLine({-63, -LineY, 0}, {63, -LineY, 0});
        QCOMPARE(f.ColourAt(5, LineY + 3), s_white);

        f.workspace.selection.Select({id});

        QCOMPARE(f.ColourAt(5, LineY + 3), s_band);
        QCOMPARE(f.ColourAt(5, LineY - 3), s_band);
        QCOMPARE(f.ColourAt(5, LineY), s_black);
        QCOMPARE(f.ColourAt(5, LineY + 4), s_white);
        QCOMPARE(f.ColourAt(5, LineY - 4), s_white);
        QCOMPARE(f.ColourAt(5, -LineY + 3), s_white);
    }

    void whatIsSelectedNoMoreHasNoBand()
    {
        Fixture f;
        const int id = f.workspace.sketch.Add(s_level);
        f.workspace.selection.Select({id});
        QCOMPARE(f.ColourAt(5, LineY + 3), s_band);

        f.workspace.selection.Select({});

        QCOMPARE(f.ColourAt(5, LineY + 3), s_white);
    }

    void gripsStandAtEndsAndCentres_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<QPoint>("grip");

        const Shape circle = CircleShape{{-55, 45, 0}, 33};
        const Shape rectangle = RectangleShape{
            {Vector3d(-35, 15, 0), Vector3d(45, 15, 0), Vector3d(45, 75, 0), Vector3d(-35, 75, 0)}};
        const Shape arc = ArcShape{{25, 35, 0}, 40, {65, 35, 0}, {25, 75, 0}};
        QTest::newRow("start of a line") << Shape(s_level) << QPoint(-63, LineY);
        QTest::newRow("end of a line") << Shape(s_level) << QPoint(63, LineY);
        QTest::newRow("centre of a circle") << circle << QPoint(-55, 45);
        QTest::newRow("first corner") << rectangle << QPoint(-35, 15);
        QTest::newRow("third corner") << rectangle << QPoint(45, 75);
        QTest::newRow("start of an arc") << arc << QPoint(65, 35);
        QTest::newRow("end of an arc") << arc << QPoint(25, 75);
        QTest::newRow("centre of an arc") << arc << QPoint(25, 35);
    }

    void gripsStandAtEndsAndCentres()
    {
        QFETCH(Shape, shape);
        QFETCH(QPoint, grip);
        Fixture f;
        const int id = f.workspace.sketch.Add(shape);

        f.workspace.selection.Select({id});

        // Seven pixels wide and high; an outline passes through it along a row, a column or both.
        const QImage picture = f.Picture();
        const QPoint middle = SketchViewFixture::PixelOf(grip.x(), grip.y());
        for (const QPoint& corner : {QPoint(-3, -3), QPoint(3, -3), QPoint(-3, 3), QPoint(3, 3)})
        {
            QCOMPARE(picture.pixelColor(middle + corner), s_grip);
            const QPoint outwards(corner.x() / 3, corner.y() / 3);
            QVERIFY(picture.pixelColor(middle + corner + outwards) != s_grip);
            QVERIFY(picture.pixelColor(middle + corner + QPoint(outwards.x(), 0)) != s_grip);
            QVERIFY(picture.pixelColor(middle + corner + QPoint(0, outwards.y())) != s_grip);
        }
    }

    void aBandRunsOverTheEdgeOfTheView()
    {
        Fixture f;
        const int level = f.workspace.sketch.AddLine({-500, 35, 0}, {500, 35, 0});
        const int upright = f.workspace.sketch.AddLine({45, -500, 0}, {45, 500, 0});

        f.workspace.selection.Select({level, upright});

        const QImage picture = f.Picture();
        const QPoint crossing = SketchViewFixture::PixelOf(45, 35);
        for (const int beside : {-3, 3})
        {
            QCOMPARE(picture.pixelColor(0, crossing.y() + beside), s_band);
            QCOMPARE(picture.pixelColor(picture.width() - 1, crossing.y() + beside), s_band);
            QCOMPARE(picture.pixelColor(crossing.x() + beside, 0), s_band);
            QCOMPARE(picture.pixelColor(crossing.x() + beside, picture.height() - 1), s_band);
        }
    }
};

VESK_TESTS(SketchViewPaintingTest);
#include "SketchViewPaintingTest.moc"
