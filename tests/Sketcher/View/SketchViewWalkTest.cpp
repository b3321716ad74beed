#include "SketchViewFixture.h"

#include <cmath>

using namespace vesk;
using namespace vesk::test;

namespace
{

/// A user who moves the cursor with the arrow keys. The grid has 10 units.
struct WalkFixture : SketchViewFixture
{
    void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&view, &event);
    }

    /// Unlike the moves of the fixture it says where the mouse is on the screen.
    void MoveMouse(const QPoint& way)
    {
        const QPoint place = QCursor::pos() + way;
        QMouseEvent event(QEvent::MouseMove, view.mapFromGlobal(place), place, Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &event);
    }

    QPointF Cursor() const
    {
        const QList<QVariant> last = moves.isEmpty() ? QList<QVariant>{0, 0} : moves.last();
        return {last[0].toDouble(), last[1].toDouble()};
    }

    QSignalSpy moves{&view, &DrawingView::cursorMoved};
    QSignalSpy repetitions{&view, &SketchView::repeatRequested};
};

}

/// The cursor walks by the arrow keys, and Space is a click there.
class SketchViewWalkTest final : public QObject
{
    Q_OBJECT

private slots:
    void cursorWalksFromGridPointToGridPoint()
    {
        WalkFixture f;
        f.MoveTo(3, 4);

        f.Type(Qt::Key_Right);
        QCOMPARE(f.Cursor(), QPointF(10, 0));
        f.Type(Qt::Key_Up);
        QCOMPARE(f.Cursor(), QPointF(10, 10));
        f.Type(Qt::Key_Left);
        f.Type(Qt::Key_Left);
        f.Type(Qt::Key_Down);

        QCOMPARE(f.Cursor(), QPointF(-10, 0));
    }

    void withShiftItWalksByTenths()
    {
        WalkFixture f;

        f.Type(Qt::Key_Right, Qt::ShiftModifier);
        f.Type(Qt::Key_Up);
        f.Type(Qt::Key_Down, Qt::ShiftModifier);

        QCOMPARE(f.Cursor(), QPointF(1, 9));
        QVERIFY(!f.workspace.isDirectionHeld);
    }

    void withoutTheMouseItBeginsInTheMiddle()
    {
        WalkFixture f;

        f.Type(Qt::Key_Left);

        QCOMPARE(f.Cursor(), QPointF(-10, 0));
    }

    void gridPointsAreExactAtAnyScale()
    {
        WalkFixture f;
        f.view.SetPixelsPerUnit(37.0);

        for (int i = 0; i < 3; ++i)
            f.Type(Qt::Key_Right, Qt::ShiftModifier);

        QCOMPARE(f.view.GetWalked().x(), std::round(f.view.GetWalked().x() * 1000.0) / 1000.0);
        QVERIFY(f.view.GetWalked().x() == f.Cursor().x());
    }

    void spaceClicksThere()
    {
        WalkFixture f;
        const int line = f.workspace.sketch.AddLine({20, -50, 0}, {20, 50, 0});

        f.Type(Qt::Key_Right);
        f.Type(Qt::Key_Right);
        f.Type(Qt::Key_Space);

        QCOMPARE(f.workspace.selection.GetIds(), std::vector<int>{line});
        QVERIFY(f.repetitions.isEmpty());
    }

    void withCtrlSpaceAddsToTheSelection()
    {
        WalkFixture f;
        const int first = f.workspace.sketch.AddLine({10, -50, 0}, {10, 50, 0});
        const int second = f.workspace.sketch.AddLine({30, -50, 0}, {30, 50, 0});
        f.workspace.selection.Select({second});

        f.Type(Qt::Key_Right);
        f.Type(Qt::Key_Space, Qt::ControlModifier);

        QCOMPARE(f.workspace.selection.GetIds(), (std::vector<int>{second, first}));
    }

    void shiftAndSpaceBeginABoxThatTheNextSpaceEnds()
    {
        WalkFixture f;
        const int inside = f.workspace.sketch.AddLine({5, 5, 0}, {15, 5, 0});
        f.workspace.sketch.AddLine({5, 5, 0}, {150, 5, 0});
        f.Type(Qt::Key_Left);

        f.Type(Qt::Key_Space, Qt::ShiftModifier);
        for (int i = 0; i < 3; ++i)
            f.Type(Qt::Key_Right);
        f.Type(Qt::Key_Up);
        f.Type(Qt::Key_Space);

        QCOMPARE(f.workspace.selection.GetIds(), std::vector<int>{inside});
        f.Type(Qt::Key_Right);
        QCOMPARE(f.workspace.selection.GetIds(), std::vector<int>{inside});
    }

