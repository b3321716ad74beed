#include "VeskUiQtImpl/DockManagerImpl.h"

#include "DockFixture.h"
#include "Support/TestValues.h"

#include <QPointer>

#include <memory>

namespace vesk::test
{

/// How panes are added to and removed from a manager.
class DockManagerAddTest : public QObject
{
    Q_OBJECT

private slots:
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
    void deletingLeavesTheDockAsItIs();
    void aNameIsFreeAfterDeletion();
    void thePropertyPanelCannotBeDeleted();
    void theNameOfThePropertyPanelIsRefusedFirst();
    void addingLeavesTheDockAsItIs();
    void aDockAddedToAnotherWindowComesThere();
    void aDeletedDockIsKnownUntilItIsOutOfTheWindow();
    void deletingLeavesTheOthers();
    void unknownNamesAreDeletedSilently();
    void deletionReportsAWindowThatHoldsNoDocks();
    void deletionReportsADockThatIsNoWidget();
};

void DockManagerAddTest::addedDocksStandInTheirArea_data()
{
    QTest::addColumn<int>("area");
    QTest::newRow("left") << 1;
    QTest::newRow("right") << 2;
    QTest::newRow("top") << 4;
    QTest::newRow("bottom") << 8;
}

void DockManagerAddTest::addedDocksStandInTheirArea()
{
    QFETCH(int, area);
    DockFixture f;

    IDock* pDock = f.Add(L"name", static_cast<DockArea>(area));

    QVERIFY(pDock != nullptr);
    QCOMPARE(static_cast<int>(f.window.dockWidgetArea(WidgetOf(pDock))), area);
    QCOMPARE(f.CountDocks(), std::size_t(1));
    QCOMPARE(f.CountWidgets(), std::size_t(1));
}

void DockManagerAddTest::addedDocksStandInTheirOrientation_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("isHorizontal");
    QTest::newRow("zero") << 0 << false;
    QTest::newRow("one") << 1 << true;
    QTest::newRow("two") << 2 << false;
}

void DockManagerAddTest::addedDocksStandInTheirOrientation()
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

void DockManagerAddTest::anAddedDockIsKnownBeforeQtTellsOfIt()
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

void DockManagerAddTest::anAddedDockBelongsToTheWindow()
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

void DockManagerAddTest::aDockInNoAreaBelongsToTheWindow_data()
{
    QTest::addColumn<int>("area");
    QTest::newRow("none") << 0;
    QTest::newRow("all") << 15;
    QTest::newRow("unknown") << 3;
}

void DockManagerAddTest::aDockInNoAreaBelongsToTheWindow()
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

void DockManagerAddTest::anEmptyDockIsReported()
{
    DockFixture f;

    f.manager.AddDock(nullptr, DockArea::Left, DockOrientation::Vertical);

    EXPECT_WARNING(f.host.warnings, L"opDock是空指针", "vesk::DockManagerImpl::AddDock");
    QCOMPARE(f.CountDocks(), std::size_t(0));
}

void DockManagerAddTest::aTakenNameIsReportedAndTheFirstDockStays()
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

void DockManagerAddTest::aTakenNameIsReportedBeforeAMissingWindow()
{
    DockFixture f;
    f.Add(L"name");
    f.TakeWindow();

    f.Add(L"name");

    EXPECT_WARNING(f.host.warnings, L"name： Dock名已经存在！", "vesk::DockManagerImpl::AddDock");
}

void DockManagerAddTest::aWindowThatHoldsNoDocksIsReported()
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

void DockManagerAddTest::aMissingWindowIsReported()
{
    HostFixture host;
    DockManagerImpl manager(nullptr);

    manager.AddDock(manager.CreateDock(L"name", L"title"), DockArea::Left,
                    DockOrientation::Vertical);

    EXPECT_WARNING(host.warnings, L"pQMainWindow是空指针", "vesk::DockManagerImpl::AddDock");
    QVERIFY(manager.GetDock(L"name") == nullptr);
}

