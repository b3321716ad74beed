#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "Support/HostFixture.h"
#include "Support/MemberAccess.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtButton.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtComboBox.h"
#include "VeskUiQtImpl/Control/QtLineEdit.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"

#include <QWidget>

namespace vesk::test
{

using OnBool = void(bool);
using OnInt = void(int);
using OnText = void(const QString&);
using OnNothing = void();
using OnPressed = void(QAbstractButton*);
using OnArgs = void(IControlDefinitionChangeEventArgs*);
using AskNumber = int();
using SetRange = bool(int, int);
using SetFlag = bool(bool);
using MakeBox = QCheckBox*(const ICheckBoxDefinition*);
using MakeButton = QRadioButton*(const IRadioButtonDefinition*);

VESK_EXPOSE(ButtonClicked, OnBool, QtButton, OnButtonClicked)
VESK_EXPOSE(IndexChanged, OnInt, QtComboBox, OnCurrentIndexChanged)
VESK_EXPOSE(TextEdited, OnText, QtLineEdit, OnTextEdited)
VESK_EXPOSE(TextChanged, OnText, QtLineEdit, OnTextChanged)
VESK_EXPOSE(EditingFinished, OnNothing, QtLineEdit, OnEditingFinished)
VESK_EXPOSE(TextSelectChanged, OnNothing, QtLineEdit, OnTextSelectChanged)
VESK_EXPOSE(SelectionStart, AskNumber, QtLineEdit, GetDefinitionSelectionStart)
VESK_EXPOSE(Selection, SetRange, QtLineEdit, SetDefinitionSelection)
VESK_EXPOSE(IsEditing, SetFlag, QtLineEdit, SetDefinitionIsEditing)
VESK_EXPOSE(BoxClicked, OnPressed, QtCheckBoxGroup, OnButtonClicked)
VESK_EXPOSE(BoxAdded, OnArgs, QtCheckBoxGroup, OnControlDefinitionChangeEventTypeAdd)
VESK_EXPOSE(BoxInserted, OnArgs, QtCheckBoxGroup, OnControlDefinitionChangeEventTypeInsert)
VESK_EXPOSE(AddBox, MakeBox, QtCheckBoxGroup, AddCheckBox)
VESK_EXPOSE(CreateBox, MakeBox, QtCheckBoxGroup, CreateControl)
VESK_EXPOSE(RadioClicked, OnPressed, QtRadioButtonGroup, OnButtonClicked)
VESK_EXPOSE(RadioAdded, OnArgs, QtRadioButtonGroup, OnControlDefinitionChangeEventTypeAdd)
VESK_EXPOSE(RadioInserted, OnArgs, QtRadioButtonGroup, OnControlDefinitionChangeEventTypeInsert)
VESK_EXPOSE(AddRadio, MakeButton, QtRadioButtonGroup, AddRadioButton)
VESK_EXPOSE(CreateRadio, MakeButton, QtRadioButtonGroup, CreateControl)

namespace
{

/// Calls a handler as Qt or the control itself would, on a control without a definition.
using Call = void (*)(QWidget& parent);

template <class Control, class Tag, class... Args>
auto CallBare(QWidget& parent, Args... args)
{
    Control control(nullptr, &parent);
    return (control.*MemberOf(Tag()))(args...);
}

/// Creates a button for an item in a group that has a definition and, if given, a parent.
template <class Group, class Definition, class Item, class Tag>
void MakeFor(QWidget* pParent, const Item* pItem)
{
    Group group(MakeOwner<Definition>(L"id"), pParent);
    QVERIFY((group.*MemberOf(Tag()))(pItem) == nullptr);
    QVERIFY(group.buttons().isEmpty());
    QVERIFY(group.GetAllControls().empty());
}

const CheckBoxDefinition BoxItem(L"a", L"a");
const RadioButtonDefinition RadioItem(L"a", L"a");

template <class Tag>
void MakeBoxWithoutItem(QWidget& parent)
{
    MakeFor<QtCheckBoxGroup, CheckBoxGroupDefinition, ICheckBoxDefinition, Tag>(&parent, nullptr);
}

template <class Tag>
void MakeBoxWithoutParent(QWidget&)
{
    MakeFor<QtCheckBoxGroup, CheckBoxGroupDefinition, ICheckBoxDefinition, Tag>(nullptr, &BoxItem);
}

template <class Tag>
void MakeBoxOfNothing(QWidget&)
{
    MakeFor<QtCheckBoxGroup, CheckBoxGroupDefinition, ICheckBoxDefinition, Tag>(nullptr, nullptr);
}

template <class Tag>
void MakeRadioWithoutItem(QWidget& parent)
{
    MakeFor<QtRadioButtonGroup, RadioButtonGroupDefinition, IRadioButtonDefinition, Tag>(&parent,
                                                                                         nullptr);
}

template <class Tag>
void MakeRadioWithoutParent(QWidget&)
{
    MakeFor<QtRadioButtonGroup, RadioButtonGroupDefinition, IRadioButtonDefinition, Tag>(
        nullptr, &RadioItem);
}

template <class Tag>
void MakeRadioOfNothing(QWidget&)
{
    MakeFor<QtRadioButtonGroup, RadioButtonGroupDefinition, IRadioButtonDefinition, Tag>(nullptr,
                                                                                         nullptr);
}

}

}

