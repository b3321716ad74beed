#include "HostUi/ControlHost.h"

#include "Command/ActionManager.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/IControl.h"
#include "Control/ILabelDefinition.h"
#include "Control/ILineEditDefinition.h"
#include "Control/VeskIControlFactory.h"

#include <QThread>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>

namespace vesk
{
namespace
{

constexpr std::chrono::milliseconds RetryInterval{20};

bool IsSafeToDestroy()
{
    return QThread::currentThread()->loopLevel() <= 1 &&
           ActionManager::GetRunningCommandId().empty();
}

}

ControlHost::ControlHost()
{
    m_destroyLater.setInterval(RetryInterval);
    QObject::connect(&m_destroyLater, &QTimer::timeout, &m_destroyLater,
                     [this] { DestroyRemoved(); });
    IControlStatusRefresher::Set(this);
}

ControlHost::~ControlHost()
{
    IControlStatusRefresher::Set(nullptr);
}

QWidget* ControlHost::Create(OwnerPtr<CommandButtonDefinition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    return pFactory != nullptr ? Adopt(pFactory->CreateQtButton(std::move(opDefinition))) : nullptr;
}

QWidget* ControlHost::Create(OwnerPtr<ILabelDefinition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    return pFactory != nullptr ? Adopt(pFactory->CreateQtLabel(std::move(opDefinition))) : nullptr;
}

QWidget* ControlHost::Create(OwnerPtr<ILineEditDefinition> opDefinition)
{
    VeskIControlFactory* pFactory = VeskIControlFactory::Get();
    return pFactory != nullptr ? Adopt(pFactory->CreateQtLineEdit(std::move(opDefinition)))
                               : nullptr;
}

void ControlHost::RefreshControls()
{
    // By index: a definition's event may bring a new control.
    for (std::size_t i = 0; i < m_controls.size(); ++i)
    {
        IControl* pControl = m_controls[i].Get();
        RefreshCommandButton(*pControl);
        pControl->UpdateStatus();
    }
}

void ControlHost::Remove(const std::wstring& definitionId)
{
    const auto found = std::find_if(
        m_controls.begin(), m_controls.end(), [&definitionId](const OwnerPtr<IControl>& opControl) {
            return opControl->GetControlDefinition() != nullptr &&
                   opControl->GetControlDefinition()->GetId() == definitionId;
        });
    if (found == m_controls.end())
        return;
    m_removed.push_back(std::move(*found));
    m_controls.erase(found);
    if (QWidget* pWidget = dynamic_cast<QWidget*>(m_removed.back().Get()))
        pWidget->hide();
    m_destroyLater.start();
}

QWidget* ControlHost::Adopt(OwnerPtr<IControl> opControl)
{
    QWidget* pWidget = dynamic_cast<QWidget*>(opControl.Get());
    if (pWidget == nullptr)
        return nullptr;
    m_controls.push_back(std::move(opControl));
    return pWidget;
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
    if (!IsSafeToDestroy())
        return;
    m_destroyLater.stop();
    m_removed.clear();
}

}
