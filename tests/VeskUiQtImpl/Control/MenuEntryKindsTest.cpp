#include "Control/CommandButtonMenuFixture.h"
#include "Control/LabelDefinition.h"
#include "Control/ReportingControls.h"
#include "Support/KeptText.h"
#include "Support/TestValues.h"

namespace vesk::test
{

using EventType = ControlDefinitionChangeEventType;
using Calls = std::vector<std::wstring>;

namespace
{

/// An entry that has a command and also contains other entries.
class DoubleItem final : public ICommandMenuItemDefinition, public IMenuItemContainerDefinition
{
public:
    const std::wstring& GetId() const override { return Kept(L"double"); }
    const std::wstring& GetCaption() const override { return Kept(L"double"); }
    const std::wstring& GetTooltip() const override { return Kept(L"tip"); }
    bool IsVisible() const override { return true; }
    bool IsEnabled() const override { return true; }
    const std::wstring& GetIconPath() const override { return Kept(IconPath); }
    const std::wstring& GetCommandId() const override { return Kept(L"A"); }
    std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const override
    {
        return children;
    }

    const ICommandMenuItemDefinition* AsCommand() const { return this; }

    std::vector<const IMenuItemDefinition*> children;
};

/// Records the order in which its states are queried.
class AskedCommand final : public ICommand
{
public:
    explicit AskedCommand(QStringList& notes) : m_notes(notes) {}

    std::wstring GetCommandId() const override { return L"Asked"; }
    bool IsJournalIdOnly() const override { return false; }
    bool IsEnabled() const override
    {
        m_notes << "enabled?";
        return true;
    }
    bool IsVisible() const override
    {
        m_notes << "visible?";
        return true;
    }
    bool IsInteractive() const override { return false; }
    OwnerPtr<IAction> Execute(IUiView*, const CommandParameters&) override { return nullptr; }

private:
    QStringList& m_notes;
};

constexpr char On[] = "vesk::QtCommandButtonMenu::On";

}

/// Which kind of entry a definition becomes, and in which order that is determined.
class MenuEntryKindsTest : public QObject
{
    Q_OBJECT

private slots:
    void entryOfBothKindsIsACommandAtTheStart();
    void entryOfBothKindsIsAddedAsACommand();
    void entryOfBothKindsIsInsertedAsASubMenu();
    void emptyEntryOfBothKindsIsInsertedAsACommand();
    void subMenusAreNoCommands_data();
    void subMenusAreNoCommands();
    void insertingLooksForTheMenuBeforeTheIndex();
    void insertingLooksAtTheIndexBeforeTheItem();
    void clearingABareButtonIsReported();
    void missingEntryIsReportedBeforeAMissingMenu();
    void withoutAnActionTheRestIsMade();
    void mainPartChosenWhileACommandRunsIsPutOff();
    void commandIsAskedForVisibilityFirst();
    void everyEntryIsUncheckedBeforeOneIsChecked();
};

void MenuEntryKindsTest::entryOfBothKindsIsACommandAtTheStart()
{
    const auto opChild = MakeItem(L"B", L"b");
    DoubleItem item;
    item.children = {opChild.Get()};
    auto opDefinition = MakeOwner<LooseMenuDefinition>();
    opDefinition->items = {item.AsCommand()};

    MenuFixture f(std::move(opDefinition));

    QCOMPARE(f.GetCaptions(), QStringList("double"));
    QVERIFY(f.GetAction(0)->menu() == nullptr);
    QCOMPARE(f.GetAction(0)->property("CommandId"), QVariant("A"));
}

void MenuEntryKindsTest::entryOfBothKindsIsAddedAsACommand()
{
    MenuFixture f;
    const auto opChild = MakeItem(L"B", L"b");
    DoubleItem item;
    item.children = {opChild.Get()};

    f.Tell(EventType::Add, 0, item.AsCommand());

    QCOMPARE(f.GetCaptions(), QStringList("double"));
    QVERIFY(f.GetAction(0)->menu() == nullptr);
    f.GetAction(0)->trigger();
    QCOMPARE(f.calls, Calls{L"A"});
}

void MenuEntryKindsTest::entryOfBothKindsIsInsertedAsASubMenu()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"C", L"c"));
    const auto opChild = MakeItem(L"B", L"b");
    DoubleItem item;
    item.children = {opChild.Get()};

    f.Tell(EventType::Insert, 0, item.AsCommand());

    QCOMPARE(f.GetCaptions(), QStringList({"double", "c"}));
    QVERIFY(f.GetAction(0)->menu() != nullptr);
    QCOMPARE(MenuFixture::CaptionsOf(*f.GetAction(0)->menu()), QStringList("b"));
}

void MenuEntryKindsTest::emptyEntryOfBothKindsIsInsertedAsACommand()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"C", L"c"));
    const DoubleItem item;

    f.Tell(EventType::Insert, 0, item.AsCommand());

    QCOMPARE(f.GetCaptions(), QStringList({"double", "c"}));
    QVERIFY(f.GetAction(0)->menu() == nullptr);
    QCOMPARE(f.GetAction(0)->toolTip(), QString("tip"));
}

void MenuEntryKindsTest::subMenusAreNoCommands_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("added") << int(EventType::Add);
    QTest::newRow("inserted") << int(EventType::Insert);
}

