#include "HostUi/PaneLayout.h"

#include "HostUi/PaneRun.h"
#include "Panes/PaneReach.h"

#include "Support/TestValues.h"

#include <QProxyStyle>

namespace vesk::test
{

/// Draws frames around panes as wide as on Windows.
class WideFrames final : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* pOption,
                    const QWidget* pWidget) const override
    {
        return metric == PM_DockWidgetFrameWidth
                   ? 4
                   : QProxyStyle::pixelMetric(metric, pOption, pWidget);
    }
};

/// The positions and sizes of floating panes, which must stay within the user's reach.
class PaneReachTest : public QObject
{
    Q_OBJECT

private slots:
    void aFloatingPaneComesIntoReach_data();
    void aFloatingPaneComesIntoReach();
    void aFloatingPaneLargerThanTheScreenIsMadeSmaller();
    void aFloatingPaneComesNoFurtherThanItHasTo();
    void aPaneWithoutATitleComesIntoReach();
    void aChangeOfTheScreensBringsFloatingPanesIntoReach_data();
    void aChangeOfTheScreensBringsFloatingPanesIntoReach();
    void aPaneInReachStaysWhenTheScreensChange();
    void aPaneFloatsAtASizeOfItsOwn_data();
    void aPaneFloatsAtASizeOfItsOwn();
    void aPaneFloatsAgainAtItsLastSize();
    void aRestoredPaneFloatsAgainAtItsLastSize();
    void aDraggedPaneGetsItsSizeWhenItIsLetGo();
    void aPaneThatIsDraggedOutAgainGetsItsLastSize();
    void aDraggedPaneThatIsDockedAsItIsLetGoIsLeftThere();
    void aDraggedPaneMayDieAsItIsLetGo();
    void aPaneOfASmallWidthIsInReachAsAWhole();
    void sixtyFourPixelsOfATitleAreEnough();
    void aTitleOfItsOwnIsWhatAPaneIsHeldBy();
    void theNearestScreenShowsMostOfAPane_data();
    void theNearestScreenShowsMostOfAPane();
    void aPaneThatReachesBeyondTheScreenStaysWhereItIs_data();
    void aPaneThatReachesBeyondTheScreenStaysWhereItIs();
};

/// A run with one floating pane at that position.
struct FloatingRun : Run
{
    explicit FloatingRun(const QRect& place)
    {
        Pane("D")->setFloating(true);
        Pane("D")->setGeometry(place);
        Settle();
    }
};

static QRect ScreenRect()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

/// The ways in which the window system reports changed screens.
enum class ScreenSignal
{
    Geometry,
    AvailableGeometry,
    Added,
    Removed,
};

static void Tell(ScreenSignal signal)
{
    QScreen* pScreen = QGuiApplication::primaryScreen();
    switch (signal)
    {
    case ScreenSignal::Geometry:
        emit pScreen->geometryChanged(pScreen->geometry());
        break;
    case ScreenSignal::AvailableGeometry:
        emit pScreen->availableGeometryChanged(pScreen->availableGeometry());
        break;
    case ScreenSignal::Added:
        emit qApp->screenAdded(pScreen);
        break;
    case ScreenSignal::Removed:
        emit qApp->screenRemoved(pScreen);
        break;
    }
}

/// Lets a docked pane float at a size and docks it again.
static void FloatOnce(QDockWidget& pane, const QSize& size)
{
    pane.setFloating(true);
    pane.resize(size);
    Run::Settle();
    pane.setFloating(false);
    Run::Settle();
}

/// A mouse that looks real to the pane.
static void Mouse(QDockWidget* pPane, QEvent::Type type, QPoint global)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QCursor::setPos(global);
    QMouseEvent event(type, pPane->mapFromGlobal(global), global, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(pPane, &event);
}

void PaneReachTest::aPaneThatReachesBeyondTheScreenStaysWhereItIs_data()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::addColumn<QRect>("place");

    QTest::newRow("at the left") << QRect(-190, 50, 260, 180);
    QTest::newRow("at the bottom") << QRect(50, screen.bottom() - 10, 260, 180);
    QTest::newRow("at both") << QRect(-190, screen.bottom() - 10, 260, 180);
}

void PaneReachTest::aPaneThatReachesBeyondTheScreenStaysWhereItIs()
{
    Run run;
    run.Arrange();
    QFETCH(QRect, place);
    run.Pane("D")->setGeometry(place);
    const QByteArray saved = run.pLayout->Save();

    run.pLayout->ToggleAllHidden();
    run.pLayout->ToggleAllHidden();
    QCOMPARE(run.Pane("D")->geometry(), place);

    Run next;
    QVERIFY(next.pLayout->Restore(saved));
    QCOMPARE(next.Pane("D")->geometry(), place);
}

