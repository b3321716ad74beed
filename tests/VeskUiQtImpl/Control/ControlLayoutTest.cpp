#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/FactorySlots.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/ProgressBarDefinition.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "Support/HostFixture.h"
#include "Support/MemberAccess.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/Control.h"
#include "VeskUiQtImpl/Control/QtButton.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtComboBox.h"
#include "VeskUiQtImpl/Control/QtCommandButtonMenu.h"
#include "VeskUiQtImpl/Control/QtLabel.h"
#include "VeskUiQtImpl/Control/QtLineEdit.h"
#include "VeskUiQtImpl/Control/QtProgressBar.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"
#include "VeskUiQtImpl/Control/VeskControlFactory.h"

#include <type_traits>

namespace vesk::test
{

VESK_EXPOSE(ButtonDefinition, OwnerPtr<ICommandButtonDefinition>, QtButton, m_pControlDefinition)
VESK_EXPOSE(LabelDefinitionMember, OwnerPtr<ILabelDefinition>, QtLabel, m_pControlDefinition)
VESK_EXPOSE(LineEditDefinitionMember, OwnerPtr<ILineEditDefinition>, QtLineEdit,
            m_pControlDefinition)
VESK_EXPOSE(ComboBoxDefinitionMember, OwnerPtr<IComboBoxDefinition>, QtComboBox,
            m_pControlDefinition)
VESK_EXPOSE(ProgressBarDefinitionMember, OwnerPtr<IProgressBarDefinition>, QtProgressBar,
            m_pControlDefinition)
VESK_EXPOSE(MenuDefinitionMember, OwnerPtr<ICommandButtonMenuDefinition>, QtCommandButtonMenu,
            m_pControlDefinition)
VESK_EXPOSE(CheckBoxGroupMember, OwnerPtr<ICheckBoxGroupDefinition>, QtCheckBoxGroup,
            m_pControlDefinition)
VESK_EXPOSE(CheckBoxParent, QWidget*, QtCheckBoxGroup, m_pParent)
VESK_EXPOSE(CheckBoxList, std::vector<QCheckBox*>, QtCheckBoxGroup, m_checkBoxes)
VESK_EXPOSE(RadioButtonGroupMember, OwnerPtr<IRadioButtonGroupDefinition>, QtRadioButtonGroup,
            m_pControlDefinition)
VESK_EXPOSE(RadioButtonParent, QWidget*, QtRadioButtonGroup, m_pParent)
VESK_EXPOSE(RadioButtonList, std::vector<QRadioButton*>, QtRadioButtonGroup, m_radioButtons)
VESK_EXPOSE(LineEditValidator, OwnerPtr<ValidatorBase>, QtLineEdit, m_pValidator)

/// Controls that the library does not export are created by its factory.
struct MadeByTheFactory
{
    OwnerPtr<IControl> opBar =
        VeskIControlFactory::Get()->CreateQtProgressBar(MakeOwner<ProgressBarDefinition>(L"id"));
    OwnerPtr<IControl> opMenu = VeskIControlFactory::Get()->CreateQtCommandButtonMenu(
        MakeOwner<CommandButtonMenuDefinition>(L"id", L"command"));
    const QtProgressBar& bar = static_cast<QtProgressBar&>(*opBar);
    const QtCommandButtonMenu& menu = static_cast<QtCommandButtonMenu&>(*opMenu);
};

/// The libraries of the host are compiled against these classes as they are: bases, members and
/// virtual functions have fixed positions.
class ControlLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void basesStandInOrder();
    void theDefinitionIsTheFirstMember();
    void theLineEditsValidatorFollowsItsDefinition();
    void parentAndListOfAGroupFollowItsDefinition();
    void controlsHaveNoFurtherMembers();
    void operationsOfAControlHaveTheirSlots();
    void operationsOfAHandlerAndAnEventHaveTheirSlots();
    void operationsOfADefinitionHaveTheirSlots();
    void operationsOfSingleDefinitionsHaveTheirSlots();
    void operationsOfDefinitionsWithItemsHaveTheirSlots();
    void operationsOfTheFactoryHaveTheirSlots();
    void theFactoryHasNoMembers();
    void theBaseForOthersIsAbstractAndAddsNothing();
};

template <class Widget, class QtBase>
void CheckBases(const Widget& widget)
{
    QCOMPARE(BaseOffsetIn<QtBase>(widget), std::ptrdiff_t(0));
    QVERIFY(BaseOffsetIn<IControl>(widget) >= std::ptrdiff_t(sizeof(QtBase)));
    QVERIFY(BaseOffsetIn<IControlDefinitionChangeEventHandler>(widget) >=
            BaseOffsetIn<IControl>(widget) + std::ptrdiff_t(sizeof(IControl)));
}

