#include "Control/ButtonGroupFixture.h"
#include "Control/LabelDefinition.h"
#include "Support/TestValues.h"

#include <QGridLayout>

namespace vesk::test
{

using EventType = ControlDefinitionChangeEventType;

constexpr char Add[] = "OnControlDefinitionChangeEventTypeAdd";
constexpr char Insert[] = "OnControlDefinitionChangeEventTypeInsert";

/// A group that lacks one of the two things it needs.
using MakeBareGroup = OwnerPtr<IControl> (*)(QWidget* pParent);

template <class Kind>
OwnerPtr<IControl> WithoutDefinition(QWidget* pParent)
{
    return MakeOwner<typename Kind::Group>(nullptr, pParent);
}

template <class Kind>
OwnerPtr<IControl> WithoutParent(QWidget*)
{
    return MakeOwner<typename Kind::Group>(MakeOwner<typename Kind::Definition>(), nullptr);
}

}

Q_DECLARE_METATYPE(vesk::test::MakeBareGroup)

namespace vesk::test
{

/// What both kinds of groups report and leave unchanged when something is wrong.
class ButtonGroupFailureTest : public QObject
{
    Q_OBJECT

private slots:
    void missingArgumentsAreReported_data() { AddGroupKinds(); }
    void missingArgumentsAreReported();
    void addingNeedsALayout_data() { AddGroupKinds(); }
    void addingNeedsALayout();
    void addingNeedsAnItemOfItsKind_data() { AddGroupKinds(); }
    void addingNeedsAnItemOfItsKind();
    void addingNeedsABoxLayoutOnlyForThePlace_data() { AddGroupKinds(); }
    void addingNeedsABoxLayoutOnlyForThePlace();
    void insertingNeedsAnItemOfItsKind_data() { AddGroupKinds(); }
    void insertingNeedsAnItemOfItsKind();
    void insertingNeedsAnIndexInTheList_data();
    void insertingNeedsAnIndexInTheList();
    void insertingNeedsALayout_data() { AddGroupKinds(); }
    void insertingNeedsALayout();
    void insertingNeedsABoxLayout_data() { AddGroupKinds(); }
    void insertingNeedsABoxLayout();
    void failedInsertionLetsIdsBeginAnew_data() { AddGroupKinds(); }
    void failedInsertionLetsIdsBeginAnew();
    void deletingNeedsAnIndexInTheList_data();
    void deletingNeedsAnIndexInTheList();
    void countsThatDifferAreReported_data() { AddGroupKinds(); }
    void countsThatDifferAreReported();
    void missingItemIsReportedAndPassedOver_data();
    void missingItemIsReportedAndPassedOver();
    void groupWithoutDefinitionOrParentIsEmptyAndReactsToNothing_data();
    void groupWithoutDefinitionOrParentIsEmptyAndReactsToNothing();
    void groupWithoutDefinitionFollowsNoItems_data();
    void groupWithoutDefinitionFollowsNoItems();
    void groupWithoutParentMakesNoButton_data();
    void groupWithoutParentMakesNoButton();
    void groupWithoutParentAnswersItsDefinition();
};

void ButtonGroupFailureTest::missingArgumentsAreReported()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});

    f->GetHandler().On(nullptr);

    EXPECT_WARNING(f->host.warnings, L"pArgs为空", f->Function("On"));
    QCOMPARE(f->GetNames(), QStringList({"a"}));
}

void ButtonGroupFailureTest::addingNeedsALayout()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    delete f->pLayout;

    f->Tell(EventType::Add, 1, f->MakeItem(L"b"));

    EXPECT_WARNING(f->host.warnings, L"pLayout为空", f->Function(Add));
    QCOMPARE(f->GetNames(), QStringList({"a"}));
}

void ButtonGroupFailureTest::addingNeedsAnItemOfItsKind()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    const LabelDefinition another(L"label");

    f->Tell(EventType::Add, 1, &another);
    EXPECT_WARNING(f->host.warnings, L"pCheckBoxDefine为空", f->Function(Add));
    f->Tell(EventType::Add, 1, nullptr);
    EXPECT_WARNING(f->host.warnings, L"pCheckBoxDefine为空", f->Function(Add));

    QCOMPARE(f->GetNames(), QStringList({"a"}));
    QCOMPARE(f->GetGroupedNames(), QStringList({"a"}));
}

