#include "View/SketchViewFixture.h"

#include "Tools/EraseAction.h"
#include "Tools/LineAction.h"
#include "Tools/RotateAction.h"

#include "Command/Command.h"
#include "Command/ICommandManager.h"
#include "Support/TestValues.h"

using namespace vesk;
using vesk::test::SketchViewFixture;

namespace
{

/// A drawing with a line from (40, 30) to (90, 30), and commands that start tools.
struct Fixture : SketchViewFixture
{
    Fixture() : line(workspace.sketch.AddLine({40, 30, 0}, {90, 30, 0}))
    {
        host.core.GetViewManager().AddView(&view);
    }

    ~Fixture()
    {
        ActionManager::Reset();
        host.core.GetViewManager().RemoveView(&view);
    }

    template <class Action>
    void Begin()
    {
        auto opCommand =
            MakeOwner<Command>(L"Tool", Command::Kind::Interactive,
                               [this](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
                                   return MakeOwner<Action>(workspace);
                               });
        Command* pCommand = opCommand.Get();
        ICommandManager::Get()->AddCommand(std::move(opCommand));
        ActionManager::ProcessCommand(&view, pCommand, {}, nullptr);
    }

    void PointAtLine() { MoveTo(60, 32); }
    void PointAtNothing() { MoveTo(-60, -60); }
    Qt::CursorShape Shape() const { return view.cursor().shape(); }

    int line;
};

}

/// What the cursor says that a click will do.
class SketchViewCursorTest final : public QObject
{
    Q_OBJECT

private slots:
    void withoutAToolAHandPicksAndAnArrowDoesNot()
    {
        Fixture f;
        QCOMPARE(f.Shape(), Qt::ArrowCursor);

        f.PointAtLine();
        QCOMPARE(f.Shape(), Qt::PointingHandCursor);
        QCOMPARE(f.view.GetPointed(), f.line);

        f.PointAtNothing();
        QCOMPARE(f.Shape(), Qt::ArrowCursor);
        QCOMPARE(f.view.GetPointed(), 0);
    }

    void whatCannotBePickedIsNotPointedAt_data()
    {
        QTest::addColumn<bool>("isVisible");
        QTest::addColumn<bool>("isLocked");

        QTest::newRow("hidden") << false << false;
        QTest::newRow("locked") << true << true;
    }

    void whatCannotBePickedIsNotPointedAt()
    {
        QFETCH(bool, isVisible);
        QFETCH(bool, isLocked);
        Fixture f;
        f.PointAtLine();
        Layer layer;
        layer.isVisible = isVisible;
        layer.isLocked = isLocked;

        f.workspace.sketch.SetLayer(layer);

        QTRY_COMPARE(f.view.GetPointed(), 0);
        QCOMPARE(f.Shape(), Qt::ArrowCursor);
    }

    void aDrawingToolHasACross()
    {
        Fixture f;
        f.PointAtLine();

        f.Begin<LineAction>();
        QCOMPARE(f.Shape(), Qt::CrossCursor);
        f.PointAtLine();
        QCOMPARE(f.Shape(), Qt::CrossCursor);

        ActionManager::Reset();
        QCOMPARE(f.Shape(), Qt::PointingHandCursor);
    }

    void erasingPicksOrDoesNothing()
    {
        Fixture f;
        f.Begin<EraseAction>();

        f.PointAtLine();
        QCOMPARE(f.Shape(), Qt::PointingHandCursor);
        f.PointAtNothing();
        QCOMPARE(f.Shape(), Qt::ForbiddenCursor);

        f.PointAtLine();
        f.PressAt(60, 32);
        QCOMPARE(f.Shape(), Qt::ForbiddenCursor);
    }

    void rotatingPicksFirst()
    {
        Fixture f;
        f.Begin<RotateAction>();

        f.PointAtNothing();
        QCOMPARE(f.Shape(), Qt::ForbiddenCursor);
        f.PointAtLine();
        QCOMPARE(f.Shape(), Qt::PointingHandCursor);

        f.PressAt(60, 32);
        f.PointAtNothing();
        QCOMPARE(f.Shape(), Qt::CrossCursor);
    }

    void panningClosesTheHandAndReleasesIt()
    {
        Fixture f;
        f.PointAtLine();

        SketchViewFixture::Send(f.view, QEvent::MouseButtonPress, f.PlaceOf(60, 32),
                                Qt::MiddleButton, Qt::MiddleButton);
        QCOMPARE(f.Shape(), Qt::ClosedHandCursor);
        f.DragTo(62, 32, Qt::MiddleButton);
        QCOMPARE(f.Shape(), Qt::ClosedHandCursor);

        f.ReleaseAt(62, 32, Qt::MiddleButton);
        QCOMPARE(f.Shape(), Qt::PointingHandCursor);
    }

    void aChangeOfTheDrawingIsTold()
    {
        Fixture f;
        f.PointAtLine();
        const QSignalSpy changes(&f.view, &SketchView::pointedChanged);

        f.workspace.sketch.Erase(f.line);

        QTRY_VERIFY(changes.count() > 0);
        QCOMPARE(f.view.GetPointed(), 0);
    }

    void nothingIsPointedAtFromOutside()
    {
        Fixture f;
        f.PointAtLine();

        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&f.view, &leave);

        QCOMPARE(f.view.GetPointed(), 0);
    }
};

VESK_TESTS(SketchViewCursorTest);
#include "SketchViewCursorTest.moc"
