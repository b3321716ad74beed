#include "HostUi/ControlHost.h"

#include "Command/ActionManager.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/ControlDefinitionChangeEvent.h"
#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IComboBoxDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/IControl.h"
#include "Control/ILabelDefinition.h"
#include "Control/ILineEditDefinition.h"
#include "Control/IProgressBarDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Controls/GroupFocus.h"
#include "Controls/WheelGuard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QCursor>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPalette>
#include <QThread>
#include <QToolButton>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <utility>

namespace vesk
{
namespace
{

constexpr std::chrono::milliseconds RetryInterval{20};

/// Gives the menus of a button dark text: their background is white whatever the palette.
void WriteMenusInDark(QToolButton& button)
{
    QPalette palette = button.palette();
    for (const QPalette::ColorRole role :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, Qt::gray);
    }
    for (QMenu* pMenu : button.findChildren<QMenu*>())
        pMenu->setPalette(palette);
}

/// Tells a button that the mouse has left it while its menu was open: nobody else does, and it
/// would stay lit.
void NoteWhereTheMouseIs(QToolButton& button)
{
    if (button.rect().contains(button.mapFromGlobal(QCursor::pos())))
        return;
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&button, &leave);
}

/// Holds the buttons of a group.
class GroupPanel final : public QWidget
{
public:
    GroupPanel()
    {
        auto* pLayout = new QHBoxLayout(this);
        pLayout->setContentsMargins(0, 0, 0, 0);
    }

    /// The native window is only needed to create the group; as a child it would not be clipped.
    void DropNativeWindow()
    {
        setAttribute(Qt::WA_NativeWindow, false);
        destroy();
    }

    void Place(const QList<QAbstractButton*>& buttons)
    {
        auto* pLayout = static_cast<QHBoxLayout*>(layout());
        for (QAbstractButton* pButton : buttons)
            pLayout->addWidget(pButton);
        pLayout->addStretch();
    }
};

/// The event of a group that may not know the items of its definition yet; it adopts their states
/// on the property change that follows. Null if it knows them.
ControlDefinitionChangeEvent* FindEventThatTellsItems(const IControl& control)
{
    if (dynamic_cast<const QButtonGroup*>(&control) == nullptr)
        return nullptr;
    const auto* pSource =
        dynamic_cast<const IControlDefinitionChangeEventSource*>(control.GetControlDefinition());
    auto* pEvent = pSource != nullptr ? dynamic_cast<ControlDefinitionChangeEvent*>(
                                            pSource->GetControlDefinitionChangeEvent())
                                      : nullptr;
    return pEvent != nullptr && pEvent->IsTellingItems() ? pEvent : nullptr;
}

}

ControlHost::ControlHost()
{
    m_destroyLater.setInterval(RetryInterval);
    QObject::connect(&m_destroyLater, &QTimer::timeout, &m_destroyLater,
                     [this] { DestroyRemoved(); });
    QObject::connect(qApp, &QApplication::focusChanged, &m_destroyLater,
                     [](QWidget*, const QWidget* pNow) {
                         if (pNow != nullptr)
                             OpenGroupToTab(*pNow);
                     });
    IControlStatusRefresher::Set(this);
}

ControlHost::~ControlHost()
{
    IControlStatusRefresher::Set(nullptr);
}

QWidget* ControlHost::Create(OwnerPtr<CommandButtonDefinition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    return pFactory != nullptr ? Add(pFactory->CreateQtButton(std::move(opDefinition))) : nullptr;
}

QWidget* ControlHost::Create(OwnerPtr<ILabelDefinition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    return pFactory != nullptr ? Add(pFactory->CreateQtLabel(std::move(opDefinition))) : nullptr;
}

QWidget* ControlHost::Create(OwnerPtr<ILineEditDefinition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    return pFactory != nullptr ? Add(pFactory->CreateQtLineEdit(std::move(opDefinition))) : nullptr;
}

QWidget* ControlHost::Create(OwnerPtr<IComboBoxDefinition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    return pFactory != nullptr ? Add(pFactory->CreateQtComboBox(std::move(opDefinition))) : nullptr;
}

QWidget* ControlHost::Create(OwnerPtr<IProgressBarDefinition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    return pFactory != nullptr ? Add(pFactory->CreateQtProgressBar(std::move(opDefinition)))
                               : nullptr;
}

QWidget* ControlHost::Create(OwnerPtr<ICommandButtonMenuDefinition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    if (pFactory == nullptr)
        return nullptr;
    auto* pButton = qobject_cast<QToolButton*>(
        Add(pFactory->CreateQtCommandButtonMenu(std::move(opDefinition))));
    if (pButton == nullptr || pButton->menu() == nullptr)
        return pButton;
    QObject::connect(pButton->menu(), &QMenu::aboutToShow, pButton,
                     [pButton] { WriteMenusInDark(*pButton); });
    QObject::connect(pButton->menu(), &QMenu::aboutToHide, pButton,
                     [pButton] { NoteWhereTheMouseIs(*pButton); });
    return pButton;
}

