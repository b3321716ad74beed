#include "Command/ICommandManager.h"
#include "Control/ButtonGroupDefinitions.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/ProgressBarDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtComboBox.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QPointer>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <memory>

namespace vesk::test
{
namespace
{

/// What is visible of a definition from outside: its event, which outlives it, and its end.
struct Watch
{
    ControlDefinitionChangeEvent event{L"id"};
    bool isFreed = false;
    bool isHeardAtTheEnd = false;
};

template <class Definition>
class Watched final : public Definition
{
public:
    template <class... Args>
    explicit Watched(Watch& watch, Args&&... args)
        : Definition(std::forward<Args>(args)...), m_watch(watch)
    {}
    ~Watched() override
    {
        m_watch.isFreed = true;
        m_watch.isHeardAtTheEnd = !m_watch.event.IsEmpty();
    }

    IControlDefinitionChangeEvent* GetControlDefinitionChangeEvent() const override
    {
        return &m_watch.event;
    }

private:
    Watch& m_watch;
};

/// Creates a control for a watched definition, placed in the parent.
using Creation = OwnerPtr<IControl> (*)(Watch& watch, QWidget& parent);

OwnerPtr<IControl> Placed(OwnerPtr<IControl> opControl, QWidget& parent)
{
    dynamic_cast<QWidget*>(opControl.Get())->setParent(&parent);
    return opControl;
}

VeskIControlFactory& Factory()
{
    return *VeskIControlFactory::Get();
}

OwnerPtr<IControl> MakeButton(Watch& watch, QWidget& parent)
{
    return Placed(Factory().CreateQtButton(
                      MakeOwner<Watched<CommandButtonDefinition>>(watch, L"id", L"Command")),
                  parent);
}

OwnerPtr<IControl> MakeLabel(Watch& watch, QWidget& parent)
{
    return Placed(Factory().CreateQtLabel(MakeOwner<Watched<LabelDefinition>>(watch, L"id")),
                  parent);
}

OwnerPtr<IControl> MakeLineEdit(Watch& watch, QWidget& parent)
{
    return Placed(Factory().CreateQtLineEdit(MakeOwner<Watched<LineEditDefinition>>(watch, L"id")),
                  parent);
}

OwnerPtr<IControl> MakeComboBox(Watch& watch, QWidget& parent)
{
    return Placed(Factory().CreateQtComboBox(MakeOwner<Watched<ComboBoxDefinition>>(watch, L"id")),
                  parent);
}

OwnerPtr<IControl> MakeProgressBar(Watch& watch, QWidget& parent)
{
    return Placed(
        Factory().CreateQtProgressBar(MakeOwner<Watched<ProgressBarDefinition>>(watch, L"id")),
        parent);
}

OwnerPtr<IControl> MakeMenu(Watch& watch, QWidget& parent)
{
    auto opDefinition = MakeOwner<Watched<CommandButtonMenuDefinition>>(watch, L"id", L"Command");
    opDefinition->AddMenuItem(MakeOwner<CommandMenuItemDefinition>(L"item", L"Command", L"item"));
    return Placed(Factory().CreateQtCommandButtonMenu(std::move(opDefinition)), parent);
}

OwnerPtr<IControl> MakeCheckBoxes(Watch& watch, QWidget& parent)
{
    auto opDefinition = MakeOwner<Watched<CheckBoxGroupDefinition>>(watch, L"id");
    opDefinition->AddCheckBox(MakeOwner<CheckBoxDefinition>(L"a", L"a"));
    return Factory().CreateQtCheckBoxGroup(std::move(opDefinition), parent.winId());
}

OwnerPtr<IControl> MakeRadioButtons(Watch& watch, QWidget& parent)
{
    auto opDefinition = MakeOwner<Watched<RadioButtonGroupDefinition>>(watch, L"id");
    opDefinition->AddRadioButton(MakeOwner<RadioButtonDefinition>(L"a", L"a"));
    return Factory().CreateQtRadioButtonGroup(std::move(opDefinition), parent.winId());
}

void AddKinds()
{
    QTest::addColumn<Creation>("create");
    QTest::newRow("button") << Creation(&MakeButton);
    QTest::newRow("label") << Creation(&MakeLabel);
    QTest::newRow("line edit") << Creation(&MakeLineEdit);
    QTest::newRow("combo box") << Creation(&MakeComboBox);
    QTest::newRow("progress bar") << Creation(&MakeProgressBar);
    QTest::newRow("command button menu") << Creation(&MakeMenu);
    QTest::newRow("check boxes") << Creation(&MakeCheckBoxes);
    QTest::newRow("radio buttons") << Creation(&MakeRadioButtons);
}

}

}

Q_DECLARE_METATYPE(vesk::test::Creation)

namespace vesk::test
{

namespace
{

/// Does something once, at the next change.
struct OnChange final : IControlDefinitionChangeEventHandler
{
    void On(IControlDefinitionChangeEventArgs*) override
    {
        if (const auto once = std::exchange(act, nullptr))
            once();
    }