void MenuEntryKindsTest::subMenusAreNoCommands()
{
    QFETCH(int, type);
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"C", L"c"));
    const auto opContainer = MakeContainer(L"more", {L"B", L"A"});

    f.Tell(type, 0, opContainer.Get());

    const QAction* pSubMenu = f.GetAction(type == EventType::Add ? 1 : 0);
    QVERIFY(pSubMenu->menu() != nullptr);
    QVERIFY(!pSubMenu->isCheckable());
    QVERIFY(!pSubMenu->property("CommandId").isValid());
    QCOMPARE(MenuFixture::CaptionsOf(*pSubMenu->menu()), QStringList({"B", "A"}));
}

void MenuEntryKindsTest::insertingLooksForTheMenuBeforeTheIndex()
{
    MenuFixture f;
    f.pButton->setMenu(nullptr);

    f.Tell(EventType::Insert, -1, nullptr);

    EXPECT_WARNING(f.host.warnings, L"menu()为空", On);
    QVERIFY(f.host.warnings.IsEmpty());
}

void MenuEntryKindsTest::insertingLooksAtTheIndexBeforeTheItem()
{
    MenuFixture f;
    const LabelDefinition another(L"label");

    f.Tell(EventType::Insert, 0, &another);

    EXPECT_WARNING(f.host.warnings, L"index不正确", On);
    QVERIFY(f.host.warnings.IsEmpty());
}

void MenuEntryKindsTest::clearingABareButtonIsReported()
{
    MenuFixture f(OwnerPtr<ICommandButtonMenuDefinition>{});
    EXPECT_WARNING(f.host.warnings, L"pControlDefinition为空",
                   "vesk::QtCommandButtonMenu::QtCommandButtonMenu");

    f.Tell(EventType::Clear);
    EXPECT_WARNING(f.host.warnings, L"menu()为空", On);
    f.Tell(EventType::Insert, 0, nullptr);
    EXPECT_WARNING(f.host.warnings, L"menu()为空", On);
}

void MenuEntryKindsTest::missingEntryIsReportedBeforeAMissingMenu()
{
    HostFixture host;
    const auto opItem = MakeItem(L"A", L"a");
    auto opDefinition = MakeOwner<LooseMenuDefinition>();
    opDefinition->items = {nullptr, opItem.Get()};
    ChildThief thief(true);

    const auto opControl = Factory().CreateQtCommandButtonMenu(std::move(opDefinition));

    EXPECT_WARNING(host.warnings, L"parent cannot be null",
                   "vesk::QtCommandButtonMenu::QtCommandButtonMenu");
    EXPECT_WARNING(host.warnings, L"pMenuItemDefinition为空",
                   "vesk::QtCommandButtonMenu::AddMenuItem");
    EXPECT_WARNING(host.warnings, L"pMenu为空", "vesk::QtCommandButtonMenu::AddMenuItem");
    const auto* pButton = dynamic_cast<QToolButton*>(opControl.Get());
    QVERIFY(pButton->menu() == nullptr);
    QCOMPARE(pButton->popupMode(), QToolButton::MenuButtonPopup);
}

void MenuEntryKindsTest::withoutAnActionTheRestIsMade()
{
    const auto opItem = MakeItem(L"A", L"a");
    auto opDefinition = MakeOwner<LooseMenuDefinition>();
    opDefinition->items = {opItem.Get()};
    ChildThief thief(false);

    MenuFixture f(std::move(opDefinition));

    EXPECT_WARNING(f.host.warnings, L"parent cannot be null",
                   "vesk::QtCommandButtonMenu::QtCommandButtonMenu");
    QVERIFY(f.pButton->defaultAction() == nullptr);
    QCOMPARE(f.pButton->objectName(), QString("Menu.Id"));
    QCOMPARE(f.GetCaptions(), QStringList("a"));
}

/// The sender is the action of the main part, not the button, which would be served at once.
void MenuEntryKindsTest::mainPartChosenWhileACommandRunsIsPutOff()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    f.PlaceAndShow();
    f.onCommand = [&f] {
        f.onCommand = nullptr;
        f.pButton->click();
    };

    f.GetAction(0)->trigger();
    QCoreApplication::processEvents();

    QCOMPARE(f.calls, Calls{L"A"});
    QCOMPARE(f.host.journal.GetCommands().size(), std::size_t(1));
}

void MenuEntryKindsTest::commandIsAskedForVisibilityFirst()
{
    MenuFixture f;
    QStringList notes;
    ICommandManager::Get()->AddCommand(MakeOwner<AskedCommand>(notes));
    f.pDefinition->AddMenuItem(MakeItem(L"Asked", L"a"));

    f.opControl->UpdateStatus();

    QCOMPARE(notes, QStringList({"visible?", "enabled?"}));
}

void MenuEntryKindsTest::everyEntryIsUncheckedBeforeOneIsChecked()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    f.pDefinition->AddMenuItem(MakeItem(L"B", L"b"));
    f.GetAction(1)->setChecked(true);
    QStringList notes;
    for (const QAction* pAction : f.pButton->menu()->actions())
        connect(pAction, &QAction::toggled, this, [&notes, pAction](bool isChecked) {
            notes << pAction->text() + (isChecked ? " on" : " off");
        });

    f.GetAction(0)->trigger();

    QCOMPARE(notes, QStringList({"a on", "a off", "b off", "a on"}));
}

}

VESK_TESTS(vesk::test::MenuEntryKindsTest);
#include "MenuEntryKindsTest.moc"
