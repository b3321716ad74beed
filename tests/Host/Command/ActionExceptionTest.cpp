#include "Host/Command/ActionFixture.h"

#include "Command/IActionManager.h"
#include "Command/TypedValue.h"
#include "Dimension/TemporaryDimensionMgr.h"

#include "Support/IdleApplication.h"
#include "Support/TestValues.h"

#include <stdexcept>

namespace vesk
{

namespace
{

[[noreturn]] void Throw()
{
    throw std::runtime_error("command");
}

/// Keeps posted events until the test delivers them.
class PostingApplication final : public test::IdleApplication
{
public:
    void PostEvent(OwnerPtr<IApplicationEvent> opEvent) override
    {
        m_events.push_back(std::move(opEvent));
    }

    void DeliverPosted()
    {
        for (const OwnerPtr<IApplicationEvent>& opEvent : std::exchange(m_events, {}))
            opEvent->Emit();
    }

private:
    std::vector<OwnerPtr<IApplicationEvent>> m_events;
};

/// An event loop in which an event may throw, as one of the application's may.
class ThrowingLoop final : public IActionEventLoop
{
public:
    explicit ThrowingLoop(std::function<void()> act) : m_act(std::move(act))
    {
        ActionManager::SetEventLoop(this);
    }
    ~ThrowingLoop() override { ActionManager::SetEventLoop(nullptr); }

    void Run() override { m_act(); }
    void Quit() override {}

private:
    std::function<void()> m_act;
};

std::string Mark(int number)
{
    return R"({"n":)" + std::to_string(number) + R"(,"kind":"end","result":"done"})";
}

bool IsIdle()
{
    return ActionManager::GetRunningCommandId().empty() &&
           IActionManager::CurrentAction() == nullptr && !ActionManager::IsCommandWaiting();
}

class ThrowingObserver final : public IActionObserver
{
public:
    ThrowingObserver() { ActionManager::AddObserver(this); }
    ~ThrowingObserver() override { ActionManager::RemoveObserver(this); }
    void OnActionChanged() override { Throw(); }
};

class CountingObserver final : public IActionObserver
{
public:
    CountingObserver() { ActionManager::AddObserver(this); }
    ~CountingObserver() override { ActionManager::RemoveObserver(this); }
    void OnActionChanged() override { ++m_count; }
    int GetCount() const { return m_count; }

private:
    int m_count = 0;
};

/// Makes one operation of an action throw.
using Place = void (*)(ActionScript&);

}

}

Q_DECLARE_METATYPE(vesk::Place)

namespace vesk
{

/// Commands and actions that throw.
class ActionExceptionTest : public QObject
{
    Q_OBJECT

private slots:
    void aPlainCommandThatThrowsGetsNoMark();
    void afterAPlainCommandTheNextOneRuns();
    void anActionThatThrowsIsGoneWithoutAMark_data();
    void anActionThatThrowsIsGoneWithoutAMark();
    void anActionThatThrowsIsGoneWithoutALoopToo_data();
    void anActionThatThrowsIsGoneWithoutALoopToo();
    void aClickThatThrowsLeavesAnActionWithoutALoopAlone();
    void aClickThatThrowsEndsAnActionWithoutALoopThatIsToEnd();
    void anExceptionOfTheEventLoopEndsTheAction();
    void theControlsAndObserversHearOfTheEnd();
    void anObserverThatThrowsKeepsNoOtherFromHearing();
    void whatWaitsRunsWhenTheLoopComesRound();
    void whatWaitsRunsInItsOrder();
    void whatWaitsBehindAnotherExceptionRunsInTheNextTurn();
    void whatIsChosenInThatTurnRunsBehindIt();
    void whatWaitsRunsBeforeACommandThatComesFirst();
    void whatIsTypedUntilThenIsKept();
    void whatIsTypedForTheNextCommandIsKeptThen();
    void whatIsKeptForACommandThatThrowsIsDropped();
    void theTypedValueIsForgotten();
};

void ActionExceptionTest::aPlainCommandThatThrowsGetsNoMark()
{
    ActionFixture f;
    f.AddPlain("Save", &Throw);

    QVERIFY_EXCEPTION_THROWN(f.ChooseInMenu("Save"), std::runtime_error);

    QVERIFY(f.log == (Log{"Save"}));
    QVERIFY(!ActionFixture::HasRecord(Mark(1)));
    QVERIFY(IsIdle());
}

void ActionExceptionTest::afterAPlainCommandTheNextOneRuns()
{
    ActionFixture f;
    f.AddPlain("Save", &Throw);
    f.AddPlain("Print");
    QVERIFY_EXCEPTION_THROWN(f.ChooseInMenu("Save"), std::runtime_error);

    f.ChooseInMenu("Print");

    QVERIFY(f.log == (Log{"Save", "Print"}));
}

void ActionExceptionTest::anActionThatThrowsIsGoneWithoutAMark_data()
{
    QTest::addColumn<Place>("place");
    QTest::newRow("begin") << Place{[](ActionScript& script) { script.onBegin = &Throw; }};
    QTest::newRow("click") << Place{[](ActionScript& script) { script.onClick = &Throw; }};
    QTest::newRow("end") << Place{[](ActionScript& script) { script.onEnd = &Throw; }};
    QTest::newRow("context") << Place{[](ActionScript& script) {
        script.makeContext = []() -> OwnerPtr<ITemporaryDimensionContext> { Throw(); };
    }};
}

void ActionExceptionTest::anActionThatThrowsIsGoneWithoutAMark()
{
    QFETCH(Place, place);
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Arc");
    place(f.scripts["Line"]);
    const ThrowingLoop loop([&f] { f.Click(); });

    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);

