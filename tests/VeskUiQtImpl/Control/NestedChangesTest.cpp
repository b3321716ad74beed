#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtComboBox.h"
#include "VeskUiQtImpl/Control/QtLineEdit.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"

#include <QAbstractButton>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>
#include <stdexcept>

namespace vesk::test
{

namespace
{

using Type = ControlDefinitionChangeEventType;

/// A handler of the host, which may do anything.
class HostHandler final : public IControlDefinitionChangeEventHandler
{
public:
    using Act = std::function<void(const IControlDefinitionChangeEventArgs&)>;

    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        if (m_act)
            m_act(*pArgs);
    }

    /// Every time, or with `Once` only the next time.
    void Do(Act act) { m_act = std::move(act); }
    void Once(const std::function<void()>& act)
    {
        m_act = [this, act](const IControlDefinitionChangeEventArgs&) {
            const std::function<void()> now = act;
            m_act = nullptr;
            now();
        };
    }

private:
    Act m_act;
};

/// A control whose definition has a handler that subscribed before it, or after it.
template <class Definition, class Control>
struct Fixture
{
    explicit Fixture(bool isBefore)
    {
        auto opDefinition = MakeOwner<Definition>(L"id");
        pDefinition = opDefinition.Get();
        new QVBoxLayout(&parent);
        if (isBefore)
            pDefinition->GetControlDefinitionChangeEvent()->Add(&handler);
        opControl = MakeOwner<Control>(std::move(opDefinition), &parent);
        if (!isBefore)
            pDefinition->GetControlDefinitionChangeEvent()->Add(&handler);
        parent.show();
    }

    HostFixture host;
    QWidget parent;
    HostHandler handler;
    Definition* pDefinition;
    OwnerPtr<Control> opControl;
};

using ComboBox = Fixture<ComboBoxDefinition, QtComboBox>;
using CheckBoxes = Fixture<CheckBoxGroupDefinition, QtCheckBoxGroup>;
using RadioButtons = Fixture<RadioButtonGroupDefinition, QtRadioButtonGroup>;

/// "a[b]c" for three items, the second of which is current.
QString Displayed(const QComboBox& box)
{
    QString shown;
    for (int i = 0; i < box.count(); ++i)
        shown += i == box.currentIndex() ? '[' + box.itemText(i) + ']' : box.itemText(i);
    return shown;
}

QString Defined(const IComboBoxDefinition& definition)
{
    QString defined;
    int index = 0;
    for (const std::wstring& item : definition.GetItems())
    {
        const QString text = QString::fromStdWString(item);
        defined += index++ == definition.GetCurrentIndex() ? '[' + text + ']' : text;
    }
    return defined;
}

/// The same for a group, with its checked buttons in brackets.
QString Displayed(const QButtonGroup& group)
{
    QString shown;
    for (const QAbstractButton* pButton : group.buttons())
        shown += pButton->isChecked() ? '[' + pButton->text() + ']' : pButton->text();
    return shown;
}

OwnerPtr<CheckBoxDefinition> MakeBox(const std::wstring& name, int state = 0)
{
    auto opBox = MakeOwner<CheckBoxDefinition>(name, name);
    opBox->SetCheckState(state);
    return opBox;
}

OwnerPtr<RadioButtonDefinition> MakeRadio(const std::wstring& name)
{
    return MakeOwner<RadioButtonDefinition>(name, name);
}

void AddPlaces()
{
    QTest::addColumn<bool>("isBefore");
    QTest::newRow("before the control") << true;
    QTest::newRow("behind the control") << false;
}

}

