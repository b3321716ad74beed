#include "Command/IAction.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/IControl.h"
#include "Control/VeskIControlFactory.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QToolButton>

#include <functional>
#include <utility>

namespace vesk::test
{

/// A command that does something when its visibility is queried.
class AskedCommand final : public ICommand
{
public:
    explicit AskedCommand(std::function<void()> act) : m_act(std::move(act)) {}

    std::wstring GetCommandId() const override { return L"Asked"; }
    bool IsJournalIdOnly() const override { return false; }
    bool IsEnabled() const override { return true; }
    bool IsVisible() const override
    {
        m_act();
        return true;
    }
    bool IsInteractive() const override { return false; }
    OwnerPtr<IAction> Execute(IUiView*, const CommandParameters&) override { return nullptr; }

private:
    std::function<void()> m_act;
};

/// A menu of three entries in a shown window, and what happens at some point of a refresh.
struct RefreshedMenu
{
    RefreshedMenu()
    {
        auto opDefinition = MakeOwner<CommandButtonMenuDefinition>(L"id", L"Main");
        pDefinition = opDefinition.Get();
        for (const wchar_t* pId : {L"A", L"B", L"C"})
        {
            AddCommand(pId);
            pDefinition->AddMenuItem(MakeOwner<CommandMenuItemDefinition>(pId, pId, pId));
        }
        opMenu = VeskIControlFactory::Get()->CreateQtCommandButtonMenu(std::move(opDefinition));
        pButton = dynamic_cast<QToolButton*>(opMenu.Get());
        pButton->setParent(&parent);
        parent.show();
        opMenu->UpdateStatus();
    }

    void AddCommand(const std::wstring& id)
    {
        ICommandManager::Get()->AddCommand(MakeOwner<Command>(
            id, Command::Kind::Plain,
            [](IUiView*, const CommandParameters&) { return OwnerPtr<IAction>(); },
            [this, id] {
                if (id == L"A")
                    Act("condition");
                return id != disabled;
            }));
    }

    /// Does something when the refresh queries A's condition, or when A's entry changes.
    void At(const QString& point, std::function<void()> wanted)
    {
        m_point = point;
        m_act = std::move(wanted);
        disabled = L"A";
        QObject::connect(GetEntry(0), &QAction::changed, &parent, [this] { Act("change"); });
    }

    QAction* GetEntry(int index) const { return pButton->menu()->actions().at(index); }

    HostFixture host;
    QWidget parent;
    std::wstring disabled;
    CommandButtonMenuDefinition* pDefinition;
    OwnerPtr<IControl> opMenu;
    QPointer<QToolButton> pButton;

private:
    void Act(const QString& point)
    {
        if (point != m_point)
            return;
        if (const auto once = std::exchange(m_act, nullptr))
            once();
    }

