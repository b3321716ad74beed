#include "HostUi/DrawingView.h"

#include "HostUi/InputFixture.h"
#include "Support/HostValues.h"
#include "Support/IdleAction.h"
#include "Support/TestValues.h"

#include <QPainter>
#include <QSignalSpy>

#include <memory>
#include <vector>

namespace vesk::test
{

/// The clicks and keys that a view received and no action used.
struct FreeLog
{
    std::vector<Vector3d> clicks;
    Qt::KeyboardModifiers modifiers;
    int escapeCount = 0;
};

/// A view that records what is left to it, and paints one square below and one above.
class NotingView final : public DrawingView
{
public:
    using DrawingView::DrawingView;
    using DrawingView::ToPixel;

    FreeLog log;
    bool isSmooth = false;

protected:
    std::size_t PaintModel(QPainter& painter, const QRectF&, std::size_t) override
    {
        isSmooth = painter.testRenderHint(QPainter::Antialiasing);
        painter.fillRect(0, 140, 20, 20, Qt::red);
        return 1;
    }
    void PaintOverlay(QPainter& painter) override { painter.fillRect(20, 140, 20, 20, Qt::green); }
    void OnFreeClick(const Vector3d& world, Qt::KeyboardModifiers modifiers) override
    {
        log.clicks.push_back(world);
        log.modifiers = modifiers;
    }
    void OnFreeEscape() override { ++log.escapeCount; }
};

struct Points
{
    std::vector<Vector3d> moves;
    std::vector<Vector3d> clicks;
};

/// Records the points that it receives, and draws a line through the origin.
class PointAction final : public test::IdleAction
{
public:
    explicit PointAction(Points& points) : m_points(points) {}

    void OnMouseMove(const Vector3d& world) override { m_points.moves.push_back(world); }
    void OnClick(const Vector3d& world) override { m_points.clicks.push_back(world); }
    OwnerPtr<ITemporaryDimensionContext> CreateDimensionContext() const override
    {
        return MakeLinear();
    }
    OwnerPtr<IGraphicsNodeGroup> CreateRubberBand() const override
    {
        auto opGroup = IGraphicsNodeGroup::Create();
        opGroup->AddChild(
            IGraphicsLine::Create({-1000, 0, 0}, {1000, 0, 0}, GraphicsRole::LockedDimension));
        return opGroup;
    }

private:
    Points& m_points;
};

struct ViewFixture
{
    ViewFixture()
    {
        host.view.hide();
        host.window.resize(500, 400);
        pView->setGeometry(10, 10, 400, 300);
        host.core.GetViewManager().AddView(pView);
        host.core.GetViewManager().SetCurrentView(pView);
        host.window.show();
        host.window.activateWindow();
        if (!QTest::qWaitForWindowActive(&host.window, PatienceMs))
            qFatal("the window does not become active");
    }

    ~ViewFixture()
    {
        ActionManager::Reset();
        host.core.GetViewManager().RemoveView(pView);
    }

    void BeginAction()
    {
        auto opCommand = MakeOwner<Command>(L"Test", Command::Kind::Interactive,
                                            [this](IUiView*, const CommandParameters&) {
                                                return OwnerPtr<IAction>(new PointAction(points));
                                            });
        Command* pCommand = opCommand.Get();
        ICommandManager::Get()->AddCommand(std::move(opCommand));
        ActionManager::ProcessCommand(pView, pCommand, {}, nullptr);
    }

    Vector3d World(const QPoint& pixel) const
    {
        return pView->GetCamera().ScreenToWorld(pixel.x(), pixel.y());
    }

