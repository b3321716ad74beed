#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/IControl.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/ProgressBarDefinition.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

#include <string>
#include <utility>

namespace vesk::test
{
namespace
{

/// What is visible of a control once it is complete: its name, its mark and how much it holds.
QString Describe(const QObject& control)
{
    QString text = control.objectName();
    if (control.property("IsDefinition").toBool())
        text += " marked";
    if (const auto* pGroup = qobject_cast<const QButtonGroup*>(&control))
        text += QString(" with %1").arg(pGroup->buttons().size());
    if (const auto* pButton = qobject_cast<const QToolButton*>(&control))
        text += pButton->menu() != nullptr ? " with a menu" : "";
    return text;
}

/// Uses a control as a user does.
void Use(QObject& control)
{
    if (auto* pButton = qobject_cast<QAbstractButton*>(&control))
        pButton->click();
    if (auto* pEdit = qobject_cast<QLineEdit*>(&control))
        pEdit->setText("used");
    if (auto* pBox = qobject_cast<QComboBox*>(&control))
        pBox->setCurrentIndex(1);
    if (auto* pGroup = qobject_cast<QButtonGroup*>(&control))
        pGroup->buttons().first()->click();
}

/// An event that records the state of controls as they subscribe or unsubscribe. It may use a
/// control as soon as that has subscribed.
class NotingEvent final : public IControlDefinitionChangeEvent
{
public:
    void Add(IControlDefinitionChangeEventHandler* pHandler) override
    {
        auto& control = dynamic_cast<QObject&>(*pHandler);
        notes << "added " + Describe(control);
        if (isUsing)
            Use(control);
    }

    void Delete(IControlDefinitionChangeEventHandler* pHandler) override
    {
        notes << "deleted " + Describe(dynamic_cast<QObject&>(*pHandler));
    }

    QStringList notes;
    bool isUsing = false;
};

/// A definition with such an event, which outlives it.
template <class Definition>
class Watched final : public Definition
{
public:
    template <class... Args>
    explicit Watched(NotingEvent& event, Args&&... args)
        : Definition(std::forward<Args>(args)...), m_event(event)
    {}

    IControlDefinitionChangeEvent* GetControlDefinitionChangeEvent() const override
    {
        return &m_event;
    }

private:
    NotingEvent& m_event;
};

VeskIControlFactory& Factory()
{
    return *VeskIControlFactory::Get();
}

OwnerPtr<IControl> MakeButton(NotingEvent& event, WindowId)
{
    return Factory().CreateQtButton(
        MakeOwner<Watched<CommandButtonDefinition>>(event, L"Id", L"Command"));
}

OwnerPtr<IControl> MakeLabel(NotingEvent& event, WindowId)
{
    return Factory().CreateQtLabel(MakeOwner<Watched<LabelDefinition>>(event, L"Id"));
}

OwnerPtr<IControl> MakeLineEdit(NotingEvent& event, WindowId)
{
    return Factory().CreateQtLineEdit(MakeOwner<Watched<LineEditDefinition>>(event, L"Id"));
}

OwnerPtr<IControl> MakeComboBox(NotingEvent& event, WindowId)
{
    auto opDefinition = MakeOwner<Watched<ComboBoxDefinition>>(event, L"Id");
    opDefinition->AddItem(L"a");
    opDefinition->AddItem(L"b");
    return Factory().CreateQtComboBox(std::move(opDefinition));
}

OwnerPtr<IControl> MakeProgressBar(NotingEvent& event, WindowId)
{
    return Factory().CreateQtProgressBar(MakeOwner<Watched<ProgressBarDefinition>>(event, L"Id"));
}

OwnerPtr<IControl> MakeMenu(NotingEvent& event, WindowId)
{
    return Factory().CreateQtCommandButtonMenu(
        MakeOwner<Watched<CommandButtonMenuDefinition>>(event, L"Id", L"Command"));
}

OwnerPtr<IControl> MakeCheckBoxes(NotingEvent& event, WindowId parentId)
{
    auto opDefinition = MakeOwner<Watched<CheckBoxGroupDefinition>>(event, L"Id");
    opDefinition->AddCheckBox(MakeOwner<CheckBoxDefinition>(L"a", L"a"));
    return Factory().CreateQtCheckBoxGroup(std::move(opDefinition), parentId);
}

OwnerPtr<IControl> MakeRadioButtons(NotingEvent& event, WindowId parentId)
{
    auto opDefinition = MakeOwner<Watched<RadioButtonGroupDefinition>>(event, L"Id");
    opDefinition->AddRadioButton(MakeOwner<RadioButtonDefinition>(L"a", L"a"));
    return Factory().CreateQtRadioButtonGroup(std::move(opDefinition), parentId);
}

using Make = OwnerPtr<IControl> (*)(NotingEvent& event, WindowId parentId);

/// Whether a definition was notified that its control was used.
using IsUsed = bool (*)(const IControlDefinition& definition);

bool IsButtonUsed(const IControlDefinition& definition)
{
    return dynamic_cast<const ICommandButtonDefinition&>(definition).IsChecked();
}

bool IsLineEditUsed(const IControlDefinition& definition)
{
    return dynamic_cast<const ILineEditDefinition&>(definition).GetText() == L"used";
}

bool IsComboBoxUsed(const IControlDefinition& definition)
{
    return dynamic_cast<const IComboBoxDefinition&>(definition).GetCurrentIndex() == 1;
}

bool IsCheckBoxUsed(const IControlDefinition& definition)
{
    const auto& group = dynamic_cast<const ICheckBoxGroupDefinition&>(definition);
    return group.GetCheckBoxDefinitions().front()->GetCheckState() == 2;
}

bool IsRadioButtonUsed(const IControlDefinition& definition)
{
    const auto& group = dynamic_cast<const IRadioButtonGroupDefinition&>(definition);
    return group.GetCurrentRadioButtonId() == L"a";
}

}

}