    QVERIFY(IsIdle());
    QVERIFY(f.Has("Line.end") && f.Has("Line.delete"));
    QVERIFY(!ActionFixture::HasRecord(Mark(1)));
    QCOMPARE(f.view.GetText(), std::wstring());
    f.Choose("Arc");
    QVERIFY(f.Has("Arc.click") && f.Has("Arc.delete"));
}

void ActionExceptionTest::anActionThatThrowsIsGoneWithoutALoopToo_data()
{
    QTest::addColumn<Place>("place");
    QTest::newRow("begin") << Place{[](ActionScript& script) { script.onBegin = &Throw; }};
    QTest::newRow("end") << Place{[](ActionScript& script) { script.onEnd = &Throw; }};
}

void ActionExceptionTest::anActionThatThrowsIsGoneWithoutALoopToo()
{
    QFETCH(Place, place);
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    place(f.scripts["Line"]);
    const auto beginAndEnd = [&f] {
        f.Choose("Line");
        ActionManager::Reset();
    };

    QVERIFY_EXCEPTION_THROWN(beginAndEnd(), std::runtime_error);

    QVERIFY(IsIdle());
    QVERIFY(f.Has("Line.delete"));
    QVERIFY(!ActionFixture::HasRecord(Mark(1)));
}

void ActionExceptionTest::aClickThatThrowsLeavesAnActionWithoutALoopAlone()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    f.scripts["Line"].onClick = &Throw;
    f.Choose("Line");

    QVERIFY_EXCEPTION_THROWN(f.Click(), std::runtime_error);

    QCOMPARE(ActionManager::GetRunningCommandId(), std::wstring(L"Line"));
    f.MoveMouse();
    ActionManager::Reset();
    QVERIFY(f.Has("Line.move") && f.Has("Line.delete"));
    QVERIFY(ActionFixture::HasRecord(Mark(1)));
}

void ActionExceptionTest::aClickThatThrowsEndsAnActionWithoutALoopThatIsToEnd()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    f.scripts["Line"].onClick = [] {
        ActionManager::Reset();
        Throw();
    };
    f.Choose("Line");

    QVERIFY_EXCEPTION_THROWN(f.Click(), std::runtime_error);

    QVERIFY(IsIdle());
    QVERIFY(f.Has("Line.delete"));
    // The command is recorded, and nothing behind it.
    QCOMPARE(JournalManager::GetInstance().GetLastLines().size(), std::size_t(1));
}

void ActionExceptionTest::anExceptionOfTheEventLoopEndsTheAction()
{
    ActionFixture f;
    f.AddInteractive("Line");
    const ThrowingLoop loop(&Throw);

    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);

    QVERIFY(IsIdle());
    QVERIFY(f.log == (Log{"Line.begin", "Line.end", "Line.delete"}));
}

void ActionExceptionTest::theControlsAndObserversHearOfTheEnd()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.scripts["Line"].onBegin = &Throw;
    const CountingObserver observer;

    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);

    QCOMPARE(observer.GetCount(), 1);
    QCOMPARE(f.application.GetPostCount(), 1);
}

void ActionExceptionTest::anObserverThatThrowsKeepsNoOtherFromHearing()
{
    ActionFixture f;
    f.AddInteractive("Line");
    const ThrowingObserver first;
    const CountingObserver second;

    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);

    // For the beginning and for the end.
    QCOMPARE(second.GetCount(), 2);
    QVERIFY(IsIdle());
}

void ActionExceptionTest::whatWaitsRunsWhenTheLoopComesRound()
{
    ActionFixture f;
    PostingApplication application;
    f.AddInteractive("Line");
    f.AddPlain("Save");
    f.scripts["Line"].onEnd = &Throw;
    f.loop.Post([&f] { f.ChooseInMenu("Save"); });
    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);
    QVERIFY(!f.Has("Save"));

    application.DeliverPosted();

    QVERIFY(f.Has("Save"));
    QVERIFY(IsIdle());
    QVERIFY(ActionFixture::HasRecord(Mark(2)));
}