    std::function<void()> act;
};

/// Deletes a control when it is hidden, as a host that is notified of it may do.
class HideWatcher final : public QObject
{
public:
    explicit HideWatcher(OwnerPtr<QtComboBox>& opBox) : m_opBox(opBox) {}

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() != QEvent::HideToParent)
            return QObject::eventFilter(pWatched, pEvent);
        m_opBox.Reset();
        return true;
    }

private:
    OwnerPtr<QtComboBox>& m_opBox;
};

/// A group of three check boxes in a shown window.
struct CheckBoxFixture
{
    CheckBoxFixture()
    {
        auto opDefinition = MakeOwner<CheckBoxGroupDefinition>(L"id");
        pDefinition = opDefinition.Get();
        for (const wchar_t* pId : {L"a", L"b", L"c"})
            pDefinition->AddCheckBox(MakeOwner<CheckBoxDefinition>(pId, pId));
        pDefinition->GetControlDefinitionChangeEvent()->Add(&onChange);
        opGroup = MakeOwner<QtCheckBoxGroup>(std::move(opDefinition), &parent);
        for (QCheckBox* pBox : opGroup->GetAllControls())
            pLayout->addWidget(pBox);
        parent.show();
    }

    QCheckBox& GetBox(std::size_t index) const { return *opGroup->GetAllControls().at(index); }

    HostFixture host;
    QWidget parent;
    QVBoxLayout* pLayout = new QVBoxLayout(&parent);
    OnChange onChange;
    CheckBoxGroupDefinition* pDefinition;
    OwnerPtr<QtCheckBoxGroup> opGroup;
};

}

/// Destruction of controls: what holds for all kinds, and for those with items.
class ItemControlLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void isUnsubscribedBeforeItsDefinitionIsFreed_data() { AddKinds(); }
    void isUnsubscribedBeforeItsDefinitionIsFreed();
    void eventThatOutlivesTheControlReachesNobody_data() { AddKinds(); }
    void eventThatOutlivesTheControlReachesNobody();
    void controlMayDieBeforeItsParent_data() { AddKinds(); }
    void controlMayDieBeforeItsParent();
    void parentThatWasGivenTheControlTakesItAlong_data() { AddKinds(); }
    void parentThatWasGivenTheControlTakesItAlong();
    void weakReferencesSeeTheEnd_data() { AddKinds(); }
    void weakReferencesSeeTheEnd();
    void buttonsOutliveTheirGroupAndReachNobody();
    void checkBoxGroupMayDieInAClick();
    void radioButtonGroupMayDieInAClick();
    void groupMayDieWhileStatesAreApplied();
    void itemsMayGoWhileStatesAreApplied();
    void itemsMayComeWhileStatesAreApplied();
    void comboBoxMayDieWhileItIsHidden();
    void menuMayDieInTheCommandOfAnEntry();
    void menuMayDieInTheCommandOfItsMainPart();
};

void ItemControlLifetimeTest::isUnsubscribedBeforeItsDefinitionIsFreed()
{
    QFETCH(Creation, create);
    HostFixture host;
    QWidget parent;
    Watch watch;
    OwnerPtr<IControl> opControl = create(watch, parent);
    QVERIFY(!watch.event.IsEmpty());

    opControl.Reset();

    QVERIFY(watch.isFreed);
    QVERIFY(!watch.isHeardAtTheEnd);
}

void ItemControlLifetimeTest::eventThatOutlivesTheControlReachesNobody()
{
    QFETCH(Creation, create);
    HostFixture host;
    QWidget parent;
    Watch watch;
    create(watch, parent).Reset();

    watch.event.RaisePropertyChanged();
    watch.event.RaiseItemsChanged(ControlDefinitionChangeEventType::Clear, -1, {}, nullptr);

    QVERIFY(watch.event.IsEmpty());
}

void ItemControlLifetimeTest::controlMayDieBeforeItsParent()
{
    QFETCH(Creation, create);
    HostFixture host;
    QWidget parent;
    Watch watch;
    OwnerPtr<IControl> opControl = create(watch, parent);
    const QPointer<QObject> pObject(dynamic_cast<QObject*>(opControl.Get()));
    parent.show();

    opControl.Reset();

    QVERIFY(pObject == nullptr);
    QVERIFY(parent.isVisible());
}

void ItemControlLifetimeTest::parentThatWasGivenTheControlTakesItAlong()
{
    QFETCH(Creation, create);
    HostFixture host;
    auto pParent = std::make_unique<QWidget>();
    Watch watch;
    OwnerPtr<IControl> opControl = create(watch, *pParent);
    pParent->show();
    opControl.Release();

    pParent.reset();

    QVERIFY(watch.isFreed);
    QVERIFY(!watch.isHeardAtTheEnd);
}

void ItemControlLifetimeTest::weakReferencesSeeTheEnd()
{
    QFETCH(Creation, create);
    HostFixture host;
    QWidget parent;
    Watch watch;
    OwnerPtr<IControl> opControl = create(watch, parent);
    const WeakReference<IControl> control(opControl.Get());
    const WeakReference<IControlDefinitionChangeEventHandler> handler(
        dynamic_cast<IControlDefinitionChangeEventHandler*>(opControl.Get()));
    QVERIFY(control.Get() != nullptr);
    QVERIFY(handler.Get() != nullptr);

    opControl.Reset();

    QVERIFY(control.Get() == nullptr);
    QVERIFY(handler.Get() == nullptr);
}

