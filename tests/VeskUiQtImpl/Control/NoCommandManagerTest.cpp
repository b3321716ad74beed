#include "Control/CommandButtonDefinition.h"
#include "Control/CommandButtonMenuFixture.h"
#include "VeskUiQtImpl/Control/QtButton.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include "Support/TestValues.h"

namespace vesk
{

namespace
{

/// Knows no command.
class EmptyManager final : public ICommandManager
{
public:
    ICommand* GetCommand(const std::wstring&) const override { return nullptr; }
    bool AddCommand(OwnerPtr<ICommand>) override { return false; }
    void RemoveCommand(const std::wstring&) override {}
    void RemoveAllCommands() override {}
};

EmptyManager emptyManager;
ICommandManager* s_pManager = &emptyManager;

}

/// Takes precedence over the host's own.
ICommandManager* ICommandManager::Get()
{
    return s_pManager;
}

}

namespace vesk::test
{

/// Hides the command manager for its lifetime.
class ManagerLoss
{
public:
    ManagerLoss() { s_pManager = nullptr; }
    ~ManagerLoss() { s_pManager = &emptyManager; }
    ManagerLoss(const ManagerLoss&) = delete;
    ManagerLoss& operator=(const ManagerLoss&) = delete;
};

/// A host without a command manager: every command is unknown.
class NoCommandManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void clickReportsAnUnknownCommand();
    void chosenEntryReportsAnUnknownCommand();
    void entriesOfAMenuKeepTheirStates();
};

void NoCommandManagerTest::clickReportsAnUnknownCommand()
{
    HostFixture host;
    QtButton button(MakeOwner<CommandButtonDefinition>(L"id", L"Command"), nullptr);
    const ManagerLoss loss;

    button.click();

    EXPECT_WARNING(host.warnings, L"无法找到字符串对应的注册命令：Command",
                   "vesk::ProcessCommandUtil::ProcessRibbonBarCommand");
    QVERIFY(host.journal.GetCommands().empty());
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
    QCOMPARE(host.application.GetStatusUpdateCount(), 1);
}

void NoCommandManagerTest::chosenEntryReportsAnUnknownCommand()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    const ManagerLoss loss;

    f.GetAction(0)->trigger();

    EXPECT_WARNING(f.host.warnings, L"无法找到字符串对应的注册命令：A",
                   "vesk::ProcessCommandUtil::ProcessStatusBarCommand");
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
}

void NoCommandManagerTest::entriesOfAMenuKeepTheirStates()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    f.pDefinition->AddMenuItem(MakeItem(L"B", L"b"));
    f.PlaceAndShow();
    f.GetAction(0)->setEnabled(false);
    f.GetAction(1)->setVisible(false);
    const ManagerLoss loss;

    f.opControl->UpdateStatus();

    QVERIFY(f.GetAction(0)->isVisible());
    QVERIFY(!f.GetAction(0)->isEnabled());
    QVERIFY(!f.GetAction(1)->isVisible());
}

}

VESK_TESTS(vesk::test::NoCommandManagerTest);
#include "NoCommandManagerTest.moc"