Q_DECLARE_METATYPE(vesk::test::Call)

namespace vesk::test
{

/// The handlers of a control check what they need, whoever calls them, and report failures under
/// their own names.
class BareControlHandlersTest : public QObject
{
    Q_OBJECT

private slots:
    void handlerReportsInItsOwnName_data();
    void handlerReportsInItsOwnName();
    void groupReportsWhatItNeedsForAButton_data();
    void groupReportsWhatItNeedsForAButton();
};

void BareControlHandlersTest::handlerReportsInItsOwnName_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("message");
    const auto add = [](const char* function, Call call,
                        const char* message = "pControlDefinition为空") {
        QTest::newRow(function) << call << QString::fromUtf8(message);
    };
    add("QtButton::OnButtonClicked",
        [](QWidget& parent) { CallBare<QtButton, ButtonClicked>(parent, true); });
    add("QtComboBox::OnCurrentIndexChanged",
        [](QWidget& parent) { CallBare<QtComboBox, IndexChanged>(parent, 1); });
    add("QtLineEdit::OnTextEdited",
        [](QWidget& parent) { CallBare<QtLineEdit, TextEdited>(parent, QString("7")); });
    add("QtLineEdit::OnTextChanged",
        [](QWidget& parent) { CallBare<QtLineEdit, TextChanged>(parent, QString("7")); });
    add("QtLineEdit::OnEditingFinished",
        [](QWidget& parent) { CallBare<QtLineEdit, EditingFinished>(parent); });
    add("QtLineEdit::OnTextSelectChanged",
        [](QWidget& parent) { CallBare<QtLineEdit, TextSelectChanged>(parent); });
    add("QtLineEdit::GetDefinitionSelectionStart",
        [](QWidget& parent) { QCOMPARE((CallBare<QtLineEdit, SelectionStart>(parent)), -1); });
    add("QtLineEdit::SetDefinitionSelection",
        [](QWidget& parent) { QVERIFY(!(CallBare<QtLineEdit, Selection>(parent, 0, 1))); });
    add("QtLineEdit::SetDefinitionIsEditing",
        [](QWidget& parent) { QVERIFY(!(CallBare<QtLineEdit, IsEditing>(parent, true))); });
    add("QtCheckBoxGroup::OnButtonClicked",
        [](QWidget& parent) { CallBare<QtCheckBoxGroup, BoxClicked>(parent, nullptr); });
    add(
        "QtCheckBoxGroup::OnControlDefinitionChangeEventTypeAdd",
        [](QWidget& parent) { CallBare<QtCheckBoxGroup, BoxAdded>(parent, nullptr); }, "pArgs为空");
    add(
        "QtCheckBoxGroup::OnControlDefinitionChangeEventTypeInsert",
        [](QWidget& parent) { CallBare<QtCheckBoxGroup, BoxInserted>(parent, nullptr); },
        "pArgs为空");
    add("QtRadioButtonGroup::OnButtonClicked",
        [](QWidget& parent) { CallBare<QtRadioButtonGroup, RadioClicked>(parent, nullptr); });
    add(
        "QtRadioButtonGroup::OnControlDefinitionChangeEventTypeAdd",
        [](QWidget& parent) { CallBare<QtRadioButtonGroup, RadioAdded>(parent, nullptr); },
        "pArgs为空");
    add(
        "QtRadioButtonGroup::OnControlDefinitionChangeEventTypeInsert",
        [](QWidget& parent) { CallBare<QtRadioButtonGroup, RadioInserted>(parent, nullptr); },
        "pArgs为空");
}