void ButtonGroupFailureTest::addingNeedsABoxLayoutOnlyForThePlace()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    delete f->pLayout;
    new QGridLayout(&f->parent);

    f->Tell(EventType::Add, 1, f->MakeItem(L"b"));

    EXPECT_WARNING(f->host.warnings, L"pQBoxLayout为空", f->Function(Add));
    QCOMPARE(f->GetNames(), QStringList({"a", "b"}));
    QCOMPARE(f->GetGroupedNames(), QStringList({"a", "b"}));
    QCOMPARE(f->parent.layout()->count(), 0);
}

void ButtonGroupFailureTest::insertingNeedsAnItemOfItsKind()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    const LabelDefinition another(L"label");

    f->Tell(EventType::Insert, 0, &another);
    EXPECT_WARNING(f->host.warnings, L"pDefinition为空", f->Function(Insert));
    f->Tell(EventType::Insert, 0, nullptr);
    EXPECT_WARNING(f->host.warnings, L"pDefinition为空", f->Function(Insert));

    QCOMPARE(f->GetNames(), QStringList({"a"}));
    QVERIFY(f->GetGroup().buttons().isEmpty());
}

void ButtonGroupFailureTest::insertingNeedsAnIndexInTheList_data()
{
    QTest::addColumn<MakeGroup>("make");
    QTest::addColumn<int>("index");
    for (const MakeGroup make : {&MakeGroupOf<CheckBoxKind>, &MakeGroupOf<RadioButtonKind>})
    {
        const char* kind = make == &MakeGroupOf<CheckBoxKind> ? "check box" : "radio button";
        QTest::addRow("%s, -1", kind) << make << -1;
        QTest::addRow("%s, behind the last", kind) << make << 2;
    }
}

void ButtonGroupFailureTest::insertingNeedsAnIndexInTheList()
{
    QFETCH(MakeGroup, make);
    QFETCH(int, index);
    const auto f = make({L"a", L"b"});
    f->PlaceAndShow();

    f->Tell(EventType::Insert, index, f->MakeItem(L"x"));

    EXPECT_WARNING(f->host.warnings, L"insertControlDefinitionIndex有误", f->Function(Insert));
    QCOMPARE(f->GetNames(), QStringList({"a", "b"}));
    QVERIFY(f->GetGroup().buttons().isEmpty());
    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "a", "b", "tail"}));
}

void ButtonGroupFailureTest::insertingNeedsALayout()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    delete f->pLayout;

    f->Tell(EventType::Insert, 0, f->MakeItem(L"x"));

    EXPECT_WARNING(f->host.warnings, L"pLayout为空", f->Function(Insert));
    QCOMPARE(f->GetNames(), QStringList({"a"}));
    QVERIFY(f->GetGroup().buttons().isEmpty());
}

void ButtonGroupFailureTest::insertingNeedsABoxLayout()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    delete f->pLayout;
    new QGridLayout(&f->parent);

    f->Tell(EventType::Insert, 0, f->MakeItem(L"x"));

    EXPECT_WARNING(f->host.warnings, L"pQBoxLayout为空", f->Function(Insert));
    QCOMPARE(f->GetNames(), QStringList({"a"}));
    QVERIFY(f->GetGroup().buttons().isEmpty());
}

void ButtonGroupFailureTest::failedInsertionLetsIdsBeginAnew()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->Tell(EventType::Insert, 9, f->MakeItem(L"x"));
    EXPECT_WARNING(f->host.warnings, L"insertControlDefinitionIndex有误", f->Function(Insert));

    f->AddItem(L"c");
    f->AddItem(L"d");

    QCOMPARE(f->GetIds(), QList<int>({-1, -1, -2, -3}));
}

void ButtonGroupFailureTest::deletingNeedsAnIndexInTheList_data()
{
    insertingNeedsAnIndexInTheList_data();
}

void ButtonGroupFailureTest::deletingNeedsAnIndexInTheList()
{
    QFETCH(MakeGroup, make);
    QFETCH(int, index);
    const auto f = make({L"a", L"b"});

    f->Tell(EventType::Delete, index);

    EXPECT_WARNING(f->host.warnings, L"deleteControlDefinitionIndex有误", f->Function("On"));
    QCOMPARE(f->GetNames(), QStringList({"a", "b"}));
    QCOMPARE(f->GetGroupedNames(), QStringList({"a", "b"}));
}

