#include "VeskUiQtImpl/Control/QtButton.h"

#include "Control/ChangeNotes.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/EchoModes.h"
#include "Support/HostFixture.h"
#include "Support/HostValues.h"
#include "Support/KeptText.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include <QAction>

#include <vector>

namespace vesk::test
{

/// A checkable command button; its definition raises its event for user changes, or does not.
struct ClickFixture
{
    explicit ClickFixture(bool isEchoing)
    {
        auto opDefinition =
            MakeDefinition<CommandButtonDefinition>(isEchoing, L"Button.Id", L"Test.Command");
        pDefinition = opDefinition.Get();
        opButton = MakeOwner<QtButton>(std::move(opDefinition), nullptr);
        host.AddCommand(L"Test.Command", [this](const CommandParameters& parameters) {
            calls.push_back(parameters);
            if (onCommand)
                onCommand();
        });
    }

    HostFixture host;
    CommandButtonDefinition* pDefinition;
    OwnerPtr<QtButton> opButton;
    std::vector<CommandParameters> calls;
    std::function<void()> onCommand;
};

/// Records each state that is written.
class NotingButtonDefinition final : public CommandButtonDefinition
{
public:
    using CommandButtonDefinition::CommandButtonDefinition;

    void SetChecked(bool isChecked) override
    {
        writes.push_back(isChecked);
        CommandButtonDefinition::SetChecked(isChecked);
    }

    std::vector<bool> writes;
};

CommandParameters Clicked(bool isChecked)
{
    CommandParameters parameters;
    parameters.Add(L"Clicked", CommandParameterValue(isChecked));
    return parameters;
}

class QtButtonClickTest : public QObject
{
    Q_OBJECT

private slots:
    void sendsItsCommandWithTheNewState_data() { AddEchoModes(); }
    void sendsItsCommandWithTheNewState();
    void twoClicksSendTrueThenFalse_data() { AddEchoModes(); }
    void twoClicksSendTrueThenFalse();
    void isJournaledOnceWithItsParameters();
    void writesTheStateAsTheUsersAndOnce();
    void writesTheStateThatTheDefinitionHasAgain();
    void theUsersScopeIsClosedBeforeTheCommandRuns();
    void theDefinitionIsCheckedBeforeTheCommandRuns();
    void theCommandIsReadOnceTheStateIsWritten();
    void clickInsideACommandIsNotPutOff();
    void scopeOfTheUserIsThatOfTheDefinition();
    void theLastCommandIsExecutedOnlyOutsideIt();
    void refreshesTheControlsAfterwards();
    void triggeringTheActionSendsNothing();
    void changeOfTheDefinitionSendsNothing();
    void withoutACommandAnUnknownOneIsReported();
    void clickAfterAStatusUpdateNegatesTheAction();
};

void QtButtonClickTest::sendsItsCommandWithTheNewState()
{
    QFETCH(bool, isEchoing);
    ClickFixture f(isEchoing);

    f.opButton->click();

    QCOMPARE(f.calls.size(), std::size_t(1));
    QCOMPARE(f.calls[0], Clicked(true));
    QVERIFY(f.pDefinition->IsChecked());
    QVERIFY(f.opButton->isChecked());
    QVERIFY(f.opButton->defaultAction()->isChecked());
}

void QtButtonClickTest::twoClicksSendTrueThenFalse()
{
    QFETCH(bool, isEchoing);
    ClickFixture f(isEchoing);

    f.opButton->click();
    f.opButton->click();

    QCOMPARE(f.calls.size(), std::size_t(2));
    QCOMPARE(f.calls[0], Clicked(true));
    QCOMPARE(f.calls[1], Clicked(false));
    QVERIFY(!f.pDefinition->IsChecked());
}

void QtButtonClickTest::isJournaledOnceWithItsParameters()
{
    ClickFixture f(true);

    f.opButton->click();

    QCOMPARE(f.host.journal.GetCommands().size(), std::size_t(1));
    QCOMPARE(f.host.journal.GetCommands()[0].commandId, std::wstring(L"Test.Command"));
    QCOMPARE(f.host.journal.GetCommands()[0].parameters, Clicked(true));
}

void QtButtonClickTest::writesTheStateAsTheUsersAndOnce()
{
    ClickFixture f(true);
    ChangeNotes notes;
    f.pDefinition->GetControlDefinitionChangeEvent()->Add(&notes);

    f.opButton->click();

    QCOMPARE(notes.isByUser, std::vector<bool>{true});
}

void QtButtonClickTest::writesTheStateThatTheDefinitionHasAgain()
{
    HostFixture host;
    host.AddCommand(L"Test.Command", [](const CommandParameters&) {});
    auto opDefinition = MakeOwner<NotingButtonDefinition>(L"Button.Id", L"Test.Command");
    NotingButtonDefinition& definition = *opDefinition;
    QtButton button(std::move(opDefinition), nullptr);
    definition.GetControlDefinitionChangeEvent()->Delete(&button);
    definition.SetChecked(true);

    button.click();

    QCOMPARE(definition.writes, std::vector<bool>({true, true}));
}

void QtButtonClickTest::theUsersScopeIsClosedBeforeTheCommandRuns()
{
    ClickFixture f(true);
    bool isByUser = true;
    f.onCommand = [&] { isByUser = ControlDefinitionChangeByUser::IsChangeByUser(L"Button.Id"); };

    f.opButton->click();

    QVERIFY(!isByUser);
}

void QtButtonClickTest::theDefinitionIsCheckedBeforeTheCommandRuns()
{
    ClickFixture f(true);
    bool isChecked = false;
    f.onCommand = [&] { isChecked = f.pDefinition->IsChecked(); };

    f.opButton->click();

    QVERIFY(isChecked);
}

/// A button whose command depends on its state; it records whether the change is the user's at the
/// time.
class TwoCommandsDefinition final : public CommandButtonDefinition
{
public:
    using CommandButtonDefinition::CommandButtonDefinition;

