#include "View/ModelView.h"

#include "Support/TestValues.h"

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(vesk::Vector3d)
using Act = void (*)(vesk::ModelView&);
Q_DECLARE_METATYPE(Act)

namespace vesk
{

namespace
{

const double s_nan = std::numeric_limits<double>::quiet_NaN();
const double s_infinity = std::numeric_limits<double>::infinity();

/// 800 by 600 pixels of 0.5 mm around (100, 50).
ModelView MakeView()
{
    ModelView view;
    view.SetSize(800, 600);
    view.SetCentre(Vector3d(100, 50, 0));
    view.SetWorldPerPixel(0.5);
    return view;
}

bool IsSame(const ModelView& a, const ModelView& b)
{
    return a.GetCentre() == b.GetCentre() && a.GetWorldPerPixel() == b.GetWorldPerPixel() &&
           a.GetWidth() == b.GetWidth() && a.GetHeight() == b.GetHeight();
}

}

class ModelViewTest : public QObject
{
    Q_OBJECT

private slots:
    void oneUnitIsOnePixelAroundTheWorldOriginAtFirst();
    void theCentreIsInTheMiddle();
    void xGoesRightAndYGoesUp();
    void depthIsTheHeightAboveThePlane();
    void screenToWorldUndoesWorldToScreen();
    void resizingKeepsCentreAndScale();
    void scalingKeepsTheCentre();
    void theScaleIsKeptWithinItsBounds_data();
    void theScaleIsKeptWithinItsBounds();
    void theHeightOfACentreDoesNotMatter();
    void zoomingKeepsTheWorldPointUnderTheCursor_data();
    void zoomingKeepsTheWorldPointUnderTheCursor();
    void zoomingStopsAtTheBoundsAndStaysPut_data();
    void zoomingStopsAtTheBoundsAndStaysPut();
    void panningMovesThePicture();
    void fittingShowsTheBoxWithAMargin_data();
    void fittingShowsTheBoxWithAMargin();
    void fittingAPointCentresItOnly();
    void whatIsNoUsefulNumberChangesNothing_data();
    void whatIsNoUsefulNumberChangesNothing();
};

void ModelViewTest::oneUnitIsOnePixelAroundTheWorldOriginAtFirst()
{
    const ModelView view;

    QCOMPARE(view.GetWorldPerPixel(), 1.0);
    QCOMPARE(view.GetCentre(), Vector3d(0, 0, 0));
    QCOMPARE(view.GetWidth(), 1);
    QCOMPARE(view.GetHeight(), 1);
}

void ModelViewTest::theCentreIsInTheMiddle()
{
    const ModelView view = MakeView();
    double x = 0;
    double y = 0;
    double depth = 0;

    view.WorldToScreen(Vector3d(100, 50, 0), x, y, depth);

    QCOMPARE(x, 400.0);
    QCOMPARE(y, 300.0);
    QCOMPARE(view.ScreenToWorld(400, 300), Vector3d(100, 50, 0));
}

void ModelViewTest::xGoesRightAndYGoesUp()
{
    const ModelView view = MakeView();
    double x = 0;
    double y = 0;
    double depth = 0;

    view.WorldToScreen(Vector3d(110, 55, 0), x, y, depth);

    QCOMPARE(x, 420.0);
    QCOMPARE(y, 290.0);
    QCOMPARE(view.ScreenToWorld(0, 0), Vector3d(-100, 200, 0));
}

void ModelViewTest::depthIsTheHeightAboveThePlane()
{
    const ModelView view = MakeView();
    double x = 0;
    double y = 0;
    double depth = 0;

    view.WorldToScreen(Vector3d(100, 50, 7), x, y, depth);

    QCOMPARE(depth, 7.0);
    QCOMPARE(x, 400.0);
    QCOMPARE(view.ScreenToWorld(x, y).z(), 0.0);
}

void ModelViewTest::screenToWorldUndoesWorldToScreen()
{
    const ModelView view = MakeView();
    double x = 0;
    double y = 0;
    double depth = 0;

    view.WorldToScreen(Vector3d(12.25, -3.5, 0), x, y, depth);

    QVERIFY(Vector3dUtils::IsEqual(view.ScreenToWorld(x, y), Vector3d(12.25, -3.5, 0), 1e-12));
}

void ModelViewTest::resizingKeepsCentreAndScale()
{
    ModelView view = MakeView();

    view.SetSize(300, 200);

    QCOMPARE(view.GetWidth(), 300);
    QCOMPARE(view.GetHeight(), 200);
    QCOMPARE(view.GetWorldPerPixel(), 0.5);
    QCOMPARE(view.ScreenToWorld(150, 100), Vector3d(100, 50, 0));
}

void ModelViewTest::scalingKeepsTheCentre()
{
    ModelView view = MakeView();

    view.SetWorldPerPixel(4);

    QCOMPARE(view.GetWorldPerPixel(), 4.0);
    QCOMPARE(view.ScreenToWorld(400, 300), Vector3d(100, 50, 0));
    QCOMPARE(view.ScreenToWorld(401, 300), Vector3d(104, 50, 0));
}

void ModelViewTest::theScaleIsKeptWithinItsBounds_data()
{
    QTest::addColumn<double>("set");
    QTest::addColumn<double>("kept");

    QTest::newRow("too fine") << 1e-10 << 1e-9;
    QTest::newRow("finest") << 1e-9 << 1e-9;
    QTest::newRow("coarsest") << 1e9 << 1e9;
    QTest::newRow("too coarse") << 1e10 << 1e9;
}

void ModelViewTest::theScaleIsKeptWithinItsBounds()
{
    QFETCH(double, set);
    QFETCH(double, kept);
    ModelView view;

    view.SetWorldPerPixel(set);

    QCOMPARE(view.GetWorldPerPixel(), kept);
}

void ModelViewTest::theHeightOfACentreDoesNotMatter()
{
    ModelView view;

    view.SetCentre(Vector3d(1, 2, 3));

    QCOMPARE(view.GetCentre(), Vector3d(1, 2, 0));
}

void ModelViewTest::zoomingKeepsTheWorldPointUnderTheCursor_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("factor");