    void Move(const QPoint& pixel) const
    {
        QMouseEvent event(QEvent::MouseMove, pixel, pView->mapToGlobal(pixel), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(pView, &event);
    }

    QLineEdit* Editor() const { return pView->findChild<QLineEdit*>("Editor"); }

    HostFixture host;
    TypingScript script = Linear();
    DimensionInputController input;
    NotingView* pView = new NotingView(2, input, &host.window);
    TypingHandlerFactory factory{*pView, script};
    Points points;
};

/// What a view does for the running action, and without one.
class DrawingViewActionTest : public QObject
{
    Q_OBJECT

private slots:
    void theCursorIsTheActions();
    void aPanIsNotTheActions();
    void aClickIsTheActions();
    void aClickWithoutAnActionIsTheViews();
    void onlyTheLeftButtonClicks_data();
    void onlyTheLeftButtonClicks();
    void aClickTakesTheTypedValueInItsDirection();
    void aClickKeepsARefusedValue();
    void escapeWithoutAnActionIsTheViews();
    void otherKeysAreLeftToTheWindow();
    void tabStaysWhileAnActionRuns();
    void theProvisionalIsPaintedBetweenModelAndOverlay();
    void whatIsNotRunningPaintsNothing();
    void theEditorFollowsTheWindow();
    void theEditorFollowsAnotherWindow();
    void activatingGivesTheViewTheKeyboard();
    void aHiddenViewIsNotActivated();
    void theScaleStaysWhenTheViewIsShownAgain();
    void theButtonThatPansClosesTheHand();
    void itIsLaidOutForDrawing();
    void worldPointsHaveAPixel();
};

void DrawingViewActionTest::theCursorIsTheActions()
{
    ViewFixture f;
    f.BeginAction();

    f.Move({120, 90});

    QCOMPARE(f.points.moves, std::vector<Vector3d>{f.World({120, 90})});
}

void DrawingViewActionTest::aPanIsNotTheActions()
{
    ViewFixture f;
    f.BeginAction();
    QTest::mousePress(f.pView, Qt::MiddleButton, {}, {50, 50});
    const QSignalSpy told(f.pView, &DrawingView::cursorMoved);

    f.Move({120, 90});

    QCOMPARE(f.points.moves.size(), std::size_t(0));
    QCOMPARE(told.count(), 1);
    QCOMPARE(f.pView->GetCamera().GetCentre(), Vector3d(-70, 40, 0));
}

void DrawingViewActionTest::aClickIsTheActions()
{
    ViewFixture f;
    f.BeginAction();

    QTest::mouseClick(f.pView, Qt::LeftButton, {}, {120, 90});

    QCOMPARE(f.points.clicks, std::vector<Vector3d>{f.World({120, 90})});
    QVERIFY(f.pView->log.clicks.empty());
    QVERIFY(f.pView->hasFocus());
}

void DrawingViewActionTest::aClickWithoutAnActionIsTheViews()
{
    ViewFixture f;

    QTest::mouseClick(f.pView, Qt::LeftButton, Qt::ShiftModifier, {120, 90});

    QCOMPARE(f.pView->log.clicks, std::vector<Vector3d>{f.World({120, 90})});
    QCOMPARE(f.pView->log.modifiers, Qt::KeyboardModifiers(Qt::ShiftModifier));
}

void DrawingViewActionTest::onlyTheLeftButtonClicks_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("right") << int(Qt::RightButton);
}

void DrawingViewActionTest::onlyTheLeftButtonClicks()
{
    QFETCH(int, button);
    ViewFixture f;

    QTest::mouseClick(f.pView, static_cast<Qt::MouseButton>(button), {}, {120, 90});

    QVERIFY(f.pView->log.clicks.empty());
}

void DrawingViewActionTest::aClickTakesTheTypedValueInItsDirection()
{
    ViewFixture f;
    f.BeginAction();
    QTest::keyClick(f.pView, '5');

    QTest::mouseClick(f.pView, Qt::LeftButton, {}, {120, 90});

    QCOMPARE(f.points.moves, std::vector<Vector3d>{f.World({120, 90})});
    QVERIFY(f.points.clicks.empty());
    QCOMPARE(f.script.TakenTexts(), QStringList{"5"});
}

void DrawingViewActionTest::aClickKeepsARefusedValue()
{
    ViewFixture f;
    f.BeginAction();
    QTest::keyClick(f.pView, '5');
    f.Editor()->setText("5x");

    QTest::mouseClick(f.pView, Qt::LeftButton, {}, {120, 90});

    QVERIFY(f.points.clicks.empty());
    QVERIFY(f.script.taken.empty());
    QCOMPARE(f.input.GetActiveEditor(), f.Editor());
}

void DrawingViewActionTest::escapeWithoutAnActionIsTheViews()
{
    ViewFixture f;
    QTest::keyClick(f.pView, Qt::Key_Escape);
    QCOMPARE(f.pView->log.escapeCount, 1);

    f.BeginAction();
    QTest::keyClick(f.pView, Qt::Key_Escape);

    QCOMPARE(f.pView->log.escapeCount, 1);
}

void DrawingViewActionTest::otherKeysAreLeftToTheWindow()
{
    ViewFixture f;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F7, Qt::NoModifier);

    QCoreApplication::sendEvent(f.pView, &press);

    QVERIFY(!press.isAccepted());
    QCOMPARE(f.pView->log.escapeCount, 0);
}

void DrawingViewActionTest::tabStaysWhileAnActionRuns()
{
    ViewFixture f;
    auto* pEdit = new QLineEdit(&f.host.window);
    pEdit->show();
    f.pView->setFocus();
    f.BeginAction();

    QTest::keyClick(f.pView, Qt::Key_Tab);

    QVERIFY(f.pView->hasFocus());
}