void DockManagerAddTest::aDockThatIsNoWidgetIsReported()
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

void DockManagerAddTest::unknownNamesAreFoundSilently()
{
    DockFixture f;
    f.Add(L"name");

    QVERIFY(f.manager.GetDock(L"Name") == nullptr);
    QVERIFY(f.manager.GetDock(L"name") != nullptr);
}

void DockManagerAddTest::deletedDocksStayHiddenChildrenOfTheWindow()
{
    DockFixture f;
    f.Add(L"other");
    const QPointer<QDockWidget> pWidget = WidgetOf(f.Add(L"name"));

    f.manager.DeleteDock(L"name");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(f.manager.GetDock(L"name") == nullptr);
    QVERIFY(f.manager.GetDock(L"other") != nullptr);
    QCOMPARE(f.CountWidgets(), std::size_t(1));
    QVERIFY(!pWidget.isNull());
    QVERIFY(pWidget->isHidden());
    QCOMPARE(pWidget->parentWidget(), static_cast<QWidget*>(&f.window));
    QCOMPARE(f.window.dockWidgetArea(pWidget), Qt::NoDockWidgetArea);
}

void DockManagerAddTest::deletingLeavesTheDockAsItIs()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    pDock->SetWidget(MakeOwner<WidgetContent>());
    const IWidget* pContent = pDock->GetWidget();

    f.manager.DeleteDock(L"name");

    QCOMPARE(pDock->GetWidget(), pContent);
    QCOMPARE(WidgetOf(pDock)->widget(), dynamic_cast<const QWidget*>(pContent));
    QCOMPARE(int(WidgetOf(pDock)->features()), 7);
    QVERIFY(WidgetOf(pDock)->titleBarWidget() == nullptr);
    QCOMPARE(pDock->GetName(), std::wstring(L"name"));
    QCOMPARE(pDock->GetTitle(), std::wstring(L"name"));
}

void DockManagerAddTest::aNameIsFreeAfterDeletion()
{
    DockFixture f;
    const IDock* pFirst = f.Add(L"name");
    f.manager.DeleteDock(L"name");

    const IDock* pSecond = f.Add(L"name");

    QVERIFY(pSecond != nullptr && pSecond != pFirst);
    QCOMPARE(f.CountDocks(), std::size_t(1));
    QCOMPARE(f.CountWidgets(), std::size_t(1));
}

void DockManagerAddTest::thePropertyPanelCannotBeDeleted()
{
    DockFixture f;
    IDock* pPanel = f.Add(IPropertyWidget::GetTypeName());

    f.manager.DeleteDock(IPropertyWidget::GetTypeName());

    EXPECT_WARNING(f.host.warnings, L"不能删除属性面板", "vesk::DockManagerImpl::DeleteDock");
    QCOMPARE(f.manager.GetDock(IPropertyWidget::GetTypeName()), pPanel);
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pPanel)), Qt::LeftDockWidgetArea);
    QCOMPARE(f.CountWidgets(), std::size_t(1));
}

void DockManagerAddTest::theNameOfThePropertyPanelIsRefusedFirst()
{
    DockFixture f;
    f.TakeWindow();

    f.manager.DeleteDock(IPropertyWidget::GetTypeName());

    EXPECT_WARNING(f.host.warnings, L"不能删除属性面板", "vesk::DockManagerImpl::DeleteDock");
}

void DockManagerAddTest::addingLeavesTheDockAsItIs()
{
    DockFixture f;
    f.window.show();
    OwnerPtr<IDock> opDock = f.manager.CreateDock(L"name", L"title");
    QDockWidget* pWidget = WidgetOf(opDock.Get());
    pWidget->setFeatures(QDockWidget::DockWidgetMovable);
    opDock->Hide();

    f.manager.AddDock(std::move(opDock), DockArea::Left, DockOrientation::Vertical);
    QCoreApplication::processEvents();

    QVERIFY(pWidget->isHidden());
    QVERIFY(!pWidget->isFloating());
    QCOMPARE(int(pWidget->features()), int(QDockWidget::DockWidgetMovable));
    QCOMPARE(pWidget->allowedAreas(), Qt::DockWidgetAreas(Qt::AllDockWidgetAreas));
    QCOMPARE(pWidget->windowTitle(), QString("title"));
    QCOMPARE(pWidget->objectName(), QString());
    QVERIFY(pWidget->titleBarWidget() == nullptr);
    QVERIFY(pWidget->widget() == nullptr);
}

