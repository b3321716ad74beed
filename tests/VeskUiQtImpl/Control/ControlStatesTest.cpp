#include "Control/ButtonGroupDefinitions.h"
#include "Control/ChangeArgs.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/IControl.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/ProgressBarDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLineEdit>
#include <QPointer>
#include <QVBoxLayout>

#include <functional>
#include <utility>

namespace vesk::test
{
namespace
{

/// What a test needs to know of a control of any kind: the widget that shows the states, and the
/// definition they belong to.
struct ShownStates
{
    OwnerPtr<IControl> opControl;
    QPointer<QWidget> pWidget;
    std::function<void(bool)> setVisible;
    std::function<void(bool)> setEnabled;
};

template <class Definition>
ShownStates StatesOf(OwnerPtr<IControl> opControl, Definition* pShown, QWidget* pWidget)
{
    return {std::move(opControl), pWidget,
            [pShown](bool isVisible) { pShown->SetVisible(isVisible); },
            [pShown](bool isEnabled) { pShown->SetEnabled(isEnabled); }};
}

VeskIControlFactory& Factory()
{
    return *VeskIControlFactory::Get();
}

template <class Definition, class Interface, class... Args>
ShownStates MakeWidget(OwnerPtr<IControl> (VeskIControlFactory::*create)(OwnerPtr<Interface>),
                       QWidget& parent, Args&&... args)
{
    auto opDefinition = MakeOwner<Definition>(L"id", std::forward<Args>(args)...);
    Definition* pDefinition = opDefinition.Get();
    pDefinition->SetVisible(false);
    OwnerPtr<IControl> opControl = (Factory().*create)(std::move(opDefinition));
    auto* pWidget = dynamic_cast<QWidget*>(opControl.Get());
    pWidget->setParent(&parent);
    return StatesOf(std::move(opControl), pDefinition, pWidget);
}

using MakeStates = ShownStates (*)(QWidget& parent);

ShownStates MakeButton(QWidget& parent)
{
    return MakeWidget<CommandButtonDefinition>(&VeskIControlFactory::CreateQtButton, parent,
                                               L"Command");
}

ShownStates MakeLabel(QWidget& parent)
{
    return MakeWidget<LabelDefinition>(&VeskIControlFactory::CreateQtLabel, parent);
}

ShownStates MakeLineEdit(QWidget& parent)
{
    return MakeWidget<LineEditDefinition>(&VeskIControlFactory::CreateQtLineEdit, parent);
}

ShownStates MakeComboBox(QWidget& parent)
{
    return MakeWidget<ComboBoxDefinition>(&VeskIControlFactory::CreateQtComboBox, parent);
}

ShownStates MakeProgressBar(QWidget& parent)
{
    return MakeWidget<ProgressBarDefinition>(&VeskIControlFactory::CreateQtProgressBar, parent);
}

ShownStates MakeMenu(QWidget& parent)
{
    return MakeWidget<CommandButtonMenuDefinition>(&VeskIControlFactory::CreateQtCommandButtonMenu,
                                                   parent, L"Command");
}

ShownStates MakeCheckBox(QWidget& parent)
{
    auto opItem = MakeOwner<CheckBoxDefinition>(L"a", L"a");
    CheckBoxDefinition* pItem = opItem.Get();
    pItem->SetVisible(false);
    auto opDefinition = MakeOwner<CheckBoxGroupDefinition>(L"id");
    opDefinition->AddCheckBox(std::move(opItem));
    OwnerPtr<IControl> opGroup =
        Factory().CreateQtCheckBoxGroup(std::move(opDefinition), parent.winId());
    QWidget* pBox = dynamic_cast<QButtonGroup*>(opGroup.Get())->buttons().first();
    return StatesOf(std::move(opGroup), pItem, pBox);
}

ShownStates MakeRadioButton(QWidget& parent)
{
    auto opItem = MakeOwner<RadioButtonDefinition>(L"a", L"a");
    RadioButtonDefinition* pItem = opItem.Get();
    pItem->SetVisible(false);
    auto opDefinition = MakeOwner<RadioButtonGroupDefinition>(L"id");
    opDefinition->AddRadioButton(std::move(opItem));
    OwnerPtr<IControl> opGroup =
        Factory().CreateQtRadioButtonGroup(std::move(opDefinition), parent.winId());
    QWidget* pButton = dynamic_cast<QButtonGroup*>(opGroup.Get())->buttons().first();
    return StatesOf(std::move(opGroup), pItem, pButton);
}

/// Does something once when a widget gets an event of a given type, and records the events it gets.
class EventWatch final : public QObject
{
public:
    EventWatch(QWidget& widget, QEvent::Type type, std::function<void()> act)
        : m_pWidget(&widget), m_type(type), m_act(std::move(act))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        types += pEvent->type();
        if (pEvent->type() != m_type)
            return false;
        if (const auto act = std::exchange(m_act, nullptr))
            act();
        // Otherwise Qt would deliver the event to the destroyed widget.
        return m_pWidget == nullptr;
    }

