#include "VeskUiQtImpl/NqUiQtImplFactory.h"

#include "Dock/IDockManager.h"
#include "Dock/IPropertyWidget.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/DebugWarningDialogDisplayer.h"
#include "View/IUiManager.h"

namespace vesk
{

NqUiQtImplFactory::NqUiQtImplFactory()
{
    m_pFactory = this;
}

IPropertyWidget* NqUiQtImplFactory::GetPropertyWidget()
{
    constexpr char Function[] = "vesk::NqUiQtImplFactory::GetPropertyWidget";
    const IUiManager* pUiManager = IUiManager::Get();
    if (!Check(pUiManager != nullptr, VESK_SITE(Function, L"pUiManager为空")))
        return nullptr;
    IDockManager* pDockManager = pUiManager->GetDockManager();
    if (!Check(pDockManager != nullptr, VESK_SITE(Function, L"pDockManager为空")))
        return nullptr;

    const IDock* pDock = pDockManager->GetDock(IPropertyWidget::GetTypeName());
    return pDock != nullptr ? dynamic_cast<IPropertyWidget*>(pDock->GetWidget()) : nullptr;
}

OwnerPtr<IDebugWarningDialogDisplayer> NqUiQtImplFactory::CreateDebugWarningDialogDisplayer()
{
    return MakeOwner<DebugWarningDialogDisplayer>();
}

}
