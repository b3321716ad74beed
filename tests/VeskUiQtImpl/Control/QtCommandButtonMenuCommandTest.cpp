#include "Control/CommandButtonMenuFixture.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

namespace vesk::test
{

using Calls = std::vector<std::wstring>;

constexpr char Ribbon[] = "vesk::ProcessCommandUtil::ProcessRibbonBarCommand";
constexpr char StatusBar[] = "vesk::ProcessCommandUtil::ProcessStatusBarCommand";

/// A shown button whose menu holds A, B, a sub-menu with A and C, and C.
struct ChoiceFixture : MenuFixture
{
    ChoiceFixture()
    {
        pDefinition->AddMenuItem(MakeItem(L"A", L"A"));
        pDefinition->AddMenuItem(MakeItem(L"B", L"B"));
        pDefinition->AddMenuItem(MakeContainer(L"more", {L"A", L"C"}));
        pDefinition->AddMenuItem(MakeItem(L"C", L"C"));
        PlaceAndShow();
    }

    QAction* GetSubAction(int index) const { return GetAction(2)->menu()->actions().at(index); }

    QStringList GetChecked() const
    {
        QStringList captions;
        for (const QAction* pAction : pButton->menu()->actions())
        {
            if (pAction->isChecked())
                captions += pAction->text();
        }
        return captions;
    }
};

static void ChooseWithTheMouse(QMenu& menu, QAction* pAction)
{
    menu.popup(QPoint(0, 0));
    const QPoint place = menu.actionGeometry(pAction).center();
    QTest::mouseMove(&menu, place);
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, place);
}

class QtCommandButtonMenuCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void entryChosenWithTheMouseSendsItsCommandOnce();
    void entryOfASubMenuSendsItsCommand();
    void insertedEntrySendsItsCommand();
    void entryOfAnInsertedSubMenuSendsItsCommand();
    void entryWithoutACommandIsReportedAsUnknown();
    void chosenEntryIsTheOnlyOneChecked();
    void entryChosenTwiceStaysChecked();
    void entryOfASubMenuUnchecksAll();
    void entriesThatLookAlikeAreCheckedTogether();
    void entriesThatDifferInOneThingAreNotChecked_data();
    void entriesThatDifferInOneThingAreNotChecked();
    void entryIsCheckedBeforeItsCommandRuns();
    void mainPartSendsTheCommandOfTheDefinition();
    void actionOfTheMainPartSendsTheCommandToo();
    void mainPartSendsTheCommandOfARibbon();
    void mainPartWithoutACommandSendsNothing();
    void commandsAreJournaledWithoutParameters();
    void entryChosenWhileACommandRunsIsPutOff();
    void slotCalledByNobodyReportsTheMissingAction();
    void aThousandChangesOfTheHostSendNothing();
    void statusUpdateAppliesVisibilityAndEnabledState();
    void statusUpdateOfAHiddenButtonGoesNoFurther();
    void statusUpdateAppliesTheStatesOfTheCommands();
    void statusUpdateLeavesUnknownCommandsAndSubMenusAlone();
    void statusUpdateWithoutAMenuIsOfTheButtonOnly();
};

void QtCommandButtonMenuCommandTest::entryChosenWithTheMouseSendsItsCommandOnce()
{
    ChoiceFixture f;

    ChooseWithTheMouse(*f.pButton->menu(), f.GetAction(1));

    QCOMPARE(f.calls, Calls{L"B"});
    QVERIFY(f.isLastWithoutParameters);
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 1);
}

void QtCommandButtonMenuCommandTest::entryOfASubMenuSendsItsCommand()
{
    ChoiceFixture f;

    f.GetSubAction(1)->trigger();

    QCOMPARE(f.calls, Calls{L"C"});
}

void QtCommandButtonMenuCommandTest::insertedEntrySendsItsCommand()
{
    ChoiceFixture f;
    f.pDefinition->InsertMenuItem(0, MakeItem(L"C", L"inserted"));

    ChooseWithTheMouse(*f.pButton->menu(), f.GetAction(0));

    QCOMPARE(f.calls, Calls{L"C"});
    QCOMPARE(f.GetChecked(), QStringList("inserted"));
}

void QtCommandButtonMenuCommandTest::entryOfAnInsertedSubMenuSendsItsCommand()
{
    ChoiceFixture f;
    f.pDefinition->InsertMenuItem(0, MakeContainer(L"inserted", {L"B"}));

    f.GetAction(0)->menu()->actions().first()->trigger();

    QCOMPARE(f.calls, Calls{L"B"});
    QCOMPARE(f.GetChecked(), QStringList());
}

void QtCommandButtonMenuCommandTest::entryWithoutACommandIsReportedAsUnknown()
{
    MenuFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"", L"none"));

    f.GetAction(0)->trigger();

    EXPECT_WARNING(f.host.warnings, L"无法找到字符串对应的注册命令：", StatusBar);
    QVERIFY(f.calls.empty());
}

