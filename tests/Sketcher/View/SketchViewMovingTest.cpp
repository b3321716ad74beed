#include "View/SketchViewFixture.h"

#include "View/ScreenPens.h"
#include "View/ShapePainter.h"

#include "Support/TestValues.h"

#include <QPainter>
#include <QWheelEvent>

#include <cmath>
#include <random>
#include <vector>

using namespace vesk;
using vesk::test::SketchViewFixture;

namespace
{

double Between(std::mt19937& random, double low, double high)
{
    return low + (high - low) * static_cast<double>(random()) / 4294967296.0;
}

Pen RandomPen(std::mt19937& random)
{
    Pen pen;
    pen.style = static_cast<int>(random() % 4);
    pen.colour = static_cast<int>(random() % 7);
    pen.width = static_cast<int>(random() % 9);
    return pen;
}

Shape RandomShape(std::mt19937& random)
{
    const Vector3d place(Between(random, -400, 400), Between(random, -300, 300), 0);
    const double angle = Between(random, 0, 6.28);
    const double size = std::exp(Between(random, 0, 6));
    const Vector3d way = size * Vector3d(std::cos(angle), std::sin(angle), 0);
    const Vector3d across(-way.y(), way.x(), 0);
    switch (random() % 4)
    {
    case 0:
        return LineShape{place, place + way};
    case 1:
        return CircleShape{place, size};
    case 2:
        return ArcShape{place, size, place + way, place + across};
    default:
        return RectangleShape{{place, place + way, place + way + across, place + across}};
    }
}

std::vector<Sketch::PenShape> RandomShapes(unsigned seed, int count)
{
    std::mt19937 random(seed);
    std::vector<Sketch::PenShape> shapes;
    for (int i = 0; i < count; ++i)
        shapes.emplace_back(RandomShape(random), RandomPen(random));
    return shapes;
}

/// Many more than are painted in one slice, and all small.
std::vector<Sketch::PenShape> ManyShapes()
{
    std::mt19937 random(3);
    std::vector<Sketch::PenShape> shapes;
    for (int i = 0; i < 25000; ++i)
    {
        const Vector3d place(Between(random, -230, 230), Between(random, -170, 170), 0);
        shapes.emplace_back(LineShape{place, place + Vector3d(5, 3, 0)}, RandomPen(random));
    }
    return shapes;
}

/// Pans and zooms, each seen on the screen.
void MoveAbout(SketchViewFixture& f, unsigned seed)
{
    std::mt19937 random(seed);
    for (int i = 0; i < 6; ++i)
    {
        const QPointF place(Between(random, 0, 400), Between(random, 0, 300));
        QWheelEvent wheel(place, place, {}, {0, static_cast<int>(random() % 480) - 240},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&f.view, &wheel);
        f.view.repaint();
        const QPoint start(100, 100);
        const QPoint end = start + QPoint(static_cast<int>(random() % 120), 0) - QPoint(60, 7);
        f.Send(f.view, QEvent::MouseButtonPress, start, Qt::MiddleButton, Qt::MiddleButton);
        f.Send(f.view, QEvent::MouseMove, end, Qt::NoButton, Qt::MiddleButton);
        f.Send(f.view, QEvent::MouseButtonRelease, end, Qt::MiddleButton, Qt::NoButton);
        f.view.repaint();
    }
}

/// The picture once all of it is painted: on a slow machine that takes more than a slice.
QImage WholePicture(SketchViewFixture& f)
{
    while (!f.view.IsWhole())
        QCoreApplication::processEvents();
    return f.Picture();
}

/// What the view must show: all entities, one after another, over the empty drawing.
QImage PlainPicture(SketchViewFixture& f, const std::vector<Sketch::PenShape>& shapes)
{
    f.workspace.sketch.Undo();
    QImage picture = WholePicture(f);
    f.workspace.sketch.Redo();
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    ScreenPens pens(f.workspace.sketch, f.view.palette());
    for (const auto& [shape, pen] : shapes)
        PaintShape(painter, *pens.Find(pen), shape, f.view.GetCamera(),
                   QRectF(f.view.rect()).adjusted(-8, -8, 8, 8));
    return picture;
}

}

/// A drawing that is panned and zoomed.
class SketchViewMovingTest final : public QObject
{
    Q_OBJECT

private slots:
    void thePictureAtRestShowsEachEntityInDrawingOrder_data()
    {
        QTest::addColumn<unsigned>("seed");

        for (unsigned seed = 1; seed <= 50; ++seed)
            QTest::addRow("%u", seed) << seed;
    }

    void thePictureAtRestShowsEachEntityInDrawingOrder()
    {
        QFETCH(unsigned, seed);
        SketchViewFixture f;
        const std::vector<Sketch::PenShape> shapes = RandomShapes(seed, 60);
        QVERIFY(!f.workspace.sketch.Add(shapes, L"random").empty());

        MoveAbout(f, seed);

        const QImage whole = WholePicture(f);
        QCOMPARE(whole, PlainPicture(f, shapes));
    }

    void thePictureOfALargeDrawingAtRestIsAsIfItHadNeverMoved_data()
    {
        QTest::addColumn<bool>("isSelected");

        QTest::newRow("plain") << false;
        QTest::newRow("selected") << true;
    }

    void thePictureOfALargeDrawingAtRestIsAsIfItHadNeverMoved()
    {
        QFETCH(bool, isSelected);
        SketchViewFixture f;
        const std::vector<int> ids = f.workspace.sketch.Add(ManyShapes(), L"many");
        if (isSelected)
            f.workspace.selection.Select(ids);
        QTRY_VERIFY(f.view.IsWhole());

        MoveAbout(f, 5);
        QVERIFY(!f.view.IsWhole());
        QTRY_VERIFY(f.view.IsWhole());
        const QImage atRest = f.Picture();

        f.view.PaintAtOnce();
        f.SetColours(Qt::white, Qt::black);
        QCOMPARE(atRest, f.Picture());
    }

    void whatIsUncoveredIsPaintedBeforeAllIsPaintedAgain()
    {
        SketchViewFixture f;
        f.workspace.sketch.Add(ManyShapes(), L"many");
        Pen red;
        red.colour = 1;
        red.width = 8;
        f.workspace.sketch.Add({{LineShape{{-240, -40, 0}, {-240, 40, 0}}, red}}, L"outside");
        QTRY_VERIFY(f.view.IsWhole());

        f.Send(f.view, QEvent::MouseButtonPress, {100, 100}, Qt::MiddleButton, Qt::MiddleButton);
        f.Send(f.view, QEvent::MouseMove, {150, 100}, Qt::NoButton, Qt::MiddleButton);

        const QPoint place = f.PlaceOf(-240, 3).toPoint() * f.view.devicePixelRatio();
        while (!f.view.IsWhole() && f.Picture().pixelColor(place) != LineColours()[1].colour)
            QCoreApplication::processEvents();
        QVERIFY(!f.view.IsWhole());
    }
};

VESK_TESTS(SketchViewMovingTest);
#include "SketchViewMovingTest.moc"