/// Hosts that change a definition while its control is about to be notified of a change.
class NestedChangesTest : public QObject
{
    Q_OBJECT

private slots:
    void comboBoxKeepsTheOrderOfItsItems_data() { AddPlaces(); }
    void comboBoxKeepsTheOrderOfItsItems();
    void comboBoxDropsWhatTheHostRefuses_data() { AddPlaces(); }
    void comboBoxDropsWhatTheHostRefuses();
    void comboBoxShowsWhatTheHostRefills_data() { AddPlaces(); }
    void comboBoxShowsWhatTheHostRefills();
    void comboBoxWritesNoIndexOfAnOldList_data() { AddPlaces(); }
    void comboBoxWritesNoIndexOfAnOldList();
    void theUsersChoiceMayRefillTheBox_data() { AddPlaces(); }
    void theUsersChoiceMayRefillTheBox();
    void whatTheUserChoosesFromAnOldListIsNotTaken();
    void checkBoxesKeepTheirOrderAndStates_data() { AddPlaces(); }
    void checkBoxesKeepTheirOrderAndStates();
    void removedCheckBoxesAreGone_data() { AddPlaces(); }
    void removedCheckBoxesAreGone();
    void radioButtonsShowTheLastChoice_data() { AddPlaces(); }
    void radioButtonsShowTheLastChoice();
    void statesOfManyAreTakenOverAtTheEnd_data() { AddPlaces(); }
    void statesOfManyAreTakenOverAtTheEnd();
    void statesAreTakenOverWhenABoxGoesMeanwhile();
    void menuKeepsTheOrderOfItsEntries_data() { AddPlaces(); }
    void menuKeepsTheOrderOfItsEntries();
    void lineEditShowsWhatTheHostMakesOfATypedText_data() { AddPlaces(); }
    void lineEditShowsWhatTheHostMakesOfATypedText();
    void controlMayDieWhileChangesWait_data() { AddPlaces(); }
    void controlMayDieWhileChangesWait();
    void aHostThatThrowsLeavesTheControlInStep_data() { AddPlaces(); }
    void aHostThatThrowsLeavesTheControlInStep();
    void aControlMadeWhileChangesWaitHearsThemOnce();
};

void NestedChangesTest::comboBoxKeepsTheOrderOfItsItems()
{
    QFETCH(bool, isBefore);
    ComboBox f(isBefore);
    f.pDefinition->AddItem(L"a");
    f.handler.Once([&f] { f.pDefinition->AddItem(L"c"); });

    f.pDefinition->AddItem(L"b");

    QCOMPARE(Displayed(*f.opControl), QString("[a]bc"));
    QCOMPARE(Defined(*f.pDefinition), QString("[a]bc"));
}

void NestedChangesTest::comboBoxDropsWhatTheHostRefuses()
{
    QFETCH(bool, isBefore);
    ComboBox f(isBefore);
    f.pDefinition->AddItem(L"a");
    f.pDefinition->AddItem(L"b");
    f.pDefinition->SetCurrentIndex(1);
    f.handler.Do([&f](const IControlDefinitionChangeEventArgs& args) {
        if (args.GetItemCaption() == L"a" && args.GetType() == Type::Insert)
            f.pDefinition->DeleteItem(args.GetIndex());
    });

    f.pDefinition->InsertItem(1, L"a");

    QCOMPARE(Displayed(*f.opControl), QString("a[b]"));
    QCOMPARE(Defined(*f.pDefinition), QString("a[b]"));
}

void NestedChangesTest::comboBoxShowsWhatTheHostRefills()
{
    QFETCH(bool, isBefore);
    ComboBox f(isBefore);
    f.pDefinition->AddItem(L"a");
    f.handler.Once([&f] {
        f.pDefinition->AddItem(L"x");
        f.pDefinition->AddItem(L"y");
        f.pDefinition->SetCurrentIndex(1);
    });

    f.pDefinition->ClearItems();

    QCOMPARE(Displayed(*f.opControl), QString("x[y]"));
    QCOMPARE(Defined(*f.pDefinition), QString("x[y]"));
}

void NestedChangesTest::comboBoxWritesNoIndexOfAnOldList()
{
    QFETCH(bool, isBefore);
    ComboBox f(isBefore);
    for (const wchar_t* item : {L"a", L"b", L"c"})
        f.pDefinition->AddItem(item);
    f.pDefinition->SetCurrentIndex(2);
    f.handler.Once([&f] {
        f.pDefinition->ClearItems();
        f.pDefinition->AddItem(L"n");
    });

    f.pDefinition->DeleteItem(0);

    QCOMPARE(Displayed(*f.opControl), QString("[n]"));
    QCOMPARE(Defined(*f.pDefinition), QString("[n]"));
}

