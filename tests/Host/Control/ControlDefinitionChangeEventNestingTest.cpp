#include "Control/ControlDefinitionChangeEvent.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/IControl.h"
#include "Host/Control/ChangeRecorder.h"

#include <QtTest>

#include <memory>
#include <optional>
#include <stdexcept>

namespace vesk
{

namespace
{

using Type = ControlDefinitionChangeEventType;

/// An event with two handlers; the changes of items are told apart by their captions.
struct Fixture
{
    void Add(const std::wstring& caption)
    {
        pEvent->RaiseItemsChanged(Type::Add, 0, caption, nullptr);
    }

    /// What a handler heard: captions of items, '*' for a change of properties, '!' for the user.
    static std::wstring GetHeard(const ChangeRecorder& recorder)
    {
        std::wstring heard;
        for (const Change& change : recorder.GetChanges())
        {
            heard += change.type == Type::PropertyChanged ? L"*" : change.caption;
            heard += change.isByUser ? L"!" : L"";
        }
        return heard;
    }

    std::unique_ptr<ControlDefinitionChangeEvent> pEvent =
        std::make_unique<ControlDefinitionChangeEvent>(L"id");
    ChangeRecorder first{*pEvent};
    ChangeRecorder second{*pEvent};
};

/// A control that does something when it hears of a change.
class StandInControl final : public IControl, public IControlDefinitionChangeEventHandler
{
public:
    explicit StandInControl(IControlDefinitionChangeEvent& event) { event.Add(this); }

    IControlDefinition* GetControlDefinition() const override { return nullptr; }
    void UpdateStatus() override {}
    void On(IControlDefinitionChangeEventArgs*) override
    {
        if (m_then)
            m_then();
    }

