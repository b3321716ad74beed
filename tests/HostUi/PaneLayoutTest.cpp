#include "HostUi/PaneLayout.h"

#include "HostUi/PaneRun.h"
#include "Support/TestValues.h"

#include <QSignalSpy>

namespace vesk::test
{

/// What a user would call the layout.
static QStringList Describe(Run& run)
{
    QStringList lines;
    for (const char* name : {"A", "B", "C", "D", "E", "F"})
    {
        QDockWidget* pPane = run.Pane(name);
        const bool isSeen = !pPane->visibleRegion().isEmpty();
        QRect place;
        if (isSeen)
            place = QRect(pPane->isFloating() ? pPane->pos() : QPoint(), pPane->size());
        QStringList tabs;
        for (const QDockWidget* pOther : run.window.tabifiedDockWidgets(pPane))
            tabs << pOther->objectName();
        lines << QStringLiteral(
                     "%1 area %2 floating %3 hidden %4 front %5 tabs %6 size %7x%8 at %9")
                     .arg(QLatin1String(name))
                     .arg(run.window.dockWidgetArea(pPane))
                     .arg(pPane->isFloating())
                     .arg(pPane->isHidden())
                     .arg(isSeen)
                     .arg(tabs.join(QLatin1Char(' ')))
                     .arg(place.width())
                     .arg(place.height())
                     .arg(QStringLiteral("%1,%2").arg(place.x()).arg(place.y()));
    }
    return lines;
}

/// Layouts of panes: saved and restored, hidden and brought back.
class PaneLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void hidingAllAndBackIsExact();
    void aPaneThatReachesBeyondTheScreenStaysWhereItIs();
    void whileAllAreHiddenTheFormerLayoutIsSaved();
    void showingAPaneEndsTheHiddenState();
    void theFactoryLayoutEndsTheHiddenState();
    void restoringEndsTheHiddenState();

    void aLayoutComesBackInAnotherRun();
    void theFactoryLayoutComesBack();
    void aPaneThatTheLayoutDoesNotKnowGoesToItsFactoryPlace();
    void aPaneThatIsNotThereKeepsItsPlaceForLater();
    void aFloatingPaneComesIntoReach_data();
    void aFloatingPaneComesIntoReach();
    void anUnusableLayoutGivesTheFactoryLayout();
    void aPaneThatLeftTheManagerIsNobodysAnyMore();
    void showingAndHidingIsTold();
};

void PaneLayoutTest::hidingAllAndBackIsExact()
{
    Run run;
    run.Arrange();
    const QByteArray before = run.State();
    const QStringList seen = Describe(run);
    QCOMPARE(run.window.tabifiedDockWidgets(run.Pane("A")),
             (QList<QDockWidget*>{run.Pane("B"), run.Pane("C")}));

    for (int round = 0; round < 20; ++round)
    {
        run.pLayout->ToggleAllHidden();
        Run::Settle();
        for (const char* name : {"A", "B", "C", "D", "E", "F"})
            QVERIFY(run.Pane(name)->isHidden());
        QVERIFY(run.pLayout->IsAllHidden());

        run.pLayout->ToggleAllHidden();
        Run::Settle();
        QCOMPARE(run.State().toHex(), before.toHex());
        QCOMPARE(Describe(run), seen);
        QVERIFY(!run.pLayout->IsAllHidden());
    }
}

void PaneLayoutTest::aPaneThatReachesBeyondTheScreenStaysWhereItIs()
{
    Run run;
    run.Arrange();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect place(screen.right() - 100, 50, 260, 180);
    run.Pane("D")->setGeometry(place);
    const QByteArray saved = run.pLayout->Save();

    run.pLayout->ToggleAllHidden();
    run.pLayout->ToggleAllHidden();
    QCOMPARE(run.Pane("D")->geometry(), place);

    Run next;
    QVERIFY(next.pLayout->Restore(saved));
    QCOMPARE(next.Pane("D")->geometry(), place);
}

void PaneLayoutTest::whileAllAreHiddenTheFormerLayoutIsSaved()
{
    Run run;
    run.Arrange();
    const QByteArray before = run.pLayout->Save();

    run.pLayout->ToggleAllHidden();
    Run::Settle();

    QCOMPARE(run.pLayout->Save(), before);
}

void PaneLayoutTest::showingAPaneEndsTheHiddenState()
{
    Run run;
    run.Arrange();
    run.pLayout->ToggleAllHidden();

    run.Pane("E")->show();

    QVERIFY(!run.pLayout->IsAllHidden());
    run.pLayout->ToggleAllHidden();
    run.pLayout->ToggleAllHidden();
    QVERIFY(!run.Pane("E")->isHidden());
    QVERIFY(run.Pane("A")->isHidden());
}

void PaneLayoutTest::theFactoryLayoutEndsTheHiddenState()
{
    Run run;
    run.Arrange();
    run.pLayout->ToggleAllHidden();

    run.pLayout->RestoreDefault();

    QVERIFY(!run.pLayout->IsAllHidden());
    QVERIFY(!run.Pane("E")->isHidden());
}

