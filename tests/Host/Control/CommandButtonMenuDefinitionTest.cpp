#include "Control/CommandButtonMenuDefinition.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Host/Control/ChangeRecorder.h"
#include "Support/TestValues.h"
#include "Support/WarningRecorder.h"

#include <memory>

namespace vesk
{

using Entry = CommandMenuItemDefinition;
using Container = MenuItemContainerDefinition;
using Menu = CommandButtonMenuDefinition;

/// A menu with an entry "Centre" and a container "More" in which a container "Arcs" holds an entry
/// "Three", and a record of its changes.
struct MenuFixture
{
    MenuFixture()
    {
        auto opThree = MakeOwner<Entry>(L"Three", L"Draw.Three", L"three points");
        pThree = opThree.Get();
        auto opArcs = MakeOwner<Container>(L"Arcs", L"arcs");
        opArcs->AddMenuItem(std::move(opThree));
        auto opMore = MakeOwner<Container>(L"More", L"more");
        opMore->AddMenuItem(std::move(opArcs));
        pMenu->AddMenuItem(MakeOwner<Entry>(L"Centre", L"Draw.Centre", L"centre"));
        pMenu->AddMenuItem(std::move(opMore));
        pRecorder = std::make_unique<ChangeRecorder>(*pMenu->GetControlDefinitionChangeEvent());
    }

    /// The ids of all entries, those of a container in brackets after it.
    QString GetState() const { return ToText(pMenu->GetMenuItemDefinitions()); }

    static QString ToText(const std::vector<const IMenuItemDefinition*>& items)
    {
        QStringList texts;
        for (const IMenuItemDefinition* pItem : items)
        {
            const auto* pContainer = dynamic_cast<const IMenuItemContainerDefinition*>(pItem);
            const QString below =
                pContainer ? "(" + ToText(pContainer->GetMenuItemDefinitions()) + ")" : QString();
            texts << QString::fromStdWString(pItem->GetId()) + below;
        }
        return texts.join(' ');
    }

    std::unique_ptr<Menu> pMenu = std::make_unique<Menu>(L"Circle", L"Draw.Circle");
    Entry* pThree = nullptr;
    std::unique_ptr<ChangeRecorder> pRecorder;
    test::WarningRecorder warnings;
};

}

using Act = void (*)(vesk::CommandButtonMenuDefinition&);
Q_DECLARE_METATYPE(Act)

namespace vesk
{

using Type = ControlDefinitionChangeEventType;

class CommandButtonMenuDefinitionTest : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtFirst();
    void anEntryHasACommandAndACaption();
    void aContainerIsEmptyAtFirst();
    void containersMayLieInContainers();
    void aChangeOfTheEntriesRaisesOneEvent_data();
    void aChangeOfTheEntriesRaisesOneEvent();
    void anIconRaisesOneEventAndAnEqualOneNone();
    void anIconOfAnEntryRaisesOneEventAndAnEqualOneNone();
    void anIconOfAContainerRaisesOneEventAndAnEqualOneNone();
    void anEntryAddedToAContainerRaisesOneEventOfTheContainer();
    void aChangeInAContainerIsAPropertyChangeOfTheMenu();
    void aChangeByTheUserIsMarked();
    void clearingAnEmptyMenuRaisesNone();
    void badArgumentIsReportedAndChangesNothing_data();
    void badArgumentIsReportedAndChangesNothing();
    void missingEntryOfAContainerIsReportedAndChangesNothing();
    void aHandlerMayDestroyTheMenu_data();
    void aHandlerMayDestroyTheMenu();
};

void CommandButtonMenuDefinitionTest::isEmptyAtFirst()
{
    const Menu menu(L"Circle", L"Draw.Circle");

    QCOMPARE(menu.GetId(), std::wstring(L"Circle"));
    QCOMPARE(menu.GetCommandId(), std::wstring(L"Draw.Circle"));
    QCOMPARE(menu.GetIconPath(), std::wstring());
    QVERIFY(menu.GetMenuItemDefinitions().empty());
}

void CommandButtonMenuDefinitionTest::anEntryHasACommandAndACaption()
{
    const Entry entry(L"Centre", L"Draw.Centre", L"centre");

    QCOMPARE(entry.GetId(), std::wstring(L"Centre"));
    QCOMPARE(entry.GetCommandId(), std::wstring(L"Draw.Centre"));
    QCOMPARE(entry.GetCaption(), std::wstring(L"centre"));
    QCOMPARE(entry.GetIconPath(), std::wstring());
}

