#include "View/SketchViewFixture.h"

#include "Support/TestValues.h"

#include <functional>
#include <vector>

using namespace vesk;
using vesk::test::SketchViewFixture;

using Change = std::function<void(Sketch& sketch, const std::vector<int>& ids)>;
Q_DECLARE_METATYPE(Change)

namespace
{

/// More than are painted at once.
constexpr int Many = 12000;

constexpr int LastY = 35;

/// Lines and circles of all pens across the view, and a level line as the last.
std::vector<Sketch::PenShape> ManyShapes()
{
    std::vector<Sketch::PenShape> shapes;
    for (int i = 0; i < Many; ++i)
    {
        const double x = i * 37 % 400 - 200;
        const double y = i * 53 % 300 - 150;
        Pen pen;
        pen.style = i % 4;
        pen.colour = i % 7;
        pen.width = i % 9;
        if (i % 3 == 0)
            shapes.emplace_back(CircleShape{{x, y, 0}, 1.0 + i % 20}, pen);
        else
            shapes.emplace_back(LineShape{{x, y, 0}, {x + i % 23 - 11.0, y + 1 + i % 17, 0}}, pen);
    }
    shapes.emplace_back(LineShape{{-63, LastY, 0}, {63, LastY, 0}}, Pen());
    return shapes;
}

const QColor s_black(0, 0, 0);
const QColor s_red = LineColours()[1].colour;

/// A fixture whose view shows many shapes, all of them.
struct ManyFixture : SketchViewFixture
{
    ManyFixture()
    {
        ids = workspace.sketch.Add(ManyShapes(), L"many");
        if (ids.empty())
            qFatal("a shape cannot be drawn");
        view.PaintAtOnce();
        whole = Picture();
    }

    std::vector<int> ids;
    QImage whole;
};

}

/// A drawing that takes long to paint.
class SketchViewSlicesTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatIsPaintedInSlicesLooksAsPaintedAtOnce()
    {
        ManyFixture atOnce;
        SketchViewFixture f;

        f.workspace.sketch.Add(ManyShapes(), L"many");

        QVERIFY(f.Picture() != atOnce.whole);
        QTRY_COMPARE(f.Picture(), atOnce.whole);
    }

    void soDoesWhatIsSelected()
    {
        ManyFixture atOnce;
        atOnce.workspace.selection.Select(atOnce.ids);
        const QImage whole = atOnce.Picture();
        SketchViewFixture f;
        const std::vector<int> ids = f.workspace.sketch.Add(ManyShapes(), L"many");

        f.workspace.selection.Select(ids);

        QVERIFY(f.Picture() != whole);
        QTRY_COMPARE(f.Picture(), whole);
    }

    void soDoesWhatIsSelectedAfterAChange_data()
    {
        QTest::addColumn<Change>("change");

        QTest::newRow("colour") << Change([](Sketch& sketch, const std::vector<int>& ids) {
            sketch.SetPen(ids, &Pen::colour, 1);
        });
        QTest::newRow("shape") << Change([](Sketch& sketch, const std::vector<int>& ids) {
            sketch.Replace({{ids.back(), LineShape{{-63, 0, 0}, {63, 0, 0}}}});
        });
        QTest::newRow("shape, then colour")
            << Change([](Sketch& sketch, const std::vector<int>& ids) {
                   sketch.Replace({{ids.back(), LineShape{{-63, 0, 0}, {63, 0, 0}}}});
                   sketch.SetPen(ids, &Pen::colour, 1);
               });
        QTest::newRow("hidden layer") << Change([](Sketch& sketch, const std::vector<int>&) {
            Layer layer = sketch.GetLayers().front();
            layer.isVisible = false;
            sketch.SetLayer(layer);
        });
    }

    void soDoesWhatIsSelectedAfterAChange()
    {
        QFETCH(Change, change);
        ManyFixture atOnce;
        atOnce.workspace.selection.Select(atOnce.ids);
        change(atOnce.workspace.sketch, atOnce.ids);
        const QImage whole = atOnce.Picture();
        SketchViewFixture f;
        const std::vector<int> ids = f.workspace.sketch.Add(ManyShapes(), L"many");
        f.workspace.selection.Select(ids);
        QTRY_VERIFY(f.view.IsWhole());

        change(f.workspace.sketch, ids);

        QTRY_COMPARE(f.Picture(), whole);
    }

    void whatIsDrawnIsShownAtOnce()
    {
        SketchViewFixture f;
        f.workspace.sketch.Add(ManyShapes(), L"many");
        QTRY_COMPARE(f.ColourAt(5, LastY), s_black);
        f.workspace.sketch.SetCurrentPen(&Pen::colour, 1);

        f.workspace.sketch.AddLine({-63, LastY, 0}, {63, LastY, 0});

        QCOMPARE(f.ColourAt(5, LastY), s_red);
    }

    void theDrawingIsShownAsItWasUntilItsChangeIsPainted()
    {
        SketchViewFixture f;
        const std::vector<int> ids = f.workspace.sketch.Add(ManyShapes(), L"many");
        QTRY_COMPARE(f.ColourAt(5, LastY), s_black);
        const QImage before = f.Picture();

        f.workspace.sketch.SetPen({ids.back()}, &Pen::colour, 1);
        QCOMPARE(f.Picture(), before);

        QTRY_COMPARE(f.ColourAt(5, LastY), s_red);
    }

    void aDrawingThatShrinksWhileItIsPaintedIsShown()
    {
        SketchViewFixture f;
        f.workspace.sketch.Add(ManyShapes(), L"many");
        QVERIFY(f.ColourAt(5, LastY) != s_black);

        f.workspace.sketch.Undo();
        f.workspace.sketch.AddLine({-63, LastY, 0}, {63, LastY, 0});
        QTRY_COMPARE(f.ColourAt(5, LastY), s_black);
        QTRY_COMPARE(f.ColourAt(5, -LastY), QColor(Qt::white));
    }
};

VESK_TESTS(SketchViewSlicesTest);
#include "SketchViewSlicesTest.moc"