    QList<QEvent::Type> types;

private:
    QPointer<QWidget> m_pWidget;
    QEvent::Type m_type;
    std::function<void()> m_act;
};

}

}

Q_DECLARE_METATYPE(vesk::test::MakeStates)

namespace vesk::test
{

/// How controls of all kinds show whether they are visible and enabled.
class ControlStatesTest : public QObject
{
    Q_OBJECT

private slots:
    void enabledStateIsReadAfterTheControlIsShown_data();
    void enabledStateIsReadAfterTheControlIsShown();
    void changeReadsTheEnabledStateAfterTheControlIsShown_data();
    void changeReadsTheEnabledStateAfterTheControlIsShown();
    void changeShowsBeforeItEnables_data();
    void changeShowsBeforeItEnables();
    void focusedEditThatIsHiddenAndThenDisabledStaysDisabled();
    void refreshDoesNotCompare_data();
    void refreshDoesNotCompare();
    void refreshShowsWhatWasNeverShown();
    void refreshShowsBeforeItEnables_data();
    void refreshShowsBeforeItEnables();
    void itemThatGoesWhileItsButtonIsShownIsAskedNothingMore();
    void controlMayDieWhileARefreshShowsIt_data();
    void controlMayDieWhileARefreshShowsIt();
};

void AddKinds()
{
    QTest::addColumn<MakeStates>("make");
    QTest::newRow("button") << MakeStates(&MakeButton);
    QTest::newRow("label") << MakeStates(&MakeLabel);
    QTest::newRow("line edit") << MakeStates(&MakeLineEdit);
    QTest::newRow("combo box") << MakeStates(&MakeComboBox);
    QTest::newRow("progress bar") << MakeStates(&MakeProgressBar);
    QTest::newRow("menu") << MakeStates(&MakeMenu);
    QTest::newRow("check box") << MakeStates(&MakeCheckBox);
    QTest::newRow("radio button") << MakeStates(&MakeRadioButton);
}

/// The kinds that apply their states on every change.
void AddKindsThatFollow()
{
    QTest::addColumn<MakeStates>("make");
    QTest::newRow("label") << MakeStates(&MakeLabel);
    QTest::newRow("line edit") << MakeStates(&MakeLineEdit);
    QTest::newRow("combo box") << MakeStates(&MakeComboBox);
    QTest::newRow("progress bar") << MakeStates(&MakeProgressBar);
    QTest::newRow("check box") << MakeStates(&MakeCheckBox);
    QTest::newRow("radio button") << MakeStates(&MakeRadioButton);
}

/// A shown window with a hidden control that does not follow changes: its definition may change
/// without any notification.
struct HiddenControl
{
    explicit HiddenControl(MakeStates make)
    {
        new QVBoxLayout(&parent);
        states = make(parent);
        states.opControl->UpdateStatus();
        parent.show();
        const auto* pSource = dynamic_cast<const IControlDefinitionChangeEventSource*>(
            states.opControl->GetControlDefinition());
        pSource->GetControlDefinitionChangeEvent()->Delete(
            dynamic_cast<IControlDefinitionChangeEventHandler*>(states.opControl.Get()));
    }

    /// Notifies the control of a change.
    void TellOfAChange() const
    {
        ChangeArgs args;
        dynamic_cast<IControlDefinitionChangeEventHandler*>(states.opControl.Get())->On(&args);
    }

