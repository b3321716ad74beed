#include "DockManagerImpl.h"

#include "DockFixture.h"

#include <QPointer>
#include <QtTest>

namespace vesk::test
{

using AreaMapping = Qt::DockWidgetArea(DockArea) const;
VESK_EXPOSE(GetQtArea, AreaMapping, DockManagerImpl, GetQtDockArea)
using OrientationMapping = Qt::Orientation(DockOrientation) const;
VESK_EXPOSE(GetOrientation, OrientationMapping, DockManagerImpl, GetQtOrientation)

/// The main frame, taken away while this lives.
class NoMainFrame final : private IMainWindow
{
public:
    NoMainFrame() : m_pFrame(GetMainWindow()) { SetMainWindow(nullptr); }
    ~NoMainFrame() override { SetMainWindow(m_pFrame); }

    WindowId GetWinId() const override { return 0; }

private:
    IMainWindow* m_pFrame;
};

/// How panes are made, added and taken out, and what the manager knows of them.
class DockManagerImplTest : public QObject
{
    Q_OBJECT

private slots:
    void membersStandInOrder();
    void operationsHaveTheirSlots();
    void areasAreThoseOfQt_data();
    void areasAreThoseOfQt();
    void onlyOneIsHorizontal_data();
    void onlyOneIsHorizontal();

    void createdDocksAreChildrenOfTheMainFrame();
    void createdDocksHaveNoParentWithoutAMainFrame();
    void createdDocksHaveNoParentWhenTheFrameHasNoWindow();
    void createdDocksAreInNoTable();

    void addedDocksStandInTheirArea_data();
    void addedDocksStandInTheirArea();
    void addedDocksStandInTheirOrientation_data();
    void addedDocksStandInTheirOrientation();
    void anAddedDockIsKnownBeforeQtTellsOfIt();
    void anAddedDockBelongsToTheWindow();
    void aDockInNoAreaBelongsToTheWindow_data();
    void aDockInNoAreaBelongsToTheWindow();
    void anEmptyDockIsReported();
    void aTakenNameIsReportedAndTheFirstDockStays();
    void aTakenNameIsReportedBeforeAMissingWindow();
    void aWindowThatHoldsNoDocksIsReported();
    void aMissingWindowIsReported();
    void aDockThatIsNoWidgetIsReported();

    void unknownNamesAreFoundSilently();
    void deletedDocksStayHiddenChildrenOfTheWindow();
    void aNameIsFreeAfterDeletion();
    void thePropertyPanelCannotBeDeleted();
    void unknownNamesAreDeletedSilently();
    void deletionReportsAWindowThatHoldsNoDocks();
    void deletionReportsADockThatIsNoWidget();

    void copiesKnowTheSameDocks();
    void copiesHaveTablesOfTheirOwn();
    void assignedManagersKnowTheSameDocks();
    void theManagerDestroysNoDock();
    void theManagerTouchesNoDockWhenItEnds();
};

void DockManagerImplTest::membersStandInOrder()
{
    DockFixture f;

    QCOMPARE(BaseOffsetIn<IDockManager>(f.manager), std::ptrdiff_t(0));
    QCOMPARE(OffsetIn(f.manager, MemberOf(ManagerWindow())), std::ptrdiff_t(sizeof(IDockManager)));
    QCOMPARE(OffsetIn(f.manager, MemberOf(DockTable())),
             std::ptrdiff_t(sizeof(IDockManager) + sizeof(void*)));
    QCOMPARE(OffsetIn(f.manager, MemberOf(WidgetTable())),
             std::ptrdiff_t(sizeof(IDockManager) + sizeof(void*) + sizeof(DocksByName)));
    QCOMPARE(sizeof(DockManagerImpl),
             sizeof(IDockManager) + sizeof(void*) + sizeof(DocksByName) + sizeof(DocksByWidget));
}

void DockManagerImplTest::operationsHaveTheirSlots()
{
    QCOMPARE(SlotOf(&IDockManager::CreateDock), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&IDockManager::AddDock), std::ptrdiff_t(3));
    QCOMPARE(SlotOf(&IDockManager::DeleteDock), std::ptrdiff_t(4));
    QCOMPARE(SlotOf(&IDockManager::GetDock), std::ptrdiff_t(5));
    QCOMPARE(SlotOf(&IDockManager::ResizeDocks), std::ptrdiff_t(6));
    QCOMPARE(SlotOf(&IDockManager::SplitDock), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&IDockManager::TabifiedDocks), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&IDockManager::TabifyDock), std::ptrdiff_t(9));
    QCOMPARE(SlotOf(&IDockManager::ShowAllDockPane), std::ptrdiff_t(10));
    QCOMPARE(SlotOf(&IDockManager::HideAllDockPane), std::ptrdiff_t(11));
    QCOMPARE(SlotOf(&IDockManager::IsDockable), std::ptrdiff_t(12));
    QCOMPARE(SlotOf(&IDockManager::SetIsDockable), std::ptrdiff_t(13));
    QCOMPARE(SlotOf(&IDockManager::RemoveDockTitleBar), std::ptrdiff_t(14));
    QCOMPARE(SlotOf(&IDockManager::UpdateAllDockStatus), std::ptrdiff_t(15));
}

