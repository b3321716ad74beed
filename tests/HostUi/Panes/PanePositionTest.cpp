#include "Panes/PanePosition.h"

#include "Platform/WindowPosition.h"
#include "Support/TestValues.h"

#include <QDockWidget>
#include <QEnterEvent>
#include <QExposeEvent>
#include <QMainWindow>
#include <QMoveEvent>
#include <QWindow>

#include <memory>

using namespace vesk;

namespace
{

int s_askedCount = 0;

/// A pane that floats.
struct Fixture
{
    Fixture()
    {
        window.addDockWidget(Qt::BottomDockWidgetArea, pPane);
        PanePosition::Watch(*pPane);
        window.show();
        pPane->setFloating(true);
        QCoreApplication::processEvents();
        s_askedCount = 0;
    }

    void Send(QEvent& event) const { QCoreApplication::sendEvent(pPane->windowHandle(), &event); }

    void Move() const
    {
        QMoveEvent move({7, 8}, {});
        Send(move);
    }

    QMainWindow window;
    QDockWidget* pPane = new QDockWidget(&window);
};

}

Q_DECLARE_METATYPE(std::shared_ptr<QEvent>)

/// Stands in for the window system.
void vesk::TellPosition(const QWindow&)
{
    ++s_askedCount;
}

/// When the window system is asked where a pane is.
class PanePositionTest final : public QObject
{
    Q_OBJECT

private slots:
    void itIsAskedWhenThePaneIsSeenOrUsed_data()
    {
        using Event = std::shared_ptr<QEvent>;
        const QPointF point(1, 1);
        QTest::addColumn<Event>("event");
        QTest::addColumn<int>("count");
        QTest::newRow("shown") << Event(new QExposeEvent(QRegion(0, 0, 9, 9))) << 1;
        QTest::newRow("moved") << Event(new QMoveEvent({7, 8}, {})) << 1;
        QTest::newRow("under the cursor") << Event(new QEnterEvent(point, point, point)) << 1;
        QTest::newRow("no longer under the cursor") << Event(new QEvent(QEvent::Leave)) << 0;
    }

    void itIsAskedWhenThePaneIsSeenOrUsed()
    {
        QFETCH(std::shared_ptr<QEvent>, event);
        const Fixture f;

        f.Send(*event);

        QTEST(s_askedCount, "count");
    }

    void whatThePaneItselfIsToldIsNoNews()
    {
        const Fixture f;
        QMoveEvent move({7, 8}, {});

        QCoreApplication::sendEvent(f.pPane, &move);

        QCOMPARE(s_askedCount, 0);
    }

    void aPaneThatIsDraggedIsLeftAlone()
    {
        const Fixture f;
        f.pPane->setWindowFlag(Qt::X11BypassWindowManagerHint);
        f.pPane->show();
        s_askedCount = 0;

        f.Move();

        QCOMPARE(s_askedCount, 0);
    }

    void aPaneInTheWindowIsLeftAlone()
    {
        const Fixture f;
        f.pPane->setFloating(false);
        f.pPane->winId();
        s_askedCount = 0;

        f.Move();

        QCOMPARE(s_askedCount, 0);
    }

    void aPaneThatFloatsAgainIsWatchedAgain()
    {
        const Fixture f;
        f.pPane->setFloating(false);
        f.pPane->setFloating(true);
        s_askedCount = 0;

        f.Move();

        QCOMPARE(s_askedCount, 1);
    }

    void watchingTwiceIsWatchingOnce()
    {
        const Fixture f;

        PanePosition::Watch(*f.pPane);

        QCOMPARE(f.pPane->findChildren<PanePosition*>().size(), 1);
    }
};

VESK_TESTS(PanePositionTest);
#include "PanePositionTest.moc"