    void escapeDropsTheBox()
    {
        WalkFixture f;
        f.workspace.sketch.AddLine({5, 5, 0}, {15, 5, 0});
        f.Type(Qt::Key_Left);
        f.Type(Qt::Key_Space, Qt::ShiftModifier);
        f.Type(Qt::Key_Right);

        f.Type(Qt::Key_Escape);
        f.Type(Qt::Key_Right);
        f.Type(Qt::Key_Up);

        QVERIFY(f.workspace.selection.IsEmpty());
    }

    void menuKeyIsAboutWhatTheCursorPointsAt()
    {
        WalkFixture f;
        const int line = f.workspace.sketch.AddLine({10, -50, 0}, {10, 50, 0});
        const QSignalSpy menus(&f.view, &SketchView::menuRequested);
        f.Type(Qt::Key_Right);

        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1),
                                f.view.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&f.view, &event);

        QCOMPARE(f.workspace.selection.GetIds(), std::vector<int>{line});
        QCOMPARE(menus.at(0).at(0).toPoint(), f.view.mapToGlobal(f.PlaceOf(10, 0).toPoint()));
    }

    void spaceRunsTheLastToolAgainOtherwise_data()
    {
        QTest::addColumn<bool>("hasWalked");
        QTest::addColumn<bool>("isEscaped");

        QTest::newRow("before") << false << false;
        QTest::newRow("after Escape") << true << true;
        QTest::newRow("after the mouse moved") << true << false;
    }

    void spaceRunsTheLastToolAgainOtherwise()
    {
        QFETCH(bool, hasWalked);
        QFETCH(bool, isEscaped);
        WalkFixture f;
        if (hasWalked)
            f.Type(Qt::Key_Right);
        if (isEscaped)
            f.Type(Qt::Key_Escape);
        else if (hasWalked)
            f.MoveMouse(QPoint(50, 50));

        f.Type(Qt::Key_Space);

        QCOMPARE(f.repetitions.size(), 1);
        QVERIFY(!f.view.IsWalking());
    }

    void eventOfAMouseThatRestsChangesNothing()
    {
        WalkFixture f;
        f.Type(Qt::Key_Right);

        f.MoveMouse(QPoint(0, 0));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&f.view, &leave);

        QVERIFY(f.view.IsWalking());
        QCOMPARE(f.Cursor(), QPointF(10, 0));
    }

    void pictureFollowsTheCursor()
    {
        WalkFixture f;

        for (int i = 0; i < 30; ++i)
            f.Type(Qt::Key_Right);

        QCOMPARE(f.Cursor(), QPointF(300, 0));
        QVERIFY(QRectF(f.view.rect()).contains(f.PlaceOf(300, 0)));
        QVERIFY(!QRectF(f.view.rect()).contains(f.PlaceOf(-200, 0)));
    }

    void cursorStaysWhereItIsWhileThePictureMoves()
    {
        WalkFixture f;
        f.Type(Qt::Key_Right);

        f.view.Magnify(2.0);
        f.view.TellCursor();

        QCOMPARE(f.Cursor(), QPointF(10, 0));
    }

    void cursorIsPainted()
    {
        WalkFixture f;
        const QColor before = f.ColourAt(20, 12);

        f.Type(Qt::Key_Right);
        f.Type(Qt::Key_Right);

        QVERIFY(before != QColor(Qt::black));
        QCOMPARE(f.ColourAt(20, 12), QColor(Qt::black));
    }

    void withCtrlAnArrowMovesThePicture()
    {
        WalkFixture f;

        f.Type(Qt::Key_Right, Qt::ControlModifier);
        f.Type(Qt::Key_Up, Qt::ControlModifier);

        QVERIFY(f.view.GetCamera().GetCentre().x() > 20.0);
        QVERIFY(f.view.GetCamera().GetCentre().y() > 20.0);
        QVERIFY(!f.view.IsWalking());
    }

    void keysOfZoomingMagnifyThePicture()
    {
        WalkFixture f;
        const double scale = f.view.GetCamera().GetWorldPerPixel();

        f.Type(Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(f.view.GetCamera().GetWorldPerPixel(), scale / 2.0);
        f.Type(Qt::Key_Minus, Qt::ControlModifier);

        QCOMPARE(f.view.GetCamera().GetWorldPerPixel(), scale);
    }
};

VESK_TESTS(SketchViewWalkTest);
#include "SketchViewWalkTest.moc"
