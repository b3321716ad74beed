#include "Host/Command/ActionFixture.h"

#include "Support/TestValues.h"

#include <memory>

namespace vesk
{

namespace
{

IUiView* ToView(RecordingView& view)
{
    return &view;
}

/// A second view, and a command that records the view and the parameters it is executed with.
struct Fixture : ActionFixture
{
    Fixture()
    {
        AddInteractive("Line");
        AddInteractive("Arc");
        GetViews().AddView(&other);
    }

    void ChooseIn(IUiView* pView, const std::wstring& id, const CommandParameters& parameters = {})
    {
        ActionManager::ProcessCommand(pView, ICommandManager::Get()->GetCommand(id), parameters,
                                      nullptr);
    }

    void AddTelling(Command::Kind kind)
    {
        const auto execute = [this](IUiView* pView, const CommandParameters& parameters) {
            pExecutedIn = pView;
            executedWith = parameters;
            return OwnerPtr<IAction>();
        };
        ICommandManager::Get()->AddCommand(MakeOwner<Command>(L"Tell", kind, execute));
    }

    RecordingView other{2};
    IUiView* pExecutedIn = nullptr;
    CommandParameters executedWith;
};

/// A script is named after its command.
constexpr char Line[] = "Line";
constexpr char Arc[] = "Arc";

}

}

Q_DECLARE_METATYPE(vesk::Command::Kind)

namespace vesk
{

/// Which of several views an action works in.
class ActionViewTest : public QObject
{
    Q_OBJECT

private slots:
    void aCommandIsExecutedInItsViewWithItsParameters_data();
    void aCommandIsExecutedInItsViewWithItsParameters();
    void aCommandOfAMenuIsExecutedInTheCurrentView();
    void anActionBeginsInItsView();
    void itsTextIsShownInItsView();
    void itsTextIsTakenFromItsView();
    void itsViewGetsTheKeyboard();
    void aWaitingCommandBeginsInItsOwnView();
    void aWaitingCommandWhoseViewIsGoneBeginsInTheCurrentOne();
    void aWaitingCommandOfAMenuBeginsInTheViewThatIsCurrentThen();
    void anActionWorksWithoutAnyView();
    void anActionWorksWithoutAnApplication();
    void pointsReachTheAction();
    void aPointForTheNextCommandReachesIt();
    void anInputReachesTheActionAsItIs();
    void aFreedValueNeedsNoView();
};

void ActionViewTest::aCommandIsExecutedInItsViewWithItsParameters_data()
{
    QTest::addColumn<Command::Kind>("kind");
    QTest::newRow("plain") << Command::Kind::Plain;
    QTest::newRow("interactive") << Command::Kind::Interactive;
}

void ActionViewTest::aCommandIsExecutedInItsViewWithItsParameters()
{
    QFETCH(Command::Kind, kind);
    Fixture f;
    f.AddTelling(kind);
    CommandParameters parameters;
    parameters.Add(L"Steps", CommandParameterValue(3));

    f.ChooseIn(&f.other, L"Tell", parameters);

    QCOMPARE(f.pExecutedIn, ToView(f.other));
    QVERIFY(f.executedWith == parameters);
}

void ActionViewTest::aCommandOfAMenuIsExecutedInTheCurrentView()
{
    Fixture f;
    f.AddTelling(Command::Kind::Plain);
    f.GetViews().SetCurrentView(&f.other);
    CommandParameters parameters;
    parameters.Add(L"Steps", CommandParameterValue(3));

    ActionManager::SendCommand(L"Tell", parameters, nullptr);

    QCOMPARE(f.pExecutedIn, ToView(f.other));
    QVERIFY(f.executedWith == parameters);
}

void ActionViewTest::anActionBeginsInItsView()
{
    Fixture f;

    f.ChooseIn(&f.other, L"Line");

    QCOMPARE(f.scripts[Line].pView, ToView(f.other));
}

void ActionViewTest::itsTextIsShownInItsView()
{
    Fixture f;
    f.view.SetViewText(L"first");
    std::wstring text;
    int redraws = 0;
    f.loop.Post([&] {
        text = f.other.GetText();
        redraws = f.other.GetRedrawCount();
    });

    f.ChooseIn(&f.other, L"Line");

    QCOMPARE(text, std::wstring(L"next point"));
    QCOMPARE(redraws, 1);
    QCOMPARE(f.view.GetText(), std::wstring(L"first"));
    QCOMPARE(f.view.GetRedrawCount(), 0);
}

void ActionViewTest::itsTextIsTakenFromItsView()
{
    Fixture f;

    f.ChooseIn(&f.other, L"Line");

    QCOMPARE(f.other.GetText(), std::wstring());
    QCOMPARE(f.other.GetRedrawCount(), 2);
}

void ActionViewTest::itsViewGetsTheKeyboard()
{
    Fixture f;

    f.ChooseIn(&f.other, L"Line");

    QCOMPARE(f.other.GetActivationCount(), 1);
    QCOMPARE(f.view.GetActivationCount(), 0);
}

void ActionViewTest::aWaitingCommandBeginsInItsOwnView()
{
    Fixture f;
    f.loop.Post([&f] { f.ChooseIn(&f.other, L"Arc"); });

    f.ChooseIn(&f.view, L"Line");

    QCOMPARE(f.scripts[Arc].pView, ToView(f.other));
    QCOMPARE(f.other.GetActivationCount(), 1);
}

void ActionViewTest::aWaitingCommandWhoseViewIsGoneBeginsInTheCurrentOne()
{
    Fixture f;
    f.loop.Post([&f] {
        auto pGone = std::make_unique<RecordingView>(3);
        f.GetViews().AddView(pGone.get());
        f.ChooseIn(pGone.get(), L"Arc");
        f.GetViews().RemoveView(pGone.get());
        f.GetViews().SetCurrentView(&f.other);
    });

    f.ChooseIn(&f.view, L"Line");

    QCOMPARE(f.scripts[Arc].pView, ToView(f.other));
}

void ActionViewTest::aWaitingCommandOfAMenuBeginsInTheViewThatIsCurrentThen()
{
    Fixture f;
    f.loop.Post([&f] {
        ActionManager::SendCommand(L"Arc", {}, nullptr);
        f.GetViews().SetCurrentView(&f.other);
    });

    f.ChooseIn(&f.view, L"Line");

    QCOMPARE(f.scripts[Arc].pView, ToView(f.other));
}

void ActionViewTest::anActionWorksWithoutAnyView()
{
    Fixture f;
    f.GetViews().RemoveView(&f.view);
    f.GetViews().RemoveView(&f.other);
    f.loop.Post([] { ActionManager::SendCommand(L"Arc", {}, nullptr); });
    f.loop.Post([] {
        ActionManager::ProcessClick(nullptr, Vector3d::Zero());
        ActionManager::ProcessMouseMove(nullptr, Vector3d::Zero());
        ActionManager::RefreshViewInput(nullptr);
        ActionManager::ProcessEscape(nullptr);
    });

    f.ChooseIn(nullptr, L"Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Arc.begin", "Arc.click",
                         "Arc.move", "Arc.escape", "Arc.end", "Arc.delete"}));
    QVERIFY(f.scripts[Line].pView == nullptr);
}

