#include "View/SketchView.h"

#include "Support/TestValues.h"
#include "View/SketchViewFixture.h"

#include <QApplication>

#include <vector>

using namespace vesk;
using vesk::test::PaintCounter;
using vesk::test::SketchViewFixture;
using Ids = std::vector<int>;

/// What the drawing view does with mouse and keys, and what it shows.
class SketchViewTest final : public QObject
{
    Q_OBJECT

private slots:
    void theViewHasAName()
    {
        SketchViewFixture f;

        QCOMPARE(f.view.objectName(), QString("SketchView"));
        QCOMPARE(f.view.GetId(), 1u);
    }

    void allOfADrawingIsShown()
    {
        SketchViewFixture f;
        f.workspace.sketch.AddLine({30, -60, 0}, {10, 40, 0});
        f.workspace.sketch.Add(CircleShape{{-50, 70, 0}, 20});
        f.workspace.sketch.AddLine({0, 0, 0}, {5, 5, 0});
        ModelView expected;
        expected.SetSize(SketchViewFixture::Width, SketchViewFixture::Height);
        expected.Fit({-70, -60, 0}, {30, 90, 0});

        f.view.ZoomAll();

        QVERIFY((f.view.GetCamera().GetCentre() - expected.GetCentre()).norm() < 1e-9);
        QVERIFY(std::abs(f.view.GetCamera().GetWorldPerPixel() - expected.GetWorldPerPixel()) <
                1e-12);
    }

    void anEmptyDrawingIsShownAsItWas()
    {
        SketchViewFixture f;
        f.view.Magnify(3.0);
        f.view.Fit({5, 5, 0}, {6, 6, 0});
        const double scale = f.view.GetCamera().GetWorldPerPixel();

        f.view.ZoomAll();

        QCOMPARE_EXACTLY(f.view.GetCamera().GetWorldPerPixel(), scale);
        QCOMPARE(f.view.GetCamera().GetCentre(), Vector3d(5.5, 5.5, 0));
    }

    void whatIsClickedIsSelected()
    {
        SketchViewFixture f;
        const int id = f.workspace.sketch.AddLine({-40, 20, 0}, {40, 20, 0});

        f.PressAt(10, 22);
        QVERIFY(f.workspace.selection.IsEmpty());
        f.ReleaseAt(10, 22);

        QCOMPARE(f.workspace.selection.GetIds(), Ids{id});
    }

    void ctrlClickAddsToTheSelection()
    {
        SketchViewFixture f;
        const int first = f.workspace.sketch.AddLine({-40, 20, 0}, {40, 20, 0});
        const int second = f.workspace.sketch.AddLine({-40, -20, 0}, {40, -20, 0});
        f.workspace.selection.Select({first});

        f.PressAt(10, -20, Qt::ControlModifier);
        f.ReleaseAt(10, -20);

        QCOMPARE(f.workspace.selection.GetIds(), (Ids{first, second}));
    }

    void aBoxEndsWhereTheButtonIsReleased()
    {
        SketchViewFixture f;
        const int id = f.workspace.sketch.AddLine({-40, 20, 0}, {40, 30, 0});

        f.PressAt(-60, 60);
        f.DragTo(0, 0);
        f.ReleaseAt(70, 10);

        QCOMPARE(f.workspace.selection.GetIds(), Ids{id});
    }

    void anotherButtonDoesNotEndADrag()
    {
        SketchViewFixture f;
        const int id = f.workspace.sketch.AddLine({-40, 20, 0}, {40, 30, 0});
        f.PressAt(-60, 60);
        f.DragTo(70, 10);

        f.ReleaseAt(70, 10, Qt::RightButton);
        QVERIFY(f.workspace.selection.IsEmpty());
        f.ReleaseAt(70, 10);

        QCOMPARE(f.workspace.selection.GetIds(), Ids{id});
    }

    void aReleaseEndsTheDragForGood()
    {
        SketchViewFixture f;
        const int id = f.workspace.sketch.AddLine({-40, 20, 0}, {40, 30, 0});
        f.PressAt(-60, 60);
        f.DragTo(70, 10);
        f.ReleaseAt(70, 10);
        const QImage afterwards = f.Picture();

        f.DragTo(90, 90);
        f.ReleaseAt(-90, -90);

        QCOMPARE(f.workspace.selection.GetIds(), Ids{id});
        QVERIFY(f.Picture() == afterwards);
    }

