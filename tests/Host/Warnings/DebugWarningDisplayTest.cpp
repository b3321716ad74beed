#include "Foundation/IApplication.h"
#include "Host/Warnings/RaiseWarning.h"
#include "Support/IdleApplication.h"
#include "Support/TestValues.h"
#include "Warnings/IDebugWarningDisplayer.h"
#include "Warnings/IDebugWarningScheduler.h"
#include "Warnings/NqUiInterfaceFactory.h"

#include <functional>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

namespace vesk
{

namespace
{

/// What the user sees and answers, in order.
struct User
{
    std::vector<int> shownLines;
    bool answer = true;
    std::function<void()> whileShown;
};

class Displayer final : public IDebugWarningDialogDisplayer
{
public:
    explicit Displayer(User& user) : m_user(user) {}

    bool Display(const std::string&, int line, const std::string&, const std::wstring&,
                 const std::wstring&, const std::wstring&) override
    {
        m_user.shownLines.push_back(line);
        if (m_user.whileShown)
            std::exchange(m_user.whileShown, nullptr)();
        return m_user.answer;
    }

private:
    User& m_user;
};

class Factory final : public NqUiInterfaceFactory
{
public:
    explicit Factory(User& user) : m_user(user) { m_pFactory = this; }

    IPropertyWidget* GetPropertyWidget() override { return nullptr; }

    OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() override
    {
        ++createdCount;
        return MakeOwner<Displayer>(m_user);
    }

    int createdCount = 0;

private:
    User& m_user;
};

/// An event loop that runs, and becomes idle, when the test says so.
class Scheduler final : public IDebugWarningScheduler
{
public:
    Scheduler() { Manager().SetScheduler(this); }
    ~Scheduler() override { Manager().SetScheduler(nullptr); }

    bool IsDialogAllowed() const override { return isAllowed; }
    void Post(std::function<void()> function) override
    {
        if (std::exchange(isFailing, false))
            throw std::bad_alloc();
        posted.push_back(std::move(function));
    }

    void PostWhenIdle(std::chrono::milliseconds delay, std::function<void()> function) override
    {
        delays.push_back(delay);
        idle.push_back(std::move(function));
    }

    void ComeRound()
    {
        for (const std::function<void()>& function : std::exchange(posted, {}))
            function();
    }

    void Rest()
    {
        for (const std::function<void()>& function : std::exchange(idle, {}))
            function();
    }

    bool isAllowed = true;
    bool isFailing = false;
    std::vector<std::function<void()>> posted;
    std::vector<std::function<void()>> idle;
    std::vector<std::chrono::milliseconds> delays;
};

struct Fixture
{
    Fixture()
    {
        Manager().Reset();
        Manager().SetAttended(true);
    }
    ~Fixture() { Manager().Reset(); }