void DockManagerImplTest::areasAreThoseOfQt_data()
{
    QTest::addColumn<int>("area");
    QTest::addColumn<int>("qtArea");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("left") << 1 << 1;
    QTest::newRow("right") << 2 << 2;
    QTest::newRow("top") << 4 << 4;
    QTest::newRow("bottom") << 8 << 8;
    QTest::newRow("all") << 15 << 15;
    QTest::newRow("two") << 3 << 0;
    QTest::newRow("beyond") << 16 << 0;
    QTest::newRow("negative") << -1 << 0;
}

void DockManagerImplTest::areasAreThoseOfQt()
{
    QFETCH(int, area);
    const DockFixture f;

    const auto qtArea = (f.manager.*MemberOf(GetQtArea()))(static_cast<DockArea>(area));

    QTEST(static_cast<int>(qtArea), "qtArea");
}

void AddOrientations()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("isHorizontal");
    QTest::newRow("zero") << 0 << false;
    QTest::newRow("one") << 1 << true;
    QTest::newRow("two") << 2 << false;
    QTest::newRow("negative") << -1 << false;
}

void DockManagerImplTest::onlyOneIsHorizontal_data()
{
    AddOrientations();
}

void DockManagerImplTest::onlyOneIsHorizontal()
{
    QFETCH(int, orientation);
    const DockFixture f;

    const Qt::Orientation qtOrientation =
        (f.manager.*MemberOf(GetOrientation()))(static_cast<DockOrientation>(orientation));

    QTEST(qtOrientation == Qt::Horizontal, "isHorizontal");
}

void DockManagerImplTest::createdDocksAreChildrenOfTheMainFrame()
{
    const DockFixture f;

    const OwnerPtr<IDock> opDock = f.manager.CreateDock(L"name", L"title");

    QCOMPARE(WidgetOf(opDock.Get())->parentWidget(), static_cast<const QWidget*>(&f.window));
    QCOMPARE(opDock->GetName(), std::wstring(L"name"));
    QCOMPARE(opDock->GetTitle(), std::wstring(L"title"));
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(opDock.Get())), Qt::NoDockWidgetArea);
}

void DockManagerImplTest::createdDocksHaveNoParentWithoutAMainFrame()
{
    const DockFixture f;
    const NoMainFrame noFrame;

    const OwnerPtr<IDock> opDock = f.manager.CreateDock(L"name", L"title");

    QVERIFY(WidgetOf(opDock.Get())->parentWidget() == nullptr);
}

void DockManagerImplTest::createdDocksHaveNoParentWhenTheFrameHasNoWindow()
{
    DockFixture f;
    f.host.window.SetWindowId(0);

    const OwnerPtr<IDock> opDock = f.manager.CreateDock(L"name", L"title");

    QVERIFY(WidgetOf(opDock.Get())->parentWidget() == nullptr);
}

void DockManagerImplTest::createdDocksAreInNoTable()
{
    DockFixture f;

    const OwnerPtr<IDock> opDock = f.manager.CreateDock(L"name", L"title");

    QVERIFY(f.manager.GetDock(L"name") == nullptr);
    QCOMPARE(f.CountDocks(), std::size_t(0));
    QCOMPARE(f.CountWidgets(), std::size_t(0));
}