void CommandButtonMenuDefinitionTest::aContainerIsEmptyAtFirst()
{
    const Container container(L"More", L"more");

    QCOMPARE(container.GetId(), std::wstring(L"More"));
    QCOMPARE(container.GetCaption(), std::wstring(L"more"));
    QCOMPARE(container.GetIconPath(), std::wstring());
    QVERIFY(container.GetMenuItemDefinitions().empty());
}

void CommandButtonMenuDefinitionTest::containersMayLieInContainers()
{
    const MenuFixture f;

    QCOMPARE(f.GetState(), QString("Centre More(Arcs(Three))"));
}

void CommandButtonMenuDefinitionTest::aChangeOfTheEntriesRaisesOneEvent_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("state");
    AddItemChangeColumns();

    QTest::newRow("add") << Act{[](Menu& m) { m.AddMenuItem(MakeOwner<Entry>(L"X", L"", L"x")); }}
                         << "Centre More(Arcs(Three)) X" << int{Type::Add} << 2 << "x";
    QTest::newRow("insert") << Act{[](Menu& m) {
        m.InsertMenuItem(1, MakeOwner<Entry>(L"X", L"", L"x"));
    }} << "Centre X More(Arcs(Three))"
                            << int{Type::Insert} << 1 << "x";
    QTest::newRow("insert at the end")
        << Act{[](Menu& m) { m.InsertMenuItem(2, MakeOwner<Container>(L"X", L"x")); }}
        << "Centre More(Arcs(Three)) X()" << int{Type::Add} << 2 << "x";
    QTest::newRow("clear") << Act{[](Menu& m) { m.ClearMenuItems(); }} << "" << int{Type::Clear}
                           << -1 << "";
}

void CommandButtonMenuDefinitionTest::aChangeOfTheEntriesRaisesOneEvent()
{
    QFETCH(Act, act);
    QFETCH(QString, state);
    const MenuFixture f;

    act(*f.pMenu);

    QCOMPARE(f.GetState(), state);
    VerifyItemChange(*f.pRecorder);
}

void CommandButtonMenuDefinitionTest::anIconRaisesOneEventAndAnEqualOneNone()
{
    const MenuFixture f;

    f.pMenu->SetIconPath(L":/circle.svg");
    f.pMenu->SetIconPath(L":/circle.svg");

    QCOMPARE(f.pMenu->GetIconPath(), std::wstring(L":/circle.svg"));
    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(f.pRecorder->GetChanges().front().type, int{Type::PropertyChanged});
}

void CommandButtonMenuDefinitionTest::anIconOfAnEntryRaisesOneEventAndAnEqualOneNone()
{
    Entry entry(L"Centre", L"Draw.Centre", L"centre");
    const ChangeRecorder recorder(*entry.GetControlDefinitionChangeEvent());

    entry.SetIconPath(L":/centre.svg");
    entry.SetIconPath(L":/centre.svg");

    QCOMPARE(entry.GetIconPath(), std::wstring(L":/centre.svg"));
    QCOMPARE(recorder.GetCount(), 1);
}

void CommandButtonMenuDefinitionTest::anIconOfAContainerRaisesOneEventAndAnEqualOneNone()
{
    Container container(L"More", L"more");
    const ChangeRecorder recorder(*container.GetControlDefinitionChangeEvent());

    container.SetIconPath(L":/more.svg");
    container.SetIconPath(L":/more.svg");

    QCOMPARE(container.GetIconPath(), std::wstring(L":/more.svg"));
    QCOMPARE(recorder.GetCount(), 1);
}

void CommandButtonMenuDefinitionTest::anEntryAddedToAContainerRaisesOneEventOfTheContainer()
{
    Container container(L"More", L"more");
    container.AddMenuItem(MakeOwner<Entry>(L"A", L"", L"a"));
    const ChangeRecorder recorder(*container.GetControlDefinitionChangeEvent());

    container.AddMenuItem(MakeOwner<Entry>(L"B", L"", L"b"));

    QCOMPARE(MenuFixture::ToText(container.GetMenuItemDefinitions()), QString("A B"));
    QCOMPARE(recorder.GetCount(), 1);
    QCOMPARE(recorder.GetChanges().front().type, int{Type::Add});
    QCOMPARE(recorder.GetChanges().front().index, 1);
    QCOMPARE(recorder.GetChanges().front().caption, std::wstring(L"b"));
}

