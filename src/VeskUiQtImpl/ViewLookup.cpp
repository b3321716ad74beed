#include "VeskUiQtImpl/ViewLookup.h"

#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"

#include <QWidget>

namespace vesk
{

IUiView* FindCurrentView()
{
    const IUiDocumentViewManager* pViewManager = IUiDocumentViewManager::Get();
    return pViewManager != nullptr ? pViewManager->GetCurrentUiView() : nullptr;
}

IUiView* FindViewById(std::uint32_t id)
{
    const IUiDocumentViewManager* pViewManager = IUiDocumentViewManager::Get();
    return pViewManager != nullptr ? pViewManager->GetUiViewById(id) : nullptr;
}

QWidget* FindViewWidget(std::uint32_t id)
{
    const IUiView* pView = FindViewById(id);
    return pView != nullptr ? QWidget::find(pView->GetWindowId()) : nullptr;
}

}