void DockManagerImplTest::addedDocksStandInTheirArea_data()
{
    QTest::addColumn<int>("area");
    QTest::newRow("left") << 1;
    QTest::newRow("right") << 2;
    QTest::newRow("top") << 4;
    QTest::newRow("bottom") << 8;
}

void DockManagerImplTest::addedDocksStandInTheirArea()
{
    QFETCH(int, area);
    DockFixture f;

    IDock* pDock = f.Add(L"name", static_cast<DockArea>(area));

    QVERIFY(pDock != nullptr);
    QCOMPARE(static_cast<int>(f.window.dockWidgetArea(WidgetOf(pDock))), area);
    QCOMPARE(f.CountDocks(), std::size_t(1));
    QCOMPARE(f.CountWidgets(), std::size_t(1));
}

void DockManagerImplTest::addedDocksStandInTheirOrientation_data()
{
    AddOrientations();
}

void DockManagerImplTest::addedDocksStandInTheirOrientation()
{
    QFETCH(int, orientation);
    QFETCH(bool, isHorizontal);
    DockFixture f;
    const QWidget* pFirst = WidgetOf(f.Add(L"first"));

    const QWidget* pSecond =
        WidgetOf(f.Add(L"second", DockArea::Left, static_cast<DockOrientation>(orientation)));
    f.window.show();

    QTRY_VERIFY(pSecond->isVisible());
    QTRY_COMPARE(pSecond->x() > pFirst->x(), isHorizontal);
    QCOMPARE(pSecond->y() > pFirst->y(), !isHorizontal);
}

void DockManagerImplTest::anAddedDockIsKnownBeforeQtTellsOfIt()
{
    DockFixture f;
    OwnerPtr<IDock> opDock = f.manager.CreateDock(L"name", L"title");
    const IDock* pExpected = opDock.Get();
    const IDock* pFound = nullptr;
    connect(WidgetOf(opDock.Get()), &QDockWidget::dockLocationChanged, this,
            [&] { pFound = f.manager.GetDock(L"name"); });

    f.manager.AddDock(std::move(opDock), DockArea::Left, DockOrientation::Vertical);

    QCOMPARE(pFound, pExpected);
}

void DockManagerImplTest::anAddedDockBelongsToTheWindow()
{
    HostFixture host;
    auto pWindow = std::make_unique<DockWindow>();
    DockManagerImpl manager(pWindow.get());
    OwnerPtr<IDock> opDock = manager.CreateDock(L"name", L"title");
    const QPointer<QDockWidget> pWidget = WidgetOf(opDock.Get());

    manager.AddDock(std::move(opDock), DockArea::Left, DockOrientation::Vertical);
    QVERIFY(!pWidget.isNull());
    QCOMPARE(pWidget->parentWidget(), static_cast<QWidget*>(pWindow.get()));

    pWindow.reset();
    QVERIFY(pWidget.isNull());
}

void DockManagerImplTest::aDockInNoAreaBelongsToTheWindow_data()
{
    QTest::addColumn<int>("area");
    QTest::newRow("none") << 0;
    QTest::newRow("all") << 15;
    QTest::newRow("unknown") << 3;
}

void DockManagerImplTest::aDockInNoAreaBelongsToTheWindow()
{
    QFETCH(int, area);
    DockFixture f;
    f.host.window.SetWindowId(0);
    QTest::ignoreMessage(QtWarningMsg, "QMainWindow::addDockWidget: invalid 'area' argument");

    IDock* pDock = f.Add(L"name", static_cast<DockArea>(area));

    QVERIFY(pDock != nullptr);
    QCOMPARE(f.CountWidgets(), std::size_t(1));
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pDock)), Qt::NoDockWidgetArea);
    QCOMPARE(WidgetOf(pDock)->parentWidget(), static_cast<QWidget*>(&f.window));
}

void DockManagerImplTest::anEmptyDockIsReported()
{
    DockFixture f;

    f.manager.AddDock(nullptr, DockArea::Left, DockOrientation::Vertical);

    EXPECT_WARNING(f.host.warnings, L"opDock是空指针", "vesk::DockManagerImpl::AddDock");
    QCOMPARE(f.CountDocks(), std::size_t(0));
}

