#pragma once

#include "Control/ButtonGroupDefinitions.h"
#include "Control/ChangeArgs.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/CommandButtonMenuFixture.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinitions.h"
#include "Control/ProgressBarDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Support/HostFixture.h"
#include "Support/KeptText.h"
#include "Support/MemberAccess.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtButton.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtLineEdit.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"
#include "WarningScript.h"

#include <QApplication>
#include <QChildEvent>
#include <QPointer>
#include <QVBoxLayout>

#include <memory>
#include <vector>

namespace vesk::test
{

VESK_EXPOSE(CheckBoxes, std::vector<QCheckBox*>, QtCheckBoxGroup, m_checkBoxes)
VESK_EXPOSE(RadioButtons, std::vector<QRadioButton*>, QtRadioButtonGroup, m_radioButtons)

inline VeskIControlFactory& Factory()
{
    return *VeskIControlFactory::Get();
}

/// A control in a window, both of which are destroyed while the first warning is on screen.
struct ReportingControl
{
    ReportingControl()
    {
        new QVBoxLayout(pParent.get());
        pParent->show();
        script.SetAct([this] { Destroy(); });
    }

    /// Owns a control in the window. The control does not survive anything it reports from now on.
    template <class Control>
    Control& Own(OwnerPtr<Control> opMade)
    {
        Control& control = *opMade;
        pVictim = dynamic_cast<QObject*>(&control);
        if (auto* pWidget = dynamic_cast<QWidget*>(pVictim.data()))
            pWidget->setParent(pParent.get());
        opControl = std::move(opMade);
        return control;
    }

    IControlDefinitionChangeEventHandler& Handler() const
    {
        return *dynamic_cast<IControlDefinitionChangeEventHandler*>(opControl.Get());
    }

    void Tell(int type, int index, const IControlDefinition* pItem) const
    {
        ChangeArgs args(type, index, pItem);
        Handler().On(&args);
    }

    void Destroy()
    {
        opControl.Reset();
        pParent.reset();
    }

    HostFixture host;
    WarningScript script;
    std::unique_ptr<QWidget> pParent = std::make_unique<QWidget>();
    OwnerPtr<IControl> opControl;
    QPointer<QObject> pVictim;
};

/// Removes the next child of a kind from its parent while it is being created, so that its creation
/// fails.
class ChildThief final : public QObject
{
public:
    explicit ChildThief(bool isWidgetWanted) : m_isWidgetWanted(isWidgetWanted)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (m_isDone || pEvent->type() != QEvent::ChildAdded)
            return QObject::eventFilter(pWatched, pEvent);
        QObject* pChild = static_cast<QChildEvent*>(pEvent)->child();
        if (pChild->isWidgetType() != m_isWidgetWanted || !pWatched->isWidgetType())
            return QObject::eventFilter(pWatched, pEvent);
        m_isDone = true;
        if (pChild->isWidgetType())
            static_cast<QWidget*>(pChild)->setParent(nullptr);
        else
            pChild->setParent(nullptr);
        return false;
    }

private:
    bool m_isWidgetWanted;
    bool m_isDone = false;
};

/// A container of entries, some of which may be missing.
struct LooseContainerDefinition final : ControlDefinition<IMenuItemContainerDefinition>
{
    LooseContainerDefinition() : ControlDefinition(L"Container") {}

    const std::wstring& GetIconPath() const override { return Kept(IconPath); }
    std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const override
    {
        return items;
    }

    std::vector<const IMenuItemDefinition*> items;
};

}