void PaneLayoutTest::restoringEndsTheHiddenState()
{
    Run run;
    const QByteArray factory = run.pLayout->Save();
    run.pLayout->ToggleAllHidden();

    QVERIFY(run.pLayout->Restore(factory));

    QVERIFY(!run.pLayout->IsAllHidden());
    QVERIFY(!run.Pane("A")->isHidden());
}

void PaneLayoutTest::aLayoutComesBackInAnotherRun()
{
    QByteArray saved;
    QStringList before;
    {
        Run run;
        run.Arrange();
        saved = run.pLayout->Save();
        before = Describe(run);
    }

    Run next;
    QVERIFY(next.pLayout->Restore(saved));
    Run::Settle();

    QCOMPARE(Describe(next), before);
}

void PaneLayoutTest::theFactoryLayoutComesBack()
{
    Run run;
    const QStringList factory = Describe(run);
    run.Arrange();
    QVERIFY(Describe(run) != factory);

    run.pLayout->RestoreDefault();
    Run::Settle();

    QCOMPARE(Describe(run), factory);
    QCOMPARE(run.Pane("D")->width(), 250);
    QCOMPARE(run.Pane("F")->height(), 120);
    QVERIFY(!run.Pane("A")->visibleRegion().isEmpty());
    QVERIFY(run.Pane("C")->visibleRegion().isEmpty());
}

void PaneLayoutTest::aPaneThatTheLayoutDoesNotKnowGoesToItsFactoryPlace()
{
    QByteArray saved;
    {
        Run run({"A", "B", "C", "D", "E"});
        run.Pane("A")->setFloating(true);
        saved = run.pLayout->Save();
    }

    Run next;
    next.window.removeDockWidget(next.Pane("F"));
    QVERIFY(next.pLayout->Restore(saved));
    next.Pane("F")->show();
    Run::Settle();

    QCOMPARE(next.window.dockWidgetArea(next.Pane("F")), Qt::BottomDockWidgetArea);
    QVERIFY(!next.Pane("F")->visibleRegion().isEmpty());
    QVERIFY(next.Pane("A")->isFloating());
}

void PaneLayoutTest::aPaneThatIsNotThereKeepsItsPlaceForLater()
{
    const QStringList all = {"A", "B", "C", "D", "E", "F"};
    QByteArray saved;
    {
        Run run(all);
        run.Arrange();
        run.window.addDockWidget(Qt::TopDockWidgetArea, run.Pane("F"));
        saved = run.pLayout->Save();
    }
    {
        Run run({"A", "B", "C", "D", "E"});
        QVERIFY(run.pLayout->Restore(saved));
        Run::Settle();
        saved = run.pLayout->Save();
    }

    Run last(all);
    QVERIFY(last.pLayout->Restore(saved));

    QCOMPARE(last.window.dockWidgetArea(last.Pane("F")), Qt::TopDockWidgetArea);
}

void PaneLayoutTest::aFloatingPaneComesIntoReach_data()
{
    QTest::addColumn<QRect>("place");

    QTest::newRow("far right") << QRect(5000, 100, 200, 150);
    QTest::newRow("far left") << QRect(-5000, 100, 200, 150);
    QTest::newRow("below") << QRect(100, 9000, 200, 150);
    QTest::newRow("a sliver at the left") << QRect(-190, 100, 200, 150);
    QTest::newRow("a sliver at the top") << QRect(100, -130, 200, 150);
}

void PaneLayoutTest::aFloatingPaneComesIntoReach()
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

void PaneLayoutTest::anUnusableLayoutGivesTheFactoryLayout()
{
    Run run;
    const QStringList factory = Describe(run);
    run.Arrange();

    QVERIFY(!run.pLayout->Restore(QByteArray("no layout")));
    Run::Settle();

    QCOMPARE(Describe(run), factory);
}

void PaneLayoutTest::aPaneThatLeftTheManagerIsNobodysAnyMore()
{
    Run run;
    QDockWidget* pPane = run.Pane("F");
    QCOMPARE(pPane->objectName(), QStringLiteral("F"));

    run.manager.DeleteDock(L"F");
    const QByteArray saved = run.pLayout->Save();

    QCOMPARE(pPane->objectName(), QString());
    QVERIFY(run.pLayout->Restore(saved));
    QVERIFY(pPane->isHidden());
}

void PaneLayoutTest::showingAndHidingIsTold()
{
    Run run;
    QSignalSpy changes(run.pLayout.get(), &PaneLayout::visibilityChanged);

    run.Pane("A")->hide();
    QCOMPARE(changes.count(), 1);
    run.Pane("A")->show();
    QCOMPARE(changes.count(), 2);
}

}

QTEST_MAIN(vesk::test::PaneLayoutTest)
#include "PaneLayoutTest.moc"