void BareControlHandlersTest::handlerReportsInItsOwnName()
{
    QFETCH(Call, call);
    QFETCH(QString, message);
    HostFixture host;
    QWidget parent;

    call(parent);

    const std::string name = host.warnings.TakeAny().function;
    const std::string handler = std::string("vesk::") + QTest::currentDataTag();
    QCOMPARE(name.substr(0, name.rfind(':')), handler.substr(0, name.rfind(':')));
    EXPECT_WARNING(host.warnings, message.toStdWString(), handler);
    QVERIFY(host.warnings.IsEmpty());
    QVERIFY(!LineEditTextChangeFlag::m_textChangeByUser);
    QVERIFY(!RadioButtonGroupStateChangeFlag::m_stateChangeByUser);
    QVERIFY(host.journal.GetCommands().empty());
}

void BareControlHandlersTest::groupReportsWhatItNeedsForAButton_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QStringList>("reports");
    const auto add = [](const char* name, Call call, const QStringList& reports) {
        QTest::newRow(name) << call << reports;
    };
    const QString boxMade = "vesk::QtCheckBoxGroup::CreateControl: ";
    const QString boxAdded = "vesk::QtCheckBoxGroup::AddCheckBox: ";
    add("check box without item", &MakeBoxWithoutItem<CreateBox>, {boxMade + "pDefinition为空"});
    add("check box without parent", &MakeBoxWithoutParent<CreateBox>, {boxMade + "m_pParent为空"});
    add("check box of nothing", &MakeBoxOfNothing<CreateBox>, {boxMade + "m_pParent为空"});
    add("added check box without item", &MakeBoxWithoutItem<AddBox>,
        {boxAdded + "pDefinition为空"});
    add("added check box without parent", &MakeBoxWithoutParent<AddBox>,
        {boxMade + "m_pParent为空", boxAdded + "pCheckBox为空"});
    add("added check box of nothing", &MakeBoxOfNothing<AddBox>, {boxAdded + "pDefinition为空"});

    const QString radioMade = "vesk::QtRadioButtonGroup::CreateControl: ";
    const QString radioAdded = "vesk::QtRadioButtonGroup::AddRadioButton: ";
    add("radio button without item", &MakeRadioWithoutItem<CreateRadio>,
        {radioMade + "pDefinition为空"});
    add("radio button without parent", &MakeRadioWithoutParent<CreateRadio>,
        {radioMade + "m_pParent为空"});
    add("radio button of nothing", &MakeRadioOfNothing<CreateRadio>, {radioMade + "m_pParent为空"});
    add("added radio button without item", &MakeRadioWithoutItem<AddRadio>,
        {radioAdded + "pDefinition为空"});
    add("added radio button without parent", &MakeRadioWithoutParent<AddRadio>,
        {radioMade + "m_pParent为空", radioAdded + "pRadioButton为空"});
    add("added radio button of nothing", &MakeRadioOfNothing<AddRadio>,
        {radioAdded + "pDefinition为空"});
}

void BareControlHandlersTest::groupReportsWhatItNeedsForAButton()
{
    QFETCH(Call, call);
    QFETCH(QStringList, reports);
    HostFixture host;
    QWidget parent;

    call(parent);

    QStringList taken;
    while (!host.warnings.IsEmpty())
    {
        const DebugWarning warning = host.warnings.TakeAny();
        taken << QString::fromStdString(warning.function) + ": " +
                     QString::fromStdWString(warning.message);
    }
    // A group without a parent already reported that in its constructor.
    taken.removeOne(taken.filter("或").value(0));
    QCOMPARE(taken, reports);
}

}

VESK_TESTS(vesk::test::BareControlHandlersTest);
#include "BareControlHandlersTest.moc"