void PaneReachTest::aFloatingPaneComesIntoReach_data()
{
    QTest::addColumn<QRect>("place");

    QTest::newRow("far right") << QRect(5000, 100, 200, 150);
    QTest::newRow("far left") << QRect(-5000, 100, 200, 150);
    QTest::newRow("below") << QRect(100, 9000, 200, 150);
    QTest::newRow("a sliver at the left") << QRect(-190, 100, 200, 150);
    QTest::newRow("a sliver at the top") << QRect(100, -130, 200, 150);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::newRow("only the title above") << QRect(100, 0, 200, 150);
    QTest::newRow("a slab without its title") << QRect(100, -66, 200, 150);
    QTest::newRow("only the close button beyond") << QRect(screen.right() - 198, 100, 200, 150);
    QTest::newRow("half of it beyond the right") << QRect(screen.right() - 100, 100, 200, 150);
    QTest::newRow("63 pixels of the title") << QRect(-138, 100, 200, 150);
    QTest::newRow("the title below") << QRect(100, screen.bottom() + 2, 200, 150);
}

void PaneReachTest::aFloatingPaneComesIntoReach()
{
    QFETCH(QRect, place);
    QByteArray saved;
    {
        Run run;
        run.Pane("D")->setFloating(true);
        run.Pane("D")->setGeometry(place);
        saved = run.pLayout->Save();
    }

    Run next;
    QVERIFY(next.pLayout->Restore(saved));

    QVERIFY(next.Pane("D")->isFloating());
    QVERIFY(IsPlaced(next, next.Pane("D")));
}

void PaneReachTest::aFloatingPaneLargerThanTheScreenIsMadeSmaller()
{
    FloatingRun run(QRect(QPoint(-200, -200), ScreenRect().size() * 2));

    run.pLayout->BringFloatingIntoReach();

    QCOMPARE(run.Pane("D")->frameGeometry(), ScreenRect());
}

void PaneReachTest::aFloatingPaneComesNoFurtherThanItHasTo()
{
    FloatingRun run(QRect(5000, 100, 200, 150));

    run.pLayout->BringFloatingIntoReach();

    QCOMPARE(run.Pane("D")->frameGeometry().right(), ScreenRect().right());
    QCOMPARE(run.Pane("D")->geometry().top(), 100);
    QCOMPARE(run.Pane("D")->size(), QSize(200, 150));
}

void PaneReachTest::aPaneWithoutATitleComesIntoReach()
{
    WideFrames style;
    FloatingRun run(QRect(100, 100, 200, 150));
    QDockWidget* pPane = run.Pane("D");
    pPane->setStyle(&style);
    run.manager.RemoveDockTitleBar(L"D");
    pPane->setFloating(false);
    pPane->setFloating(true);
    QVERIFY(pPane->windowFlags().testFlag(Qt::FramelessWindowHint));
    pPane->setGeometry(100, -10, 200, 150);

    run.pLayout->BringFloatingIntoReach();
    QCOMPARE(pPane->frameGeometry().top(), 0);

    pPane->setGeometry(-130, 40, 200, 150);
    run.pLayout->BringFloatingIntoReach();
    QCOMPARE(pPane->geometry(), QRect(-130, 40, 200, 150));

    pPane->setGeometry(100, ScreenRect().bottom() - 5, 200, 150);
    run.pLayout->BringFloatingIntoReach();
    QCOMPARE(pPane->frameGeometry().bottom(), ScreenRect().bottom());
}

void PaneReachTest::aChangeOfTheScreensBringsFloatingPanesIntoReach_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("geometry") << int(ScreenSignal::Geometry);
    QTest::newRow("available geometry") << int(ScreenSignal::AvailableGeometry);
    QTest::newRow("added") << int(ScreenSignal::Added);
    QTest::newRow("removed") << int(ScreenSignal::Removed);
}

void PaneReachTest::aChangeOfTheScreensBringsFloatingPanesIntoReach()
{
    QFETCH(int, signal);
    FloatingRun run(QRect(5000, 100, 200, 150));
    QVERIFY(!IsPlaced(run, run.Pane("D")));

    Tell(static_cast<ScreenSignal>(signal));

    QTRY_VERIFY(IsPlaced(run, run.Pane("D")));
}

void PaneReachTest::aPaneInReachStaysWhenTheScreensChange()
{
    FloatingRun run(QRect(-190, 100, 260, 150));
    const QRect place = run.Pane("D")->geometry();

    Tell(ScreenSignal::Geometry);
    QTest::qWait(0);

    QCOMPARE(run.Pane("D")->geometry(), place);
}