void QtCommandButtonMenuCommandTest::chosenEntryIsTheOnlyOneChecked()
{
    ChoiceFixture f;

    f.GetAction(0)->trigger();
    QCOMPARE(f.GetChecked(), QStringList("A"));
    f.GetAction(3)->trigger();
    QCOMPARE(f.GetChecked(), QStringList("C"));
}

void QtCommandButtonMenuCommandTest::entryChosenTwiceStaysChecked()
{
    ChoiceFixture f;

    f.GetAction(0)->trigger();
    f.GetAction(0)->trigger();

    QCOMPARE(f.GetChecked(), QStringList("A"));
    QCOMPARE(f.calls, (Calls{L"A", L"A"}));
}

void QtCommandButtonMenuCommandTest::entryOfASubMenuUnchecksAll()
{
    ChoiceFixture f;
    f.GetAction(0)->trigger();

    f.GetSubAction(0)->trigger();

    QCOMPARE(f.GetChecked(), QStringList());
}

void QtCommandButtonMenuCommandTest::entriesThatLookAlikeAreCheckedTogether()
{
    ChoiceFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"B", L"A"));

    f.GetAction(0)->trigger();

    QCOMPARE(f.GetChecked(), QStringList({"A", "A"}));
    QCOMPARE(f.calls, Calls{L"A"});
}

void QtCommandButtonMenuCommandTest::entriesThatDifferInOneThingAreNotChecked_data()
{
    QTest::addColumn<bool>("isInserted");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("iconText");
    QTest::newRow("parent") << true << "A"
                            << "A";
    QTest::newRow("text") << false << "&A"
                          << "A";
    QTest::newRow("icon text") << false << "A"
                               << "another";
}

void QtCommandButtonMenuCommandTest::entriesThatDifferInOneThingAreNotChecked()
{
    QFETCH(bool, isInserted);
    QFETCH(QString, text);
    QFETCH(QString, iconText);
    ChoiceFixture f;
    if (isInserted)
        f.pDefinition->InsertMenuItem(1, MakeItem(L"B", L"A"));
    QAction* pOther = f.GetAction(1);
    pOther->setText(text);
    pOther->setIconText(iconText);

    f.GetAction(0)->trigger();

    QVERIFY(f.GetAction(0)->isChecked());
    QVERIFY(!pOther->isChecked());
}

void QtCommandButtonMenuCommandTest::entryIsCheckedBeforeItsCommandRuns()
{
    ChoiceFixture f;
    f.GetAction(0)->trigger();
    QStringList checked;
    f.onCommand = [&] { checked = f.GetChecked(); };

    f.GetAction(1)->trigger();

    QCOMPARE(checked, QStringList("B"));
}

void QtCommandButtonMenuCommandTest::mainPartSendsTheCommandOfTheDefinition()
{
    ChoiceFixture f;
    f.pButton->resize(60, 30);

    QTest::mouseClick(f.pButton, Qt::LeftButton, Qt::NoModifier, QPoint(5, 15));

    QCOMPARE(f.calls, Calls{L"Main"});
    QVERIFY(f.isLastWithoutParameters);
    QCOMPARE(f.GetChecked(), QStringList());
}

void QtCommandButtonMenuCommandTest::actionOfTheMainPartSendsTheCommandToo()
{
    ChoiceFixture f;

    f.pButton->defaultAction()->trigger();

    QCOMPARE(f.calls, Calls{L"Main"});
}

void QtCommandButtonMenuCommandTest::mainPartSendsTheCommandOfARibbon()
{
    MenuFixture f(MakeOwner<CommandButtonMenuDefinition>(L"Menu.Id", L"Unknown"));

    f.pButton->click();

    EXPECT_WARNING(f.host.warnings, L"无法找到字符串对应的注册命令：Unknown", Ribbon);
}

void QtCommandButtonMenuCommandTest::mainPartWithoutACommandSendsNothing()
{
    MenuFixture f(MakeOwner<CommandButtonMenuDefinition>(L"Menu.Id", L""));

    f.pButton->click();

    QVERIFY(f.calls.empty());
    QVERIFY(f.host.warnings.IsEmpty());
    QCOMPARE(f.host.application.GetStatusUpdateCount(), 0);
}

void QtCommandButtonMenuCommandTest::commandsAreJournaledWithoutParameters()
{
    ChoiceFixture f;

    f.pButton->click();
    f.GetAction(0)->trigger();

    const auto& records = f.host.journal.GetCommands();
    QCOMPARE(records.size(), std::size_t(2));
    QCOMPARE(records[0].commandId, std::wstring(L"Main"));
    QCOMPARE(records[0].parameters, CommandParameters());
    QCOMPARE(records[1].commandId, std::wstring(L"A"));
    QCOMPARE(records[1].parameters, CommandParameters());
}

