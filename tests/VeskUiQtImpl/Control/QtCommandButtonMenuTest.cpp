#include "Control/CommandButtonMenuFixture.h"
#include "Control/LabelDefinition.h"
#include "Control/OtherEventTypes.h"
#include "Support/TestValues.h"

#include <QActionEvent>

namespace vesk::test
{

using EventType = ControlDefinitionChangeEventType;

constexpr char On[] = "vesk::QtCommandButtonMenu::On";
constexpr char AddMenuItem[] = "vesk::QtCommandButtonMenu::AddMenuItem";

class QtCommandButtonMenuTest : public QObject
{
    Q_OBJECT

private slots:
    void showsItsDefinitionAsAnIcon();
    void isMadeWithoutAParent();
    void mainPartHasACheckableActionOfItsOwn();
    void menuHasItsStyleSheetToTheLetter();
    void hasExactlyTwoPrivateSlots();
    void isBuiltNeitherShownNorHiddenNorDisabled();
    void entriesOfTheDefinitionAreInTheMenu();
    void addedEntryIsACheckableActionWithItsCommand();
    void addedEntryIsCompleteWhenTheMenuGetsIt();
    void addedContainerIsASubMenu();
    void containersGoToAnyDepth();
    void emptyContainerAddsNothing();
    void entryWithoutACommandIsAddedAllTheSame();
    void addingAnythingElseIsReported();
    void addingWithoutAMenuIsReported();
    void missingEntryAtTheStartIsReported();
    void insertedEntryComesBeforeTheOneAtItsIndex();
    void insertedEntryIsACheckableActionWithoutMark();
    void insertedContainerIsASubMenuWithoutMark();
    void insertingAnythingElseIsIgnored();
    void insertingNeedsAnIndexInTheMenu_data();
    void insertingNeedsAnIndexInTheMenu();
    void insertingWithoutAMenuIsReported();
    void clearingEmptiesTheMenuAndKeepsTheRest();
    void clearingWithoutAMenuIsReported();
    void ignoresOtherEvents_data() { AddEventTypes({-1, 2, 4, 5, 6, 7, 8}); }
    void ignoresOtherEvents();
    void reportsMissingArguments();
    void withoutDefinitionItIsBareAndReportsIt();
    void withoutDefinitionItNeverChanges();
};

void QtCommandButtonMenuTest::showsItsDefinitionAsAnIcon()
{
    MenuFixture f;

    QCOMPARE(f.opControl->GetControlDefinition(), static_cast<IControlDefinition*>(f.pDefinition));
    QCOMPARE(f.pButton->objectName(), QString("Menu.Id"));
    QCOMPARE(f.pButton->property("IsDefinition"), QVariant(true));
    QCOMPARE(f.pButton->toolButtonStyle(), Qt::ToolButtonIconOnly);
    QCOMPARE(f.pButton->popupMode(), QToolButton::MenuButtonPopup);
}

void QtCommandButtonMenuTest::isMadeWithoutAParent()
{
    MenuFixture f;

    QVERIFY(f.pButton->parent() == nullptr);
    QCOMPARE(f.pButton->menu()->parent(), f.pButton);
    QCOMPARE(f.pButton->defaultAction()->parent(), f.pButton);
}

void QtCommandButtonMenuTest::mainPartHasACheckableActionOfItsOwn()
{
    auto opDefinition = MakeOwner<CommandButtonMenuDefinition>(L"Menu.Id", L"Main");
    opDefinition->SetCaption(L"caption");
    opDefinition->SetTooltip(L"tip");
    opDefinition->SetIconPath(IconPath);

    MenuFixture f(std::move(opDefinition));

    const QAction* pAction = f.pButton->defaultAction();
    QCOMPARE(pAction->text(), QString("caption"));
    QCOMPARE(pAction->toolTip(), QString("tip"));
    QVERIFY(!pAction->icon().isNull());
    QVERIFY(pAction->isCheckable());
    QVERIFY(!pAction->isChecked());
    QCOMPARE(pAction->property("IsDefinition"), QVariant(true));
    QVERIFY(!pAction->property("CommandId").isValid());
}

void QtCommandButtonMenuTest::menuHasItsStyleSheetToTheLetter()
{
    MenuFixture f;

    const QString blanks(25, ' ');
    QCOMPARE(f.pButton->menu()->styleSheet(),
             "QMenu { background-color: white; border: 1px solid gray;icon-size: 32px;}" + blanks +
                 "QMenu::item {background-color: transparent;padding:2px 32px;margin:0px 1px;}" +
                 blanks +
                 "QMenu::item:selected {background-color: #CCDAE7; "
                 "border-width:1px;border-style:solid; border-color:#19649F;}");
    QCOMPARE(f.pButton->menu()->property("IsDefinition"), QVariant(true));
}

void QtCommandButtonMenuTest::hasExactlyTwoPrivateSlots()
{
    MenuFixture f;

    const QMetaObject* pMetaObject = f.pButton->metaObject();
    const int first = pMetaObject->methodOffset();
    QCOMPARE(pMetaObject->methodCount() - first, 2);
    QCOMPARE(pMetaObject->method(first).methodSignature(), QByteArray("OnMenuItemTriggered(bool)"));
    QCOMPARE(pMetaObject->method(first + 1).methodSignature(), QByteArray("OnMenuTriggered(bool)"));
    QCOMPARE(pMetaObject->method(first).methodType(), QMetaMethod::Slot);
    QCOMPARE(pMetaObject->method(first).access(), QMetaMethod::Private);
    QCOMPARE(pMetaObject->method(first + 1).access(), QMetaMethod::Private);
}

void QtCommandButtonMenuTest::isBuiltNeitherShownNorHiddenNorDisabled()
{
    auto opDefinition = MakeOwner<CommandButtonMenuDefinition>(L"Menu.Id", L"Main");
    opDefinition->SetVisible(false);
    opDefinition->SetEnabled(false);

    MenuFixture f(std::move(opDefinition));

    QVERIFY(!f.pButton->testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(f.pButton->isEnabled());
}

void QtCommandButtonMenuTest::entriesOfTheDefinitionAreInTheMenu()
{
    auto opDefinition = MakeOwner<CommandButtonMenuDefinition>(L"Menu.Id", L"Main");
    opDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    opDefinition->AddMenuItem(MakeContainer(L"more", {L"B", L"C"}));
    opDefinition->AddMenuItem(MakeItem(L"C", L"c"));

    MenuFixture f(std::move(opDefinition));

    QCOMPARE(f.GetCaptions(), QStringList({"a", "more", "c"}));
    QCOMPARE(MenuFixture::CaptionsOf(*f.GetAction(1)->menu()), QStringList({"B", "C"}));
}

void QtCommandButtonMenuTest::addedEntryIsACheckableActionWithItsCommand()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));

    f.pDefinition->AddMenuItem(MakeItem(L"B", L"b"));

    QCOMPARE(f.GetCaptions(), QStringList({"a", "b"}));
    const QAction* pAction = f.GetAction(1);
    QCOMPARE(pAction->toolTip(), QString("Tip of b"));
    QVERIFY(!pAction->icon().isNull());
    QVERIFY(pAction->isCheckable());
    QVERIFY(!pAction->isChecked());
    QCOMPARE(pAction->property("CommandId"), QVariant(QString("B")));
    QCOMPARE(pAction->property("IsDefinition"), QVariant(true));
    QCOMPARE(pAction->parent(), f.pButton->menu());
}