void PaneReachTest::aPaneFloatsAtASizeOfItsOwn_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("from the bottom") << "F";
    QTest::newRow("from a side") << "D";
}

void PaneReachTest::aPaneFloatsAtASizeOfItsOwn()
{
    QFETCH(QString, name);
    Run run;
    run.window.resize(1600, 1200);
    run.Pane("E")->hide();
    Run::Settle();
    const QSize docked = run.Pane(name)->size();
    QVERIFY(docked.width() > 480 || docked.height() > 360);

    run.Pane(name)->setFloating(true);

    QCOMPARE(run.Pane(name)->size(), docked.boundedTo(QSize(480, 360)));
}

void PaneReachTest::aPaneFloatsAgainAtItsLastSize()
{
    Run run;
    QDockWidget* pPane = run.Pane("F");
    FloatOnce(*pPane, QSize(700, 210));
    QCOMPARE(pPane->width(), run.window.width());

    pPane->setFloating(true);

    QCOMPARE(pPane->size(), QSize(700, 210));
}

void PaneReachTest::aRestoredPaneFloatsAgainAtItsLastSize()
{
    FloatingRun run(QRect(50, 60, 610, 220));
    const QByteArray saved = run.pLayout->Save();
    Run next;
    QVERIFY(next.pLayout->Restore(saved));
    Run::Settle();
    next.Pane("D")->setFloating(false);
    Run::Settle();

    next.Pane("D")->setFloating(true);

    QCOMPARE(next.Pane("D")->size(), QSize(610, 220));
}

void PaneReachTest::aDraggedPaneGetsItsSizeWhenItIsLetGo()
{
    Run run;
    QDockWidget* pPane = run.Pane("F");
    const int width = pPane->width();
    // Over the middle of the window: elsewhere the pane would be docked again.
    const QPoint held = pPane->mapToGlobal(QPoint(width * 5 / 8, 8));

    Mouse(pPane, QEvent::MouseButtonPress, held);
    Mouse(pPane, QEvent::MouseMove, held - QPoint(0, 60));
    Mouse(pPane, QEvent::MouseMove, held - QPoint(0, 200));
    Run::Settle();
    QVERIFY(pPane->isFloating());
    // Qt 6 counts a frame of a few pixels.
    QVERIFY2(qAbs(pPane->width() - width) < 8, qPrintable(QString::number(pPane->width())));
    Mouse(pPane, QEvent::MouseMove, held - QPoint(0, 350));
    Mouse(pPane, QEvent::MouseButtonRelease, held - QPoint(0, 350));
    Run::Settle();

    QVERIFY(pPane->isFloating());
    QTRY_COMPARE(pPane->width(), 480);
    const int grip = held.x() - pPane->x();
    QVERIFY2(qAbs(grip - 480 * 5 / 8) < 4, qPrintable(QString::number(grip)));
}

void PaneReachTest::aPaneThatIsDraggedOutAgainGetsItsLastSize()
{
    Run run;
    QDockWidget* pPane = run.Pane("F");
    FloatOnce(*pPane, QSize(700, 210));
    const QPoint held = pPane->mapToGlobal(QPoint(pPane->width() / 2, 8));

    Mouse(pPane, QEvent::MouseButtonPress, held);
    Mouse(pPane, QEvent::MouseMove, held - QPoint(0, 60));
    Mouse(pPane, QEvent::MouseMove, held - QPoint(0, 200));
    Run::Settle();
    QVERIFY(pPane->isFloating());
    pPane->resize(pPane->width() + 1, pPane->height());
    Mouse(pPane, QEvent::MouseButtonRelease, held - QPoint(0, 350));
    Run::Settle();

    QTRY_COMPARE(pPane->size(), QSize(700, 210));
}

/// The pane is let go 200 pixels above its place; what has still to be done then has not begun.
static void DragOut(QDockWidget* pPane)
{
    const QPoint held = pPane->mapToGlobal(QPoint(pPane->width() / 2, 8));
    Mouse(pPane, QEvent::MouseButtonPress, held);
    Mouse(pPane, QEvent::MouseMove, held - QPoint(0, 60));
    Mouse(pPane, QEvent::MouseMove, held - QPoint(0, 200));
    Run::Settle();
    QVERIFY(pPane->isFloating());
    Mouse(pPane, QEvent::MouseButtonRelease, held - QPoint(0, 200));
}

void PaneReachTest::aDraggedPaneThatIsDockedAsItIsLetGoIsLeftThere()
{
    Run run;
    QDockWidget* pPane = run.Pane("F");
    const QRect docked = pPane->geometry();
    DragOut(pPane);

    pPane->setFloating(false);
    QTest::qWait(0);

    QCOMPARE(pPane->geometry(), docked);
}