void ItemControlLifetimeTest::buttonsOutliveTheirGroupAndReachNobody()
{
    CheckBoxFixture f;
    const QPointer<QCheckBox> pBox(&f.GetBox(0));

    f.opGroup.Reset();
    QVERIFY(pBox != nullptr);
    pBox->click();

    QVERIFY(pBox->isChecked());
    QVERIFY(pBox->group() == nullptr);
}

void ItemControlLifetimeTest::checkBoxGroupMayDieInAClick()
{
    CheckBoxFixture f;
    QCheckBox& box = f.GetBox(0);
    f.onChange.act = [&] { f.opGroup.Reset(); };

    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));

    QVERIFY(f.opGroup == nullptr);
    QVERIFY(box.isChecked());
    QVERIFY(!ControlDefinitionChangeByUser::IsChangeByUser(L"id"));
}

void ItemControlLifetimeTest::radioButtonGroupMayDieInAClick()
{
    HostFixture host;
    QWidget parent;
    OnChange onChange;
    auto opDefinition = MakeOwner<RadioButtonGroupDefinition>(L"id");
    opDefinition->AddRadioButton(MakeOwner<RadioButtonDefinition>(L"a", L"a"));
    opDefinition->GetControlDefinitionChangeEvent()->Add(&onChange);
    auto opGroup = MakeOwner<QtRadioButtonGroup>(std::move(opDefinition), &parent);
    QRadioButton& button = *opGroup->GetAllControls().front();
    onChange.act = [&] { opGroup.Reset(); };
    parent.show();

    button.click();

    QVERIFY(opGroup == nullptr);
    QVERIFY(button.isChecked());
    QVERIFY(!ControlDefinitionChangeByUser::IsChangeByUser(L"id"));
    QVERIFY(!RadioButtonGroupStateChangeFlag::m_stateChangeByUser);
}

void ItemControlLifetimeTest::groupMayDieWhileStatesAreApplied()
{
    CheckBoxFixture f;
    const QPointer<QCheckBox> pNext(&f.GetBox(1));
    connect(&f.GetBox(0), &QCheckBox::stateChanged, this, [&] { f.opGroup.Reset(); });

    f.pDefinition->Find(L"a")->SetCheckState(2);

    QVERIFY(f.opGroup == nullptr);
    QVERIFY(pNext != nullptr);
}

void ItemControlLifetimeTest::itemsMayGoWhileStatesAreApplied()
{
    CheckBoxFixture f;
    connect(&f.GetBox(0), &QCheckBox::stateChanged, this,
            [&] { f.pDefinition->ClearCheckBoxes(); });

    f.pDefinition->Find(L"a")->SetCheckState(2);

    QVERIFY(f.opGroup->GetAllControls().empty());
}

void ItemControlLifetimeTest::itemsMayComeWhileStatesAreApplied()
{
    CheckBoxFixture f;
    connect(&f.GetBox(0), &QCheckBox::stateChanged, this,
            [&] { f.pDefinition->InsertCheckBox(0, MakeOwner<CheckBoxDefinition>(L"x", L"x")); });

    f.pDefinition->Find(L"a")->SetCheckState(2);

    QCOMPARE(f.opGroup->GetAllControls().size(), std::size_t(4));
    QVERIFY(f.GetBox(1).isChecked());
    QVERIFY(!f.GetBox(2).isChecked());
}

void ItemControlLifetimeTest::comboBoxMayDieWhileItIsHidden()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<ComboBoxDefinition>(L"id");
    ComboBoxDefinition* pDefinition = opDefinition.Get();
    auto opBox = MakeOwner<QtComboBox>(std::move(opDefinition), &parent);
    parent.show();
    HideWatcher watcher(opBox);
    opBox->installEventFilter(&watcher);

    pDefinition->SetVisible(false);

    QVERIFY(opBox == nullptr);
}

void ItemControlLifetimeTest::menuMayDieInTheCommandOfAnEntry()
{
    HostFixture host;
    QWidget parent;
    Watch watch;
    OwnerPtr<IControl> opMenu = MakeMenu(watch, parent);
    host.AddCommand(L"Command", [&](const CommandParameters&) { opMenu.Reset(); });

    dynamic_cast<QToolButton*>(opMenu.Get())->menu()->actions().first()->trigger();

    QVERIFY(watch.isFreed);
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
}

void ItemControlLifetimeTest::menuMayDieInTheCommandOfItsMainPart()
{
    HostFixture host;
    QWidget parent;
    Watch watch;
    OwnerPtr<IControl> opMenu = MakeMenu(watch, parent);
    host.AddCommand(L"Command", [&](const CommandParameters&) { opMenu.Reset(); });

    dynamic_cast<QToolButton*>(opMenu.Get())->click();

    QVERIFY(watch.isFreed);
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
}

}

VESK_TESTS(vesk::test::ItemControlLifetimeTest);
#include "ItemControlLifetimeTest.moc"