void DockManagerImplTest::aTakenNameIsReportedAndTheFirstDockStays()
{
    DockFixture f;
    IDock* pFirst = f.Add(L"属性", DockArea::Left);
    OwnerPtr<IDock> opSecond = f.manager.CreateDock(L"属性", L"title");
    const QPointer<QDockWidget> pSecondWidget = WidgetOf(opSecond.Get());

    f.manager.AddDock(std::move(opSecond), DockArea::Right, DockOrientation::Vertical);

    EXPECT_WARNING(f.host.warnings, L"属性： Dock名已经存在！", "vesk::DockManagerImpl::AddDock");
    QVERIFY(pSecondWidget.isNull());
    QCOMPARE(f.manager.GetDock(L"属性"), pFirst);
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pFirst)), Qt::LeftDockWidgetArea);
    QCOMPARE(f.CountWidgets(), std::size_t(1));
}

void DockManagerImplTest::aTakenNameIsReportedBeforeAMissingWindow()
{
    DockFixture f;
    f.Add(L"name");
    f.TakeWindow();

    f.Add(L"name");

    EXPECT_WARNING(f.host.warnings, L"name： Dock名已经存在！", "vesk::DockManagerImpl::AddDock");
}

void DockManagerImplTest::aWindowThatHoldsNoDocksIsReported()
{
    DockFixture f;
    f.TakeWindow();
    QStringList notes;

    f.manager.AddDock(OwnerPtr<IDock>(new PlainDock(L"name", &notes)), DockArea::Left,
                      DockOrientation::Vertical);

    EXPECT_WARNING(f.host.warnings, L"pQMainWindow是空指针", "vesk::DockManagerImpl::AddDock");
    QCOMPARE(notes, QStringList("name destroyed"));
    QCOMPARE(f.CountDocks(), std::size_t(0));
}

void DockManagerImplTest::aMissingWindowIsReported()
{
    HostFixture host;
    DockManagerImpl manager(nullptr);

    manager.AddDock(manager.CreateDock(L"name", L"title"), DockArea::Left,
                    DockOrientation::Vertical);

    EXPECT_WARNING(host.warnings, L"pQMainWindow是空指针", "vesk::DockManagerImpl::AddDock");
    QVERIFY(manager.GetDock(L"name") == nullptr);
}

void DockManagerImplTest::aDockThatIsNoWidgetIsReported()
{
    DockFixture f;
    QStringList notes;

    f.manager.AddDock(OwnerPtr<IDock>(new PlainDock(L"name", &notes)), DockArea::Left,
                      DockOrientation::Vertical);

    EXPECT_WARNING(f.host.warnings, L"pQDockWidget是空指针", "vesk::DockManagerImpl::AddDock");
    QCOMPARE(notes, QStringList("name destroyed"));
    QCOMPARE(f.CountDocks(), std::size_t(0));
    QCOMPARE(f.CountWidgets(), std::size_t(0));
}

void DockManagerImplTest::unknownNamesAreFoundSilently()
{
    DockFixture f;
    f.Add(L"name");

    QVERIFY(f.manager.GetDock(L"Name") == nullptr);
    QVERIFY(f.manager.GetDock(L"name") != nullptr);
}

void DockManagerImplTest::deletedDocksStayHiddenChildrenOfTheWindow()
{
    DockFixture f;
    f.Add(L"other");
    const QPointer<QDockWidget> pWidget = WidgetOf(f.Add(L"name"));

    f.manager.DeleteDock(L"name");

    QVERIFY(f.manager.GetDock(L"name") == nullptr);
    QVERIFY(f.manager.GetDock(L"other") != nullptr);
    QCOMPARE(f.CountWidgets(), std::size_t(1));
    QVERIFY(!pWidget.isNull());
    QVERIFY(pWidget->isHidden());
    QCOMPARE(pWidget->parentWidget(), static_cast<QWidget*>(&f.window));
    QCOMPARE(f.window.dockWidgetArea(pWidget), Qt::NoDockWidgetArea);
}

