#include "HostUi/UiApplication.h"

#include "Support/TestValues.h"

#include <cstddef>

namespace vesk
{
namespace
{

class Window final : public IApplicationWindow
{
public:
    WindowId GetWindowId() const override { return 5; }
};

}

class UiApplicationTest : public QObject
{
    Q_OBJECT

private slots:
    void isInstalledWhileItLives();
    void namesTheMainWindow();
    void namesThePanes();
};

void UiApplicationTest::isInstalledWhileItLives()
{
    {
        const UiApplication application;
        QCOMPARE(IApplication::Get(), static_cast<const IApplication*>(&application));
        QCOMPARE(IUiManager::Get(), static_cast<const IUiManager*>(&application));
    }

    QVERIFY(IApplication::Get() == nullptr);
    QVERIFY(IUiManager::Get() == nullptr);
}

void UiApplicationTest::namesTheMainWindow()
{
    Window window;
    UiApplication application;
    QVERIFY(application.GetMainWindow() == nullptr);

    application.SetMainWindow(&window);
    QCOMPARE(application.GetMainWindow(), static_cast<IApplicationWindow*>(&window));

    application.SetMainWindow(nullptr);
    QVERIFY(application.GetMainWindow() == nullptr);
}

void UiApplicationTest::namesThePanes()
{
    UiApplication application;
    QVERIFY(application.GetDockManager() == nullptr);
    // Only the address counts: nothing is asked of the panes.
    std::max_align_t place{};
    auto* pPanes = reinterpret_cast<IDockManager*>(&place);

    application.SetDockManager(pPanes);
    QCOMPARE(application.GetDockManager(), pPanes);

    application.SetDockManager(nullptr);
    QVERIFY(application.GetDockManager() == nullptr);
}

}

QTEST_MAIN(vesk::UiApplicationTest)
#include "UiApplicationTest.moc"
