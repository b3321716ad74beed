#include "Control/ButtonGroupFixture.h"
#include "Control/LabelDefinition.h"
#include "Control/ReportingControls.h"
#include "Support/TestValues.h"

#include <QPointer>

namespace vesk::test
{

using EventType = ControlDefinitionChangeEventType;

namespace
{

constexpr char Add[] = "OnControlDefinitionChangeEventTypeAdd";
constexpr char Insert[] = "OnControlDefinitionChangeEventTypeInsert";

/// Names that differ between the two kinds of groups.
struct Words
{
    QString append;
    QString noAppended;
    QString noInserted;
    QString noPairOn;
    QString noPairStatus;
};

const Words CheckBoxWords{"AddCheckBox", "pCheckBox为空", "pCheckBoxControl为空",
                          "checkBoxDefines[i] && checkBoxControls[i]为空",
                          "checkBoxDefines[i] && checkBoxControls[i]为空"};
const Words RadioButtonWords{"AddRadioButton", "pRadioButton为空", "pRadioControl为空",
                             "radioButtonGroupDefinition[i] && radioButtonControls[i]为空",
                             "radioButtonDefines[i] && radioButtonControls[i]为空"};

/// Removes the first button of a group from its list.
void ForgetFirstButton(GroupFixture& f)
{
    if (auto* pBoxes = qobject_cast<QtCheckBoxGroup*>(&f.GetGroup()))
        (pBoxes->*MemberOf(CheckBoxes())).front() = nullptr;
    if (auto* pButtons = qobject_cast<QtRadioButtonGroup*>(&f.GetGroup()))
        (pButtons->*MemberOf(RadioButtons())).front() = nullptr;
}

const Words& WordsOf(GroupFixture& f)
{
    const bool isOfBoxes = qobject_cast<QtCheckBoxGroup*>(&f.GetGroup()) != nullptr;
    return isOfBoxes ? CheckBoxWords : RadioButtonWords;
}

}

/// The order in which both kinds of groups check what they need, and what they leave unchanged.
class ButtonGroupChecksTest : public QObject
{
    Q_OBJECT

private slots:
    void addingLooksForTheLayoutBeforeTheItem_data() { AddGroupKinds(); }
    void addingLooksForTheLayoutBeforeTheItem();
    void addingReportsAButtonThatCannotBeMade_data() { AddGroupKinds(); }
    void addingReportsAButtonThatCannotBeMade();
    void insertingLooksForTheItemBeforeTheIndex_data() { AddGroupKinds(); }
    void insertingLooksForTheItemBeforeTheIndex();
    void insertingReportsAButtonThatCannotBeMade_data() { AddGroupKinds(); }
    void insertingReportsAButtonThatCannotBeMade();
    void insertingMakesTheButtonBeforeItLooksAtTheIndex_data() { AddGroupKinds(); }
    void insertingMakesTheButtonBeforeItLooksAtTheIndex();
    void insertingLooksAtTheIndexBeforeTheLayout_data() { AddGroupKinds(); }
    void insertingLooksAtTheIndexBeforeTheLayout();
    void nothingIsInsertedIntoAnEmptyGroup_data() { AddGroupKinds(); }
    void nothingIsInsertedIntoAnEmptyGroup();
    void newButtonsAreNeitherStretchedNorAligned_data() { AddGroupKinds(); }
    void newButtonsAreNeitherStretchedNorAligned();
    void deletedButtonStaysInTheLayoutUntilItDies_data() { AddGroupKinds(); }
    void deletedButtonStaysInTheLayoutUntilItDies();
    void clearedButtonsStayInTheLayoutUntilTheyDie_data() { AddGroupKinds(); }
    void clearedButtonsStayInTheLayoutUntilTheyDie();
    void missingButtonIsReportedWhenAllItemsGo_data() { AddGroupKinds(); }
    void missingButtonIsReportedWhenAllItemsGo();
    void missingButtonIsReportedTwiceByAnInsertion_data() { AddGroupKinds(); }
    void missingButtonIsReportedTwiceByAnInsertion();
    void missingButtonIsNotDeleted_data() { AddGroupKinds(); }
    void missingButtonIsNotDeleted();
    void missingButtonIsPassedOver_data() { AddGroupKinds(); }
    void missingButtonIsPassedOver();
    void checkedStateComesBeforeTheOthers_data() { AddGroupKinds(); }
    void checkedStateComesBeforeTheOthers();
};

void ButtonGroupChecksTest::addingLooksForTheLayoutBeforeTheItem()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    const LabelDefinition another(L"label");
    delete f->pLayout;