void DockManagerAddTest::aDockAddedToAnotherWindowComesThere()
{
    DockFixture f;
    DockWindow second;
    DockManagerImpl managerOfSecond(&second);

    managerOfSecond.AddDock(managerOfSecond.CreateDock(L"name", L"title"), DockArea::Right,
                            DockOrientation::Vertical);

    QDockWidget* pWidget = WidgetOf(managerOfSecond.GetDock(L"name"));
    QCOMPARE(pWidget->parentWidget(), static_cast<QWidget*>(&second));
    QCOMPARE(second.dockWidgetArea(pWidget), Qt::RightDockWidgetArea);
    QCOMPARE(f.window.dockWidgetArea(pWidget), Qt::NoDockWidgetArea);
    delete pWidget;
}

/// Records whether the manager knows a pane at the moment it is hidden.
class HideWatch final : public QObject
{
public:
    HideWatch(DockManagerImpl& manager, std::wstring name)
        : m_manager(manager), m_name(std::move(name))
    {}

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::HideToParent)
        {
            const IDock* pDock = m_manager.GetDock(m_name);
            wasKnown =
                pDock != nullptr && m_manager.TabifiedDocks(m_manager.GetDock(L"other")).empty();
            hasHidden = true;
        }
        return false;
    }

    bool hasHidden = false;
    bool wasKnown = false;

private:
    DockManagerImpl& m_manager;
    std::wstring m_name;
};

void DockManagerAddTest::aDeletedDockIsKnownUntilItIsOutOfTheWindow()
{
    DockFixture f;
    f.Add(L"other");
    QDockWidget* pWidget = WidgetOf(f.Add(L"name"));
    HideWatch watch(f.manager, L"name");
    pWidget->installEventFilter(&watch);

    f.manager.DeleteDock(L"name");

    QVERIFY(watch.hasHidden);
    QVERIFY(watch.wasKnown);
    QVERIFY(f.manager.GetDock(L"name") == nullptr);
}

void DockManagerAddTest::deletingLeavesTheOthers()
{
    DockFixture f;
    IDock* pHidden = f.Add(L"a");
    IDock* pShown = f.Add(L"c", DockArea::Right);
    f.Add(L"b");
    pHidden->Hide();

    f.manager.DeleteDock(L"b");

    QVERIFY(pHidden->IsHidden());
    QVERIFY(!pShown->IsHidden());
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(pShown)), Qt::RightDockWidgetArea);
    QCOMPARE(f.CountDocks(), std::size_t(2));
}

void DockManagerAddTest::unknownNamesAreDeletedSilently()
{
    DockFixture f;
    f.Add(L"name");
    f.TakeWindow();

    f.manager.DeleteDock(L"another");

    QCOMPARE(f.CountDocks(), std::size_t(1));
}

void DockManagerAddTest::deletionReportsAWindowThatHoldsNoDocks()
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

void DockManagerAddTest::deletionReportsADockThatIsNoWidget()
{
    DockFixture f;
    QStringList notes;
    PlainDock dock(L"name", &notes);
    f.Enter(L"name", &dock);

    f.manager.DeleteDock(L"name");

    EXPECT_WARNING(f.host.warnings, L"pQDockWidget是空指针", "vesk::DockManagerImpl::DeleteDock");
    QCOMPARE(f.CountDocks(), std::size_t(1));
}

}

VESK_TESTS(vesk::test::DockManagerAddTest);
#include "DockManagerAddTest.moc"
