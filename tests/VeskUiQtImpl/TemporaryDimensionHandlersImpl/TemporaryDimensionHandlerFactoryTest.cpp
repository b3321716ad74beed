#include "TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include <QtTest>

#include <cstring>
#include <typeinfo>

namespace vesk::test
{

constexpr char Function[] = "vesk::TemporaryDimensionHandlerFactory::UpdateOrCreateHandler";

/// A handler of another kind, which notes whether it is configured.
class ForeignHandler final : public ITemporaryDimensionHandler
{
public:
    OwnerPtr<IGraphicsNodeGroup> GenerateGraphics(const ITemporaryDimensionContext*) override
    {
        return nullptr;
    }
    bool IsInputting() override { return false; }
    bool HasEditorFocus() override { return false; }
    void EndInput() override {}
    void OnEditorReturnPressed() override {}
    bool OnKeyDown(int, bool, bool, bool) override { return false; }
    bool UpdateConfig(const ITemporaryDimensionContext*) override
    {
        ++configCount;
        return true;
    }

    int configCount = 0;
};

TemporaryDimensionHandlerFactory& Factory()
{
    return *TemporaryDimensionHandlerFactory::GetInstance();
}

class TemporaryDimensionHandlerFactoryTest : public QObject
{
    Q_OBJECT

private slots:
    void needsAContext();
    void needsACurrentView();
    void needsAViewManager();
    void makesAConfiguredHandlerOfTheRightKind();
    void keepsAHandlerThatFitsAndConfiguresIt();
    void replacesAHandlerOfAnotherKind();
    void reportsAContextThatNoHandlerFits();
    void keepsQuietAboutAHandlerThatDoesNotFitAnUnknownContext();
    void worksInTheCurrentView();
    void isTheFactoryOfTheHostsManager();
    void operationsHaveTheirSlotsAndThereAreNoMembers();
};

void TemporaryDimensionHandlerFactoryTest::needsAContext()
{
    HostFixture host;

    QVERIFY(Factory().UpdateOrCreateHandler(nullptr, nullptr) == nullptr);

    EXPECT_WARNING(host.warnings, L"pCtx为空!", Function);
}

void TemporaryDimensionHandlerFactoryTest::needsACurrentView()
{
    HostFixture host;
    host.core.GetViewManager().SetCurrentView(nullptr);
    const ForeignContext context;

    QVERIFY(Factory().UpdateOrCreateHandler(&context, nullptr) == nullptr);

    EXPECT_WARNING(host.warnings, L"pCurrentView为空", Function);
}

void TemporaryDimensionHandlerFactoryTest::needsAViewManager()
{
    HostFixture host;
    struct Access : IUiDocumentViewManager
    {
        using IUiDocumentViewManager::Set;
    };
    Access::Set(nullptr);
    const ForeignContext context;

    const auto opHandler = Factory().UpdateOrCreateHandler(&context, nullptr);

    Access::Set(&host.core.GetViewManager());
    QVERIFY(opHandler == nullptr);
    EXPECT_WARNING(host.warnings, L"pCurrentView为空", Function);
}

void TemporaryDimensionHandlerFactoryTest::makesAConfiguredHandlerOfTheRightKind()
{
    HandlerFixture f;

    QCOMPARE(QByteArray(f.Object().metaObject()->className()),
             QByteArray("vesk::LinearTemporaryDimensionHandler"));
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 2);
}

void TemporaryDimensionHandlerFactoryTest::keepsAHandlerThatFitsAndConfiguresIt()
{
    HandlerFixture f;
    f.context.SetAngleEnabled(false);

    const auto opNew = Factory().UpdateOrCreateHandler(&f.context, f.opHandler.Get());

    QVERIFY(opNew == nullptr);
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 1);
}

void TemporaryDimensionHandlerFactoryTest::replacesAHandlerOfAnotherKind()
{
    HandlerFixture f;
    ForeignHandler foreign;

    const auto opNew = Factory().UpdateOrCreateHandler(&f.context, &foreign);

    QVERIFY(opNew != nullptr);
    QCOMPARE(foreign.configCount, 0);
    QCOMPARE(opNew->GenerateGraphics(&f.context)->GetChildCount(), 2);
}

void TemporaryDimensionHandlerFactoryTest::reportsAContextThatNoHandlerFits()
{
    HostFixture host;
    const ForeignContext context;
    const char* name = typeid(ForeignContext).name();

    QVERIFY(Factory().UpdateOrCreateHandler(&context, nullptr) == nullptr);

    const DebugWarning warning = host.warnings.TakeAny();
    QCOMPARE(warning.message,
             L"没有匹配的Handler：" + std::wstring(name, name + std::strlen(name)));
    QCOMPARE(warning.function, std::string(Function));
    QVERIFY(warning.message.find(L"ForeignContext") != std::wstring::npos);
}

void TemporaryDimensionHandlerFactoryTest::keepsQuietAboutAHandlerThatDoesNotFitAnUnknownContext()
{
    HandlerFixture f;
    const ForeignContext context;

    QVERIFY(Factory().UpdateOrCreateHandler(&context, f.opHandler.Get()) == nullptr);

    QCOMPARE(f.host.warnings.TakeAny().function, std::string(Function));
    QVERIFY(f.host.warnings.IsEmpty());
}

void TemporaryDimensionHandlerFactoryTest::worksInTheCurrentView()
{
    HandlerFixture f;
    TestView other(2, &f.host.window);
    other.SetHasModelView(false);
    f.host.core.GetViewManager().AddView(&other);
    f.host.core.GetViewManager().SetCurrentView(&other);

    const auto opHandler = f.CreateHandler();
    opHandler->GenerateGraphics(&f.context);

    EXPECT_WARNING(f.host.warnings, L"pModelView为空！",
                   std::string(LinearClass) + "GenerateGraphics");
    f.host.core.GetViewManager().RemoveView(&other);
}

void TemporaryDimensionHandlerFactoryTest::isTheFactoryOfTheHostsManager()
{
    HostFixture host;
    TemporaryDimensionMgr& manager = *TemporaryDimensionMgr::GetInstance();

    manager.SetContext(MakeOwner<LinearTemporaryDimensionContext>(Coordinate3d(), Vector3d(0, 0, 0),
                                                                  Vector3d(30, 40, 0)));

    QVERIFY(manager.HasHandler());
    QVERIFY(manager.GetGraphics() != nullptr);
    manager.Drop();
}

void TemporaryDimensionHandlerFactoryTest::operationsHaveTheirSlotsAndThereAreNoMembers()
{
    QCOMPARE(SlotOf(&ITemporaryDimensionHandlerFactory::UpdateOrCreateHandler), std::ptrdiff_t(2));
    QCOMPARE(sizeof(TemporaryDimensionHandlerFactory), sizeof(ITemporaryDimensionHandlerFactory));
}

}

QTEST_MAIN(vesk::test::TemporaryDimensionHandlerFactoryTest)
#include "TemporaryDimensionHandlerFactoryTest.moc"