void PaneReachTest::aPaneOfASmallWidthIsInReachAsAWhole()
{
    FloatingRun run(QRect(100, 100, 200, 150));
    QDockWidget* pPane = run.Pane("D");
    pPane->widget()->setMinimumSize(10, 10);
    pPane->setFeatures(QDockWidget::NoDockWidgetFeatures);
    Run::Settle();
    // Its lower half is beyond the screen: what is out of reach would be moved.
    pPane->setGeometry(300, ScreenRect().bottom() - 75, 1, 150);
    const QRect place = pPane->geometry();
    QVERIFY(pPane->frameGeometry().width() < 64);

    run.pLayout->BringFloatingIntoReach();

    QCOMPARE(pPane->geometry(), place);
}

void PaneReachTest::sixtyFourPixelsOfATitleAreEnough()
{
    FloatingRun run(QRect(100, 100, 200, 150));
    QDockWidget* pPane = run.Pane("D");
    const int border = pPane->frameGeometry().right() - pPane->geometry().right();
    pPane->setGeometry(63 - border - 199, 100, 200, 150);
    QCOMPARE(pPane->frameGeometry().right(), ScreenRect().left() + 63);

    run.pLayout->BringFloatingIntoReach();
    QCOMPARE(pPane->frameGeometry().right(), ScreenRect().left() + 63);

    pPane->move(pPane->x() - 1, pPane->y());
    run.pLayout->BringFloatingIntoReach();
    QCOMPARE(pPane->frameGeometry().left(), ScreenRect().left());
}

void PaneReachTest::aTitleOfItsOwnIsWhatAPaneIsHeldBy()
{
    FloatingRun run(QRect(100, 100, 200, 150));
    QDockWidget* pPane = run.Pane("D");
    auto* pTitle = new QLabel;
    pTitle->setFixedHeight(50);
    pPane->setTitleBarWidget(pTitle);
    pPane->setFloating(false);
    pPane->setFloating(true);
    Run::Settle();
    QVERIFY(pPane->windowFlags().testFlag(Qt::FramelessWindowHint));
    const int titleHeight = pPane->widget()->y();
    QVERIFY(titleHeight >= 50);
    const int lowest = ScreenRect().bottom() + 1 - titleHeight;

    pPane->setGeometry(300, lowest, 200, 150);
    run.pLayout->BringFloatingIntoReach();
    QCOMPARE(pPane->geometry().top(), lowest);

    pPane->setGeometry(300, lowest + 1, 200, 150);
    run.pLayout->BringFloatingIntoReach();
    QCOMPARE(pPane->geometry().bottom(), ScreenRect().bottom());
}

void PaneReachTest::theNearestScreenShowsMostOfAPane_data()
{
    QTest::addColumn<QRect>("place");
    QTest::addColumn<int>("nearest");
    QTest::newRow("within the first") << QRect(100, 100, 200, 150) << 0;
    QTest::newRow("within the second") << QRect(1100, 100, 200, 150) << 1;
    QTest::newRow("more of it on the first") << QRect(850, 100, 200, 150) << 0;
    QTest::newRow("more of it on the second") << QRect(950, 100, 200, 150) << 1;
    QTest::newRow("a larger part that is flat") << QRect(995, 750, 600, 150) << 1;
    QTest::newRow("a corner of the first, the second's centre nearer")
        << QRect(990, 790, 900, 700) << 0;
    QTest::newRow("left of both") << QRect(-900, 100, 200, 150) << 0;
    QTest::newRow("right of both") << QRect(3900, 100, 200, 150) << 1;
    QTest::newRow("below the first") << QRect(100, 2000, 200, 150) << 0;
}

void PaneReachTest::theNearestScreenShowsMostOfAPane()
{
    QFETCH(QRect, place);
    QFETCH(int, nearest);
    // The second is not as high as the first.
    const QList<QRect> screens = {QRect(0, 0, 1000, 800), QRect(1000, 0, 1600, 760)};

    QCOMPARE(FindNearestScreen(screens, place), screens[nearest]);
    QCOMPARE(FindNearestScreen({}, place), place);
}

void PaneReachTest::aDraggedPaneMayDieAsItIsLetGo()
{
    Run run;
    QDockWidget* pPane = run.Pane("F");
    DragOut(pPane);
    run.manager.DeleteDock(L"F");

    delete pPane;
    QTest::qWait(0);

    QVERIFY(!run.pLayout->Save().isEmpty());
}

}

VESK_TESTS(vesk::test::PaneReachTest);
#include "PaneReachTest.moc"