    QTest::newRow("in at a corner") << 0.0 << 0.0 << 1.25;
    QTest::newRow("out at a corner") << 800.0 << 600.0 << 0.8;
    QTest::newRow("far in") << 700.0 << 20.0 << 1e6;
    QTest::newRow("far out") << 700.0 << 20.0 << 1e-6;
    QTest::newRow("outside the view") << -50.0 << 900.0 << 2.0;
    QTest::newRow("not at all") << 10.0 << 10.0 << 1.0;
}

void ModelViewTest::zoomingKeepsTheWorldPointUnderTheCursor()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, factor);
    ModelView view = MakeView();
    const Vector3d before = view.ScreenToWorld(x, y);

    view.ZoomAbout(x, y, factor);

    const Vector3d after = view.ScreenToWorld(x, y);
    QVERIFY(std::abs(view.GetWorldPerPixel() * factor / 0.5 - 1) < 1e-12);
    QVERIFY(Vector3dUtils::IsEqual(before, after, 1e-9 * view.GetWorldPerPixel() + 1e-12));
}

void ModelViewTest::zoomingStopsAtTheBoundsAndStaysPut_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("worldPerPixel");

    QTest::newRow("in") << 1e20 << 1e-9;
    QTest::newRow("out") << 1e-20 << 1e9;
    QTest::newRow("out beyond the doubles") << 1e-308 << 1e9;
}

void ModelViewTest::zoomingStopsAtTheBoundsAndStaysPut()
{
    QFETCH(double, factor);
    QFETCH(double, worldPerPixel);
    ModelView view = MakeView();
    view.ZoomAbout(200, 100, factor);
    const ModelView atTheBound = view;

    view.ZoomAbout(700, 500, factor);

    QCOMPARE(view.GetWorldPerPixel(), worldPerPixel);
    QVERIFY(IsSame(view, atTheBound));
}

void ModelViewTest::panningMovesThePicture()
{
    ModelView view = MakeView();

    view.Pan(10, 20);

    QCOMPARE(view.GetCentre(), Vector3d(95, 60, 0));
    QCOMPARE(view.ScreenToWorld(410, 320), Vector3d(100, 50, 0));
}

