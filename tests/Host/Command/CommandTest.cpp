#include "Command/Command.h"

#include "Command/IAction.h"
#include "Command/ICommandManager.h"
#include "Journal/CommandParameters.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

namespace vesk
{

namespace
{

OwnerPtr<IAction> DoNothing(IUiView* /*pView*/, const CommandParameters& /*parameters*/)
{
    return nullptr;
}

OwnerPtr<ICommand> Make(const std::wstring& id)
{
    return MakeOwner<Command>(id, Command::Kind::Plain, DoNothing);
}

ICommandManager& Manager()
{
    return *ICommandManager::Get();
}

}

class CommandTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Manager().RemoveAllCommands(); }

    void aCommandIsWhatItWasMadeOf();
    void aCommandIsEnabledAsItsConditionSays();
    void aCommandExecutesItsFunction();
    void aRegisteredCommandIsFoundByItsId();
    void anIdIsGivenOnce();
    void anEmptyPointerIsNotRegistered();
    void aRemovedCommandIsGone();
    void aParameterOfTheSameNameReplacesTheFirst();
    void parametersOfAnotherTypeAreNotEqual();
};

void CommandTest::aCommandIsWhatItWasMadeOf()
{
    Command command(L"Line", Command::Kind::Interactive, DoNothing);

    QCOMPARE(command.GetCommandId(), std::wstring(L"Line"));
    QVERIFY(command.IsInteractive());
    QVERIFY(command.IsEnabled());
    QVERIFY(command.IsVisible());
    QVERIFY(!command.IsJournalIdOnly());

    command.SetVisible(false);
    command.SetJournalIdOnly(true);

    QVERIFY(!command.IsVisible());
    QVERIFY(command.IsJournalIdOnly());
    QVERIFY(!Command(L"Undo", Command::Kind::Plain, DoNothing).IsInteractive());
}

void CommandTest::aCommandIsEnabledAsItsConditionSays()
{
    bool isEnabled = false;
    const Command command(L"Undo", Command::Kind::Plain, DoNothing,
                          [&isEnabled] { return isEnabled; });

    QVERIFY(!command.IsEnabled());
    isEnabled = true;
    QVERIFY(command.IsEnabled());
}

void CommandTest::aCommandExecutesItsFunction()
{
    CommandParameters seen;
    Command command(L"Undo", Command::Kind::Plain,
                    [&seen](IUiView*, const CommandParameters& parameters) {
                        seen = parameters;
                        return OwnerPtr<IAction>();
                    });
    CommandParameters parameters;
    parameters.Add(L"Clicked", CommandParameterValue(true));

    const OwnerPtr<IAction> opAction = command.Execute(nullptr, parameters);

    QVERIFY(opAction == nullptr);
    QCOMPARE(seen, parameters);
}

void CommandTest::aRegisteredCommandIsFoundByItsId()
{
    QVERIFY(Manager().AddCommand(Make(L"Line")));

    QVERIFY(Manager().GetCommand(L"Line") != nullptr);
    QVERIFY(Manager().GetCommand(L"Erase") == nullptr);
}

void CommandTest::anIdIsGivenOnce()
{
    Manager().AddCommand(Make(L"Line"));
    const ICommand* pFirst = Manager().GetCommand(L"Line");

    QVERIFY(!Manager().AddCommand(Make(L"Line")));

    QCOMPARE(static_cast<const ICommand*>(Manager().GetCommand(L"Line")), pFirst);
}

void CommandTest::anEmptyPointerIsNotRegistered()
{
    QVERIFY(!Manager().AddCommand(nullptr));
}

void CommandTest::aRemovedCommandIsGone()
{
    Manager().AddCommand(Make(L"Line"));
    Manager().AddCommand(Make(L"Erase"));

    Manager().RemoveCommand(L"Line");
    QVERIFY(Manager().GetCommand(L"Line") == nullptr);
    QVERIFY(Manager().GetCommand(L"Erase") != nullptr);

    Manager().RemoveAllCommands();
    QVERIFY(Manager().GetCommand(L"Erase") == nullptr);
}

void CommandTest::aParameterOfTheSameNameReplacesTheFirst()
{
    CommandParameters parameters;
    QVERIFY(parameters.IsEmpty());

    parameters.Add(L"Steps", CommandParameterValue(1));
    parameters.Add(L"Steps", CommandParameterValue(std::wstring(L"all")));

    QCOMPARE(parameters.GetAll().size(), std::size_t(1));
    QCOMPARE(*parameters.Find(L"Steps"), CommandParameterValue(std::wstring(L"all")));
    QVERIFY(parameters.Find(L"Other") == nullptr);
}

void CommandTest::parametersOfAnotherTypeAreNotEqual()
{
    QVERIFY(!(CommandParameterValue(1) == CommandParameterValue(1.0)));
    QVERIFY(!(CommandParameterValue(1) == CommandParameterValue(true)));
    QCOMPARE(CommandParameterValue(1.0), CommandParameterValue(1.0));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::CommandTest);
#include "CommandTest.moc"
