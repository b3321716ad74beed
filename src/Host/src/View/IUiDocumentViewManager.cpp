#include "View/IUiDocumentViewManager.h"

#include "View/IUiView.h"

#include <algorithm>

namespace vesk
{

namespace
{

IUiDocumentViewManager* s_pViewManager = nullptr;

}

IUiDocumentViewManager* IUiDocumentViewManager::Get()
{
    return s_pViewManager;
}

void IUiDocumentViewManager::Set(IUiDocumentViewManager* pManager)
{
    s_pViewManager = pManager;
}

UiDocumentViewManager::UiDocumentViewManager()
{
    Set(this);
}

UiDocumentViewManager::~UiDocumentViewManager()
{
    if (Get() == this)
        Set(nullptr);
}

IUiView* UiDocumentViewManager::FindCurrentView()
{
    return s_pViewManager != nullptr ? s_pViewManager->GetCurrentUiView() : nullptr;
}

IUiView* UiDocumentViewManager::GetCurrentUiView() const
{
    return m_pCurrent;
}

IUiView* UiDocumentViewManager::GetUiViewById(std::uint32_t id) const
{
    const auto found = std::find_if(m_views.begin(), m_views.end(),
                                    [id](const IUiView* pView) { return pView->GetId() == id; });
    return found != m_views.end() ? *found : nullptr;
}

void UiDocumentViewManager::AddView(IUiView* pView)
{
    const bool isKnown = std::find(m_views.begin(), m_views.end(), pView) != m_views.end();
    if (pView == nullptr || isKnown)
        return;
    m_views.push_back(pView);
    if (m_views.size() == 1)
        m_pCurrent = pView;
}

void UiDocumentViewManager::RemoveView(IUiView* pView)
{
    const auto found = std::find(m_views.begin(), m_views.end(), pView);
    if (found == m_views.end())
        return;
    m_views.erase(found);
    if (m_pCurrent == pView)
        m_pCurrent = m_views.empty() ? nullptr : m_views.front();
}

void UiDocumentViewManager::SetCurrentView(IUiView* pView)
{
    const bool isKnown = std::find(m_views.begin(), m_views.end(), pView) != m_views.end();
    if (pView == nullptr || isKnown)
        m_pCurrent = pView;
}

}