void ActionExceptionTest::whatWaitsRunsInItsOrder()
{
    ActionFixture f;
    PostingApplication application;
    f.AddInteractive("Line");
    f.AddPlain("Save", &Throw);
    f.AddPlain("Print");
    f.loop.Post([&f] {
        f.ChooseInMenu("Save");
        f.ChooseInMenu("Print");
    });
    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);
    QVERIFY(f.Has("Save") && !f.Has("Print"));

    application.DeliverPosted();

    QVERIFY(f.At("Save") < f.At("Print") && f.Has("Print"));
    QVERIFY(!ActionFixture::HasRecord(Mark(2)));
}

void ActionExceptionTest::whatWaitsBehindAnotherExceptionRunsInTheNextTurn()
{
    ActionFixture f;
    PostingApplication application;
    f.AddInteractive("Line");
    f.AddPlain("Save", &Throw);
    f.AddPlain("Print");
    f.scripts["Line"].onEnd = &Throw;
    f.loop.Post([&f] {
        f.ChooseInMenu("Save");
        f.ChooseInMenu("Print");
    });
    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);
    QVERIFY_EXCEPTION_THROWN(application.DeliverPosted(), std::runtime_error);
    QVERIFY(f.Has("Save") && !f.Has("Print"));

    application.DeliverPosted();

    QVERIFY(f.Has("Print"));
    QVERIFY(IsIdle());
}

void ActionExceptionTest::whatIsChosenInThatTurnRunsBehindIt()
{
    ActionFixture f;
    PostingApplication application;
    f.AddInteractive("Line");
    f.AddPlain("Print");
    f.AddPlain("Save", [&f] {
        f.ChooseInMenu("Print");
        f.log.push_back("saved");
    });
    f.scripts["Line"].onEnd = &Throw;
    f.loop.Post([&f] { f.ChooseInMenu("Save"); });
    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);

    application.DeliverPosted();

    QVERIFY(f.Has("Print"));
    QVERIFY(f.At("saved") < f.At("Print"));
}

void ActionExceptionTest::whatWaitsRunsBeforeACommandThatComesFirst()
{
    ActionFixture f;
    PostingApplication application;
    f.AddInteractive("Line");
    f.AddPlain("Save");
    f.AddPlain("Print");
    f.scripts["Line"].onEnd = &Throw;
    f.loop.Post([&f] { f.ChooseInMenu("Save"); });
    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);

    f.ChooseInMenu("Print");
    application.DeliverPosted();

    QCOMPARE(std::count(f.log.begin(), f.log.end(), "Save"), std::ptrdiff_t(1));
    QVERIFY(f.At("Save") < f.At("Print") && f.Has("Print"));
}

void ActionExceptionTest::whatIsTypedUntilThenIsKept()
{
    ActionFixture f;
    PostingApplication application;
    f.AddInteractive("Line");
    f.AddInteractive("Arc");
    f.scripts["Line"].onEnd = &Throw;
    f.loop.Post([&f] { f.ChooseInMenu("Arc"); });
    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);

    f.Click();
    QVERIFY(!f.Has("Arc.begin"));
    application.DeliverPosted();

    QVERIFY(f.Has("Arc.click"));
}

void ActionExceptionTest::whatIsTypedForTheNextCommandIsKeptThen()
{
    ActionFixture f;
    PostingApplication application;
    f.AddInteractive("Line");
    f.AddPlain("Save");
    f.AddInteractive("Arc");
    f.AddInteractive("Erase");
    f.scripts["Line"].onEnd = &Throw;
    f.loop.Post([&f] { f.ChooseInMenu("Save"); });
    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);
    // Posted events are delivered while another action is already running and a third is chosen.
    f.loop.Post([&] {
        f.Choose("Erase");
        f.Click();
        application.DeliverPosted();
    });

    f.Choose("Arc");

    QVERIFY(f.Has("Erase.click"));
    QCOMPARE(std::count(f.log.begin(), f.log.end(), "Save"), std::ptrdiff_t(1));
}

void ActionExceptionTest::whatIsKeptForACommandThatThrowsIsDropped()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Save", &Throw);
    f.AddInteractive("Arc");
    f.loop.Post([&f] {
        f.ChooseInMenu("Save");
        f.Click();
    });
    QVERIFY_EXCEPTION_THROWN(f.Choose("Line"), std::runtime_error);

    f.Choose("Arc");

    QVERIFY(f.Has("Arc.begin") && !f.Has("Arc.click"));
}

void ActionExceptionTest::theTypedValueIsForgotten()
{
    ActionFixture f;
    ActionManager::SetEventLoop(nullptr);
    f.AddInteractive("Line");
    f.scripts["Line"].onViewInput = [](const ActionViewInput&) { Throw(); };
    f.Choose("Line");
    const auto typeValue = [&f] {
        const EditorTextScope text({L"50", false, std::nullopt});
        f.TypeValue();
    };

    QVERIFY_EXCEPTION_THROWN(typeValue(), std::runtime_error);

    QCOMPARE(EditorTextScope::Take().text, std::wstring());
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ActionExceptionTest);
#include "ActionExceptionTest.moc"
