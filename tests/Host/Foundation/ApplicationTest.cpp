#include "Foundation/IApplication.h"
#include "Foundation/Platform.h"
#include "Support/TestValues.h"

namespace vesk
{

namespace
{

class Application final : public IApplication
{
public:
    void PostEvent(OwnerPtr<IApplicationEvent> /*opEvent*/) override {}
    IApplicationWindow* GetMainWindow() const override { return nullptr; }

    void Install() { Set(this); }
    static void Remove() { Set(nullptr); }
};

}

class ApplicationTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Application::Remove(); }

    void thereIsNoneAtFirst();
    void theInstalledOneIsFound();
    void aRemovedOneIsGone();
};

void ApplicationTest::thereIsNoneAtFirst()
{
    QVERIFY(IApplication::Get() == nullptr);
    QVERIFY(!Platform::IsApplicationConstructed());
}

void ApplicationTest::theInstalledOneIsFound()
{
    Application application;

    application.Install();

    QCOMPARE(IApplication::Get(), static_cast<IApplication*>(&application));
    QVERIFY(Platform::IsApplicationConstructed());
}

void ApplicationTest::aRemovedOneIsGone()
{
    Application application;
    application.Install();

    Application::Remove();

    QVERIFY(IApplication::Get() == nullptr);
    QVERIFY(!Platform::IsApplicationConstructed());
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ApplicationTest);
#include "ApplicationTest.moc"