void DrawingViewActionTest::theProvisionalIsPaintedBetweenModelAndOverlay()
{
    ViewFixture f;
    f.script.dimensionText = L"8888";
    f.BeginAction();

    const QImage picture = f.pView->grab().toImage();

    const QColor base = f.pView->palette().color(QPalette::Base);
    const int textWidth = f.pView->fontMetrics().boundingRect("8888").width();
    QVERIFY(picture.pixelColor(10, 150) != QColor(Qt::red));
    QCOMPARE(picture.pixelColor(10, 145), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(30, 150), QColor(Qt::green));
    QVERIFY(picture.pixelColor(60, 150) != base);
    QCOMPARE(picture.pixelColor(200 - textWidth / 2 - 2, 150), base);
    QVERIFY(f.pView->isSmooth);
}

void DrawingViewActionTest::whatIsNotRunningPaintsNothing()
{
    ViewFixture f;

    const QImage picture = f.pView->grab().toImage();

    QCOMPARE(picture.pixelColor(10, 150), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(200, 150), f.pView->palette().color(QPalette::Base));
}

void DrawingViewActionTest::theEditorFollowsTheWindow()
{
    ViewFixture f;
    f.BeginAction();
    f.Move({120, 90});
    const QSignalSpy told(f.pView, &DrawingView::cursorMoved);

    f.host.window.move(f.host.window.pos() + QPoint(30, 20));

    QTRY_VERIFY(told.count() > 0);
}

void DrawingViewActionTest::theEditorFollowsAnotherWindow()
{
    ViewFixture f;
    f.Move({120, 90});
    QWidget other;
    other.resize(500, 400);
    f.pView->setParent(&other);
    other.show();
    f.pView->show();
    QCoreApplication::processEvents();
    f.Move({120, 90});
    const QSignalSpy told(f.pView, &DrawingView::cursorMoved);

    f.host.window.move(f.host.window.pos() + QPoint(30, 20));
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 0);
    other.move(other.pos() + QPoint(30, 20));

    QTRY_VERIFY(told.count() > 0);
    f.pView->setParent(&f.host.window);
    // Painted there, lest the offscreen platform of Qt 6.4 crash when the other window goes.
    f.pView->show();
    QCoreApplication::processEvents();
}

void DrawingViewActionTest::activatingGivesTheViewTheKeyboard()
{
    ViewFixture f;
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other, PatienceMs));

    f.pView->Activate();

    QTRY_VERIFY(f.pView->hasFocus());
    QVERIFY(f.host.window.isActiveWindow());
}

void DrawingViewActionTest::aHiddenViewIsNotActivated()
{
    ViewFixture f;
    auto* pEdit = new QLineEdit(&f.host.window);
    pEdit->show();
    pEdit->setFocus();
    f.pView->hide();

    f.pView->Activate();
    f.pView->show();

    QVERIFY(pEdit->hasFocus());
}

void DrawingViewActionTest::theScaleStaysWhenTheViewIsShownAgain()
{
    ViewFixture f;
    f.pView->SetPixelsPerUnit(4.0);

    f.pView->hide();
    f.pView->show();

    QCOMPARE(f.pView->GetCamera().GetWorldPerPixel(), 0.25);
}

void DrawingViewActionTest::theButtonThatPansClosesTheHand()
{
    ViewFixture f;
    QCOMPARE(f.pView->cursor().shape(), Qt::CrossCursor);

    QTest::mousePress(f.pView, Qt::MiddleButton);
    QCOMPARE(f.pView->cursor().shape(), Qt::ClosedHandCursor);
    QTest::mousePress(f.pView, Qt::RightButton);
    QTest::mouseRelease(f.pView, Qt::RightButton);
    QCOMPARE(f.pView->cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseRelease(f.pView, Qt::MiddleButton);

    QCOMPARE(f.pView->cursor().shape(), Qt::CrossCursor);
}

void DrawingViewActionTest::itIsLaidOutForDrawing()
{
    const ViewFixture f;

    QCOMPARE(f.pView->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(f.pView->minimumSizeHint(), QSize(300, 200));
    QVERIFY(f.pView->hasMouseTracking());
    QVERIFY(f.pView->internalWinId() != 0);
    QCOMPARE(f.pView->GetWindowId(), WindowId(f.pView->internalWinId()));
    QCOMPARE(static_cast<const IModelView*>(f.pView->GetModelView()),
             static_cast<const IModelView*>(&f.pView->GetCamera()));
}

void DrawingViewActionTest::worldPointsHaveAPixel()
{
    const ViewFixture f;

    QCOMPARE(f.pView->ToPixel({30, 20, 5}), QPointF(230, 130));
}

}

VESK_TESTS(vesk::test::DrawingViewActionTest);
#include "DrawingViewActionTest.moc"