    void theBoxIsShownUpToTheCursor()
    {
        SketchViewFixture f;
        const QColor before = f.ColourAt(33, 33);
        f.PressAt(-57, -57);
        f.DragTo(27, 27);
        QCOMPARE(f.ColourAt(33, 33), before);

        f.DragTo(57, 57);
        QVERIFY(f.ColourAt(33, 33) != before);

        f.ReleaseAt(57, 57);
        QCOMPARE(f.ColourAt(33, 33), before);
    }

    void theBoxIsPaintedAtOnce()
    {
        SketchViewFixture f;
        f.PressAt(-60, 60);
        PaintCounter paints(f.view);

        f.DragTo(60, -60);
        QTRY_VERIFY_WITH_TIMEOUT(paints.GetCount() > 0, vesk::test::PatienceMs);

        paints.Reset();
        f.ReleaseAt(60, -60);
        QTRY_VERIFY_WITH_TIMEOUT(paints.GetCount() > 0, vesk::test::PatienceMs);
    }

    void escapeEndsADragAndKeepsTheSelection()
    {
        SketchViewFixture f;
        const int id = f.workspace.sketch.AddLine({-40, 20, 0}, {40, 30, 0});
        f.workspace.selection.Select({id});
        f.PressAt(-60, 60);
        f.DragTo(-50, 50);

        QTest::keyClick(&f.view, Qt::Key_Escape);
        f.ReleaseAt(-50, 50);

        QCOMPARE(f.workspace.selection.GetIds(), Ids{id});
    }

    void escapeWithoutADragSelectsNothing()
    {
        SketchViewFixture f;
        const int id = f.workspace.sketch.AddLine({-40, 20, 0}, {40, 30, 0});
        f.workspace.selection.Select({id});

        QTest::keyClick(&f.view, Qt::Key_Escape);

        QVERIFY(f.workspace.selection.IsEmpty());
    }

    void aReleaseThatWentElsewhereEndsTheDrag()
    {
        SketchViewFixture f;
        f.workspace.sketch.AddLine({-40, 20, 0}, {40, 30, 0});
        f.PressAt(-60, 60);
        f.DragTo(0, 0);
        const QColor inBox = f.ColourAt(-33, 33);

        f.DragTo(60, 0, Qt::RightButton);
        QVERIFY(f.ColourAt(-33, 33) != inBox);
        f.DragTo(70, 10);
        f.ReleaseAt(70, 10);

        QVERIFY(f.workspace.selection.IsEmpty());
    }

    void aCommandThatBeganEndsTheDrag()
    {
        SketchViewFixture f;
        f.workspace.sketch.AddLine({-40, 20, 0}, {40, 30, 0});
        f.PressAt(-60, 60);
        f.DragTo(0, 0);
        f.host.BeginAction();

        f.DragTo(70, 10);
        ActionManager::Reset();
        f.ReleaseAt(70, 10);

        QVERIFY(f.workspace.selection.IsEmpty());
    }

    void aReleaseDuringACommandSelectsNothing()
    {
        SketchViewFixture f;
        f.workspace.sketch.AddLine({-40, 20, 0}, {40, 30, 0});
        f.PressAt(-60, 60);
        f.DragTo(70, 10);
        f.host.BeginAction();

        f.ReleaseAt(70, 10);
        ActionManager::Reset();
        f.ReleaseAt(70, 10);

        QVERIFY(f.workspace.selection.IsEmpty());
    }

    void aMoveStillGoesToTheView()
    {
        SketchViewFixture f;
        const QSignalSpy moves(&f.view, &DrawingView::cursorMoved);

        f.MoveTo(30, 20);

        QCOMPARE(moves.count(), 1);
        QCOMPARE(moves[0][0].toDouble(), 30.0);
        QCOMPARE(moves[0][1].toDouble(), 20.0);
    }

    void theMiddleButtonStillPans()
    {
        SketchViewFixture f;
        SketchViewFixture::Send(f.view, QEvent::MouseButtonPress, {100, 100}, Qt::MiddleButton,
                                Qt::MiddleButton);
        SketchViewFixture::Send(f.view, QEvent::MouseButtonRelease, {100, 100}, Qt::MiddleButton,
                                Qt::NoButton);

        f.MoveTo(30, 20);

        QCOMPARE(f.view.GetCamera().GetCentre(), Vector3d(0, 0, 0));
        QCOMPARE(f.view.cursor().shape(), Qt::ArrowCursor);
    }

