#include "HostUi/PaneLayout.h"

#include "HostUi/PaneRun.h"
#include "Support/TestValues.h"

#include <QHBoxLayout>
#include <QSignalSpy>

namespace vesk::test
{

/// The layout as a user would describe it.
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

/// Pane layouts: saved and restored, hidden and brought back.
class PaneLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void hidingAllAndBackIsExact();
    void whileAllAreHiddenTheFormerLayoutIsSaved();
    void showingAPaneEndsTheHiddenState();
    void theFactoryLayoutEndsTheHiddenState();
    void restoringEndsTheHiddenState();

    void aLayoutComesBackInAnotherRun();
    void theFactoryLayoutComesBack();
    void theFactoryLayoutNamesANewPane();
    void aPaneThatTheLayoutDoesNotKnowGoesToItsFactoryPlace();
    void aPaneThatIsNotThereKeepsItsPlaceForLater();
    void aRestoredPaneKeepsAUsableSizeInASmallWindow_data();
    void aRestoredPaneKeepsAUsableSizeInASmallWindow();
    void aPaneIsNoSmallerThanItsContent();
    void aNewContentIsUsableAtOnce();
    void aPanesOwnLeastSizeIsLeft();
    void aContentThatNeedsMoreIsGivenNoLeastSize();
    void aPaneWithoutContentIsLaidOutToo();
    void namesOfForeignDocksAreLeft();
    void aFloatingPaneComesUpAfterTheWindow();
    void aFloatingPaneStaysOnScreenInAWindowThatIsThere();
    void aHiddenFloatingPaneDoesNotComeUp();
    void aFloatingPaneThatIsNotThereKeepsItsPlaceForLater();
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
    for (const char* name : {"A", "B", "C", "D", "E", "F"})
        run.Pane(name)->hide();
    run.pLayout->ToggleAllHidden();
    QVERIFY(run.pLayout->IsAllHidden());

    run.pLayout->ToggleAllHidden();
    QVERIFY(!run.pLayout->IsAllHidden());

    run.pLayout->ToggleAllHidden();
    QVERIFY(run.pLayout->Restore(run.pLayout->Save()));
    QVERIFY(!run.pLayout->IsAllHidden());

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
    QCOMPARE(run.Pane("A")->width(), 200);
    QCOMPARE(run.Pane("D")->width(), 250);
    QCOMPARE(run.Pane("F")->height(), 120);
    QVERIFY(!run.Pane("A")->visibleRegion().isEmpty());
    QVERIFY(run.Pane("C")->visibleRegion().isEmpty());
}

void PaneLayoutTest::theFactoryLayoutNamesANewPane()
{
    Run run;
    run.AddPane("G");

    run.pLayout->RestoreDefault();

    QCOMPARE(run.Pane("G")->objectName(), QStringLiteral("G"));
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

void PaneLayoutTest::aRestoredPaneKeepsAUsableSizeInASmallWindow_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("a window that is shown") << true;
    QTest::newRow("a window that will be shown") << false;
}

void PaneLayoutTest::aRestoredPaneKeepsAUsableSizeInASmallWindow()
{
    QFETCH(bool, isShown);
    Run large;
    large.window.centralWidget()->setMinimumSize(300, 200);
    large.window.resize(1900, 1200);
    large.window.resizeDocks({large.Pane("A"), large.Pane("D")}, {200, 1100}, Qt::Horizontal);
    large.window.resizeDocks({large.Pane("D"), large.Pane("E")}, {600, 30}, Qt::Vertical);
    Run::Settle();
    const QByteArray saved = large.pLayout->Save();
    Run small;
    small.window.centralWidget()->setMinimumSize(300, 200);
    small.window.resize(700, 600);
    small.window.setVisible(isShown);

    QVERIFY(small.pLayout->Restore(saved));
    small.window.show();
    Run::Settle();

    QCOMPARE(small.window.size(), QSize(700, 600));
    for (const char* name : {"A", "B", "D", "E", "F"})
    {
        QVERIFY2(small.Pane(name)->width() >= 160, name);
        // The height of its title depends on the font.
        QVERIFY2(small.Pane(name)->widget()->height() >= 60, name);
    }
    QVERIFY(small.window.centralWidget()->width() >= 300);
}

void PaneLayoutTest::aPaneIsNoSmallerThanItsContent()
{
    Run run;
    auto* pInner = new QWidget;
    pInner->setMinimumWidth(333);
    auto* pContent = new QWidget;
    (new QHBoxLayout(pContent))->addWidget(pInner);
    run.Pane("D")->setWidget(pContent);
    run.pLayout->Save();
    Run::Settle();

    run.window.resizeDocks({run.Pane("D")}, {10}, Qt::Horizontal);
    Run::Settle();
    QVERIFY(run.Pane("D")->width() >= 333);
    QCOMPARE(pContent->minimumWidth(), 0);

    pInner->setMinimumWidth(0);
    Run::Settle();
    QCOMPARE(pContent->minimumWidth(), 160);
    run.window.resizeDocks({run.Pane("D")}, {10}, Qt::Horizontal);
    Run::Settle();
    QCOMPARE(run.Pane("D")->width(), 160);
}