void ModelViewTest::fittingShowsTheBoxWithAMargin_data()
{
    QTest::addColumn<Vector3d>("corner");
    QTest::addColumn<Vector3d>("oppositeCorner");
    QTest::addColumn<Vector3d>("centre");
    QTest::addColumn<double>("worldPerPixel");

    QTest::newRow("wide") << Vector3d(0, 0, 0) << Vector3d(1280, 10, 0) << Vector3d(640, 5, 0)
                          << 2.0;
    QTest::newRow("high") << Vector3d(0, 0, 0) << Vector3d(10, 960, 0) << Vector3d(5, 480, 0)
                          << 2.0;
    QTest::newRow("corners the other way round")
        << Vector3d(10, 960, 0) << Vector3d(0, 0, 0) << Vector3d(5, 480, 0) << 2.0;
    QTest::newRow("a level line") << Vector3d(-320, 7, 0) << Vector3d(320, 7, 0)
                                  << Vector3d(0, 7, 0) << 1.0;
    QTest::newRow("an upright line")
        << Vector3d(7, 0, 0) << Vector3d(7, 480, 0) << Vector3d(7, 240, 0) << 1.0;
    QTest::newRow("height only") << Vector3d(1, 2, 0) << Vector3d(1, 2, 9) << Vector3d(1, 2, 0)
                                 << 0.5;
    QTest::newRow("finer than the finest scale")
        << Vector3d(0, 0, 0) << Vector3d(1e-8, 0, 0) << Vector3d(5e-9, 0, 0) << 1e-9;
}

void ModelViewTest::fittingShowsTheBoxWithAMargin()
{
    QFETCH(Vector3d, corner);
    QFETCH(Vector3d, oppositeCorner);
    QFETCH(Vector3d, centre);
    QFETCH(double, worldPerPixel);
    ModelView view = MakeView();

    view.Fit(corner, oppositeCorner);

    QCOMPARE(view.GetCentre(), centre);
    QCOMPARE(view.GetWorldPerPixel(), worldPerPixel);
}

void ModelViewTest::fittingAPointCentresItOnly()
{
    ModelView view = MakeView();

    view.Fit(Vector3d(3, 4, 0), Vector3d(3, 4, 0));

    QCOMPARE(view.GetCentre(), Vector3d(3, 4, 0));
    QCOMPARE(view.GetWorldPerPixel(), 0.5);
}

void ModelViewTest::whatIsNoUsefulNumberChangesNothing_data()
{
    QTest::addColumn<Act>("act");
    const auto row = [](const char* name, Act act) { QTest::newRow(name) << act; };

    row("no width", [](ModelView& v) { v.SetSize(0, 100); });
    row("negative width", [](ModelView& v) { v.SetSize(-1, 100); });
    row("no height", [](ModelView& v) { v.SetSize(100, 0); });
    row("negative height", [](ModelView& v) { v.SetSize(100, -1); });
    row("centre NaN", [](ModelView& v) { v.SetCentre(Vector3d(s_nan, 0, 0)); });
    row("centre infinite", [](ModelView& v) { v.SetCentre(Vector3d(0, -s_infinity, 0)); });
    row("scale 0", [](ModelView& v) { v.SetWorldPerPixel(0); });
    row("scale negative", [](ModelView& v) { v.SetWorldPerPixel(-1); });
    row("scale NaN", [](ModelView& v) { v.SetWorldPerPixel(s_nan); });
    row("scale infinite", [](ModelView& v) { v.SetWorldPerPixel(s_infinity); });
    row("zoom by 0", [](ModelView& v) { v.ZoomAbout(1, 2, 0); });
    row("zoom by a negative", [](ModelView& v) { v.ZoomAbout(1, 2, -2); });
    row("zoom by NaN", [](ModelView& v) { v.ZoomAbout(1, 2, s_nan); });
    row("zoom by infinity", [](ModelView& v) { v.ZoomAbout(1, 2, s_infinity); });
    row("zoom about NaN", [](ModelView& v) { v.ZoomAbout(s_nan, 2, 2); });
    row("zoom about infinity", [](ModelView& v) { v.ZoomAbout(1, s_infinity, 2); });
    row("zoom about what overflows", [](ModelView& v) { v.ZoomAbout(1e308, 2, 1e-3); });
    row("pan by NaN", [](ModelView& v) { v.Pan(s_nan, 1); });
    row("pan by infinity", [](ModelView& v) { v.Pan(1, s_infinity); });
    row("fit NaN", [](ModelView& v) { v.Fit(Vector3d(s_nan, 0, 0), Vector3d(1, 1, 0)); });
    row("fit infinity", [](ModelView& v) { v.Fit(Vector3d(0, 0, 0), Vector3d(s_infinity, 1, 0)); });
    row("fit what overflows",
        [](ModelView& v) { v.Fit(Vector3d(-1e308, 0, 0), Vector3d(1e308, 1, 0)); });
}

void ModelViewTest::whatIsNoUsefulNumberChangesNothing()
{
    QFETCH(Act, act);
    ModelView view = MakeView();

    act(view);

    QVERIFY(IsSame(view, MakeView()));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ModelViewTest);
#include "ModelViewTest.moc"
