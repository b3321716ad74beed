#include "VeskUiQtImpl/DockManagerImpl.h"

#include "DockFixture.h"
#include "Support/TestValues.h"

#include <QPointer>

#include <memory>

namespace vesk::test
{

using AreaMapping = Qt::DockWidgetArea(DockArea) const;
VESK_EXPOSE(GetQtArea, AreaMapping, DockManagerImpl, GetQtDockArea)
using OrientationMapping = Qt::Orientation(DockOrientation) const;
VESK_EXPOSE(GetOrientation, OrientationMapping, DockManagerImpl, GetQtOrientation)

/// Hides the main frame for its lifetime.
class NoMainFrame final : private IMainWindow
{
public:
    NoMainFrame() : m_pFrame(GetMainWindow()) { SetMainWindow(nullptr); }
    ~NoMainFrame() override { SetMainWindow(m_pFrame); }

    WindowId GetWinId() const override { return 0; }

private:
    IMainWindow* m_pFrame;
};

/// The layout of a manager, how it creates panes and what its copies know.
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
    void createdDocksAreNotChildrenOfAnotherManagersWindow();
    void createdDocksHaveNoParentWithoutAMainFrame();
    void createdDocksHaveNoParentWhenTheFrameHasNoWindow();
    void createdDocksAreInNoTable();

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

void DockManagerImplTest::onlyOneIsHorizontal_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("isHorizontal");
    QTest::newRow("zero") << 0 << false;
    QTest::newRow("one") << 1 << true;
    QTest::newRow("two") << 2 << false;
    QTest::newRow("negative") << -1 << false;
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

void DockManagerImplTest::createdDocksAreNotChildrenOfAnotherManagersWindow()
{
    const DockFixture f;
    DockWindow second;
    const DockManagerImpl managerOfSecond(&second);

    const OwnerPtr<IDock> opDock = managerOfSecond.CreateDock(L"name", L"title");

    QCOMPARE(WidgetOf(opDock.Get())->parentWidget(), static_cast<const QWidget*>(&f.window));
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
    IDock* pTabbed = f.Add(L"tabbed");
    f.manager.TabifyDock(pDock, pTabbed);
    DockManagerImpl assigned(nullptr);

    assigned = f.manager;

    QCOMPARE(assigned.GetDock(L"name"), pDock);
    QCOMPARE(assigned.TabifiedDocks(pDock), std::vector<IDock*>{pTabbed});
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

VESK_TESTS(vesk::test::DockManagerImplTest);
#include "DockManagerImplTest.moc"