void DockManagerImplTest::aNameIsFreeAfterDeletion()
{
    DockFixture f;
    const IDock* pFirst = f.Add(L"name");
    f.manager.DeleteDock(L"name");

    const IDock* pSecond = f.Add(L"name");

    QVERIFY(pSecond != nullptr && pSecond != pFirst);
    QCOMPARE(f.CountDocks(), std::size_t(1));
    QCOMPARE(f.CountWidgets(), std::size_t(1));
}

void DockManagerImplTest::thePropertyPanelCannotBeDeleted()
{
    DockFixture f;
    IDock* pPanel = f.Add(IPropertyWidget::GetTypeName());

    f.manager.DeleteDock(IPropertyWidget::GetTypeName());

    EXPECT_WARNING(f.host.warnings, L"不能删除属性面板", "vesk::DockManagerImpl::DeleteDock");
    QCOMPARE(f.manager.GetDock(IPropertyWidget::GetTypeName()), pPanel);
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pPanel)), Qt::LeftDockWidgetArea);
    QCOMPARE(f.CountWidgets(), std::size_t(1));
}

void DockManagerImplTest::unknownNamesAreDeletedSilently()
{
    DockFixture f;
    f.Add(L"name");
    f.TakeWindow();

    f.manager.DeleteDock(L"another");

    QCOMPARE(f.CountDocks(), std::size_t(1));
}

void DockManagerImplTest::deletionReportsAWindowThatHoldsNoDocks()
{
    DockFixture f;
    QStringList notes;
    PlainDock dock(L"name", &notes);
    f.Enter(L"name", &dock);
    f.TakeWindow();

    f.manager.DeleteDock(L"name");

    EXPECT_WARNING(f.host.warnings, L"pQMainWindow是空指针", "vesk::DockManagerImpl::DeleteDock");
    QCOMPARE(f.CountDocks(), std::size_t(1));
}

void DockManagerImplTest::deletionReportsADockThatIsNoWidget()
{
    DockFixture f;
    QStringList notes;
    PlainDock dock(L"name", &notes);
    f.Enter(L"name", &dock);

    f.manager.DeleteDock(L"name");

    EXPECT_WARNING(f.host.warnings, L"pQDockWidget是空指针", "vesk::DockManagerImpl::DeleteDock");
    QCOMPARE(f.CountDocks(), std::size_t(1));
}

void DockManagerImplTest::copiesKnowTheSameDocks()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    IDock* pTabbed = f.Add(L"tabbed");
    f.manager.TabifyDock(pDock, pTabbed);

    DockManagerImpl copy(f.manager);

    QCOMPARE(copy.GetDock(L"name"), pDock);
    QCOMPARE(copy.TabifiedDocks(pDock), std::vector<IDock*>{pTabbed});
}

void DockManagerImplTest::copiesHaveTablesOfTheirOwn()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    DockManagerImpl copy(f.manager);

    copy.DeleteDock(L"name");

    QVERIFY(copy.GetDock(L"name") == nullptr);
    QCOMPARE(f.manager.GetDock(L"name"), pDock);
}

void DockManagerImplTest::assignedManagersKnowTheSameDocks()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    DockManagerImpl assigned(nullptr);

    assigned = f.manager;

    QCOMPARE(assigned.GetDock(L"name"), pDock);
    QVERIFY(assigned.TabifiedDocks(pDock).empty());
}

void DockManagerImplTest::theManagerDestroysNoDock()
{
    DockFixture f;
    QPointer<QDockWidget> pWidget;
    {
        DockManagerImpl manager(&f.window);
        manager.AddDock(manager.CreateDock(L"name", L"title"), DockArea::Left,
                        DockOrientation::Vertical);
        pWidget = WidgetOf(manager.GetDock(L"name"));
    }

    QVERIFY(!pWidget.isNull());
    QCOMPARE(f.window.dockWidgetArea(pWidget), Qt::LeftDockWidgetArea);
}

void DockManagerImplTest::theManagerTouchesNoDockWhenItEnds()
{
    DockFixture f;
    QStringList notes;
    PlainDock dock(L"name", &notes);
    auto pManager = std::make_unique<DockManagerImpl>(&f.window);
    ((*pManager).*MemberOf(DockTable()))[L"name"] = &dock;

    pManager.reset();

    QCOMPARE(notes, QStringList());
}

}

QTEST_MAIN(vesk::test::DockManagerImplTest)
#include "DockManagerImplTest.moc"