void ButtonGroupFailureTest::countsThatDifferAreReported()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->PlaceAndShow();
    f->SetItem(0, false, false);
    f->RemoveLastItem();

    f->RaisePropertyChanged();
    EXPECT_WARNING(f->host.warnings, L"数据有误", f->Function("On"));
    f->GetControl().UpdateStatus();
    EXPECT_WARNING(f->host.warnings, L"数据有误", f->Function("UpdateStatus"));

    QVERIFY(f->GetControls().first()->isVisible());
    QVERIFY(f->GetControls().first()->isEnabled());
}

void ButtonGroupFailureTest::missingItemIsReportedAndPassedOver_data()
{
    QTest::addColumn<MakeGroup>("make");
    QTest::addColumn<QString>("onMessage");
    QTest::addColumn<QString>("statusMessage");
    QTest::newRow("check boxes") << MakeGroup(&MakeGroupOf<CheckBoxKind>)
                                 << "checkBoxDefines[i] && checkBoxControls[i]为空"
                                 << "checkBoxDefines[i] && checkBoxControls[i]为空";
    QTest::newRow("radio buttons") << MakeGroup(&MakeGroupOf<RadioButtonKind>)
                                   << "radioButtonGroupDefinition[i] && radioButtonControls[i]为空"
                                   << "radioButtonDefines[i] && radioButtonControls[i]为空";
}

void ButtonGroupFailureTest::missingItemIsReportedAndPassedOver()
{
    QFETCH(MakeGroup, make);
    QFETCH(QString, onMessage);
    QFETCH(QString, statusMessage);
    const auto f = make({L"a", L"b", L"c"});
    f->PlaceAndShow();
    f->ForgetItem(1);

    f->SetItem(2, false, true);
    f->RaisePropertyChanged();
    EXPECT_WARNING(f->host.warnings, onMessage.toStdWString(), f->Function("On"));
    QVERIFY(f->GetControls().last()->isHidden());
    f->SetItem(2, true, true);
    f->GetControl().UpdateStatus();
    EXPECT_WARNING(f->host.warnings, statusMessage.toStdWString(), f->Function("UpdateStatus"));
    QVERIFY(f->GetControls().last()->isVisible());
}

void ButtonGroupFailureTest::groupWithoutDefinitionOrParentIsEmptyAndReactsToNothing_data()
{
    QTest::addColumn<MakeBareGroup>("make");
    QTest::addColumn<bool>("isReportingStatus");
    QTest::newRow("check boxes without definition")
        << MakeBareGroup(&WithoutDefinition<CheckBoxKind>) << true;
    QTest::newRow("check boxes without parent")
        << MakeBareGroup(&WithoutParent<CheckBoxKind>) << false;
    QTest::newRow("radio buttons without definition")
        << MakeBareGroup(&WithoutDefinition<RadioButtonKind>) << true;
    QTest::newRow("radio buttons without parent")
        << MakeBareGroup(&WithoutParent<RadioButtonKind>) << false;
}

void ButtonGroupFailureTest::groupWithoutDefinitionOrParentIsEmptyAndReactsToNothing()
{
    QFETCH(MakeBareGroup, make);
    QFETCH(bool, isReportingStatus);
    HostFixture host;
    QWidget parent;

    const OwnerPtr<IControl> opGroup = make(&parent);
    auto* pGroup = dynamic_cast<QButtonGroup*>(opGroup.Get());
    const std::string name = pGroup->metaObject()->className();
    EXPECT_WARNING(host.warnings, L"m_pControlDefinition或pParent是空指针", ConstructorOf(*pGroup));
    opGroup->UpdateStatus();
    if (isReportingStatus)
        EXPECT_WARNING(host.warnings, L"pDefinition为空", name + "::UpdateStatus");
    ChangeArgs args;
    dynamic_cast<IControlDefinitionChangeEventHandler*>(opGroup.Get())->On(&args);
    if (isReportingStatus)
        EXPECT_WARNING(host.warnings, L"pControlDefinition为空", name + "::On");

    QVERIFY(pGroup->buttons().isEmpty());
    QVERIFY(!pGroup->property("IsDefinition").isValid());
    QVERIFY(parent.findChildren<QAbstractButton*>().isEmpty());
}

