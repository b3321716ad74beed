#include "Control/ButtonGroupFixture.h"
#include "Control/OtherEventTypes.h"
#include "Support/TestValues.h"

#include <QApplication>

#include <functional>
#include <utility>

namespace vesk::test
{

/// Does something when the button with a given name is shown.
class OnShow final : public QObject
{
public:
    OnShow(const QString& name, std::function<void()> act) : m_name(name), m_act(std::move(act))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::ShowToParent && pWatched->objectName() == m_name)
            m_act();
        return false;
    }

private:
    QString m_name;
    std::function<void()> m_act;
};

/// How both kinds of groups show their items.
class ButtonGroupTest : public QObject
{
    Q_OBJECT

private slots:
    void showsAButtonForEachItemInOrder_data() { AddGroupKinds(); }
    void showsAButtonForEachItemInOrder();
    void buttonsTellOfTheirItem_data() { AddGroupKinds(); }
    void buttonsTellOfTheirItem();
    void checkBoxesStandInTheGivenWidget() { CheckThatTheParentIsTheGivenOne<CheckBoxKind>(); }
    void radioButtonsStandInTheGivenWidget() { CheckThatTheParentIsTheGivenOne<RadioButtonKind>(); }
    void buttonsAreNotPlacedByTheGroup_data() { AddGroupKinds(); }
    void buttonsAreNotPlacedByTheGroup();
    void listOfControlsIsACopy_data() { AddGroupKinds(); }
    void listOfControlsIsACopy();
    void belongsToItsParentAndIsMarked_data() { AddGroupKinds(); }
    void belongsToItsParentAndIsMarked();
    void answersItsDefinition_data() { AddGroupKinds(); }
    void answersItsDefinition();
    void hasAMetaObjectWithoutMethodsOfItsOwn_data() { AddGroupKinds(); }
    void hasAMetaObjectWithoutMethodsOfItsOwn();
    void buttonsAreBuiltWithTheStatesOfTheirItems_data() { AddGroupKinds(); }
    void buttonsAreBuiltWithTheStatesOfTheirItems();
    void checkBoxIsShownOnlyWhenItsGroupDiesOfThat() { CheckThatTheGroupMayDie<CheckBoxKind>(); }
    void radioButtonIsShownOnlyWhenItsGroupDiesOfThat()
    {
        CheckThatTheGroupMayDie<RadioButtonKind>();
    }
    void followsVisibilityAndEnabledStateOfEachItem_data() { AddGroupKinds(); }
    void followsVisibilityAndEnabledStateOfEachItem();
    void comparesWithWhatIsSeen_data() { AddGroupKinds(); }
    void comparesWithWhatIsSeen();
    void captionsStayWhenAPropertyChanges_data() { AddGroupKinds(); }
    void captionsStayWhenAPropertyChanges();
    void statusUpdateWritesVisibilityAndEnabledStateWithoutComparing_data() { AddGroupKinds(); }
    void statusUpdateWritesVisibilityAndEnabledStateWithoutComparing();
    void statusUpdateLeavesCheckedStatesAlone_data() { AddGroupKinds(); }
    void statusUpdateLeavesCheckedStatesAlone();
    void checkBoxesIgnoreOtherEvents_data() { AddUnknownEventTypes(); }
    void checkBoxesIgnoreOtherEvents() { CheckThatOtherEventsAreIgnored<CheckBoxKind>(); }
    void radioButtonsIgnoreOtherEvents_data() { AddUnknownEventTypes(); }
    void radioButtonsIgnoreOtherEvents() { CheckThatOtherEventsAreIgnored<RadioButtonKind>(); }

private:
    template <class Kind>
    void CheckThatTheParentIsTheGivenOne();
    template <class Kind>
    void CheckThatTheGroupMayDie();
    template <class Kind>
    void CheckThatOtherEventsAreIgnored();
};

void ButtonGroupTest::showsAButtonForEachItemInOrder()
{
    QFETCH(MakeGroup, make);

    const auto f = make({L"a", L"b", L"角"});

    const QStringList names{"a", "b", QString::fromUtf8("角")};
    QCOMPARE(f->GetNames(), names);
    QCOMPARE(f->GetGroupedNames(), names);
    QCOMPARE(f->GetIds(), QList<int>({-2, -3, -4}));
}

void ButtonGroupTest::buttonsTellOfTheirItem()
{
    QFETCH(MakeGroup, make);

    const auto f = make({L"a", L"b"});

    const QAbstractButton* pButton = f->GetControls().last();
    QCOMPARE(pButton->text(), QString("Caption of b"));
    QCOMPARE(pButton->toolTip(), QString("Tip of b"));
    QCOMPARE(pButton->property("IsDefinition"), QVariant(true));
    QCOMPARE(pButton->parentWidget(), &f->parent);
    QVERIFY(!pButton->isChecked());
}

template <class Kind>
void ButtonGroupTest::CheckThatTheParentIsTheGivenOne()
{
    HostFixture host;
    QWidget window;
    QWidget parent(&window);
    const typename Kind::Item item(L"a", L"a");
    auto opDefinition = MakeOwner<typename Kind::Definition>();
    opDefinition->items = {&item};

    const typename Kind::Group group(std::move(opDefinition), &parent);

    QCOMPARE(group.parent(), &parent);
    QCOMPARE(group.GetAllControls().front()->parent(), &parent);
}

void ButtonGroupTest::buttonsAreNotPlacedByTheGroup()
{
    QFETCH(MakeGroup, make);

    const auto f = make({L"a", L"b"});

    QCOMPARE(f->GetPlacedNames(), QStringList({"head", "tail"}));
}

void ButtonGroupTest::listOfControlsIsACopy()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});

    f->GetControls().clear();

    QCOMPARE(f->GetNames(), QStringList({"a", "b"}));
}