    f->Tell(EventType::Add, 1, &another);

    EXPECT_WARNING(f->host.warnings, L"pLayout为空", f->Function(Add));
    QVERIFY(f->host.warnings.IsEmpty());
}

void ButtonGroupChecksTest::addingReportsAButtonThatCannotBeMade()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    const Words& words = WordsOf(*f);
    f->PlaceAndShow();
    ChildThief thief(true);

    f->Tell(EventType::Add, 1, f->MakeItem(L"b"));

    EXPECT_WARNING(f->host.warnings, L"parent cannot be null", f->Function("CreateControl"));
    EXPECT_WARNING(f->host.warnings, words.noAppended.toStdWString(),
                   f->Function(words.append.toStdString()));
    EXPECT_WARNING(f->host.warnings, L"pControl为空", f->Function(Add));
    QCOMPARE(f->GetNames(), QStringList("a"));
    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "a", "tail"}));
}

void ButtonGroupChecksTest::insertingLooksForTheItemBeforeTheIndex()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    const LabelDefinition another(L"label");

    f->Tell(EventType::Insert, 9, &another);

    EXPECT_WARNING(f->host.warnings, L"pDefinition为空", f->Function(Insert));
    QVERIFY(f->host.warnings.IsEmpty());
}

void ButtonGroupChecksTest::insertingReportsAButtonThatCannotBeMade()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    ChildThief thief(true);

    f->Tell(EventType::Insert, 9, f->MakeItem(L"b"));

    EXPECT_WARNING(f->host.warnings, L"parent cannot be null", f->Function("CreateControl"));
    EXPECT_WARNING(f->host.warnings, WordsOf(*f).noInserted.toStdWString(), f->Function(Insert));
    QVERIFY(f->host.warnings.IsEmpty());
}

void ButtonGroupChecksTest::insertingMakesTheButtonBeforeItLooksAtTheIndex()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    f->PlaceAndShow();

    f->Tell(EventType::Insert, 9, f->MakeItem(L"x"));

    EXPECT_WARNING(f->host.warnings, L"insertControlDefinitionIndex有误", f->Function(Insert));
    const auto* pMade = f->parent.findChild<QAbstractButton*>("x");
    QVERIFY(pMade != nullptr);
    QVERIFY(pMade->group() == nullptr);
    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "a", "tail"}));
}

void ButtonGroupChecksTest::insertingLooksAtTheIndexBeforeTheLayout()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    delete f->pLayout;

    f->Tell(EventType::Insert, 9, f->MakeItem(L"x"));

    EXPECT_WARNING(f->host.warnings, L"insertControlDefinitionIndex有误", f->Function(Insert));
    QVERIFY(f->host.warnings.IsEmpty());
}

void ButtonGroupChecksTest::nothingIsInsertedIntoAnEmptyGroup()
{
    QFETCH(MakeGroup, make);
    const auto f = make({});

    f->Tell(EventType::Insert, 0, f->MakeItem(L"x"));

    EXPECT_WARNING(f->host.warnings, L"insertControlDefinitionIndex有误", f->Function(Insert));
    QCOMPARE(f->GetNames(), QStringList());
}

void ButtonGroupChecksTest::newButtonsAreNeitherStretchedNorAligned()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    f->PlaceAndShow();

    f->AddItem(L"b");
    f->InsertItem(0, L"x");

    const int added = f->pLayout->indexOf(f->GetControls().last());
    QCOMPARE(f->pLayout->stretch(added), 0);
    QCOMPARE(f->pLayout->itemAt(added)->alignment(), Qt::Alignment());
    const int inserted = f->pLayout->indexOf(f->GetControls().first());
    QCOMPARE(f->pLayout->stretch(inserted), 0);
    QCOMPARE(f->pLayout->itemAt(inserted)->alignment(), Qt::Alignment());
}