void PaneLayoutTest::aNewContentIsUsableAtOnce()
{
    Run run;
    auto* pContent = new QWidget;
    run.Pane("D")->setWidget(pContent);

    run.pLayout->Save();

    QCOMPARE(pContent->minimumWidth(), 160);
}

void PaneLayoutTest::aPanesOwnLeastSizeIsLeft()
{
    Run run;
    run.Pane("D")->widget()->setMinimumSize(90, 210);

    run.pLayout->Save();
    Run::Settle();

    QCOMPARE(run.Pane("D")->widget()->minimumSize(), QSize(90, 210));
}

/// The toolkit's warnings.
static QStringList s_complaints;

void PaneLayoutTest::aContentThatNeedsMoreIsGivenNoLeastSize()
{
    Run run;
    auto* pInner = new QWidget;
    pInner->setMinimumSize(333, 222);
    auto* pContent = new QWidget;
    (new QHBoxLayout(pContent))->addWidget(pInner);
    run.Pane("D")->setWidget(pContent);
    s_complaints.clear();
    const auto note = [](QtMsgType, const QMessageLogContext&, const QString& text) {
        if (text.startsWith("QWidget::"))
            s_complaints << text;
    };
    const QtMessageHandler previous = qInstallMessageHandler(note);

    run.pLayout->Save();

    qInstallMessageHandler(previous);
    QCOMPARE(pContent->minimumSize(), QSize(0, 0));
    QCOMPARE(s_complaints, QStringList());
}

void PaneLayoutTest::aPaneWithoutContentIsLaidOutToo()
{
    Run run;
    delete run.Pane("D")->widget();

    const QByteArray saved = run.pLayout->Save();

    QVERIFY(run.pLayout->Restore(saved));
    QVERIFY(run.Pane("D")->isVisible());
}

void PaneLayoutTest::namesOfForeignDocksAreLeft()
{
    Run run;
    auto* pForeign = new QDockWidget(&run.window);
    pForeign->setObjectName("foreign");
    run.window.addDockWidget(Qt::LeftDockWidgetArea, pForeign);
    auto* pInner = new QMainWindow;
    auto* pNested = new QDockWidget(pInner);
    pNested->setObjectName("nested");
    pInner->addDockWidget(Qt::LeftDockWidgetArea, pNested);
    run.Pane("A")->setWidget(pInner);

    const QByteArray saved = run.pLayout->Save();
    run.pLayout->RestoreDefault();
    QVERIFY(run.pLayout->Restore(saved));

    QCOMPARE(pForeign->objectName(), QString("foreign"));
    QCOMPARE(pNested->objectName(), QString("nested"));
    QCOMPARE(run.window.dockWidgetArea(pForeign), Qt::LeftDockWidgetArea);
}

void PaneLayoutTest::aFloatingPaneComesUpAfterTheWindow()
{
    Run run;
    run.Arrange();
    const QByteArray saved = run.pLayout->Save();
    Run next;
    next.window.hide();

    QVERIFY(next.pLayout->Restore(saved));
    QVERIFY(!next.Pane("D")->isVisible());
    next.window.show();

    QTRY_VERIFY(next.Pane("D")->isVisible());
    QVERIFY(next.Pane("D")->isFloating());
}

void PaneLayoutTest::aFloatingPaneStaysOnScreenInAWindowThatIsThere()
{
    Run run;
    run.Arrange();
    const QByteArray saved = run.pLayout->Save();
    Run next;

    QVERIFY(next.pLayout->Restore(saved));

    QVERIFY(next.Pane("D")->isFloating());
    QVERIFY(next.Pane("D")->isVisible());
}

void PaneLayoutTest::aHiddenFloatingPaneDoesNotComeUp()
{
    Run run;
    run.Arrange();
    run.Pane("D")->hide();
    const QByteArray saved = run.pLayout->Save();
    Run next;
    next.window.hide();

    QVERIFY(next.pLayout->Restore(saved));
    next.window.show();
    Run::Settle();

    QVERIFY(next.Pane("D")->isFloating());
    QVERIFY(next.Pane("D")->isHidden());
}

void PaneLayoutTest::aFloatingPaneThatIsNotThereKeepsItsPlaceForLater()
{
    // The toolkit itself would push it back into the screen.
    const QRect place(-190, 200, 260, 180);
    QByteArray saved;
    {
        Run run;
        run.Arrange();
        run.Pane("D")->setGeometry(place);
        saved = run.pLayout->Save();
    }
    {
        Run run({"A", "B", "C", "E", "F"});
        QVERIFY(run.pLayout->Restore(saved));
        saved = run.pLayout->Save();
    }

    Run last;
    QVERIFY(last.pLayout->Restore(saved));

    QCOMPARE(last.Pane("D")->geometry(), place);
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

VESK_TESTS(vesk::test::PaneLayoutTest);
#include "PaneLayoutTest.moc"