void QtCommandButtonMenuTest::addedEntryIsCompleteWhenTheMenuGetsIt()
{
    class Watch final : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* pEvent) override
        {
            if (pEvent->type() == QEvent::ActionAdded)
                notes += static_cast<QActionEvent*>(pEvent)->action()->toolTip();
            if (pEvent->type() == QEvent::ActionChanged)
                notes += "changed";
            return false;
        }

        QStringList notes;
    };
    MenuFixture f;
    Watch watch;
    f.pButton->menu()->installEventFilter(&watch);

    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));

    QCOMPARE(watch.notes, QStringList("Tip of a"));
}

void QtCommandButtonMenuTest::addedContainerIsASubMenu()
{
    MenuFixture f;

    f.pDefinition->AddMenuItem(MakeContainer(L"more", {L"A", L"B"}));

    const QMenu* pSubMenu = f.GetAction(0)->menu();
    QVERIFY(pSubMenu != nullptr);
    QCOMPARE(pSubMenu->title(), QString("more"));
    QVERIFY(!pSubMenu->icon().isNull());
    QCOMPARE(pSubMenu->property("IsDefinition"), QVariant(true));
    QCOMPARE(pSubMenu->parent(), f.pButton->menu());
    QCOMPARE(MenuFixture::CaptionsOf(*pSubMenu), QStringList({"A", "B"}));
    QCOMPARE(pSubMenu->actions().first()->property("CommandId"), QVariant(QString("A")));
}