    QString m_point;
    std::function<void()> m_act;
};

/// What may be destroyed while a command button menu applies the states of its entries, or unchecks
/// them.
class MenuRefreshTest : public QObject
{
    Q_OBJECT

private slots:
    void entriesMayGoWhileTheirStatesAreTaken_data();
    void entriesMayGoWhileTheirStatesAreTaken();
    void entriesMayGoWhenACommandIsAskedForItsVisibility();
    void menuMayDieWhileStatesAreTaken_data();
    void menuMayDieWhileStatesAreTaken();
    void entriesMayGoWhileTheyAreUnchecked();
    void menuMayDieWhileEntriesAreUnchecked();
    void commandMayGoWhileItsEntryIsHidden();
    void commandIsAskedForItsEnabledStateOnceItsEntryIsShown();
    void entriesAreAskedForInOrderOnceTheButtonIsDisabled();
};

void MenuRefreshTest::entriesMayGoWhileTheirStatesAreTaken_data()
{
    QTest::addColumn<QString>("point");
    QTest::newRow("in a command's condition") << "condition";
    QTest::newRow("when an entry changes") << "change";
}

void MenuRefreshTest::entriesMayGoWhileTheirStatesAreTaken()
{
    QFETCH(QString, point);
    RefreshedMenu f;
    f.At(point, [&f] { f.pDefinition->ClearMenuItems(); });

    f.opMenu->UpdateStatus();

    QVERIFY(f.pButton->menu()->actions().isEmpty());
}

void MenuRefreshTest::entriesMayGoWhenACommandIsAskedForItsVisibility()
{
    RefreshedMenu f;
    ICommandManager::Get()->AddCommand(
        MakeOwner<AskedCommand>([&f] { f.pDefinition->ClearMenuItems(); }));
    f.pDefinition->AddMenuItem(MakeOwner<CommandMenuItemDefinition>(L"D", L"Asked", L"D"));

    f.opMenu->UpdateStatus();

    QVERIFY(f.pButton->menu()->actions().isEmpty());
}

void MenuRefreshTest::menuMayDieWhileStatesAreTaken_data()
{
    entriesMayGoWhileTheirStatesAreTaken_data();
}

void MenuRefreshTest::menuMayDieWhileStatesAreTaken()
{
    QFETCH(QString, point);
    RefreshedMenu f;
    f.At(point, [&f] { f.opMenu.Reset(); });
    IControl* pDying = f.opMenu.Get();

    pDying->UpdateStatus();

    QVERIFY(f.pButton == nullptr);
}

void MenuRefreshTest::entriesMayGoWhileTheyAreUnchecked()
{
    RefreshedMenu f;
    f.GetEntry(0)->setChecked(true);
    connect(f.GetEntry(0), &QAction::toggled, this, [&f] { f.pDefinition->ClearMenuItems(); });

    f.GetEntry(1)->trigger();

    QVERIFY(f.pButton->menu()->actions().isEmpty());
    QVERIFY(f.host.journal.GetCommands().empty());
}

void MenuRefreshTest::menuMayDieWhileEntriesAreUnchecked()
{
    RefreshedMenu f;
    // An entry that outlives the menu, because Qt continues to use it.
    QAction chosen;
    chosen.setProperty("CommandId", "B");
    connect(&chosen, SIGNAL(triggered(bool)), f.pButton, SLOT(OnMenuItemTriggered(bool)));
    f.GetEntry(0)->setChecked(true);
    connect(f.GetEntry(0), &QAction::toggled, this, [&f] { f.opMenu.Reset(); });

    chosen.trigger();

    QVERIFY(f.pButton == nullptr);
    QVERIFY(f.host.journal.GetCommands().empty());
}

void MenuRefreshTest::commandMayGoWhileItsEntryIsHidden()
{
    RefreshedMenu f;
    dynamic_cast<Command*>(ICommandManager::Get()->GetCommand(L"A"))->SetVisible(false);
    f.At("change", [] { ICommandManager::Get()->RemoveCommand(L"A"); });

    f.opMenu->UpdateStatus();

    QVERIFY(!f.GetEntry(0)->isVisible());
    QVERIFY(f.GetEntry(1)->isEnabled());
}

void MenuRefreshTest::commandIsAskedForItsEnabledStateOnceItsEntryIsShown()
{
    RefreshedMenu f;
    auto* pCommand = dynamic_cast<Command*>(ICommandManager::Get()->GetCommand(L"A"));
    pCommand->SetVisible(false);
    f.opMenu->UpdateStatus();
    pCommand->SetVisible(true);
    f.At("change", [&f] { f.disabled.clear(); });

    f.opMenu->UpdateStatus();

    QVERIFY(f.GetEntry(0)->isVisible());
    QVERIFY(f.GetEntry(0)->isEnabled());
}

void MenuRefreshTest::entriesAreAskedForInOrderOnceTheButtonIsDisabled()
{
    RefreshedMenu f;
    QStringList asked;
    for (const char* id : {"D", "E"})
    {
        const std::wstring commandId = QString(id).toStdWString();
        ICommandManager::Get()->AddCommand(MakeOwner<Command>(
            commandId, Command::Kind::Plain,
            [](IUiView*, const CommandParameters&) { return OwnerPtr<IAction>(); },
            [&f, &asked, id] {
                asked << QString(id) + (f.pButton->isEnabled() ? " enabled" : " disabled");
                return true;
            }));
        f.pDefinition->AddMenuItem(
            MakeOwner<CommandMenuItemDefinition>(commandId, commandId, commandId));
    }
    f.pDefinition->SetEnabled(false);

    f.opMenu->UpdateStatus();

    QCOMPARE(asked, QStringList({"D disabled", "E disabled"}));
}

}

VESK_TESTS(vesk::test::MenuRefreshTest);
#include "MenuRefreshTest.moc"