void NestedChangesTest::theUsersChoiceMayRefillTheBox()
{
    QFETCH(bool, isBefore);
    ComboBox f(isBefore);
    for (const wchar_t* item : {L"a", L"b", L"c"})
        f.pDefinition->AddItem(item);
    f.handler.Once([&f] {
        f.pDefinition->DeleteItem(1);
        f.pDefinition->InsertItem(0, L"n");
        f.pDefinition->SetCurrentIndex(2);
    });

    QTest::keyClick(f.opControl.Get(), Qt::Key_Down);

    QCOMPARE(Displayed(*f.opControl), QString("na[c]"));
    QCOMPARE(Defined(*f.pDefinition), QString("na[c]"));
}

void NestedChangesTest::whatTheUserChoosesFromAnOldListIsNotTaken()
{
    ComboBox f(true);
    for (const wchar_t* item : {L"a", L"b", L"c"})
        f.pDefinition->AddItem(item);
    // As when the handler shows a question and the user uses the box meanwhile.
    f.handler.Once([&f] { QTest::keyClick(f.opControl.Get(), Qt::Key_End); });

    f.pDefinition->DeleteItem(1);

    QCOMPARE(Defined(*f.pDefinition), QString("[a]c"));
    QCOMPARE(Displayed(*f.opControl), QString("[a]c"));
}

void NestedChangesTest::checkBoxesKeepTheirOrderAndStates()
{
    QFETCH(bool, isBefore);
    CheckBoxes f(isBefore);
    f.handler.Once([&f] {
        f.pDefinition->AddCheckBox(MakeBox(L"b", 2));
        f.pDefinition->SetCheckState(L"a", 2);
        f.pDefinition->InsertCheckBox(0, MakeBox(L"c"));
        f.pDefinition->SetCheckState(L"c", 2);
        f.pDefinition->SetCheckState(L"b", 0);
    });

    f.pDefinition->AddCheckBox(MakeBox(L"a"));

    QCOMPARE(Displayed(*f.opControl), QString("[c][a]b"));
}

void NestedChangesTest::removedCheckBoxesAreGone()
{
    QFETCH(bool, isBefore);
    CheckBoxes f(isBefore);
    f.pDefinition->AddCheckBox(MakeBox(L"a"));
    f.handler.Once([&f] {
        f.pDefinition->DeleteCheckBox(1);
        f.pDefinition->DeleteCheckBox(0);
        f.pDefinition->AddCheckBox(MakeBox(L"c", 2));
    });

    f.pDefinition->AddCheckBox(MakeBox(L"b", 2));

    QCOMPARE(Displayed(*f.opControl), QString("[c]"));
}

void NestedChangesTest::radioButtonsShowTheLastChoice()
{
    QFETCH(bool, isBefore);
    RadioButtons f(isBefore);
    f.pDefinition->AddRadioButton(MakeRadio(L"a"));
    f.pDefinition->SetCurrentRadioButtonId(L"a");
    f.handler.Once([&f] {
        f.pDefinition->InsertRadioButton(0, MakeRadio(L"c"));
        f.pDefinition->SetCurrentRadioButtonId(L"c");
        f.pDefinition->DeleteRadioButton(1);
    });

    f.pDefinition->AddRadioButton(MakeRadio(L"b"));

    QCOMPARE(Displayed(*f.opControl), QString("[c]b"));
    QCOMPARE(f.pDefinition->GetCurrentRadioButtonId() == L"c", true);
}

void NestedChangesTest::statesOfManyAreTakenOverAtTheEnd()
{
    QFETCH(bool, isBefore);
    CheckBoxes f(isBefore);
    f.handler.Once([&f] {
        f.pDefinition->AddCheckBox(MakeBox(L"b"));
        f.pDefinition->Find(L"a")->SetEnabled(false);
        f.pDefinition->Find(L"b")->SetVisible(false);
    });

    f.pDefinition->AddCheckBox(MakeBox(L"a"));

    QVERIFY(!f.opControl->buttons().at(0)->isEnabled());
    QVERIFY(f.opControl->buttons().at(1)->isHidden());
}

void NestedChangesTest::statesAreTakenOverWhenABoxGoesMeanwhile()
{
    CheckBoxes f(true);
    f.pDefinition->AddCheckBox(MakeBox(L"a"));
    f.pDefinition->AddCheckBox(MakeBox(L"b"));
    QObject::connect(f.opControl->buttons().at(0), &QAbstractButton::toggled,
                     [&f] { f.pDefinition->DeleteCheckBox(0); });
    f.handler.Once([&f] {
        f.pDefinition->SetCheckState(L"a", 2);
        f.pDefinition->SetCheckState(L"b", 2);
    });

    f.pDefinition->AddCheckBox(MakeBox(L"c"));

    QCOMPARE(Displayed(*f.opControl), QString("[b]c"));
}