template <class Widget, class Member>
void CheckFirstMember(const Widget& widget, Member member)
{
    const std::ptrdiff_t basesEnd = BaseOffsetIn<IControlDefinitionChangeEventHandler>(widget) +
                                    std::ptrdiff_t(sizeof(IControlDefinitionChangeEventHandler));
    QCOMPARE(OffsetIn(widget, member), basesEnd);
}

void ControlLayoutTest::basesStandInOrder()
{
    HostFixture host;
    const QtButton button(MakeOwner<CommandButtonDefinition>(L"id", L"command"), nullptr);
    const QtLabel label(MakeOwner<LabelDefinition>(L"id"), nullptr);
    const QtLineEdit edit(MakeOwner<LineEditDefinition>(L"id"), nullptr);

    CheckBases<QtButton, QToolButton>(button);
    CheckBases<QtLabel, QLabel>(label);
    CheckBases<QtLineEdit, QLineEdit>(edit);

    QWidget parent;
    const QtComboBox box(MakeOwner<ComboBoxDefinition>(L"id"), nullptr);
    const QtCheckBoxGroup checkBoxes(MakeOwner<CheckBoxGroupDefinition>(L"id"), &parent);
    const QtRadioButtonGroup radioButtons(MakeOwner<RadioButtonGroupDefinition>(L"id"), &parent);
    const MadeByTheFactory made;

    CheckBases<QtComboBox, QComboBox>(box);
    CheckBases<QtCheckBoxGroup, QButtonGroup>(checkBoxes);
    CheckBases<QtRadioButtonGroup, QButtonGroup>(radioButtons);
    CheckBases<QtProgressBar, QProgressBar>(made.bar);
    CheckBases<QtCommandButtonMenu, QToolButton>(made.menu);
}

void ControlLayoutTest::theDefinitionIsTheFirstMember()
{
    HostFixture host;
    const QtButton button(MakeOwner<CommandButtonDefinition>(L"id", L"command"), nullptr);
    const QtLabel label(MakeOwner<LabelDefinition>(L"id"), nullptr);
    const QtLineEdit edit(MakeOwner<LineEditDefinition>(L"id"), nullptr);

    CheckFirstMember(button, MemberOf(ButtonDefinition()));
    CheckFirstMember(label, MemberOf(LabelDefinitionMember()));
    CheckFirstMember(edit, MemberOf(LineEditDefinitionMember()));

    QWidget parent;
    const QtComboBox box(MakeOwner<ComboBoxDefinition>(L"id"), nullptr);
    const QtCheckBoxGroup checkBoxes(MakeOwner<CheckBoxGroupDefinition>(L"id"), &parent);
    const QtRadioButtonGroup radioButtons(MakeOwner<RadioButtonGroupDefinition>(L"id"), &parent);
    const MadeByTheFactory made;

    CheckFirstMember(box, MemberOf(ComboBoxDefinitionMember()));
    CheckFirstMember(checkBoxes, MemberOf(CheckBoxGroupMember()));
    CheckFirstMember(radioButtons, MemberOf(RadioButtonGroupMember()));
    CheckFirstMember(made.bar, MemberOf(ProgressBarDefinitionMember()));
    CheckFirstMember(made.menu, MemberOf(MenuDefinitionMember()));
}

void ControlLayoutTest::theLineEditsValidatorFollowsItsDefinition()
{
    HostFixture host;
    const QtLineEdit edit(MakeOwner<LineEditDefinition>(L"id"), nullptr);

    QCOMPARE(OffsetIn(edit, MemberOf(LineEditValidator())),
             OffsetIn(edit, MemberOf(LineEditDefinitionMember())) +
                 std::ptrdiff_t(sizeof(OwnerPtr<ILineEditDefinition>)));
}