    void theMenuIsAboutWhatIsBelowIt()
    {
        SketchViewFixture f;
        const int first = f.workspace.sketch.AddLine({-40, 20, 0}, {40, 20, 0});
        const int second = f.workspace.sketch.AddLine({-40, -50, 0}, {40, -50, 0});
        f.workspace.selection.Select({first});
        const QSignalSpy menus(&f.view, &SketchView::menuRequested);

        f.OpenMenuAt(10, -48);

        QCOMPARE(f.workspace.selection.GetIds(), Ids{second});
        QCOMPARE(menus.count(), 1);
    }

    void theMenuKeepsASelection_data()
    {
        QTest::addColumn<double>("y");

        QTest::newRow("on one of what is selected") << 20.0;
        QTest::newRow("beside everything") << 90.0;
    }

    void theMenuKeepsASelection()
    {
        QFETCH(double, y);
        SketchViewFixture f;
        const int first = f.workspace.sketch.AddLine({-40, 20, 0}, {40, 20, 0});
        const int second = f.workspace.sketch.AddLine({-40, -50, 0}, {40, -50, 0});
        f.workspace.selection.Select({first, second});
        const QSignalSpy menus(&f.view, &SketchView::menuRequested);

        f.OpenMenuAt(10, y);

        QCOMPARE(f.workspace.selection.GetIds(), (Ids{first, second}));
        QCOMPARE(menus.count(), 1);
    }

    void noMenuOpensWhileTheMouseOrACommandIsBusy()
    {
        SketchViewFixture f;
        f.workspace.sketch.AddLine({-40, 20, 0}, {40, 20, 0});
        const QSignalSpy menus(&f.view, &SketchView::menuRequested);

        f.PressAt(-60, 60);
        f.OpenMenuAt(10, 20);
        f.ReleaseAt(-60, 60);
        f.host.BeginAction();
        f.OpenMenuAt(10, 20);
        ActionManager::Reset();

        QCOMPARE(menus.count(), 0);
        QVERIFY(f.workspace.selection.IsEmpty());
    }

    void returnAndSpaceAskForTheLastTool_data()
    {
        QTest::addColumn<Qt::Key>("key");

        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
        QTest::newRow("Space") << Qt::Key_Space;
    }

    void returnAndSpaceAskForTheLastTool()
    {
        QFETCH(Qt::Key, key);
        SketchViewFixture f;
        const QSignalSpy repetitions(&f.view, &SketchView::repeatRequested);

        f.Press(key);
        f.Press(key, true);
        f.host.BeginAction();
        f.Press(key);
        ActionManager::Reset();

        QCOMPARE(repetitions.count(), 1);
    }

    void shiftHoldsDirectionsFromTheNextMove()
    {
        SketchViewFixture f;

        f.MoveTo(10, 20, Qt::ShiftModifier);

        QVERIFY(f.workspace.isDirectionHeld);
        f.MoveTo(10, 20);
        QVERIFY(!f.workspace.isDirectionHeld);
        f.PressAt(10, 20, Qt::ShiftModifier);
        QVERIFY(f.workspace.isDirectionHeld);
    }

    void releasedShiftFreesDirectionsAtOnce()
    {
        SketchViewFixture f;
        f.MoveTo(10, 20, Qt::ShiftModifier);
        QWidget elsewhere;

        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Shift, Qt::NoModifier);
        QCoreApplication::sendEvent(&elsewhere, &release);

        QVERIFY(!f.workspace.isDirectionHeld);
    }

    void theCaughtPointIsMarked()
    {
        SketchViewFixture f;
        f.workspace.sketch.AddLine({40, 30, 0}, {90, 90, 0});
        const QImage before = f.Picture();

        f.workspace.snapper.Catch({43, 33, 0}, &f.view);
        const QImage marked = f.Picture();
        f.workspace.snapper.Release();

        // The mark of an end is a 12-pixel square around it.
        const QPoint corner = SketchViewFixture::PixelOf(40, 30) + QPoint(-6, 3);
        QVERIFY(marked.pixelColor(corner) != before.pixelColor(corner));
        QVERIFY(f.Picture() == before);
    }
};

VESK_TESTS(SketchViewTest);
#include "SketchViewTest.moc"