    const std::wstring& GetCommandId() const override
    {
        isReadAsTheUsers = ControlDefinitionChangeByUser::IsChangeByUser(GetId());
        return Kept(IsChecked() ? L"On" : L"Off");
    }

    mutable bool isReadAsTheUsers = true;
};

void QtButtonClickTest::theCommandIsReadOnceTheStateIsWritten()
{
    HostFixture host;
    QStringList calls;
    host.AddCommand(L"On", [&calls](const CommandParameters&) { calls += "on"; });
    host.AddCommand(L"Off", [&calls](const CommandParameters&) { calls += "off"; });
    auto opDefinition = MakeOwner<TwoCommandsDefinition>(L"Button.Id", L"");
    const TwoCommandsDefinition& definition = *opDefinition;
    QtButton button(std::move(opDefinition), nullptr);

    button.click();
    button.click();

    QCOMPARE(calls, QStringList({"on", "off"}));
    QVERIFY(!definition.isReadAsTheUsers);
}

void QtButtonClickTest::clickInsideACommandIsNotPutOff()
{
    ClickFixture f(true);
    QtButton other(MakeOwner<CommandButtonDefinition>(L"Other.Id", L"Test.Other"), nullptr);
    int countInside = 0;
    int otherCount = 0;
    f.host.AddCommand(L"Test.Other", [&](const CommandParameters&) { ++otherCount; });
    f.onCommand = [&] {
        other.click();
        countInside = otherCount;
    };

    f.opButton->click();

    QCOMPARE(countInside, 1);
    QCOMPARE(otherCount, 1);
}

void QtButtonClickTest::scopeOfTheUserIsThatOfTheDefinition()
{
    ClickFixture f(true);
    ChangeNotes notes;
    CommandButtonDefinition other(L"Other.Id", L"Test.Command");
    other.GetControlDefinitionChangeEvent()->Add(&notes);
    f.pDefinition->GetControlDefinitionChangeEvent()->Add(&notes);
    struct OnChange final : IControlDefinitionChangeEventHandler
    {
        void On(IControlDefinitionChangeEventArgs*) override { pOther->SetCaption(L"changed"); }
        CommandButtonDefinition* pOther = nullptr;
    } onChange;
    onChange.pOther = &other;
    f.pDefinition->GetControlDefinitionChangeEvent()->Add(&onChange);

    f.opButton->click();

    QCOMPARE(notes.isByUser, std::vector<bool>({true, false}));
}

void QtButtonClickTest::theLastCommandIsExecutedOnlyOutsideIt()
{
    ClickFixture f(true);
    bool isExecuted = true;
    f.onCommand = [&] { isExecuted = ProcessCommandUtil::IsLastCommandExecuted(); };
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());

    f.opButton->click();

    QVERIFY(!isExecuted);
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
}

void QtButtonClickTest::refreshesTheControlsAfterwards()
{
    ClickFixture f(true);
    int countInside = -1;
    f.onCommand = [&] { countInside = f.host.application.GetStatusUpdateCount(); };

    f.opButton->click();

    QCOMPARE(countInside, 0);
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 1);
}

void QtButtonClickTest::triggeringTheActionSendsNothing()
{
    ClickFixture f(true);

    f.opButton->defaultAction()->trigger();

    QVERIFY(f.calls.empty());
}

void QtButtonClickTest::changeOfTheDefinitionSendsNothing()
{
    ClickFixture f(true);

    f.pDefinition->SetChecked(true);

    QVERIFY(f.opButton->isChecked());
    QVERIFY(f.calls.empty());
}

void QtButtonClickTest::withoutACommandAnUnknownOneIsReported()
{
    HostFixture host;
    QtButton button(MakeOwner<CommandButtonDefinition>(L"Button.Id", L""), nullptr);

    button.click();

    EXPECT_WARNING(host.warnings, L"无法找到字符串对应的注册命令：",
                   "vesk::ProcessCommandUtil::ProcessRibbonBarCommand");
}

void QtButtonClickTest::clickAfterAStatusUpdateNegatesTheAction()
{
    ClickFixture f(false);
    {
        const ControlDefinitionChangeByUser untold(L"Button.Id");
        f.pDefinition->SetChecked(true);
    }
    f.opButton->UpdateStatus();
    QVERIFY(f.opButton->isChecked());

    f.opButton->click();

    QCOMPARE(f.calls[0], Clicked(true));
}

}

VESK_TESTS(vesk::test::QtButtonClickTest);
#include "QtButtonClickTest.moc"