    void Then(std::function<void()> action) { m_then = std::move(action); }

private:
    std::function<void()> m_then;
};

}

/// Changes that are made while another one is being told.
class ControlDefinitionChangeEventNestingTest : public QObject
{
    Q_OBJECT

private slots:
    void changesOfItemsReachEveryHandlerInTheirOrder();
    void changesOfItemsMadeInLaterOnesComeAfterwards();
    void propertiesAreToldOnceTheItemsAre();
    void propertiesOfTheSameMarkAreToldOnce();
    void nothingFollowsAChangeInWhichNothingHappens();
    void whatWaitsIsToldBeforeTheOutermostCallReturns();
    void whatWaitsOwnsItsCaption();
    void whatWaitsKeepsItsItem();
    void whatWaitsKeepsTheMarkOfTheUser();
    void whoSubscribesHearsOnlyWhatHappensAfterwards();
    void whoUnsubscribesHearsNothingMore();
    void changesMadeWhilePropertiesAreToldDoNotWait();
    void changesMadeInTheLastChangeOfPropertiesAreToldInOrder();
    void eventsOfTwoDefinitionsDoNotWaitForEachOther();
    void destroyingTheEventDropsWhatWaits_data();
    void destroyingTheEventDropsWhatWaits();
    void aHandlerThatThrowsKeepsTheOthersFromNothing();
    void anExceptionOfALaterChangeLeavesTheOutermostCall();
    void ofTwoExceptionsTheFirstLeaves();
    void theEventIsUsableAfterAnException();
    void aControlThatIsBehindIsRefusedAndSetRight();
    void aControlThatIsYetToHearOfPropertiesIsRefused();
    void aControlThatHasHeardEverythingIsNotRefused();
    void theProgramIsNeverRefused();
    void aHandlerThatHasLeftIsNoControl();
    void aChoiceOfTheUserFromAnOldListIsRefusedAndSetRight();
    void aProgramThatActsOnAChoiceOfTheUserIsNotRefused();
};

void ControlDefinitionChangeEventNestingTest::changesOfItemsReachEveryHandlerInTheirOrder()
{
    Fixture f;
    f.first.Then([&] { f.Add(L"b"); });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"ab*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::changesOfItemsMadeInLaterOnesComeAfterwards()
{
    Fixture f;
    f.first.Then([&] {
        f.first.Then([&] { f.Add(L"d"); });
        f.Add(L"b");
        f.Add(L"c");
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"abcd*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"abcd*"));
}

void ControlDefinitionChangeEventNestingTest::propertiesAreToldOnceTheItemsAre()
{
    Fixture f;
    f.first.Then([&] {
        f.pEvent->RaisePropertyChanged();
        f.Add(L"b");
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"ab*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::propertiesOfTheSameMarkAreToldOnce()
{
    Fixture f;
    f.first.Then([&] {
        f.pEvent->RaisePropertyChanged();
        f.pEvent->RaisePropertyChanged();
        const ControlDefinitionChangeByUser byUser(L"id");
        f.pEvent->RaisePropertyChanged();
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"a**!"));
}

void ControlDefinitionChangeEventNestingTest::nothingFollowsAChangeInWhichNothingHappens()
{
    Fixture f;

    f.Add(L"a");
    f.Add(L"b");

    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab"));
}

void ControlDefinitionChangeEventNestingTest::whatWaitsIsToldBeforeTheOutermostCallReturns()
{
    Fixture f;
    std::wstring heardInside;
    f.first.Then([&] {
        f.Add(L"b");
        heardInside = Fixture::GetHeard(f.first) + L"|" + Fixture::GetHeard(f.second);
    });

    f.Add(L"a");

    QCOMPARE(heardInside, std::wstring(L"a|"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::whatWaitsOwnsItsCaption()
{
    Fixture f;
    f.first.Then([&] {
        std::wstring caption(100, L'b');
        f.Add(caption);
        caption.assign(100, L'x');
    });

    f.Add(L"a");

    QCOMPARE(f.second.GetChanges().at(1).caption, std::wstring(100, L'b'));
}

void ControlDefinitionChangeEventNestingTest::whatWaitsKeepsItsItem()
{
    Fixture f;
    std::weak_ptr<int> pWatched;
    bool isKept = false;
    f.first.Then([&] {
        auto pItem = std::make_shared<int>();
        pWatched = pItem;
        f.pEvent->RaiseItemsChanged(Type::Delete, 0, {}, nullptr, std::move(pItem));
        f.second.Then([&] { f.second.Then([&] { isKept = !pWatched.expired(); }); });
    });

    f.Add(L"a");

    QVERIFY(isKept);
    QVERIFY(pWatched.expired());
}

void ControlDefinitionChangeEventNestingTest::whatWaitsKeepsTheMarkOfTheUser()
{
    Fixture f;
    f.first.Then([&] {
        const ControlDefinitionChangeByUser byUser(L"id");
        f.Add(L"b");
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab!*"));
}

void ControlDefinitionChangeEventNestingTest::whoSubscribesHearsOnlyWhatHappensAfterwards()
{
    Fixture f;
    std::optional<ChangeRecorder> late;
    f.first.Then([&] {
        f.Add(L"b");
        late.emplace(*f.pEvent);
        f.Add(L"c");
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(*late), std::wstring(L"c*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"abc*"));
}

void ControlDefinitionChangeEventNestingTest::whoUnsubscribesHearsNothingMore()
{
    Fixture f;
    f.first.Then([&] {
        f.Add(L"b");
        f.pEvent->Delete(&f.first);
        f.second.Then([&] { f.pEvent->Delete(&f.second); });
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"a"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"a"));
    QVERIFY(f.pEvent->IsEmpty());
}

void ControlDefinitionChangeEventNestingTest::changesMadeWhilePropertiesAreToldDoNotWait()
{
    Fixture f;
    std::wstring heardInside;
    f.first.Then([&] {
        f.Add(L"a");
        f.pEvent->RaisePropertyChanged();
        heardInside = Fixture::GetHeard(f.second);
    });

    f.pEvent->RaisePropertyChanged();

    // The items are followed by properties: who was being told may have been interrupted.
    QCOMPARE(heardInside, std::wstring(L"a**"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"a***"));
}

void ControlDefinitionChangeEventNestingTest::changesMadeInTheLastChangeOfPropertiesAreToldInOrder()
{
    Fixture f;
    f.first.Then([&] {
        f.pEvent->RaisePropertyChanged();
        f.first.Then([&] {
            f.first.Then([&] { f.Add(L"c"); });
            f.Add(L"b");
        });
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"a*bc*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"abc**"));
}

void ControlDefinitionChangeEventNestingTest::eventsOfTwoDefinitionsDoNotWaitForEachOther()
{
    Fixture f;
    Fixture other;
    std::wstring heardInside;
    f.first.Then([&] {
        other.first.Then([&] { f.Add(L"b"); });
        other.Add(L"x");
        heardInside = Fixture::GetHeard(other.second);
    });

    f.Add(L"a");

    QCOMPARE(heardInside, std::wstring(L"x"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::destroyingTheEventDropsWhatWaits_data()
{
    QTest::addColumn<QString>("whenHeard");
    QTest::addColumn<QString>("heard");
    QTest::newRow("in the change that is told") << "a"
                                                << "";
    QTest::newRow("in one that waited") << "ab"
                                        << "a";
    QTest::newRow("in the last change of properties") << "abc*"
                                                      << "abc";
}

void ControlDefinitionChangeEventNestingTest::destroyingTheEventDropsWhatWaits()
{
    QFETCH(QString, whenHeard);
    QFETCH(QString, heard);
    Fixture f;
    std::function<void()> destroyInTime = [&] {
        if (Fixture::GetHeard(f.first) == whenHeard.toStdWString())
            f.pEvent.reset();
        else
            f.first.Then(destroyInTime);
    };
    f.first.Then([&] {
        f.Add(L"b");
        f.Add(L"c");
        destroyInTime();
    });

    f.Add(L"a");

    QCOMPARE(Fixture::GetHeard(f.first), whenHeard.toStdWString());
    QCOMPARE(Fixture::GetHeard(f.second), heard.toStdWString());
    QVERIFY(f.pEvent == nullptr);
}

void ControlDefinitionChangeEventNestingTest::aHandlerThatThrowsKeepsTheOthersFromNothing()
{
    Fixture f;
    f.first.Then([&] {
        f.Add(L"b");
        throw std::runtime_error("handler");
    });

    QVERIFY_EXCEPTION_THROWN(f.Add(L"a"), std::runtime_error);

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"ab*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::anExceptionOfALaterChangeLeavesTheOutermostCall()
{
    Fixture f;
    bool isLeftByTheInner = false;
    f.first.Then([&] {
        f.first.Then([] { throw std::runtime_error("later"); });
        try
        {
            f.Add(L"b");
        }
        catch (...)
        {
            isLeftByTheInner = true;
        }
        f.Add(L"c");
    });

    QVERIFY_EXCEPTION_THROWN(f.Add(L"a"), std::runtime_error);

    QVERIFY(!isLeftByTheInner);
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"abc*"));
}

void ControlDefinitionChangeEventNestingTest::ofTwoExceptionsTheFirstLeaves()
{
    Fixture f;
    f.first.Then([&] {
        f.first.Then([] { throw std::logic_error("second"); });
        f.Add(L"b");
        throw std::runtime_error("first");
    });

    QVERIFY_EXCEPTION_THROWN(f.Add(L"a"), std::runtime_error);

    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::theEventIsUsableAfterAnException()
{
    Fixture f;
    f.first.Then([&] {
        f.Add(L"b");
        throw std::runtime_error("handler");
    });
    QVERIFY_EXCEPTION_THROWN(f.Add(L"a"), std::runtime_error);

    f.Add(L"c");
    f.pEvent->RaisePropertyChanged();

    QCOMPARE(Fixture::GetHeard(f.first), std::wstring(L"ab*c*"));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*c*"));
}

void ControlDefinitionChangeEventNestingTest::aControlThatIsBehindIsRefusedAndSetRight()
{
    Fixture f;
    StandInControl control(*f.pEvent);
    std::vector<bool> refused;
    control.Then([&] { refused.push_back(f.pEvent->RefuseFromBehind()); });
    f.first.Then([&] { f.Add(L"b"); });

    f.Add(L"a");

    // The last one is the change of properties, when the control knows all.
    QCOMPARE(refused, (std::vector<bool>{true, true, false}));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventNestingTest::aControlThatIsYetToHearOfPropertiesIsRefused()
{
    Fixture f;
    StandInControl control(*f.pEvent);
    std::vector<bool> refused;
    control.Then([&] { refused.push_back(f.pEvent->RefuseFromBehind()); });
    f.first.Then([&] { f.Add(L"a"); });

    f.pEvent->RaisePropertyChanged();

    QCOMPARE(refused, (std::vector<bool>{true, false, false}));
}

void ControlDefinitionChangeEventNestingTest::aControlThatHasHeardEverythingIsNotRefused()
{
    Fixture f;
    StandInControl control(*f.pEvent);
    std::vector<bool> refused;
    control.Then([&] { refused.push_back(f.pEvent->RefuseFromBehind()); });

    f.Add(L"a");
    f.pEvent->RaisePropertyChanged();

    QCOMPARE(refused, (std::vector<bool>{false, false}));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"a*"));
}

void ControlDefinitionChangeEventNestingTest::theProgramIsNeverRefused()
{
    Fixture f;
    bool isRefused = false;
    f.first.Then([&] {
        f.Add(L"b");
        isRefused = f.pEvent->RefuseFromBehind();
    });

    f.Add(L"a");

    QVERIFY(!isRefused);
    QVERIFY(!f.pEvent->RefuseFromBehind());
}

void ControlDefinitionChangeEventNestingTest::aHandlerThatHasLeftIsNoControl()
{
    Fixture f;
    auto pControl = std::make_unique<StandInControl>(*f.pEvent);
    bool isRefused = true;
    f.first.Then([&] { f.Add(L"b"); });
    const std::function<void()> leave = [&] {
        f.pEvent->Delete(pControl.get());
        isRefused = f.pEvent->RefuseFromBehind();
    };
    pControl->Then(leave);

    f.Add(L"a");

    QVERIFY(!isRefused);
}

void ControlDefinitionChangeEventNestingTest::aChoiceOfTheUserFromAnOldListIsRefusedAndSetRight()
{
    Fixture f;
    bool isRefused = false;
    f.first.Then([&] {
        const ControlDefinitionChangeByUser byUser(L"id");
        isRefused = f.pEvent->RefuseFromBehind();
    });

    f.Add(L"a");

    QVERIFY(isRefused);
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"a*"));
}

void ControlDefinitionChangeEventNestingTest::aProgramThatActsOnAChoiceOfTheUserIsNotRefused()
{
    Fixture f;
    bool isRefused = true;
    f.first.Then([&] { isRefused = f.pEvent->RefuseFromBehind(); });
    const ControlDefinitionChangeByUser byUser(L"id");

    f.Add(L"a");

    QVERIFY(!isRefused);
}

}

QTEST_APPLESS_MAIN(vesk::ControlDefinitionChangeEventNestingTest)
#include "ControlDefinitionChangeEventNestingTest.moc"
