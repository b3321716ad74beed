#include "DockManagerImpl.h"

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

    void askingForAFeatureRefuses_data();
    void askingForAFeatureRefuses();
    void dockableIsWhatHasExactlyThreeFeatures_data();
    void dockableIsWhatHasExactlyThreeFeatures();
    void dockableIsSwitchedOn();
    void dockableIsSwitchedOff();
    void aRemovedTitleBarLeavesAnEmptyWidgetAndNoFeature();
    void anotherTitleBarMayBeRemovedAgain();

    void allComeInStepInTheOrderOfTheirNames();
    void hiddenDocksDoNotComeInStep();
    void aDockBehindAnotherTabComesInStep();
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

/// Three panes that note what is asked of them, and an empty place among them.
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

void DockManagerPanesTest::askingForAFeatureRefuses_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    const QString noDock = QString::fromUtf8("pDock是空指针");
    const QString noWidget = QString::fromUtf8("pQDock是空指针");
    QTest::newRow("IsDockable, unknown") << "IsDockable"
                                         << "unknown"
                                         << "";
    QTest::newRow("IsDockable, null") << "IsDockable"
                                      << "null" << noDock;
    QTest::newRow("IsDockable, no widget") << "IsDockable"
                                           << "plain" << noWidget;
    QTest::newRow("SetIsDockable, unknown") << "SetIsDockable"
                                            << "unknown"
                                            << "";
    QTest::newRow("SetIsDockable, null") << "SetIsDockable"
                                         << "null" << noDock;
    QTest::newRow("SetIsDockable, no widget") << "SetIsDockable"
                                              << "plain" << noWidget;
    QTest::newRow("RemoveDockTitleBar, unknown") << "RemoveDockTitleBar"
                                                 << "unknown"
                                                 << "";
    QTest::newRow("RemoveDockTitleBar, null") << "RemoveDockTitleBar"
                                              << "null" << noDock;
    QTest::newRow("RemoveDockTitleBar, no widget") << "RemoveDockTitleBar"
                                                   << "plain" << noWidget;
}

void DockManagerPanesTest::askingForAFeatureRefuses()
{
    QFETCH(QString, operation);
    QFETCH(QString, name);
    QFETCH(QString, message);
    DockFixture f;
    QStringList notes;
    PlainDock plain(L"plain", &notes);
    f.Enter(L"null", nullptr);
    f.Enter(L"plain", &plain);
    const std::wstring wideName = name.toStdWString();

    const bool result = operation == "IsDockable"      ? f.manager.IsDockable(wideName)
                        : operation == "SetIsDockable" ? f.manager.SetIsDockable(wideName, true)
                                                       : f.manager.RemoveDockTitleBar(wideName);

    QVERIFY(!result);
    if (!message.isEmpty())
        EXPECT_WARNING(f.host.warnings, message.toStdWString(),
                       "vesk::DockManagerImpl::" + operation.toStdString());
}

void DockManagerPanesTest::dockableIsWhatHasExactlyThreeFeatures_data()
{
    QTest::addColumn<int>("features");
    QTest::addColumn<bool>("isDockable");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("closable") << 1 << false;
    QTest::newRow("closable and movable") << 3 << false;
    QTest::newRow("closable and floatable") << 5 << false;
    QTest::newRow("movable and floatable") << 6 << false;
    QTest::newRow("all three") << 7 << true;
    QTest::newRow("all three and a vertical title bar") << 15 << false;
}

void DockManagerPanesTest::dockableIsWhatHasExactlyThreeFeatures()
{
    QFETCH(int, features);
    DockFixture f;
    IDock* pDock = f.Add(L"name");

    WidgetOf(pDock)->setFeatures(QDockWidget::DockWidgetFeatures(features));

    QTEST(f.manager.IsDockable(L"name"), "isDockable");
}

void DockManagerPanesTest::dockableIsSwitchedOn()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    WidgetOf(pDock)->setFeatures(QDockWidget::DockWidgetClosable |
                                 QDockWidget::DockWidgetVerticalTitleBar);

    QVERIFY(f.manager.SetIsDockable(L"name", true));

    QCOMPARE(int(WidgetOf(pDock)->features()), 7);
    QVERIFY(f.manager.IsDockable(L"name"));
}

void DockManagerPanesTest::dockableIsSwitchedOff()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");

    QVERIFY(f.manager.SetIsDockable(L"name", false));

    QCOMPARE(int(WidgetOf(pDock)->features()), 0);
    QVERIFY(!f.manager.IsDockable(L"name"));
}

void DockManagerPanesTest::aRemovedTitleBarLeavesAnEmptyWidgetAndNoFeature()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");

    QVERIFY(f.manager.RemoveDockTitleBar(L"name"));

    const QWidget* pTitleBar = WidgetOf(pDock)->titleBarWidget();
    QVERIFY(pTitleBar != nullptr);
    QCOMPARE(pTitleBar->metaObject(), &QWidget::staticMetaObject);
    QVERIFY(pTitleBar->children().isEmpty());
    QCOMPARE(pTitleBar->parentWidget(), static_cast<QWidget*>(WidgetOf(pDock)));
    QCOMPARE(int(WidgetOf(pDock)->features()), 0);
    QVERIFY(!f.manager.IsDockable(L"name"));
}

void DockManagerPanesTest::anotherTitleBarMayBeRemovedAgain()
{
    DockFixture f;
    QDockWidget* pWidget = WidgetOf(f.Add(L"name"));
    f.manager.RemoveDockTitleBar(L"name");
    const QWidget* pFirst = pWidget->titleBarWidget();

    QVERIFY(f.manager.RemoveDockTitleBar(L"name"));

    QVERIFY(pWidget->titleBarWidget() != nullptr);
    QVERIFY(pWidget->titleBarWidget() != pFirst);
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

QTEST_MAIN(vesk::test::DockManagerPanesTest)
#include "DockManagerPanesTest.moc"
