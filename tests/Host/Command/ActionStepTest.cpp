#include "Host/Command/ActionFixture.h"

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Support/TestValues.h"

namespace vesk
{

using Input = std::function<void(ActionFixture&)>;

}

Q_DECLARE_METATYPE(vesk::Input)

namespace vesk
{

namespace
{

/// Counts notifications and runs a function on each. Registered while it exists.
class Observer final : public IActionObserver
{
public:
    explicit Observer(std::function<void()> act = nullptr) : m_act(std::move(act))
    {
        ActionManager::AddObserver(this);
    }
    ~Observer() override { ActionManager::RemoveObserver(this); }

    void OnActionChanged() override
    {
        ++m_count;
        if (m_act)
            m_act();
    }

    int GetCount() const { return m_count; }

private:
    std::function<void()> m_act;
    int m_count = 0;
};

}

/// What is shown when an action begins, at each step and when it ends.
class ActionStepTest : public QObject
{
    Q_OBJECT

private slots:
    void theBeginShowsTheTextAndGivesTheViewTheKeyboard();
    void theEndClearsTheText();
    void aStepIsShown_data();
    void aStepIsShown();
    void theLastStepIsShownAsTheEnd();
    void aMouseMoveIsNoStep();
    void aPlainCommandIsNoStep();
    void observersHearOfBeginStepAndEnd();
    void anObserverAddedTwiceHearsOnce();
    void anObserverMayRemoveItself();
    void anObserverRemovedByAnotherHearsNothingMore();
    void refreshingRedrawsTheView();
    void refreshingWithoutActionAndViewDoesNothing();
    void aViewThatIsGoneIsNotTold();
};

void ActionStepTest::theBeginShowsTheTextAndGivesTheViewTheKeyboard()
{
    ActionFixture f;
    f.AddInteractive("Line");
    std::wstring text;
    int activations = 0;
    int posts = 0;
    f.loop.Post([&] {
        text = f.view.GetText();
        activations = f.view.GetActivationCount();
        posts = f.application.GetPostCount();
    });

    f.Choose("Line");

    QCOMPARE(text, std::wstring(L"next point"));
    QCOMPARE(activations, 1);
    QCOMPARE(posts, 1);
}

void ActionStepTest::theEndClearsTheText()
{
    ActionFixture f;
    f.AddInteractive("Line");

    f.Choose("Line");

    QVERIFY(f.view.GetText().empty());
    QCOMPARE(f.application.GetPostCount(), 2);
}

void ActionStepTest::aStepIsShown_data()
{
    QTest::addColumn<Input>("input");
    QTest::newRow("click") << Input(&ActionFixture::Click);
    QTest::newRow("typed value") << Input(&ActionFixture::TypeValue);
    QTest::newRow("escape") << Input(&ActionFixture::PressEscape);
    QTest::newRow("undo") << Input([](ActionFixture&) { ActionManager::StepDone(); });
}

void ActionStepTest::aStepIsShown()
{
    QFETCH(Input, input);
    ActionFixture f;
    f.AddInteractive("Line");
    f.scripts["Line"].hasLocks = true;
    std::wstring text;
    int posts = 0;
    int redraws = 0;
    f.loop.Post([&] {
        f.scripts["Line"].text = L"second point";
        posts = f.application.GetPostCount();
        redraws = f.view.GetRedrawCount();
        input(f);
        text = f.view.GetText();
        posts = f.application.GetPostCount() - posts;
        redraws = f.view.GetRedrawCount() - redraws;
    });

    f.Choose("Line");

    QCOMPARE(text, std::wstring(L"second point"));
    QCOMPARE(posts, 1);
    QCOMPARE(redraws, 1);
}

void ActionStepTest::theLastStepIsShownAsTheEnd()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.scripts["Line"].onClick = [&f] { f.scripts["Line"].isFinished = true; };
    const Observer observer;
    f.loop.Post([&f] { f.Click(); });

    f.Choose("Line");

    QCOMPARE(observer.GetCount(), 2);
}