Q_DECLARE_METATYPE(vesk::test::Make)
Q_DECLARE_METATYPE(vesk::test::IsUsed)

namespace vesk::test
{

/// When controls of all kinds start and stop following their definition.
class ControlSubscriptionTest : public QObject
{
    Q_OBJECT

private slots:
    void subscribesOnceItIsCompleteAndWithdrawsOnce_data();
    void subscribesOnceItIsCompleteAndWithdrawsOnce();
    void hearsTheUserBeforeItSubscribes_data();
    void hearsTheUserBeforeItSubscribes();
};

void ControlSubscriptionTest::subscribesOnceItIsCompleteAndWithdrawsOnce_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("look");
    QTest::newRow("button") << Make(&MakeButton) << "Id marked";
    QTest::newRow("label") << Make(&MakeLabel) << "Id marked";
    QTest::newRow("line edit") << Make(&MakeLineEdit) << "Id marked";
    QTest::newRow("combo box") << Make(&MakeComboBox) << "Id marked";
    QTest::newRow("progress bar") << Make(&MakeProgressBar) << "Id marked";
    QTest::newRow("menu") << Make(&MakeMenu) << "Id marked with a menu";
    QTest::newRow("check boxes") << Make(&MakeCheckBoxes) << " marked with 1";
    QTest::newRow("radio buttons") << Make(&MakeRadioButtons) << " marked with 1";
}

void ControlSubscriptionTest::subscribesOnceItIsCompleteAndWithdrawsOnce()
{
    QFETCH(Make, make);
    QFETCH(QString, look);
    HostFixture host;
    QWidget parent;
    NotingEvent event;

    make(event, parent.winId()).Reset();

    QCOMPARE(event.notes, QStringList({"added " + look, "deleted " + look}));
}

void ControlSubscriptionTest::hearsTheUserBeforeItSubscribes_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<IsUsed>("isUsed");
    QTest::newRow("button") << Make(&MakeButton) << IsUsed(&IsButtonUsed);
    QTest::newRow("line edit") << Make(&MakeLineEdit) << IsUsed(&IsLineEditUsed);
    QTest::newRow("combo box") << Make(&MakeComboBox) << IsUsed(&IsComboBoxUsed);
    QTest::newRow("check boxes") << Make(&MakeCheckBoxes) << IsUsed(&IsCheckBoxUsed);
    QTest::newRow("radio buttons") << Make(&MakeRadioButtons) << IsUsed(&IsRadioButtonUsed);
}

void ControlSubscriptionTest::hearsTheUserBeforeItSubscribes()
{
    QFETCH(Make, make);
    QFETCH(IsUsed, isUsed);
    HostFixture host;
    host.AddCommand(L"Command", [](const CommandParameters&) {});
    QWidget parent;
    NotingEvent event;
    event.isUsing = true;

    const OwnerPtr<IControl> opControl = make(event, parent.winId());

    QVERIFY(isUsed(*opControl->GetControlDefinition()));
}

}

VESK_TESTS(vesk::test::ControlSubscriptionTest);
#include "ControlSubscriptionTest.moc"
