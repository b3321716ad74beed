#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/KindTable.h"

#include <cstring>
#include <typeinfo>

namespace vesk::test
{

VESK_EXPOSE(FirstValidator, NumberValidator<double>, TemporaryDimensionHandler,
            m_firstValueValidator)
VESK_EXPOSE(SecondValidator, NumberValidator<double>, TemporaryDimensionHandler,
            m_secondValueValidator)

constexpr char Function[] = "vesk::TemporaryDimensionHandlerFactory::UpdateOrCreateHandler";

/// A handler of another kind, which records whether it is configured.
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

static TemporaryDimensionHandlerFactory& Factory()
{
    return *TemporaryDimensionHandlerFactory::GetInstance();
}

class TemporaryDimensionHandlerFactoryTest : public QObject
{
    Q_OBJECT

private slots:
    void needsAContext();
    void reportsNoMissingViewWithoutAContext();
    void needsACurrentView();
    void needsAViewManager();
    void makesAConfiguredHandlerOfTheRightKind_data();
    void makesAConfiguredHandlerOfTheRightKind();
    void keepsAHandlerThatFits_data();
    void keepsAHandlerThatFits();
    void configuresAHandlerThatItKeeps();
    void leavesAHandlerThatItReplacesAlone();
    void leavesAnOpenInputAlone_data();
    void leavesAnOpenInputAlone();
    void isTheSameEachTime();
    void replacesAHandlerOfAnotherClass();
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

void TemporaryDimensionHandlerFactoryTest::reportsNoMissingViewWithoutAContext()
{
    HandlerFixture f;
    f.host.core.GetViewManager().SetCurrentView(nullptr);

    QVERIFY(Factory().UpdateOrCreateHandler(nullptr, f.opHandler.Get()) == nullptr);
    EXPECT_WARNING(f.host.warnings, L"pCtx为空!", Function);
    QVERIFY(f.host.warnings.IsEmpty());

    QVERIFY(Factory().UpdateOrCreateHandler(&f.context, f.opHandler.Get()) == nullptr);
    EXPECT_WARNING(f.host.warnings, L"pCurrentView为空", Function);
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

/// The class of a handler, as its Qt object names it.
std::string ClassOf(ITemporaryDimensionHandler& handler)
{
    return dynamic_cast<QObject&>(handler).metaObject()->className();
}

/// Whether the bounds of a handler's values are those of a context.
bool IsConfigured(ITemporaryDimensionHandler& handler, const ITemporaryDimensionContext& context)
{
    auto& base = static_cast<TemporaryDimensionHandler&>(handler);
    const NumberValidator<double>& first = base.*MemberOf(FirstValidator());
    const NumberValidator<double>& second = base.*MemberOf(SecondValidator());
    return first.GetBottom() == context.GetFirstValueRange().GetMin() &&
           first.GetTop() == context.GetFirstValueRange().GetMax() &&
           second.GetBottom() == context.GetSecondValueRange().GetMin() &&
           second.GetTop() == context.GetSecondValueRange().GetMax();
}

void TemporaryDimensionHandlerFactoryTest::makesAConfiguredHandlerOfTheRightKind_data()
{
    AddKindRows();
}

void TemporaryDimensionHandlerFactoryTest::makesAConfiguredHandlerOfTheRightKind()
{
    FETCH_KIND(rules);
    HostFixture host;
    const auto opContext = rules.pCreateContext();

    const auto opHandler = Factory().UpdateOrCreateHandler(opContext.Get(), nullptr);

    QVERIFY(opHandler != nullptr);
    QCOMPARE(ClassOf(*opHandler), rules.handler);
    QVERIFY(IsConfigured(*opHandler, *opContext));
}

void TemporaryDimensionHandlerFactoryTest::keepsAHandlerThatFits_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("currentKind");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        for (std::size_t current = 0; current < AllKinds().size(); ++current)
            QTest::addRow("%s after %s", AllKinds()[kind].name, AllKinds()[current].name)
                << int(kind) << int(current);
    }
}

void TemporaryDimensionHandlerFactoryTest::keepsAHandlerThatFits()
{
    FETCH_KIND(rules);
    QFETCH(int, currentKind);
    const KindRules& currentRules = AllKinds()[std::size_t(currentKind)];
    KindFixture f(currentRules.pCreateContext());
    const auto opContext = rules.pCreateContext();

    const auto opNew = Factory().UpdateOrCreateHandler(opContext.Get(), f.opHandler.Get());

    const bool isKept = rules.handler == currentRules.handler;
    QCOMPARE(opNew == nullptr, isKept);
    ITemporaryDimensionHandler& handler = isKept ? *f.opHandler : *opNew;
    QCOMPARE(ClassOf(handler), rules.handler);
    QVERIFY(IsConfigured(handler, *opContext));
}

void TemporaryDimensionHandlerFactoryTest::configuresAHandlerThatItKeeps()
{
    HandlerFixture f;
    f.context.SetFirstValueRange({5, 10});
    QVERIFY(!IsConfigured(*f.opHandler, f.context));

    const auto opNew = Factory().UpdateOrCreateHandler(&f.context, f.opHandler.Get());

    QVERIFY(opNew == nullptr);
    QVERIFY(IsConfigured(*f.opHandler, f.context));
}

void TemporaryDimensionHandlerFactoryTest::leavesAHandlerThatItReplacesAlone()
{
    HandlerFixture f;
    f.context.SetFirstValueRange({5, 10});
    f.Configure();
    const auto opContext = CreateRectangle();

    const auto opNew = Factory().UpdateOrCreateHandler(opContext.Get(), f.opHandler.Get());

    QVERIFY(opNew != nullptr);
    QVERIFY(IsConfigured(*f.opHandler, f.context));
}

void TemporaryDimensionHandlerFactoryTest::leavesAnOpenInputAlone_data()
{
    AddKindRows();
}

/// The input of the linear handler, which the context keeps or has replaced.
void TemporaryDimensionHandlerFactoryTest::leavesAnOpenInputAlone()
{
    FETCH_KIND(rules);
    HandlerFixture f;
    f.TypeLength("5");
    const auto opContext = rules.pCreateContext();

    const auto opNew = Factory().UpdateOrCreateHandler(opContext.Get(), f.opHandler.Get());

    QCOMPARE(f.State(), InputState::IS_Length);
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(f.Editor()->text(), QString("5"));
}

void TemporaryDimensionHandlerFactoryTest::isTheSameEachTime()
{
    QCOMPARE(TemporaryDimensionHandlerFactory::GetInstance(),
             TemporaryDimensionHandlerFactory::GetInstance());
}

void TemporaryDimensionHandlerFactoryTest::replacesAHandlerOfAnotherClass()
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

VESK_TESTS(vesk::test::TemporaryDimensionHandlerFactoryTest);
#include "TemporaryDimensionHandlerFactoryTest.moc"