void ButtonGroupTest::belongsToItsParentAndIsMarked()
{
    QFETCH(MakeGroup, make);

    const auto f = make({});

    QCOMPARE(f->GetGroup().parent(), &f->parent);
    QCOMPARE(f->GetGroup().property("IsDefinition"), QVariant(true));
}

void ButtonGroupTest::answersItsDefinition()
{
    QFETCH(MakeGroup, make);

    const auto f = make({});

    QCOMPARE(f->GetControl().GetControlDefinition(), f->GetDefinition());
}

void ButtonGroupTest::hasAMetaObjectWithoutMethodsOfItsOwn()
{
    QFETCH(MakeGroup, make);

    const auto f = make({});

    const QMetaObject* pMetaObject = f->GetGroup().metaObject();
    QCOMPARE(pMetaObject->superClass(), &QButtonGroup::staticMetaObject);
    QCOMPARE(pMetaObject->methodCount(), QButtonGroup::staticMetaObject.methodCount());
}

void ButtonGroupTest::buttonsAreBuiltWithTheStatesOfTheirItems()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    f->ClearItems();
    const IControlDefinition* pHidden = f->MakeItem(L"hidden");
    const IControlDefinition* pDisabled = f->MakeItem(L"disabled");
    f->SetItem(1, false, true);
    f->SetItem(2, true, false);

    f->Tell(ControlDefinitionChangeEventType::Add, 0, pHidden);
    f->Tell(ControlDefinitionChangeEventType::Add, 1, pDisabled);
    f->parent.show();

    QVERIFY(f->GetControls().first()->isHidden());
    QVERIFY(f->GetControls().first()->isEnabled());
    QVERIFY(f->GetControls().last()->isVisible());
    QVERIFY(!f->GetControls().last()->isEnabled());
}

template <class Kind>
void ButtonGroupTest::CheckThatTheGroupMayDie()
{
    GroupFixtureOf<Kind> f({L"a"});
    f.parent.show();
    const IControlDefinition* pItem = f.MakeItem(L"b");
    f.SetItem(1, true, false);
    const OnShow onShow("b", [&f] { f.opGroup.Reset(); });

    f.Tell(ControlDefinitionChangeEventType::Add, 1, pItem);

    QVERIFY(f.opGroup == nullptr);
    QVERIFY(f.parent.template findChild<QAbstractButton*>("b")->isEnabled());
}

void ButtonGroupTest::followsVisibilityAndEnabledStateOfEachItem()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->PlaceAndShow();

    f->SetItem(0, false, true);
    f->SetItem(1, true, false);
    f->RaisePropertyChanged();
    QVERIFY(f->GetControls().first()->isHidden());
    QVERIFY(f->GetControls().first()->isEnabled());
    QVERIFY(f->GetControls().last()->isVisible());
    QVERIFY(!f->GetControls().last()->isEnabled());

    f->SetItem(0, true, true);
    f->SetItem(1, true, true);
    f->RaisePropertyChanged();
    QVERIFY(f->GetControls().first()->isVisible());
    QVERIFY(f->GetControls().last()->isEnabled());
}

void ButtonGroupTest::comparesWithWhatIsSeen()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    f->PlaceAndShow();
    f->parent.hide();
    f->parent.setEnabled(false);

    f->SetItem(0, false, false);
    f->RaisePropertyChanged();

    QVERIFY(!f->GetControls().first()->isHidden());
    QVERIFY(!f->GetControls().first()->testAttribute(Qt::WA_ForceDisabled));
}

void ButtonGroupTest::captionsStayWhenAPropertyChanges()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a"});
    f->GetControls().first()->setText("by hand");
    f->GetControls().first()->setToolTip("by hand");

    f->RaisePropertyChanged();
    f->GetControl().UpdateStatus();

    QCOMPARE(f->GetControls().first()->text(), QString("by hand"));
    QCOMPARE(f->GetControls().first()->toolTip(), QString("by hand"));
}

void ButtonGroupTest::statusUpdateWritesVisibilityAndEnabledStateWithoutComparing()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->PlaceAndShow();
    f->parent.hide();
    f->parent.setEnabled(false);

    f->SetItem(0, false, false);
    f->GetControl().UpdateStatus();

    QVERIFY(f->GetControls().first()->isHidden());
    QVERIFY(f->GetControls().first()->testAttribute(Qt::WA_ForceDisabled));
    QVERIFY(!f->GetControls().last()->isHidden());
    QVERIFY(!f->GetControls().last()->testAttribute(Qt::WA_ForceDisabled));
}

void ButtonGroupTest::statusUpdateLeavesCheckedStatesAlone()
{
    QFETCH(MakeGroup, make);
    const auto f = make({L"a", L"b"});
    f->GetControls().last()->setChecked(true);

    f->GetControl().UpdateStatus();

    QVERIFY(f->GetControls().last()->isChecked());
    QVERIFY(!f->GetControls().first()->isChecked());
}

template <class Kind>
void ButtonGroupTest::CheckThatOtherEventsAreIgnored()
{
    QFETCH(int, type);
    const auto f = MakeGroupOf<Kind>({L"a", L"b"});
    f->PlaceAndShow();
    f->SetItem(0, false, false);

    f->Tell(type, 0, f->MakeItem(L"x"));

    QCOMPARE(f->GetNames(), QStringList({"a", "b"}));
    QCOMPARE(f->GetGroupedNames(), QStringList({"a", "b"}));
    QVERIFY(f->GetControls().first()->isVisible());
    QVERIFY(f->GetControls().first()->isEnabled());
}

}

VESK_TESTS(vesk::test::ButtonGroupTest);
#include "ButtonGroupTest.moc"