void NestedChangesTest::menuKeepsTheOrderOfItsEntries()
{
    QFETCH(bool, isBefore);
    const HostFixture host;
    const auto makeEntry = [](const std::wstring& name) {
        return MakeOwner<CommandMenuItemDefinition>(name, L"run", name);
    };
    HostHandler handler;
    auto opDefinition = MakeOwner<CommandButtonMenuDefinition>(L"id", L"");
    CommandButtonMenuDefinition* pDefinition = opDefinition.Get();
    IControlDefinitionChangeEvent* pEvent = pDefinition->GetControlDefinitionChangeEvent();
    if (isBefore)
        pEvent->Add(&handler);
    const OwnerPtr<IControl> opControl =
        VeskIControlFactory::Get()->CreateQtCommandButtonMenu(std::move(opDefinition));
    if (!isBefore)
        pEvent->Add(&handler);
    handler.Once([&] {
        pDefinition->ClearMenuItems();
        pDefinition->AddMenuItem(makeEntry(L"b"));
        pDefinition->InsertMenuItem(0, makeEntry(L"c"));
    });

    pDefinition->AddMenuItem(makeEntry(L"a"));

    QStringList shown;
    for (const QAction* pAction : dynamic_cast<QToolButton&>(*opControl).menu()->actions())
        shown += pAction->text();
    QCOMPARE(shown, (QStringList{"c", "b"}));
}

void NestedChangesTest::lineEditShowsWhatTheHostMakesOfATypedText()
{
    QFETCH(bool, isBefore);
    Fixture<LineEditDefinition, QtLineEdit> f(isBefore);
    f.handler.Do([&f](const IControlDefinitionChangeEventArgs&) {
        if (f.pDefinition->GetText() == L"ab")
            f.pDefinition->SetText(L"AB");
    });

    QTest::keyClicks(f.opControl.Get(), "ab");

    QCOMPARE(f.opControl->text(), QString("AB"));
    QVERIFY(f.pDefinition->GetText() == L"AB");
}

void NestedChangesTest::controlMayDieWhileChangesWait()
{
    QFETCH(bool, isBefore);
    CheckBoxes f(isBefore);
    f.handler.Once([&f] {
        f.pDefinition->AddCheckBox(MakeBox(L"b"));
        f.pDefinition->DeleteCheckBox(0);
        f.opControl.Reset();
    });

    f.pDefinition->AddCheckBox(MakeBox(L"a"));

    QVERIFY(f.opControl == nullptr);
}

void NestedChangesTest::aHostThatThrowsLeavesTheControlInStep()
{
    QFETCH(bool, isBefore);
    ComboBox f(isBefore);
    f.handler.Once([&f] {
        f.handler.Once([] { throw std::logic_error("later"); });
        f.pDefinition->AddItem(L"b");
        f.pDefinition->SetCurrentIndex(1);
        throw std::runtime_error("host");
    });

    QVERIFY_EXCEPTION_THROWN(f.pDefinition->AddItem(L"a"), std::runtime_error);

    QCOMPARE(Displayed(*f.opControl), QString("a[b]"));
    f.pDefinition->InsertItem(0, L"c");
    QCOMPARE(Displayed(*f.opControl), QString("ca[b]"));
}

void NestedChangesTest::aControlMadeWhileChangesWaitHearsThemOnce()
{
    const HostFixture host;
    HostHandler handler;
    auto opDefinition = MakeOwner<ComboBoxDefinition>(L"id");
    ComboBoxDefinition* pDefinition = opDefinition.Get();
    pDefinition->GetControlDefinitionChangeEvent()->Add(&handler);
    OwnerPtr<QtComboBox> opControl;
    handler.Once([&] {
        pDefinition->AddItem(L"b");
        opControl = MakeOwner<QtComboBox>(std::move(opDefinition), nullptr);
        pDefinition->AddItem(L"c");
    });

    pDefinition->AddItem(L"a");

    QCOMPARE(Displayed(*opControl), QString("[a]bc"));
}

}

VESK_TESTS(vesk::test::NestedChangesTest);
#include "NestedChangesTest.moc"
