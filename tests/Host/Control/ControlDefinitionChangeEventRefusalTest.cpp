#include "Control/ControlDefinitionChangeEvent.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/IControl.h"
#include "Host/Control/ChangeEventFixture.h"

#include "Support/TestValues.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vesk
{

namespace
{

using Fixture = ChangeEventFixture;

/// A control that runs a function when it is notified of a change.
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

/// Writes from controls that have not received all changes yet.
class ControlDefinitionChangeEventRefusalTest : public QObject
{
    Q_OBJECT

private slots:
    void aControlThatIsBehindIsRefusedAndSetRight();
    void aControlThatIsYetToHearOfPropertiesIsRefused();
    void aControlThatHasHeardEverythingIsNotRefused();
    void theProgramIsNeverRefused();
    void aHandlerThatHasLeftIsNoControl();
    void aChoiceOfTheUserFromAnOldListIsRefusedAndSetRight();
    void aProgramThatActsOnAChoiceOfTheUserIsNotRefused();
};

void ControlDefinitionChangeEventRefusalTest::aControlThatIsBehindIsRefusedAndSetRight()
{
    Fixture f;
    StandInControl control(*f.pEvent);
    std::vector<bool> refused;
    control.Then([&] { refused.push_back(f.pEvent->RefuseFromBehind()); });
    f.first.Then([&] { f.Add(L"b"); });

    f.Add(L"a");

    // The last one is the property change, when the control knows everything.
    QCOMPARE(refused, (std::vector<bool>{true, true, false}));
    QCOMPARE(Fixture::GetHeard(f.second), std::wstring(L"ab*"));
}

void ControlDefinitionChangeEventRefusalTest::aControlThatIsYetToHearOfPropertiesIsRefused()
{
    Fixture f;
    StandInControl control(*f.pEvent);
    std::vector<bool> refused;
    control.Then([&] { refused.push_back(f.pEvent->RefuseFromBehind()); });
    f.first.Then([&] { f.Add(L"a"); });

    f.pEvent->RaisePropertyChanged();

    QCOMPARE(refused, (std::vector<bool>{true, false, false}));
}

void ControlDefinitionChangeEventRefusalTest::aControlThatHasHeardEverythingIsNotRefused()
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

void ControlDefinitionChangeEventRefusalTest::theProgramIsNeverRefused()
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

void ControlDefinitionChangeEventRefusalTest::aHandlerThatHasLeftIsNoControl()
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

void ControlDefinitionChangeEventRefusalTest::aChoiceOfTheUserFromAnOldListIsRefusedAndSetRight()
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

void ControlDefinitionChangeEventRefusalTest::aProgramThatActsOnAChoiceOfTheUserIsNotRefused()
{
    Fixture f;
    bool isRefused = true;
    f.first.Then([&] { isRefused = f.pEvent->RefuseFromBehind(); });
    const ControlDefinitionChangeByUser byUser(L"id");

    f.Add(L"a");

    QVERIFY(!isRefused);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ControlDefinitionChangeEventRefusalTest);
#include "ControlDefinitionChangeEventRefusalTest.moc"