void ButtonGroupChecksTest::deletedButtonStaysInTheLayoutUntilItDies()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b", L"c"});
    f->PlaceAndShow();
    const QPointer<QAbstractButton> pDeleted(f->GetControls()[1]);

    f->DeleteItem(1);

    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "a", "b", "c", "tail"}));
    QVERIFY(pDeleted->isVisible());
    QVERIFY(pDeleted->isEnabled());
    QCOMPARE(pDeleted->parentWidget(), &f->parent);
    QVERIFY(pDeleted->group() == nullptr);
}

void ButtonGroupChecksTest::clearedButtonsStayInTheLayoutUntilTheyDie()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->PlaceAndShow();
    const QPointer<QAbstractButton> pLast(f->GetControls().last());

    f->ClearItems();

    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "a", "b", "tail"}));
    QVERIFY(pLast->isVisible());
    QCOMPARE(pLast->parentWidget(), &f->parent);
}

void ButtonGroupChecksTest::missingButtonIsReportedWhenAllItemsGo()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    const QPointer<QAbstractButton> pFirst(f->GetControls().first());
    const QPointer<QAbstractButton> pLast(f->GetControls().last());
    ForgetFirstButton(*f);

    f->ClearItems();

    EXPECT_WARNING(f->host.warnings, L"iter为空", f->Function("On"));
    QVERIFY(f->host.warnings.IsEmpty());
    QVERIFY(f->GetControls().isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(pLast == nullptr);
    QVERIFY(pFirst != nullptr);
}

void ButtonGroupChecksTest::missingButtonIsReportedTwiceByAnInsertion()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->PlaceAndShow();
    ForgetFirstButton(*f);

    f->InsertItem(1, L"x");

    EXPECT_WARNING(f->host.warnings, L"iter为空", f->Function(Insert));
    EXPECT_WARNING(f->host.warnings, L"iter为空", f->Function(Insert));
    QVERIFY(f->host.warnings.IsEmpty());
    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "a", "x", "b", "tail"}));
    QCOMPARE(f->GetControls().size(), 3);
    // The button missing from the list is still in the group, with id -2.
    QCOMPARE(f->GetGroup().id(f->GetControls()[1]), -3);
    QCOMPARE(f->GetGroup().id(f->GetControls()[2]), -4);
}

void ButtonGroupChecksTest::missingButtonIsNotDeleted()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    ForgetFirstButton(*f);

    f->DeleteItem(0);

    QVERIFY(f->host.warnings.IsEmpty());
    QCOMPARE(f->GetControls().size(), 2);
}

void ButtonGroupChecksTest::missingButtonIsPassedOver()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->PlaceAndShow();
    ForgetFirstButton(*f);

    f->SetItem(1, false, true);
    f->RaisePropertyChanged();
    EXPECT_WARNING(f->host.warnings, WordsOf(*f).noPairOn.toStdWString(), f->Function("On"));
    QVERIFY(f->GetControls().last()->isHidden());
    f->SetItem(1, true, true);
    f->GetControl().UpdateStatus();
    EXPECT_WARNING(f->host.warnings, WordsOf(*f).noPairStatus.toStdWString(),
                   f->Function("UpdateStatus"));
    QVERIFY(f->GetControls().last()->isVisible());
}

void ButtonGroupChecksTest::checkedStateComesBeforeTheOthers()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    f->PlaceAndShow();
    if (auto* pBoxes = dynamic_cast<GroupFixtureOf<CheckBoxKind>*>(f.get()))
        const_cast<CheckBoxDefinition*>(
            static_cast<const CheckBoxDefinition*>(pBoxes->pDefinition->items.front()))
            ->SetCheckState(2);
    if (auto* pButtons = dynamic_cast<GroupFixtureOf<RadioButtonKind>*>(f.get()))
        pButtons->pDefinition->currentId = L"a";
    QAbstractButton* pButton = f->GetControls().first();
    connect(pButton, &QAbstractButton::toggled, this, [&f] { f->SetItem(0, false, false); });

    f->RaisePropertyChanged();

    QVERIFY(pButton->isChecked());
    QVERIFY(pButton->isHidden());
    QVERIFY(!pButton->isEnabled());
}

}

VESK_TESTS(vesk::test::ButtonGroupChecksTest);
#include "ButtonGroupChecksTest.moc"