    User user;
    Factory factory{user};
    Scheduler scheduler;
};

using Lines = std::vector<int>;

}

class DebugWarningDisplayTest : public QObject
{
    Q_OBJECT

private slots:
    void aWarningIsShown();
    void aDialogThatCouldNotBePutOffKeepsNoOtherBack();
    void theDisplayerIsMadeOnce();
    void theDisplayerGoesWithTheFactory();
    void withoutDisplayerTheNextWarningAsksAgain();
    void theShownWarningIsKnownWhileItIsShown();
    void warningsRaisedMeanwhileAreCountedAndNotShown();
    void warningsOfIgnoredPlacesAreCountedWhileOneIsShown();
    void warningsOfIgnoredPlacesAreNotCountedWhileOneWaits();
    void theCountGoesOnFromDialogToDialog();
    void unattendedNothingIsCountedWhileOneIsShown();
    void aPlaceIsAFileAndALine();
    void aPlaceThatIsIgnoredIsNotShownAgain();
    void anotherPlaceIsShown();
    void aPlaceIgnoredOnceRestsUntilTheEventLoopDoes();
    void aPlaceIgnoredForGoodStaysSoWhenTheEventLoopRests();
    void withoutEventLoopAPlaceIgnoredOnceIsShownAgain();
    void whereNoDialogIsAllowedItOpensFromTheEventLoop();
    void ofManyPostponedWarningsOneIsShown();
    void aPostponedWarningOfAPlaceThatWasIgnoredIsNotShown();
    void aWarningOfAnotherThreadOpensFromTheEventLoop();
    void unattendedNothingIsShownWhileThereIsAnApplication();
    void unattendedWithoutApplicationItIsShown();
    void aDisplayerThatThrowsLeavesTheNextItsTurn();
    void afterAResetEverythingIsShownAgain();
};

void DebugWarningDisplayTest::aWarningIsShown()
{
    Fixture f;

    Warn(7);

    QCOMPARE(f.user.shownLines, Lines{7});
}

void DebugWarningDisplayTest::theDisplayerIsMadeOnce()
{
    Fixture f;

    Warn(1);
    Warn(2);

    QCOMPARE(f.factory.createdCount, 1);
}

void DebugWarningDisplayTest::theDisplayerGoesWithTheFactory()
{
    User user;
    {
        const Factory factory(user);
        Warn(1);
    }

    Warn(2);

    QCOMPARE(user.shownLines, Lines{1});
}

void DebugWarningDisplayTest::withoutDisplayerTheNextWarningAsksAgain()
{
    Manager().Reset();
    Warn(1);
    Fixture f;

    Warn(1);

    QCOMPARE(f.user.shownLines, Lines{1});
}

void DebugWarningDisplayTest::theShownWarningIsKnownWhileItIsShown()
{
    Fixture f;
    std::optional<ShownDebugWarning> shown;
    f.user.whileShown = [&shown] { shown = Manager().GetShownWarning(); };

    Warn(7, L"pArgs为空");

    QVERIFY(shown.has_value());
    QCOMPARE(shown->function, std::string("vesk::QtButton::On"));
    QCOMPARE(shown->message, std::wstring(L"pArgs为空"));
    QCOMPARE(shown->suppressed, 0);
    QVERIFY(!Manager().GetShownWarning().has_value());
}

void DebugWarningDisplayTest::warningsRaisedMeanwhileAreCountedAndNotShown()
{
    Fixture f;
    int suppressed = 0;
    f.user.whileShown = [&suppressed] {
        WarnTimes(3, 1);
        Warn(2);
        suppressed = Manager().GetShownWarning()->suppressed;
    };

    Warn(1);

    QCOMPARE(f.user.shownLines, Lines{1});
    QCOMPARE(suppressed, 4);
    QCOMPARE(Manager().GetUnshownCount(), 4);
}

void DebugWarningDisplayTest::warningsOfIgnoredPlacesAreCountedWhileOneIsShown()
{
    Fixture f;
    f.user.answer = false;
    Warn(7);
    int suppressed = 0;
    f.user.whileShown = [&suppressed] {
        WarnTimes(2, 7);
        suppressed = Manager().GetShownWarning()->suppressed;
    };

    Warn(8);

    QCOMPARE(suppressed, 2);
    QCOMPARE(Manager().GetUnshownCount(), 2);
    QVERIFY(f.user.shownLines == (Lines{7, 8}));
}

void DebugWarningDisplayTest::warningsOfIgnoredPlacesAreNotCountedWhileOneWaits()
{
    Fixture f;
    f.user.answer = false;
    Warn(7);
    f.scheduler.isAllowed = false;
    Warn(8);

    Warn(7);

    QCOMPARE(Manager().GetUnshownCount(), 0);
}

void DebugWarningDisplayTest::theCountGoesOnFromDialogToDialog()
{
    Fixture f;
    f.user.whileShown = [] { Warn(2); };
    Warn(1);
    int suppressed = 0;
    f.user.whileShown = [&suppressed] {
        Warn(4);
        suppressed = Manager().GetShownWarning()->suppressed;
    };

    Warn(3);

    QCOMPARE(suppressed, 1);
    QCOMPARE(Manager().GetUnshownCount(), 2);
}

void DebugWarningDisplayTest::unattendedNothingIsCountedWhileOneIsShown()
{
    Fixture f;
    const test::IdleApplication application;
    f.user.whileShown = [] {
        Manager().SetAttended(false);
        Warn(2);
    };

    Warn(1);

    QCOMPARE(Manager().GetUnshownCount(), 0);
}

void DebugWarningDisplayTest::aPlaceIsAFileAndALine()
{
    Fixture f;
    f.user.answer = false;
    Warn(7);

    Manager().ShowDebugWarn("another.cpp", 7, "vesk::F::G", L"message", L"vesk-ui", L"2026-11-21");

    QVERIFY(f.user.shownLines == (Lines{7, 7}));
}

void DebugWarningDisplayTest::aPlaceThatIsIgnoredIsNotShownAgain()
{
    Fixture f;
    f.user.answer = false;

    WarnTimes(3, 7);

    QCOMPARE(f.user.shownLines, Lines{7});
    QCOMPARE(Manager().GetUnshownCount(), 0);
}

void DebugWarningDisplayTest::anotherPlaceIsShown()
{
    Fixture f;
    f.user.answer = false;

    Warn(7);
    Warn(8);

    QCOMPARE(f.user.shownLines, (Lines{7, 8}));
}

void DebugWarningDisplayTest::aPlaceIgnoredOnceRestsUntilTheEventLoopDoes()
{
    Fixture f;

    WarnTimes(10000, 7);
    QCOMPARE(f.user.shownLines, Lines{7});
    QCOMPARE(f.scheduler.delays, std::vector<std::chrono::milliseconds>{std::chrono::seconds(1)});

    f.scheduler.Rest();
    Warn(7);
    QCOMPARE(f.user.shownLines, (Lines{7, 7}));
}

void DebugWarningDisplayTest::aPlaceIgnoredForGoodStaysSoWhenTheEventLoopRests()
{
    Fixture f;
    Warn(7);
    f.scheduler.Rest();
    f.user.answer = false;
    Warn(7);

    f.scheduler.Rest();
    Warn(7);

    QCOMPARE(f.user.shownLines, (Lines{7, 7}));
}

void DebugWarningDisplayTest::withoutEventLoopAPlaceIgnoredOnceIsShownAgain()
{
    Fixture f;
    Manager().SetScheduler(nullptr);

    WarnTimes(2, 7);

    QCOMPARE(f.user.shownLines, (Lines{7, 7}));
}

void DebugWarningDisplayTest::aDialogThatCouldNotBePutOffKeepsNoOtherBack()
{
    Fixture f;
    f.scheduler.isAllowed = false;
    f.scheduler.isFailing = true;
    Warn(7);
    f.scheduler.isAllowed = true;

    Warn(8);

    QVERIFY(f.user.shownLines == (Lines{8}));
}

void DebugWarningDisplayTest::whereNoDialogIsAllowedItOpensFromTheEventLoop()
{
    Fixture f;
    f.scheduler.isAllowed = false;
    Warn(7);
    QVERIFY(f.user.shownLines.empty());

    f.scheduler.isAllowed = true;
    f.scheduler.ComeRound();

    QCOMPARE(f.user.shownLines, Lines{7});
}

void DebugWarningDisplayTest::ofManyPostponedWarningsOneIsShown()
{
    Fixture f;
    f.scheduler.isAllowed = false;

    WarnTimes(5, 7);
    QCOMPARE(f.scheduler.posted.size(), std::size_t{1});
    f.scheduler.isAllowed = true;
    f.scheduler.ComeRound();

    QCOMPARE(f.user.shownLines, Lines{7});
    QCOMPARE(Manager().GetUnshownCount(), 4);
}

void DebugWarningDisplayTest::aPostponedWarningOfAPlaceThatWasIgnoredIsNotShown()
{
    Fixture f;
    f.user.answer = false;
    f.user.whileShown = [&f] {
        f.scheduler.isAllowed = false;
        Warn(7);
    };
    Warn(7);
    Warn(7);
    f.scheduler.isAllowed = true;

    f.scheduler.ComeRound();

    QCOMPARE(f.user.shownLines, Lines{7});
}

void DebugWarningDisplayTest::aWarningOfAnotherThreadOpensFromTheEventLoop()
{
    Fixture f;
    f.scheduler.isAllowed = false;
    std::thread([] { Warn(9); }).join();
    f.scheduler.isAllowed = true;

    f.scheduler.ComeRound();

    QCOMPARE(f.user.shownLines, Lines{9});
}

void DebugWarningDisplayTest::unattendedNothingIsShownWhileThereIsAnApplication()
{
    Fixture f;
    const test::IdleApplication application;
    Manager().SetAttended(false);

    Warn(7);

    QVERIFY(f.user.shownLines.empty());
    QCOMPARE(Manager().GetUnshownCount(), 0);
    Manager().SetAttended(true);
    Warn(8);
    QCOMPARE(f.user.shownLines, Lines{8});
}

void DebugWarningDisplayTest::unattendedWithoutApplicationItIsShown()
{
    Fixture f;
    Manager().SetAttended(false);

    Warn(7);

    QCOMPARE(f.user.shownLines, Lines{7});
}

void DebugWarningDisplayTest::aDisplayerThatThrowsLeavesTheNextItsTurn()
{
    Fixture f;
    f.user.whileShown = [] { throw std::runtime_error("no memory"); };

    Warn(7);
    Warn(8);

    QCOMPARE(f.user.shownLines, (Lines{7, 8}));
}

void DebugWarningDisplayTest::afterAResetEverythingIsShownAgain()
{
    Fixture f;
    f.user.answer = false;
    f.user.whileShown = [] { Warn(8); };
    Warn(7);

    Manager().Reset();
    Manager().SetAttended(true);

    QCOMPARE(Manager().GetUnshownCount(), 0);
    Warn(7);
    QCOMPARE(f.user.shownLines, (Lines{7, 7}));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::DebugWarningDisplayTest);
#include "DebugWarningDisplayTest.moc"