void QtCommandButtonMenuTest::containersGoToAnyDepth()
{
    MenuFixture f;
    auto opOuter = MakeContainer(L"outer", {L"A"});
    opOuter->AddMenuItem(MakeContainer(L"inner", {L"B"}));

    f.pDefinition->AddMenuItem(std::move(opOuter));

    const QMenu* pOuter = f.GetAction(0)->menu();
    QCOMPARE(MenuFixture::CaptionsOf(*pOuter), QStringList({"A", "inner"}));
    QCOMPARE(MenuFixture::CaptionsOf(*pOuter->actions().last()->menu()), QStringList("B"));
}

void QtCommandButtonMenuTest::emptyContainerAddsNothing()
{
    MenuFixture f;

    f.pDefinition->AddMenuItem(MakeContainer(L"empty", {}));

    QCOMPARE(f.GetCaptions(), QStringList());
}

void QtCommandButtonMenuTest::entryWithoutACommandIsAddedAllTheSame()
{
    MenuFixture f;

    f.pDefinition->AddMenuItem(MakeItem(L"", L"none"));

    QCOMPARE(f.GetCaptions(), QStringList("none"));
    QCOMPARE(f.GetAction(0)->property("CommandId"), QVariant(QString("")));
}

void QtCommandButtonMenuTest::addingAnythingElseIsReported()
{
    MenuFixture f;
    const LabelDefinition another(L"label");

    f.Tell(EventType::Add, 0, &another);
    EXPECT_WARNING(f.host.warnings, L"pMenuItemDefine为空", On);
    f.Tell(EventType::Add, 0, nullptr);
    EXPECT_WARNING(f.host.warnings, L"pMenuItemDefine为空", On);

    QCOMPARE(f.GetCaptions(), QStringList());
}

void QtCommandButtonMenuTest::addingWithoutAMenuIsReported()
{
    MenuFixture f;
    f.pButton->setMenu(nullptr);
    const auto opItem = MakeItem(L"A", L"a");

    f.Tell(EventType::Add, 0, opItem.Get());

    EXPECT_WARNING(f.host.warnings, L"pMenu为空", AddMenuItem);
}

void QtCommandButtonMenuTest::missingEntryAtTheStartIsReported()
{
    const auto opItem = MakeItem(L"A", L"a");
    auto opDefinition = MakeOwner<LooseMenuDefinition>();
    opDefinition->items = {nullptr, opItem.Get()};

    MenuFixture f(std::move(opDefinition));

    EXPECT_WARNING(f.host.warnings, L"pMenuItemDefinition为空", AddMenuItem);
    QCOMPARE(f.GetCaptions(), QStringList("a"));
}

void QtCommandButtonMenuTest::insertedEntryComesBeforeTheOneAtItsIndex()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    f.pDefinition->AddMenuItem(MakeItem(L"B", L"b"));

    f.pDefinition->InsertMenuItem(1, MakeItem(L"C", L"c"));
    QCOMPARE(f.GetCaptions(), QStringList({"a", "c", "b"}));
    f.pDefinition->InsertMenuItem(0, MakeContainer(L"more", {L"A"}));
    QCOMPARE(f.GetCaptions(), QStringList({"more", "a", "c", "b"}));
}

void QtCommandButtonMenuTest::insertedEntryIsACheckableActionWithoutMark()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));

    f.pDefinition->InsertMenuItem(0, MakeItem(L"B", L"b"));

    const QAction* pAction = f.GetAction(0);
    QCOMPARE(pAction->toolTip(), QString("Tip of b"));
    QVERIFY(!pAction->icon().isNull());
    QVERIFY(pAction->isCheckable());
    QCOMPARE(pAction->property("CommandId"), QVariant(QString("B")));
    QVERIFY(!pAction->property("IsDefinition").isValid());
    QCOMPARE(pAction->parent(), f.pButton);
}

void QtCommandButtonMenuTest::insertedContainerIsASubMenuWithoutMark()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));

    f.pDefinition->InsertMenuItem(0, MakeContainer(L"more", {L"B", L"C"}));

    const QMenu* pSubMenu = f.GetAction(0)->menu();
    QVERIFY(pSubMenu != nullptr);
    QCOMPARE(pSubMenu->title(), QString("more"));
    QVERIFY(pSubMenu->icon().isNull());
    QVERIFY(!pSubMenu->property("IsDefinition").isValid());
    QCOMPARE(pSubMenu->parent(), f.pButton);
    QCOMPARE(MenuFixture::CaptionsOf(*pSubMenu), QStringList({"B", "C"}));
    QCOMPARE(pSubMenu->actions().first()->property("IsDefinition"), QVariant(true));
}