QWidget* ControlHost::Create(OwnerPtr<ICheckBoxGroupDefinition> opDefinition)
{
    return CreateGroup(&VeskIControlFactory::CreateQtCheckBoxGroup, std::move(opDefinition));
}

QWidget* ControlHost::Create(OwnerPtr<IRadioButtonGroupDefinition> opDefinition)
{
    return CreateGroup(&VeskIControlFactory::CreateQtRadioButtonGroup, std::move(opDefinition));
}

QWidget* ControlHost::Add(OwnerPtr<IControl> opControl)
{
    auto* pWidget = dynamic_cast<QWidget*>(opControl.Get());
    if (pWidget == nullptr)
        return nullptr;
    WheelGuard::Protect(*pWidget);
    m_controls.push_back({std::move(opControl), pWidget});
    return pWidget;
}

void ControlHost::RefreshControls()
{
    // By index: a definition's event may add a control.
    for (std::size_t i = 0; i < m_controls.size(); ++i)
    {
        IControl* pControl = m_controls[i].opControl.Get();
        RefreshCommandButton(*pControl);
        ControlDefinitionChangeEvent* pEvent = FindEventThatTellsItems(*pControl);
        if (pEvent != nullptr)
            pEvent->RaisePropertyChanged();
        else
            pControl->UpdateStatus();
    }
}

std::vector<IControlDefinition*> ControlHost::GetDefinitions() const
{
    std::vector<IControlDefinition*> definitions;
    for (const Placed& placed : m_controls)
    {
        if (IControlDefinition* pDefinition = placed.opControl->GetControlDefinition())
            definitions.push_back(pDefinition);
    }
    return definitions;
}

void ControlHost::Remove(const std::wstring& definitionId)
{
    const auto found =
        std::find_if(m_controls.begin(), m_controls.end(), [&definitionId](const Placed& placed) {
            const IControlDefinition* pDefinition = placed.opControl->GetControlDefinition();
            return pDefinition != nullptr && pDefinition->GetId() == definitionId;
        });
    if (found == m_controls.end())
        return;
    if (m_pRemovalObserver != nullptr)
        m_pRemovalObserver->OnControlRemoved(*found->opControl->GetControlDefinition());
    m_removed.push_back(std::move(*found));
    m_controls.erase(found);
    if (m_removed.back().pWidget != nullptr)
        m_removed.back().pWidget->hide();
    m_destroyLater.start();
}

bool ControlHost::CanRemoveAll()
{
    return QThread::currentThread()->loopLevel() <= 1 &&
           ActionManager::GetRunningCommandId().empty();
}

void ControlHost::RemoveAll()
{
    for (const IControlDefinition* pDefinition : GetDefinitions())
    {
        if (m_pRemovalObserver != nullptr)
            m_pRemovalObserver->OnControlRemoved(*pDefinition);
    }
    std::move(m_controls.begin(), m_controls.end(), std::back_inserter(m_removed));
    m_controls.clear();
    DestroyRemoved();
}

template <class Definition>
QWidget* ControlHost::CreateGroup(
    OwnerPtr<IControl> (VeskIControlFactory::*create)(OwnerPtr<Definition>, WindowId),
    OwnerPtr<Definition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    if (pFactory == nullptr)
        return nullptr;
    auto pPanel = std::make_unique<GroupPanel>();
    OwnerPtr<IControl> opControl = (pFactory->*create)(std::move(opDefinition), pPanel->winId());
    const auto* pGroup = dynamic_cast<const QButtonGroup*>(opControl.Get());
    if (pGroup == nullptr)
        return nullptr;
    pPanel->Place(pGroup->buttons());
    pPanel->DropNativeWindow();
    m_controls.push_back({std::move(opControl), pPanel.get()});
    return pPanel.release();
}

void ControlHost::RefreshCommandButton(IControl& control)
{
    auto* pDefinition = dynamic_cast<CommandButtonDefinition*>(control.GetControlDefinition());
    if (pDefinition == nullptr)
        return;
    const std::wstring commandId = pDefinition->GetCommandId();
    const ICommand* pCommand = ICommandManager::Get()->GetCommand(commandId);
    pDefinition->SetEnabled(pCommand != nullptr && pCommand->IsEnabled());
    pDefinition->SetVisible(pCommand != nullptr && pCommand->IsVisible());
    pDefinition->SetChecked(commandId == ActionManager::GetRunningCommandId());
}

void ControlHost::DestroyRemoved()
{
    if (!CanRemoveAll())
        return;
    m_destroyLater.stop();
    // A control is destroyed before what holds it: a group before its panel.
    for (Placed& removed : m_removed)
    {
        removed.opControl.Reset();
        delete removed.pWidget;
    }
    m_removed.clear();
}

}