void CommandButtonMenuDefinitionTest::aChangeInAContainerIsAPropertyChangeOfTheMenu()
{
    const MenuFixture f;

    f.pThree->SetCaption(L"through three points");

    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(f.pRecorder->GetChanges().front().type, int{Type::PropertyChanged});
    QVERIFY(f.pRecorder->GetChanges().front().pItem == nullptr);
}

void CommandButtonMenuDefinitionTest::aChangeByTheUserIsMarked()
{
    const MenuFixture f;

    {
        const ControlDefinitionChangeByUser byUser(L"Circle");
        f.pThree->SetEnabled(false);
    }
    f.pThree->SetEnabled(true);

    QVERIFY(f.pRecorder->GetChanges().at(0).isByUser);
    QVERIFY(!f.pRecorder->GetChanges().at(1).isByUser);
}

void CommandButtonMenuDefinitionTest::clearingAnEmptyMenuRaisesNone()
{
    Menu menu(L"Circle", L"");
    const ChangeRecorder recorder(*menu.GetControlDefinitionChangeEvent());

    menu.ClearMenuItems();

    QCOMPARE(recorder.GetCount(), 0);
}

void CommandButtonMenuDefinitionTest::badArgumentIsReportedAndChangesNothing_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("function");
    const QString badIndex = "index不正确";
    const QString missing = "opItem为空";
    const QByteArray add = "vesk::CommandButtonMenuDefinition::AddMenuItem";
    const QByteArray insert = "vesk::CommandButtonMenuDefinition::InsertMenuItem";

    QTest::newRow("insert at -1") << Act{[](Menu& m) {
        m.InsertMenuItem(-1, MakeOwner<Entry>(L"X", L"", L"x"));
    }} << badIndex << insert;
    QTest::newRow("insert beyond")
        << Act{[](Menu& m) { m.InsertMenuItem(3, MakeOwner<Entry>(L"X", L"", L"x")); }} << badIndex
        << insert;
    QTest::newRow("add none") << Act{[](Menu& m) { m.AddMenuItem(nullptr); }} << missing << add;
    QTest::newRow("insert none") << Act{[](Menu& m) { m.InsertMenuItem(0, nullptr); }} << missing
                                 << insert;
}

void CommandButtonMenuDefinitionTest::badArgumentIsReportedAndChangesNothing()
{
    QFETCH(Act, act);
    QFETCH(QString, message);
    QFETCH(QByteArray, function);
    MenuFixture f;

    act(*f.pMenu);

    EXPECT_WARNING(f.warnings, message.toStdWString(), function.toStdString());
    QCOMPARE(f.GetState(), QString("Centre More(Arcs(Three))"));
    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void CommandButtonMenuDefinitionTest::missingEntryOfAContainerIsReportedAndChangesNothing()
{
    Container container(L"More", L"more");
    const ChangeRecorder recorder(*container.GetControlDefinitionChangeEvent());
    test::WarningRecorder warnings;

    container.AddMenuItem(nullptr);

    EXPECT_WARNING(warnings, L"opItem为空", "vesk::MenuItemContainerDefinition::AddMenuItem");
    QVERIFY(container.GetMenuItemDefinitions().empty());
    QCOMPARE(recorder.GetCount(), 0);
}

void CommandButtonMenuDefinitionTest::aHandlerMayDestroyTheMenu_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("add") << Act{[](Menu& m) { m.AddMenuItem(MakeOwner<Entry>(L"X", L"", L"x")); }};
    QTest::newRow("insert") << Act{
        [](Menu& m) { m.InsertMenuItem(0, MakeOwner<Entry>(L"X", L"", L"x")); }};
    QTest::newRow("clear") << Act{[](Menu& m) { m.ClearMenuItems(); }};
    QTest::newRow("icon") << Act{[](Menu& m) { m.SetIconPath(L":/x.svg"); }};
}

void CommandButtonMenuDefinitionTest::aHandlerMayDestroyTheMenu()
{
    QFETCH(Act, act);
    MenuFixture f;
    f.pRecorder->Then([&] { f.pMenu.reset(); });

    act(*f.pMenu);

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::CommandButtonMenuDefinitionTest);
#include "CommandButtonMenuDefinitionTest.moc"