void QtCommandButtonMenuTest::insertingAnythingElseIsIgnored()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    const LabelDefinition another(L"label");

    f.pDefinition->InsertMenuItem(0, MakeContainer(L"empty", {}));
    f.Tell(EventType::Insert, 0, &another);
    f.Tell(EventType::Insert, 0, nullptr);

    QCOMPARE(f.GetCaptions(), QStringList("a"));
}

void QtCommandButtonMenuTest::insertingNeedsAnIndexInTheMenu_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("-1") << -1;
    QTest::newRow("behind the last") << 1;
}

void QtCommandButtonMenuTest::insertingNeedsAnIndexInTheMenu()
{
    QFETCH(int, index);
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    const auto opItem = MakeItem(L"B", L"b");

    f.Tell(EventType::Insert, index, opItem.Get());

    EXPECT_WARNING(f.host.warnings, L"index不正确", On);
    QCOMPARE(f.GetCaptions(), QStringList("a"));
}

void QtCommandButtonMenuTest::insertingWithoutAMenuIsReported()
{
    MenuFixture f;
    f.pButton->setMenu(nullptr);
    const auto opItem = MakeItem(L"A", L"a");

    f.Tell(EventType::Insert, 0, opItem.Get());

    EXPECT_WARNING(f.host.warnings, L"menu()为空", On);
}

void QtCommandButtonMenuTest::clearingEmptiesTheMenuAndKeepsTheRest()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    f.pDefinition->InsertMenuItem(0, MakeItem(L"B", L"b"));
    const QString styleSheet = f.pButton->menu()->styleSheet();

    f.pDefinition->ClearMenuItems();

    QCOMPARE(f.GetCaptions(), QStringList());
    QVERIFY(f.pButton->defaultAction() != nullptr);
    QCOMPARE(f.pButton->menu()->styleSheet(), styleSheet);
}

void QtCommandButtonMenuTest::clearingWithoutAMenuIsReported()
{
    MenuFixture f;
    f.pButton->setMenu(nullptr);

    f.Tell(EventType::Clear);

    EXPECT_WARNING(f.host.warnings, L"menu()为空", On);
}

void QtCommandButtonMenuTest::ignoresOtherEvents()
{
    QFETCH(int, type);
    MenuFixture f;
    f.PlaceAndShow();
    f.pDefinition->AddMenuItem(MakeItem(L"A", L"a"));
    f.pDefinition->SetCaption(L"another");
    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);
    const auto opItem = MakeItem(L"B", L"b");

    f.Tell(type, 0, opItem.Get());

    QCOMPARE(f.GetCaptions(), QStringList("a"));
    QCOMPARE(f.pButton->defaultAction()->text(), QString());
    QVERIFY(f.pButton->isVisible());
    QVERIFY(f.pButton->isEnabled());
}

void QtCommandButtonMenuTest::reportsMissingArguments()
{
    MenuFixture f;

    dynamic_cast<IControlDefinitionChangeEventHandler*>(f.opControl.Get())->On(nullptr);

    EXPECT_WARNING(f.host.warnings, L"pArgs为空", On);
}

void QtCommandButtonMenuTest::withoutDefinitionItIsBareAndReportsIt()
{
    MenuFixture f(OwnerPtr<ICommandButtonMenuDefinition>{});

    EXPECT_WARNING(f.host.warnings, L"pControlDefinition为空",
                   "vesk::QtCommandButtonMenu::QtCommandButtonMenu");
    QVERIFY(f.opControl->GetControlDefinition() == nullptr);
    QVERIFY(f.pButton->menu() == nullptr);
    QVERIFY(f.pButton->defaultAction() == nullptr);
    QVERIFY(!f.pButton->property("IsDefinition").isValid());
}

void QtCommandButtonMenuTest::withoutDefinitionItNeverChanges()
{
    MenuFixture f(OwnerPtr<ICommandButtonMenuDefinition>{});
    EXPECT_WARNING(f.host.warnings, L"pControlDefinition为空",
                   "vesk::QtCommandButtonMenu::QtCommandButtonMenu");

    f.opControl->UpdateStatus();
    EXPECT_WARNING(f.host.warnings, L"pControlDefinition为空",
                   "vesk::QtCommandButtonMenu::UpdateStatus");
    f.Tell(EventType::PropertyChanged);
    QMetaObject::invokeMethod(f.pButton, "OnMenuTriggered", Q_ARG(bool, true));
    EXPECT_WARNING(f.host.warnings, L"pControlDefinition为空",
                   "vesk::QtCommandButtonMenu::OnMenuTriggered");

    QVERIFY(!f.pButton->testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(f.calls.empty());
}

}

VESK_TESTS(vesk::test::QtCommandButtonMenuTest);
#include "QtCommandButtonMenuTest.moc"