void QtCommandButtonMenuCommandTest::entryChosenWhileACommandRunsIsPutOff()
{
    ChoiceFixture f;
    // A menu that was never shown has no geometry for its entries.
    f.pButton->menu()->popup(QPoint(0, 0));
    f.pButton->menu()->hide();
    std::size_t recordCountInside = 0;
    f.onCommand = [&] {
        if (recordCountInside > 0)
            return;
        f.GetAction(1)->trigger();
        recordCountInside = f.host.journal.GetCommands().size();
    };

    f.GetAction(0)->trigger();

    QCOMPARE(recordCountInside, std::size_t(1));
    QTRY_COMPARE(f.calls, (Calls{L"A", L"B"}));
    QCOMPARE(f.host.journal.GetCommands().size(), std::size_t(2));
}

void QtCommandButtonMenuCommandTest::slotCalledByNobodyReportsTheMissingAction()
{
    ChoiceFixture f;

    QMetaObject::invokeMethod(f.pButton, "OnMenuItemTriggered", Q_ARG(bool, true));

    EXPECT_WARNING(f.host.warnings, L"pAction为空",
                   "vesk::QtCommandButtonMenu::OnMenuItemTriggered");
    QVERIFY(f.calls.empty());
}

void QtCommandButtonMenuCommandTest::aThousandChangesOfTheHostSendNothing()
{
    ChoiceFixture f;

    for (int i = 0; i < 1000; ++i)
    {
        f.pDefinition->SetCaption(std::to_wstring(i));
        f.GetAction(0)->setChecked(i % 2 == 0);
        f.opControl->UpdateStatus();
    }

    QVERIFY(f.calls.empty());
    QVERIFY(f.host.journal.GetCommands().empty());
}

void QtCommandButtonMenuCommandTest::statusUpdateAppliesVisibilityAndEnabledState()
{
    ChoiceFixture f;

    f.pDefinition->SetEnabled(false);
    f.opControl->UpdateStatus();
    QVERIFY(f.pButton->isVisible());
    QVERIFY(!f.pButton->isEnabled());
    f.pDefinition->SetVisible(false);
    f.opControl->UpdateStatus();
    QVERIFY(f.pButton->isHidden());
    f.pDefinition->SetVisible(true);
    f.pDefinition->SetEnabled(true);
    f.opControl->UpdateStatus();
    QVERIFY(f.pButton->isVisible());
    QVERIFY(f.pButton->isEnabled());
}

void QtCommandButtonMenuCommandTest::statusUpdateOfAHiddenButtonGoesNoFurther()
{
    ChoiceFixture f;
    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);
    f.GetAction(0)->setEnabled(false);

    f.opControl->UpdateStatus();

    QVERIFY(f.pButton->isHidden());
    QVERIFY(f.pButton->isEnabled());
    QVERIFY(!f.GetAction(0)->isEnabled());
}

void QtCommandButtonMenuCommandTest::statusUpdateAppliesTheStatesOfTheCommands()
{
    ChoiceFixture f;
    bool isEnabled = false;
    auto opCommand = MakeOwner<Command>(
        L"D", Command::Kind::Plain,
        [](IUiView*, const CommandParameters&) { return OwnerPtr<IAction>(); },
        [&] { return isEnabled; });
    Command* pCommand = opCommand.Get();
    ICommandManager::Get()->AddCommand(std::move(opCommand));
    f.pDefinition->AddMenuItem(MakeItem(L"D", L"D"));

    f.opControl->UpdateStatus();
    QVERIFY(f.GetAction(4)->isVisible());
    QVERIFY(!f.GetAction(4)->isEnabled());
    QVERIFY(f.GetAction(0)->isEnabled());
    isEnabled = true;
    pCommand->SetVisible(false);
    f.opControl->UpdateStatus();
    QVERIFY(!f.GetAction(4)->isVisible());
    pCommand->SetVisible(true);
    f.opControl->UpdateStatus();
    QVERIFY(f.GetAction(4)->isVisible());
    QVERIFY(f.GetAction(4)->isEnabled());
}

void QtCommandButtonMenuCommandTest::statusUpdateLeavesUnknownCommandsAndSubMenusAlone()
{
    ChoiceFixture f;
    f.pDefinition->AddMenuItem(MakeItem(L"Unknown", L"unknown"));
    f.GetAction(4)->setEnabled(false);
    f.GetAction(2)->setEnabled(false);
    f.GetSubAction(0)->setEnabled(false);

    f.opControl->UpdateStatus();

    QVERIFY(!f.GetAction(4)->isEnabled());
    QVERIFY(!f.GetAction(2)->isEnabled());
    QVERIFY(!f.GetSubAction(0)->isEnabled());
    QVERIFY(f.GetAction(4)->isVisible());
    QVERIFY(f.GetAction(2)->isVisible());
}

void QtCommandButtonMenuCommandTest::statusUpdateWithoutAMenuIsOfTheButtonOnly()
{
    ChoiceFixture f;
    f.pButton->setMenu(nullptr);
    f.pDefinition->SetEnabled(false);

    f.opControl->UpdateStatus();

    QVERIFY(!f.pButton->isEnabled());
}

}

VESK_TESTS(vesk::test::QtCommandButtonMenuCommandTest);
#include "QtCommandButtonMenuCommandTest.moc"
