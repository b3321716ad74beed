#include "View/IUiManager.h"

#include "Support/TestValues.h"

namespace vesk
{

namespace
{

class Manager final : public IUiManager
{
public:
    using IUiManager::Set;

    IApplicationWindow* GetMainWindow() const override { return nullptr; }
    IDockManager* GetDockManager() const override { return nullptr; }
};

class MainWindow final : public IMainWindow
{
public:
    using IMainWindow::SetMainWindow;

    WindowId GetWinId() const override { return 5; }
};

}

class UiManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void theInstalledManagerIsFoundUntilItIsRemoved();
    void theInstalledMainWindowIsFoundUntilItIsRemoved();
};

void UiManagerTest::theInstalledManagerIsFoundUntilItIsRemoved()
{
    Manager manager;
    QVERIFY(IUiManager::Get() == nullptr);

    Manager::Set(&manager);
    QCOMPARE(IUiManager::Get(), static_cast<IUiManager*>(&manager));
    Manager::Set(nullptr);

    QVERIFY(IUiManager::Get() == nullptr);
}

void UiManagerTest::theInstalledMainWindowIsFoundUntilItIsRemoved()
{
    MainWindow window;
    QVERIFY(IMainWindow::GetMainWindow() == nullptr);

    MainWindow::SetMainWindow(&window);
    QCOMPARE(IMainWindow::GetMainWindow(), static_cast<IMainWindow*>(&window));
    MainWindow::SetMainWindow(nullptr);

    QVERIFY(IMainWindow::GetMainWindow() == nullptr);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::UiManagerTest);
#include "UiManagerTest.moc"