    HostFixture host;
    QWidget parent;
    ShownStates states;
};

void ControlStatesTest::enabledStateIsReadAfterTheControlIsShown_data()
{
    AddKinds();
}

void ControlStatesTest::enabledStateIsReadAfterTheControlIsShown()
{
    QFETCH(MakeStates, make);
    HiddenControl f(make);
    f.states.setVisible(true);
    EventWatch watch(*f.states.pWidget, QEvent::ShowToParent, [&] { f.states.setEnabled(false); });

    f.states.opControl->UpdateStatus();

    QVERIFY(f.states.pWidget->isVisible());
    QVERIFY(!f.states.pWidget->isEnabled());
}

void ControlStatesTest::changeReadsTheEnabledStateAfterTheControlIsShown_data()
{
    AddKindsThatFollow();
}

void ControlStatesTest::changeReadsTheEnabledStateAfterTheControlIsShown()
{
    QFETCH(MakeStates, make);
    HiddenControl f(make);
    f.states.setVisible(true);
    EventWatch watch(*f.states.pWidget, QEvent::ShowToParent, [&] { f.states.setEnabled(false); });

    f.TellOfAChange();

    QVERIFY(f.states.pWidget->isVisible());
    QVERIFY(!f.states.pWidget->isEnabled());
}

void ControlStatesTest::changeShowsBeforeItEnables_data()
{
    AddKindsThatFollow();
}

void ControlStatesTest::changeShowsBeforeItEnables()
{
    QFETCH(MakeStates, make);
    HiddenControl f(make);
    f.states.setVisible(true);
    f.states.setEnabled(false);
    EventWatch watch(*f.states.pWidget, QEvent::None, {});

    f.TellOfAChange();

    const int shown = watch.types.indexOf(QEvent::ShowToParent);
    const int disabled = watch.types.indexOf(QEvent::EnabledChange);
    QVERIFY(shown >= 0);
    QVERIFY(disabled > shown);
}

void ControlStatesTest::focusedEditThatIsHiddenAndThenDisabledStaysDisabled()
{
    HiddenControl f(&MakeLineEdit);
    f.states.setVisible(true);
    f.states.opControl->UpdateStatus();
    QLineEdit other(&f.parent);
    other.show();
    f.parent.activateWindow();
    f.states.pWidget->setFocus();
    QTRY_VERIFY(f.states.pWidget->hasFocus());
    connect(qobject_cast<QLineEdit*>(f.states.pWidget), &QLineEdit::editingFinished, this,
            [&] { f.states.setEnabled(false); });
    f.states.setVisible(false);

    f.states.opControl->UpdateStatus();

    QVERIFY(f.states.pWidget->isHidden());
    QVERIFY(!f.states.pWidget->isEnabled());
}

void ControlStatesTest::refreshDoesNotCompare_data()
{
    AddKinds();
}

void ControlStatesTest::refreshDoesNotCompare()
{
    QFETCH(MakeStates, make);
    HiddenControl f(make);
    f.states.setVisible(true);
    f.states.opControl->UpdateStatus();
    f.parent.setEnabled(false);
    f.states.setEnabled(false);
    f.states.opControl->UpdateStatus();
    QVERIFY(f.states.pWidget->testAttribute(Qt::WA_ForceDisabled));
    f.parent.hide();
    f.states.setVisible(false);
    f.states.opControl->UpdateStatus();

    f.parent.setEnabled(true);
    f.parent.show();

    QVERIFY(!f.states.pWidget->isEnabled());
    QVERIFY(!f.states.pWidget->isVisible());
}

void ControlStatesTest::refreshShowsWhatWasNeverShown()
{
    QWidget parent;
    const OwnerPtr<IControl> opControl = Factory().CreateQtLabel(MakeOwner<LabelDefinition>(L"id"));
    auto* pWidget = dynamic_cast<QWidget*>(opControl.Get());
    pWidget->setParent(&parent);
    QVERIFY(!pWidget->isHidden());

    opControl->UpdateStatus();

    QVERIFY(pWidget->testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void ControlStatesTest::refreshShowsBeforeItEnables_data()
{
    AddKinds();
}

void ControlStatesTest::refreshShowsBeforeItEnables()
{
    QFETCH(MakeStates, make);
    HiddenControl f(make);
    f.states.setVisible(true);
    f.states.setEnabled(false);
    EventWatch watch(*f.states.pWidget, QEvent::None, {});

    f.states.opControl->UpdateStatus();

    const int shown = watch.types.indexOf(QEvent::ShowToParent);
    const int disabled = watch.types.indexOf(QEvent::EnabledChange);
    QVERIFY(shown >= 0);
    QVERIFY(disabled > shown);
}

void ControlStatesTest::itemThatGoesWhileItsButtonIsShownIsAskedNothingMore()
{
    HostFixture host;
    QWidget parent;
    new QVBoxLayout(&parent);
    auto opDefinition = MakeOwner<CheckBoxGroupDefinition>(L"id");
    CheckBoxGroupDefinition& definition = *opDefinition;
    definition.AddCheckBox(MakeOwner<CheckBoxDefinition>(L"a", L"a"));
    const OwnerPtr<IControl> opGroup =
        Factory().CreateQtCheckBoxGroup(std::move(opDefinition), parent.winId());
    QWidget* pBox = dynamic_cast<QButtonGroup*>(opGroup.Get())->buttons().first();
    parent.show();
    pBox->hide();
    EventWatch watch(*pBox, QEvent::ShowToParent, [&definition] { definition.ClearCheckBoxes(); });

    opGroup->UpdateStatus();

    QVERIFY(dynamic_cast<QButtonGroup*>(opGroup.Get())->buttons().isEmpty());
}

void ControlStatesTest::controlMayDieWhileARefreshShowsIt_data()
{
    AddKinds();
}

void ControlStatesTest::controlMayDieWhileARefreshShowsIt()
{
    QFETCH(MakeStates, make);
    HiddenControl f(make);
    const QPointer<QObject> pControl(dynamic_cast<QObject*>(f.states.opControl.Get()));
    f.states.setVisible(true);
    EventWatch watch(*f.states.pWidget, QEvent::ShowToParent, [&f] { f.states.opControl.Reset(); });
    IControl* pDying = f.states.opControl.Get();

    pDying->UpdateStatus();

    QVERIFY(pControl == nullptr);
}

}

VESK_TESTS(vesk::test::ControlStatesTest);
#include "ControlStatesTest.moc"