void ControlLayoutTest::parentAndListOfAGroupFollowItsDefinition()
{
    constexpr std::ptrdiff_t Owner = sizeof(OwnerPtr<IControl>);
    constexpr std::ptrdiff_t Pointer = sizeof(QWidget*);
    HostFixture host;
    QWidget parent;
    const QtCheckBoxGroup checkBoxes(MakeOwner<CheckBoxGroupDefinition>(L"id"), &parent);
    const QtRadioButtonGroup radioButtons(MakeOwner<RadioButtonGroupDefinition>(L"id"), &parent);

    const std::ptrdiff_t checkBoxStart = OffsetIn(checkBoxes, MemberOf(CheckBoxGroupMember()));
    QCOMPARE(OffsetIn(checkBoxes, MemberOf(CheckBoxParent())), checkBoxStart + Owner);
    QCOMPARE(OffsetIn(checkBoxes, MemberOf(CheckBoxList())), checkBoxStart + Owner + Pointer);
    const std::ptrdiff_t radioStart = OffsetIn(radioButtons, MemberOf(RadioButtonGroupMember()));
    QCOMPARE(OffsetIn(radioButtons, MemberOf(RadioButtonParent())), radioStart + Owner);
    QCOMPARE(OffsetIn(radioButtons, MemberOf(RadioButtonList())), radioStart + Owner + Pointer);
}

void ControlLayoutTest::controlsHaveNoFurtherMembers()
{
    constexpr std::size_t Interfaces =
        sizeof(IControl) + sizeof(IControlDefinitionChangeEventHandler);
    constexpr std::size_t Owner = sizeof(OwnerPtr<IControl>);

    QCOMPARE(sizeof(QtButton), sizeof(QToolButton) + Interfaces + Owner);
    QCOMPARE(sizeof(QtLabel), sizeof(QLabel) + Interfaces + Owner);
    QCOMPARE(sizeof(QtLineEdit), sizeof(QLineEdit) + Interfaces + 2 * Owner);
    QCOMPARE(sizeof(QtComboBox), sizeof(QComboBox) + Interfaces + Owner);
    QCOMPARE(sizeof(QtProgressBar), sizeof(QProgressBar) + Interfaces + Owner);
    QCOMPARE(sizeof(QtCommandButtonMenu), sizeof(QToolButton) + Interfaces + Owner);

    constexpr std::size_t Group =
        sizeof(QButtonGroup) + Interfaces + Owner + sizeof(QWidget*) + sizeof(std::vector<void*>);
    QCOMPARE(sizeof(QtCheckBoxGroup), Group);
    QCOMPARE(sizeof(QtRadioButtonGroup), Group);
}

void ControlLayoutTest::operationsOfAControlHaveTheirSlots()
{
    QVERIFY(std::has_virtual_destructor<IControl>::value);
    QCOMPARE(SlotOf(&IControl::GetControlDefinition), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&IControl::UpdateStatus), std::ptrdiff_t(3));
}

void ControlLayoutTest::operationsOfAHandlerAndAnEventHaveTheirSlots()
{
    QVERIFY(std::has_virtual_destructor<IControlDefinitionChangeEventHandler>::value);
    QCOMPARE(SlotOf(&IControlDefinitionChangeEventHandler::On), std::ptrdiff_t(2));
    QVERIFY(std::has_virtual_destructor<IControlDefinitionChangeEvent>::value);
    QCOMPARE(SlotOf(&IControlDefinitionChangeEvent::Add), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&IControlDefinitionChangeEvent::Delete), std::ptrdiff_t(3));
    QVERIFY(std::has_virtual_destructor<IControlDefinitionChangeEventArgs>::value);
    QCOMPARE(SlotOf(&IControlDefinitionChangeEventArgs::GetType), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&IControlDefinitionChangeEventArgs::GetIndex), std::ptrdiff_t(3));
    QCOMPARE(SlotOf(&IControlDefinitionChangeEventArgs::GetItemCaption), std::ptrdiff_t(4));
    QCOMPARE(SlotOf(&IControlDefinitionChangeEventArgs::GetItemDefinition), std::ptrdiff_t(5));
    QCOMPARE(SlotOf(&IControlDefinitionChangeEventSource::GetControlDefinitionChangeEvent),
             std::ptrdiff_t(2));
}

void ControlLayoutTest::operationsOfADefinitionHaveTheirSlots()
{
    QVERIFY(std::has_virtual_destructor<IControlDefinition>::value);
    QCOMPARE(SlotOf(&IControlDefinition::GetId), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&IControlDefinition::GetCaption), std::ptrdiff_t(3));
    QCOMPARE(SlotOf(&IControlDefinition::GetTooltip), std::ptrdiff_t(4));
    QCOMPARE(SlotOf(&IControlDefinition::IsVisible), std::ptrdiff_t(5));
    QCOMPARE(SlotOf(&IControlDefinition::IsEnabled), std::ptrdiff_t(6));
}

