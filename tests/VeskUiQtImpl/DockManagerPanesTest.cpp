#include "VeskUiQtImpl/DockManagerImpl.h"

#include "DockFixture.h"
#include "Support/TestValues.h"

#include <QPointer>

namespace vesk::test
{

/// What the manager does to one pane or to all.
class DockManagerPanesTest : public QObject
{
    Q_OBJECT

private slots:
    void showingAndHidingAllNeedsTheServices_data();
    void showingAndHidingAllNeedsTheServices();
    void showingAndHidingAllNeedsAManagerAtTheHost_data();
    void showingAndHidingAllNeedsAManagerAtTheHost();
    void allAreHiddenAndShownInTheOrderOfTheirNames();
    void allMeansTheDocksOfThisManager();
    void showingAllShowsWhatWasHiddenBefore();
    void hidingAllHidesWhatIsShown();

    void showingAllRaisesNothing();
    void hidingAllLeavesTheRest();
    void allMeansFloatingDocksToo();

    void allComeInStepInTheOrderOfTheirNames();
    void hiddenDocksDoNotComeInStep();
    void comingInStepNeedsNoServices();
    void aDockBehindAnotherTabComesInStep();
    void aFloatingDockComesInStep();
    void aDockWithoutContentIsReportedAndTheOthersComeInStep();
    void aHiddenDockWithoutContentIsNotReported();
    void aDockDeletedOnTheWayIsLeftOut();
    void aDockTakenOutOnTheWayIsLeftOut();
    void aDockMayDeleteItselfOnTheWay();
    void aDockAddedOnTheWayWaitsForTheNextTime();

    void thePropertyPanelNeedsTheServices();
    void thePropertyPanelIsNotThereWithoutAManagerAtTheHost();
    void thePropertyPanelIsNotThereWithoutItsDock();
    void thePropertyPanelIsNotThereWithoutContent();
    void thePropertyPanelIsNothingElse();
    void thePropertyPanelIsTheContentOfItsDock();
};

/// Three panes that record what is asked of them, and an empty slot among them.
struct NotedDocks : DockFixture
{
    NotedDocks()
    {
        Enter(L"c", &c);
        Enter(L"b", nullptr);
        Enter(L"B", &upperB);
        Enter(L"a", &a);
    }