void ActionStepTest::aMouseMoveIsNoStep()
{
    ActionFixture f;
    f.AddInteractive("Line");
    const Observer observer;
    int posts = 0;
    int redraws = 0;
    f.loop.Post([&] {
        posts = f.application.GetPostCount();
        redraws = f.view.GetRedrawCount();
        f.MoveMouse();
        posts = f.application.GetPostCount() - posts;
        redraws = f.view.GetRedrawCount() - redraws;
    });

    f.Choose("Line");

    QCOMPARE(posts, 0);
    QCOMPARE(redraws, 1);
    QCOMPARE(observer.GetCount(), 2);
}

void ActionStepTest::aPlainCommandIsNoStep()
{
    ActionFixture f;
    f.AddPlain("ZoomAll");
    const Observer observer;

    f.Choose("ZoomAll");

    QCOMPARE(observer.GetCount(), 0);
}

void ActionStepTest::observersHearOfBeginStepAndEnd()
{
    ActionFixture f;
    f.AddInteractive("Line");
    Log heard;
    const Observer observer([&] {
        const std::wstring id = ActionManager::GetRunningCommandId();
        heard.emplace_back(id.begin(), id.end());
    });
    f.loop.Post([&f] { f.Click(); });

    f.Choose("Line");

    QCOMPARE(heard, (Log{"Line", "Line", ""}));
}

void ActionStepTest::anObserverAddedTwiceHearsOnce()
{
    ActionFixture f;
    f.AddInteractive("Line");
    Observer observer;
    ActionManager::AddObserver(&observer);
    ActionManager::AddObserver(nullptr);

    f.Choose("Line");

    QCOMPARE(observer.GetCount(), 2);
}

void ActionStepTest::anObserverMayRemoveItself()
{
    ActionFixture f;
    f.AddInteractive("Line");
    Observer* pFirst = nullptr;
    Observer first([&] { ActionManager::RemoveObserver(pFirst); });
    pFirst = &first;
    const Observer second;

    f.Choose("Line");

    QCOMPARE(first.GetCount(), 1);
    QCOMPARE(second.GetCount(), 2);
}

void ActionStepTest::anObserverRemovedByAnotherHearsNothingMore()
{
    ActionFixture f;
    f.AddInteractive("Line");
    Observer* pSecond = nullptr;
    const Observer first([&] { ActionManager::RemoveObserver(pSecond); });
    Observer second;
    pSecond = &second;

    f.Choose("Line");

    QCOMPARE(second.GetCount(), 0);
}

void ActionStepTest::refreshingRedrawsTheView()
{
    ActionFixture f;
    f.AddInteractive("Line");
    int redraws = 0;
    int posts = 0;
    f.loop.Post([&] {
        redraws = f.view.GetRedrawCount();
        posts = f.application.GetPostCount();
        ActionManager::RefreshViewInput(&f.view);
        redraws = f.view.GetRedrawCount() - redraws;
        posts = f.application.GetPostCount() - posts;
    });

    f.Choose("Line");

    QCOMPARE(redraws, 1);
    QCOMPARE(posts, 0);
}

void ActionStepTest::refreshingWithoutActionAndViewDoesNothing()
{
    ActionFixture f;

    ActionManager::RefreshViewInput(nullptr);
    ActionManager::StepDone();

    QCOMPARE(f.view.GetRedrawCount(), 0);
    QCOMPARE(f.application.GetPostCount(), 0);
}

void ActionStepTest::aViewThatIsGoneIsNotTold()
{
    ActionFixture f;
    f.AddInteractive("Line");
    auto pView = std::make_unique<RecordingView>(2);
    auto& views = *dynamic_cast<UiDocumentViewManager*>(IUiDocumentViewManager::Get());
    views.AddView(pView.get());
    f.loop.Post([&] {
        views.RemoveView(pView.get());
        pView.reset();
        f.Click();
    });

    ActionManager::ProcessCommand(pView.get(), ICommandManager::Get()->GetCommand(L"Line"), {},
                                  nullptr);

    QCOMPARE(f.log, (Log{"Line.begin", "Line.click", "Line.end", "Line.delete"}));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ActionStepTest);
#include "ActionStepTest.moc"