void ActionViewTest::anActionWorksWithoutAnApplication()
{
    struct Uninstalling final : IApplication
    {
        Uninstalling() { Set(nullptr); }
        void PostEvent(OwnerPtr<IApplicationEvent> /*opEvent*/) override {}
        IApplicationWindow* GetMainWindow() const override { return nullptr; }
    };
    Fixture f;
    const Uninstalling application;

    f.ChooseIn(&f.view, L"Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete"}));
}

void ActionViewTest::pointsReachTheAction()
{
    Fixture f;
    Vector3d clicked = Vector3d::Zero();
    f.loop.Post([&] {
        ActionManager::ProcessClick(&f.view, {1, 2, 3});
        clicked = f.scripts[Line].world;
        ActionManager::ProcessMouseMove(&f.view, {4, 5, 6});
    });

    f.ChooseIn(&f.view, L"Line");

    QCOMPARE(clicked, Vector3d(1, 2, 3));
    QCOMPARE(f.scripts[Line].world, Vector3d(4, 5, 6));
}

void ActionViewTest::aPointForTheNextCommandReachesIt()
{
    Fixture f;
    f.loop.Post([&f] {
        f.ChooseIn(&f.view, L"Arc");
        ActionManager::ProcessClick(&f.view, {1, 2, 3});
    });

    f.ChooseIn(&f.view, L"Line");

    QCOMPARE(f.scripts[Arc].world, Vector3d(1, 2, 3));
}

void ActionViewTest::anInputReachesTheActionAsItIs()
{
    Fixture f;
    ActionViewInput seen;
    f.scripts[Line].onViewInput = [&seen](const ActionViewInput& input) { seen = input; };
    f.loop.Post([&f] {
        ActionViewInput input;
        input.kind = ActionViewInput::RadiusCommitted;
        input.value = 12.5;
        input.text = L"raw";
        ActionManager::ProcessViewInput(&f.view, input);
    });

    f.ChooseIn(&f.view, L"Line");

    QCOMPARE(seen.kind, static_cast<std::int32_t>(ActionViewInput::RadiusCommitted));
    QCOMPARE(seen.value, 12.5);
    QCOMPARE(seen.text, std::wstring(L"raw"));
}

void ActionViewTest::aFreedValueNeedsNoView()
{
    Fixture f;
    f.loop.Post([] { ActionManager::FreeValue(nullptr, InputState::IS_Length); });

    f.ChooseIn(&f.view, L"Line");

    QVERIFY(f.Has("Line.freed 1"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ActionViewTest);
#include "ActionViewTest.moc"