void ButtonGroupFailureTest::groupWithoutDefinitionFollowsNoItems_data()
{
    QTest::addColumn<MakeGroup>("make");
    QTest::addColumn<MakeBareGroup>("makeBare");
    QTest::addColumn<int>("type");
    for (const int type : {EventType::Add, EventType::Insert, EventType::Delete, EventType::Clear})
    {
        QTest::addRow("check boxes, %d", type)
            << MakeGroup(&MakeGroupOf<CheckBoxKind>)
            << MakeBareGroup(&WithoutDefinition<CheckBoxKind>) << type;
        QTest::addRow("radio buttons, %d", type)
            << MakeGroup(&MakeGroupOf<RadioButtonKind>)
            << MakeBareGroup(&WithoutDefinition<RadioButtonKind>) << type;
    }
}

void ButtonGroupFailureTest::groupWithoutDefinitionFollowsNoItems()
{
    QFETCH(MakeGroup, make);
    QFETCH(MakeBareGroup, makeBare);
    QFETCH(int, type);
    const auto f = make({});
    const OwnerPtr<IControl> opGroup = makeBare(&f->parent);
    EXPECT_WARNING(f->host.warnings, L"m_pControlDefinition或pParent是空指针",
                   ConstructorOf(f->GetGroup()));
    ChangeArgs args(type, 0, f->MakeItem(L"a"));

    dynamic_cast<IControlDefinitionChangeEventHandler*>(opGroup.Get())->On(&args);

    QVERIFY(f->host.warnings.IsEmpty());
    QVERIFY(dynamic_cast<QButtonGroup*>(opGroup.Get())->buttons().isEmpty());
    QVERIFY(f->parent.findChildren<QAbstractButton*>().isEmpty());
    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "tail"}));
}

void ButtonGroupFailureTest::groupWithoutParentMakesNoButton_data()
{
    QTest::addColumn<MakeGroup>("make");
    QTest::addColumn<MakeBareGroup>("makeBare");
    QTest::addColumn<QString>("noButton");
    QTest::newRow("check boxes") << MakeGroup(&MakeGroupOf<CheckBoxKind>)
                                 << MakeBareGroup(&WithoutParent<CheckBoxKind>)
                                 << "pCheckBoxControl为空";
    QTest::newRow("radio buttons")
        << MakeGroup(&MakeGroupOf<RadioButtonKind>)
        << MakeBareGroup(&WithoutParent<RadioButtonKind>) << "pRadioControl为空";
}

void ButtonGroupFailureTest::groupWithoutParentMakesNoButton()
{
    QFETCH(MakeGroup, make);
    QFETCH(MakeBareGroup, makeBare);
    QFETCH(QString, noButton);
    const auto f = make({L"a"});
    const OwnerPtr<IControl> opGroup = makeBare(nullptr);
    EXPECT_WARNING(f->host.warnings, L"m_pControlDefinition或pParent是空指针",
                   ConstructorOf(f->GetGroup()));
    auto* pHandler = dynamic_cast<IControlDefinitionChangeEventHandler*>(opGroup.Get());
    ChangeArgs add(EventType::Add, 0, f->MakeItem(L"b"));
    ChangeArgs insert(EventType::Insert, 0, f->MakeItem(L"c"));

    pHandler->On(&add);
    EXPECT_WARNING(f->host.warnings, L"m_pParent为空", f->Function(Add));
    pHandler->On(&insert);
    EXPECT_WARNING(f->host.warnings, L"m_pParent为空", f->Function("CreateControl"));
    EXPECT_WARNING(f->host.warnings, noButton.toStdWString(), f->Function(Insert));

    QVERIFY(dynamic_cast<QButtonGroup*>(opGroup.Get())->buttons().isEmpty());
}

void ButtonGroupFailureTest::groupWithoutParentAnswersItsDefinition()
{
    HostFixture host;

    const OwnerPtr<IControl> opGroup = WithoutParent<CheckBoxKind>(nullptr);

    EXPECT_WARNING(host.warnings, L"m_pControlDefinition或pParent是空指针",
                   "vesk::QtCheckBoxGroup::QtCheckBoxGroup");
    QVERIFY(opGroup->GetControlDefinition() != nullptr);
}

}

VESK_TESTS(vesk::test::ButtonGroupFailureTest);
#include "ButtonGroupFailureTest.moc"