    QStringList notes;
    PlainDock a{L"a", &notes};
    PlainDock upperB{L"B", &notes};
    PlainDock c{L"c", &notes};
};

void AddShowAndHide()
{
    QTest::addColumn<bool>("isShow");
    QTest::newRow("show") << true;
    QTest::newRow("hide") << false;
}

const char* ShowAll(IDockManager& manager, bool isShow)
{
    if (isShow)
        manager.ShowAllDockPane();
    else
        manager.HideAllDockPane();
    return isShow ? "vesk::DockManagerImpl::ShowAllDockPane"
                  : "vesk::DockManagerImpl::HideAllDockPane";
}

void DockManagerPanesTest::showingAndHidingAllNeedsTheServices_data()
{
    AddShowAndHide();
}

void DockManagerPanesTest::showingAndHidingAllNeedsTheServices()
{
    QFETCH(bool, isShow);
    NotedDocks f;
    f.host.window.SetManagerInstalled(false);

    const char* function = ShowAll(f.manager, isShow);

    EXPECT_WARNING(f.host.warnings, L"pUiManager为空", function);
    QCOMPARE(f.notes, QStringList());
}

void DockManagerPanesTest::showingAndHidingAllNeedsAManagerAtTheHost_data()
{
    AddShowAndHide();
}

void DockManagerPanesTest::showingAndHidingAllNeedsAManagerAtTheHost()
{
    QFETCH(bool, isShow);
    NotedDocks f;
    f.host.window.SetDockManager(nullptr);

    const char* function = ShowAll(f.manager, isShow);

    EXPECT_WARNING(f.host.warnings, L"dockManager是空指针", function);
    QCOMPARE(f.notes, QStringList());
}

void DockManagerPanesTest::allAreHiddenAndShownInTheOrderOfTheirNames()
{
    NotedDocks f;

    f.manager.HideAllDockPane();
    f.manager.ShowAllDockPane();

    QCOMPARE(f.notes,
             (QStringList{"B hidden", "a hidden", "c hidden", "B shown", "a shown", "c shown"}));
}

void DockManagerPanesTest::allMeansTheDocksOfThisManager()
{
    NotedDocks f;
    DockManagerImpl other(&f.window);
    f.host.window.SetDockManager(&other);

    f.manager.HideAllDockPane();
    other.HideAllDockPane();

    QCOMPARE(f.notes, (QStringList{"B hidden", "a hidden", "c hidden"}));
}

void DockManagerPanesTest::showingAllShowsWhatWasHiddenBefore()
{
    DockFixture f;
    IDock* pShown = f.Add(L"shown");
    IDock* pHidden = f.Add(L"hidden");
    pShown->Show();
    pHidden->Hide();
    f.manager.HideAllDockPane();

    f.manager.ShowAllDockPane();

    QVERIFY(!pShown->IsHidden());
    QVERIFY(!pHidden->IsHidden());
}

void DockManagerPanesTest::hidingAllHidesWhatIsShown()
{
    DockFixture f;
    IDock* pFirst = f.Add(L"first");
    IDock* pSecond = f.Add(L"second");
    f.manager.ShowAllDockPane();

    f.manager.HideAllDockPane();

    QVERIFY(pFirst->IsHidden());
    QVERIFY(pSecond->IsHidden());
}

void DockManagerPanesTest::showingAllRaisesNothing()
{
    DockFixture f;
    IDock* pFirst = f.Add(L"a");
    IDock* pSecond = f.Add(L"b");
    f.manager.TabifyDock(pSecond, pFirst);
    f.window.show();
    QTRY_VERIFY(!WidgetOf(pFirst)->visibleRegion().isEmpty());

    f.manager.ShowAllDockPane();
    QCoreApplication::processEvents();

    QVERIFY(!WidgetOf(pFirst)->visibleRegion().isEmpty());
    QVERIFY(WidgetOf(pSecond)->visibleRegion().isEmpty());
}

void DockManagerPanesTest::hidingAllLeavesTheRest()
{
    DockFixture f;
    IDock* pFloating = f.Add(L"a");
    pFloating->SetFloating(true);
    QDockWidget foreign(&f.window);
    f.window.addDockWidget(Qt::LeftDockWidgetArea, &foreign);

    f.manager.HideAllDockPane();

    QVERIFY(pFloating->IsFloating());
    QVERIFY(!foreign.isHidden());
    QCOMPARE(f.CountDocks(), std::size_t(1));
    f.window.removeDockWidget(&foreign);
}

void DockManagerPanesTest::allMeansFloatingDocksToo()
{
    DockFixture f;
    IDock* pFloating = f.Add(L"a");
    pFloating->SetFloating(true);
    pFloating->Show();

    f.manager.HideAllDockPane();
    QVERIFY(pFloating->IsHidden());

    f.manager.ShowAllDockPane();
    QVERIFY(!pFloating->IsHidden());
    QVERIFY(pFloating->IsFloating());
}

void DockManagerPanesTest::allComeInStepInTheOrderOfTheirNames()
{
    DockFixture f;
    QString order;
    f.AddUpdated(L"c", [&] { order += 'c'; });
    f.Enter(L"b", nullptr);
    f.AddUpdated(L"a", [&] { order += 'a'; });
    f.AddUpdated(L"B", [&] { order += 'B'; });

    f.manager.UpdateAllDockStatus();

    QCOMPARE(order, QString("Bac"));
}

void DockManagerPanesTest::hiddenDocksDoNotComeInStep()
{
    DockFixture f;
    QString order;
    f.AddUpdated(L"a", [&] { order += 'a'; })->Hide();
    f.AddUpdated(L"b", [&] { order += 'b'; });

    f.manager.UpdateAllDockStatus();

    QCOMPARE(order, QString("b"));
}

void DockManagerPanesTest::comingInStepNeedsNoServices()
{
    DockFixture f;
    QString order;
    f.AddUpdated(L"a", [&] { order += 'a'; });
    f.host.window.SetDockManager(nullptr);
    f.host.window.SetManagerInstalled(false);

    f.manager.UpdateAllDockStatus();

    QCOMPARE(order, QString("a"));
}

void DockManagerPanesTest::aFloatingDockComesInStep()
{
    DockFixture f;
    QString order;
    f.AddUpdated(L"a", [&] { order += 'a'; })->SetFloating(true);

    f.manager.UpdateAllDockStatus();

    QCOMPARE(order, QString("a"));
}

void DockManagerPanesTest::aDockBehindAnotherTabComesInStep()
{
    DockFixture f;
    QString order;
    IDock* pBehind = f.AddUpdated(L"a", [&] { order += 'a'; });
    f.manager.TabifyDock(pBehind, f.AddUpdated(L"b", [&] { order += 'b'; }));
    f.window.show();
    QTRY_VERIFY(WidgetOf(pBehind)->visibleRegion().isEmpty());

    f.manager.UpdateAllDockStatus();

    QCOMPARE(order, QString("ab"));
}

void DockManagerPanesTest::aDockWithoutContentIsReportedAndTheOthersComeInStep()
{
    DockFixture f;
    QString order;
    f.Add(L"a")->Show();
    f.AddUpdated(L"b", [&] { order += 'b'; });

    f.manager.UpdateAllDockStatus();

    EXPECT_WARNING(f.host.warnings, L"pWidget是空指针",
                   "vesk::DockManagerImpl::UpdateAllDockStatus");
    QCOMPARE(order, QString("b"));
}

void DockManagerPanesTest::aHiddenDockWithoutContentIsNotReported()
{
    DockFixture f;
    f.Add(L"a")->Hide();

    f.manager.UpdateAllDockStatus();

    QVERIFY2(f.host.warnings.IsEmpty(), qPrintable(f.host.warnings.Describe()));
}

void DockManagerPanesTest::aDockDeletedOnTheWayIsLeftOut()
{
    DockFixture f;
    QString order;
    f.AddUpdated(L"a", [&] {
        order += 'a';
        const IDock* pNext = f.manager.GetDock(L"b");
        f.manager.DeleteDock(L"b");
        delete pNext;
    });
    f.AddUpdated(L"b", [&] { order += 'b'; });
    f.AddUpdated(L"c", [&] { order += 'c'; });

    f.manager.UpdateAllDockStatus();

    QCOMPARE(order, QString("ac"));
}

void DockManagerPanesTest::aDockTakenOutOnTheWayIsLeftOut()
{
    DockFixture f;
    QString order;
    f.AddUpdated(L"a", [&] {
        order += 'a';
        IDock* pNext = f.manager.GetDock(L"b");
        f.manager.DeleteDock(L"b");
        pNext->Show();
    });
    f.AddUpdated(L"b", [&] { order += 'b'; });

    f.manager.UpdateAllDockStatus();

    QCOMPARE(order, QString("a"));
}

void DockManagerPanesTest::aDockMayDeleteItselfOnTheWay()
{
    DockFixture f;
    QString order;
    IDock* pDock = f.AddUpdated(L"a", [&] {
        f.manager.DeleteDock(L"a");
        order += 'a';
    });
    f.AddUpdated(L"b", [&] { order += 'b'; });

    f.manager.UpdateAllDockStatus();

    QCOMPARE(order, QString("ab"));
    QVERIFY(f.manager.GetDock(L"a") == nullptr);
    QVERIFY(pDock->IsHidden());
}

void DockManagerPanesTest::aDockAddedOnTheWayWaitsForTheNextTime()
{
    DockFixture f;
    QString order;
    f.AddUpdated(L"a", [&] {
        order += 'a';
        if (f.manager.GetDock(L"b") == nullptr)
            f.AddUpdated(L"b", [&] { order += 'b'; });
    });

    f.manager.UpdateAllDockStatus();
    QCOMPARE(order, QString("a"));
    f.manager.UpdateAllDockStatus();

    QCOMPARE(order, QString("aab"));
}

void DockManagerPanesTest::thePropertyPanelNeedsTheServices()
{
    DockFixture f;
    f.host.window.SetManagerInstalled(false);

    QVERIFY(DockManagerImpl::GetPropertyWidget() == nullptr);

    EXPECT_WARNING(f.host.warnings, L"pUiManager为空", "vesk::DockManagerImpl::GetPropertyWidget");
}

void DockManagerPanesTest::thePropertyPanelIsNotThereWithoutAManagerAtTheHost()
{
    DockFixture f;
    f.host.window.SetDockManager(nullptr);

    QVERIFY(DockManagerImpl::GetPropertyWidget() == nullptr);
}

void DockManagerPanesTest::thePropertyPanelIsNotThereWithoutItsDock()
{
    DockFixture f;
    f.Add(L"other")->SetWidget(MakeOwner<PropertyPanel>());

    QVERIFY(DockManagerImpl::GetPropertyWidget() == nullptr);
}

void DockManagerPanesTest::thePropertyPanelIsNotThereWithoutContent()
{
    DockFixture f;
    f.Add(IPropertyWidget::GetTypeName());

    QVERIFY(DockManagerImpl::GetPropertyWidget() == nullptr);
}

void DockManagerPanesTest::thePropertyPanelIsNothingElse()
{
    DockFixture f;
    f.Add(IPropertyWidget::GetTypeName())->SetWidget(MakeOwner<WidgetContent>());

    QVERIFY(DockManagerImpl::GetPropertyWidget() == nullptr);
}

void DockManagerPanesTest::thePropertyPanelIsTheContentOfItsDock()
{
    DockFixture f;
    auto opPanel = MakeOwner<PropertyPanel>();
    IPropertyWidget* pPanel = opPanel.Get();
    f.Add(IPropertyWidget::GetTypeName())->SetWidget(std::move(opPanel));

    QCOMPARE(DockManagerImpl::GetPropertyWidget(), pPanel);
}

}

VESK_TESTS(vesk::test::DockManagerPanesTest);
#include "DockManagerPanesTest.moc"