void ControlLayoutTest::operationsOfSingleDefinitionsHaveTheirSlots()
{
    QCOMPARE(SlotOf(&ICommandButtonDefinition::GetCommandId), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&ICommandButtonDefinition::GetIconPath), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&ICommandButtonDefinition::GetButtonStyle), std::ptrdiff_t(9));
    QCOMPARE(SlotOf(&ICommandButtonDefinition::SetChecked), std::ptrdiff_t(10));
    QCOMPARE(SlotOf(&ICommandButtonDefinition::IsChecked), std::ptrdiff_t(11));
    QCOMPARE(SlotOf(&ILineEditDefinition::GetInputType), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&ILineEditDefinition::GetText), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&ILineEditDefinition::SetText), std::ptrdiff_t(9));
    QCOMPARE(SlotOf(&ILineEditDefinition::ClearText), std::ptrdiff_t(10));
    QCOMPARE(SlotOf(&ILineEditDefinition::GetSelectedText), std::ptrdiff_t(11));
    QCOMPARE(SlotOf(&ILineEditDefinition::SetValidator), std::ptrdiff_t(12));
    QCOMPARE(SlotOf(&ILineEditDefinition::GetValidator), std::ptrdiff_t(13));
    QCOMPARE(SlotOf(&ILineEditDefinition::GetLineEditEvent), std::ptrdiff_t(14));
    QCOMPARE(SlotOf(&IProgressBarDefinition::GetValue), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&IProgressBarDefinition::IsTextVisible), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&IProgressBarDefinition::GetWidth), std::ptrdiff_t(9));
}

void ControlLayoutTest::operationsOfDefinitionsWithItemsHaveTheirSlots()
{
    QCOMPARE(SlotOf(&IComboBoxDefinition::GetItems), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&IComboBoxDefinition::SetCurrentIndex), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&IComboBoxDefinition::GetCurrentIndex), std::ptrdiff_t(9));
    QCOMPARE(SlotOf(&ICheckBoxDefinition::GetCheckState), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&ICheckBoxGroupDefinition::GetCheckBoxDefinitions), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&ICheckBoxGroupDefinition::SetCheckState), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&IRadioButtonGroupDefinition::GetRadioButtonDefinitions), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&IRadioButtonGroupDefinition::GetCurrentRadioButtonId), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&IRadioButtonGroupDefinition::SetCurrentRadioButtonId), std::ptrdiff_t(9));
    QCOMPARE(SlotOf(&IMenuItemDefinition::GetIconPath), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&IMenuItemContainerDefinition::GetMenuItemDefinitions), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&ICommandMenuItemDefinition::GetCommandId), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&ICommandButtonMenuDefinition::GetCommandId), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&ICommandButtonMenuDefinition::GetIconPath), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&ICommandButtonMenuDefinition::GetMenuItemDefinitions), std::ptrdiff_t(9));
}

void ControlLayoutTest::operationsOfTheFactoryHaveTheirSlots()
{
    VerifySlotsOfTheFactory();
}

void ControlLayoutTest::theFactoryHasNoMembers()
{
    QCOMPARE(sizeof(VeskControlFactory), sizeof(VeskIControlFactory));
}

void ControlLayoutTest::theBaseForOthersIsAbstractAndAddsNothing()
{
    struct WithDefinitionOnly : Control
    {
        IControlDefinition* GetControlDefinition() const override { return nullptr; }
    };
    struct WithStatusOnly : Control
    {
        void UpdateStatus() override {}
    };
    QVERIFY((std::is_base_of<IControl, Control>::value));
    QVERIFY(std::is_abstract<Control>::value);
    QVERIFY(std::is_abstract<WithDefinitionOnly>::value);
    QVERIFY(std::is_abstract<WithStatusOnly>::value);
    QCOMPARE(sizeof(Control), sizeof(IControl));
    QVERIFY(!(std::is_base_of<Control, QtButton>::value));
    QVERIFY(!(std::is_base_of<Control, QtLabel>::value));
    QVERIFY(!(std::is_base_of<Control, QtLineEdit>::value));
    QVERIFY(!(std::is_base_of<Control, QtComboBox>::value));
    QVERIFY(!(std::is_base_of<Control, QtProgressBar>::value));
    QVERIFY(!(std::is_base_of<Control, QtCheckBoxGroup>::value));
    QVERIFY(!(std::is_base_of<Control, QtRadioButtonGroup>::value));
    QVERIFY(!(std::is_base_of<Control, QtCommandButtonMenu>::value));
}

}

VESK_TESTS(vesk::test::ControlLayoutTest);
#include "ControlLayoutTest.moc"
