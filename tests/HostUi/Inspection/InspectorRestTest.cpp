#include "HostUi/Inspector.h"

#include "Control/LineEditDefinition.h"
#include "HostUi/Inspection/InspectorFixture.h"
#include "Support/EventWatch.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTimer>

using namespace vesk;

namespace
{

constexpr int RefreshMs = 200;

using Fixture = test::InspectorFixture;

/// Counts how often a timer with the inspector's interval fires.
struct Ticks final : QObject
{
    Ticks() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        const auto* pTimer = qobject_cast<QTimer*>(pWatched);
        const bool isTick = pEvent->type() == QEvent::Timer && pTimer != nullptr;
        count += isTick && pTimer->interval() == RefreshMs ? 1 : 0;
        return false;
    }
    int count = 0;
};

/// Lets so much time pass that the inspector's clock would tick, and something happen meanwhile.
void LetTimePass()
{
    QTimer later;
    later.start(2 * RefreshMs);
    QVERIFY(QSignalSpy(&later, &QTimer::timeout).wait());
}

/// True if there comes a time in which the program sleeps, longer than the inspector ever does.
bool ComesToRest()
{
    // A text cursor would blink.
    if (QWidget* pFocus = QApplication::focusWidget())
        pFocus->clearFocus();
    QObject driver;
    auto* pAsking = new QTimer(&driver);
    test::EventWatch watch(&driver);
    QEventLoop loop;
    QElapsedTimer patience;
    patience.start();
    bool isQuiet = false;
    QObject::connect(pAsking, &QTimer::timeout, &loop, [&] {
        isQuiet = watch.IsQuietFor(5 * RefreshMs);
        if (isQuiet || patience.hasExpired(test::PatienceMs))
            loop.quit();
    });
    pAsking->start(10);
    loop.exec();
    if (!isQuiet)
        qWarning("%s", qPrintable(watch.GetLast().join('\n')));
    return isQuiet;
}

}

/// When the inspector refreshes itself, and when it rests.
class InspectorRestTest final : public QObject
{
    Q_OBJECT

private slots:
    void aShownInspectorKeepsItselfInStep()
    {
        Fixture f;

        f.pEdit->SetVisible(false);

        QTRY_COMPARE(f.Rows(), QStringList("Edit|输入框||否|是"));
    }

    void aShownInspectorRestsWhileNothingHappens()
    {
        Fixture f;
        f.pEdit->SetText(L"abc");
        QTRY_COMPARE(f.Rows(), QStringList("Edit|输入框|abc|是|是"));

        QVERIFY(ComesToRest());
    }

    void timersDoNotWakeIt_data()
    {
        QTest::addColumn<QEvent::Type>("type");

        QTest::newRow("due") << QEvent::Timer;
        QTest::newRow("announced, as on Windows") << QEvent::ZeroTimerEvent;
    }

    void timersDoNotWakeIt()
    {
        QFETCH(QEvent::Type, type);
        Fixture f;
        QVERIFY(ComesToRest());
        const Ticks ticks;
        QObject receiver;

        QEvent event(type);
        QCoreApplication::sendEvent(&receiver, &event);
        LetTimePass();

        QCOMPARE(ticks.count, 0);
    }

    void itRefreshesWhileOneEventFollowsAnother()
    {
        Fixture f;
        QTimer events;
        connect(&events, &QTimer::timeout, &f.panel,
                [&f] { QCoreApplication::postEvent(&f.panel, new QEvent(QEvent::User)); });
        events.start(RefreshMs / 20);

        f.pEdit->SetVisible(false);

        QTRY_COMPARE(f.Rows(), QStringList("Edit|输入框||否|是"));
    }

    void aChangeThatNothingElseShowsIsShown()
    {
        Fixture f;
        f.panel.hide();
        QVERIFY(ComesToRest());

        f.pEdit->SetText(L"abc");

        QTRY_COMPARE(f.Rows(), QStringList("Edit|输入框|abc|是|是"));
    }

    void aHiddenInspectorRestsAndIsInStepWhenItIsShown()
    {
        Fixture f;
        f.pInspector->hide();
        f.pEdit->SetText(L"abc");
        const Ticks ticks;
        LetTimePass();
        QCOMPARE(ticks.count, 0);
        QCOMPARE(f.Rows(), QStringList("Edit|输入框||是|是"));

        f.pInspector->show();

        QCOMPARE(f.Rows(), QStringList("Edit|输入框|abc|是|是"));
    }

    void behindAnotherTabItDoesNotUpdate()
    {
        Fixture f;
        QMainWindow window;
        auto* pFront = new QDockWidget;
        auto* pBehind = new QDockWidget;
        pBehind->setWidget(f.pInspector.get());
        window.addDockWidget(Qt::BottomDockWidgetArea, pBehind);
        window.addDockWidget(Qt::BottomDockWidgetArea, pFront);
        window.tabifyDockWidget(pBehind, pFront);
        window.show();
        pFront->raise();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_VERIFY(f.pInspector->visibleRegion().isEmpty());
        QVERIFY(f.pInspector->isVisible());
        f.pEdit->SetText(L"abc");
        QVERIFY(ComesToRest());
        QCOMPARE(f.Rows(), QStringList("Edit|输入框||是|是"));

        pBehind->raise();

        QTRY_COMPARE(f.Rows(), QStringList("Edit|输入框|abc|是|是"));
        pBehind->setWidget(nullptr);
        f.pInspector->setParent(nullptr);
    }

    void afterStopItsClockRests()
    {
        Fixture f;
        const Ticks ticks;
        QTRY_VERIFY(ticks.count > 0);

        f.pInspector->Stop();
        const int before = ticks.count;
        f.pEdit->SetText(L"a");
        LetTimePass();

        QCOMPARE(ticks.count, before);
    }
};

VESK_TESTS(InspectorRestTest);
#include "InspectorRestTest.moc"
