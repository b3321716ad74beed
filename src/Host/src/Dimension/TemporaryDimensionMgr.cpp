#include "Dimension/TemporaryDimensionMgr.h"

#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Foundation/FirstException.h"
#include "Foundation/ScopedValue.h"
#include "Graphics/IGraphicsNode.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"

#include <utility>

namespace vesk
{

namespace
{

void ActivateView()
{
    if (IUiView* pView = UiDocumentViewManager::FindCurrentView())
        pView->Activate();
}

}

/// A call into a handler: a handler dropped meanwhile is freed after the outermost call.
class TemporaryDimensionMgr::Call
{
public:
    explicit Call(TemporaryDimensionMgr& manager) : m_manager(manager) { ++m_manager.m_callDepth; }

    ~Call()
    {
        if (--m_manager.m_callDepth != 0)
            return;
        std::exchange(m_manager.m_retired, {}).clear();
        std::exchange(m_manager.m_retiredContexts, {}).clear();
    }

    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

private:
    TemporaryDimensionMgr& m_manager;
};

TemporaryDimensionMgr* TemporaryDimensionMgr::GetInstance()
{
    // Never destroyed: the library of the handlers may be unloaded at process exit.
    static TemporaryDimensionMgr* const s_pManager = new TemporaryDimensionMgr;
    return s_pManager;
}

void TemporaryDimensionMgr::SetHandlerFactory(ITemporaryDimensionHandlerFactory* pFactory)
{
    if (pFactory == m_pFactory)
        return;
    // Reset first, so that nothing that happens while the handler is dropped can create a new one.
    m_pFactory = nullptr;
    FirstException exception;
    exception.Catch([this] { Drop(); });
    m_pFactory = pFactory;
    exception.Throw();
}

void TemporaryDimensionMgr::SetHandlerAccess(ITemporaryDimensionHandlerAccess* pAccess)
{
    m_pAccess = pAccess;
}

void TemporaryDimensionMgr::SetContext(OwnerPtr<ITemporaryDimensionContext> opContext)
{
    if (opContext == nullptr)
    {
        Drop();
        return;
    }
    if (m_pFactory == nullptr)
        return;
    const Call call(*this);
    OwnerPtr<ITemporaryDimensionHandler> opNew =
        m_pFactory->UpdateOrCreateHandler(opContext.Get(), m_opHandler.Get());
    if (opNew != nullptr)
        Replace(std::move(opNew));
    Regenerate(std::move(opContext));
}

void TemporaryDimensionMgr::Regenerate(OwnerPtr<ITemporaryDimensionContext> opContext)
{
    if (opContext == nullptr || m_opHandler == nullptr)
        return;
    const Call call(*this);
    Keep(std::move(opContext));
    Regenerate();
}

void TemporaryDimensionMgr::Drop()
{
    m_opGraphics.Reset();
    m_locked.clear();
    Keep(nullptr);
    Retire(std::move(m_opHandler));
}

void TemporaryDimensionMgr::EndInput()
{
    if (!IsInputting())
        return;
    const Call call(*this);
    m_opHandler->EndInput();
    ActivateView();
}

bool TemporaryDimensionMgr::IsInputting() const
{
    return m_opHandler != nullptr && m_opHandler->IsInputting();
}

bool TemporaryDimensionMgr::HasHandler() const
{
    return m_opHandler != nullptr;
}

bool TemporaryDimensionMgr::OnKeyDown(int virtualKey, bool isCtrl, bool isAlt, bool isShift)
{
    if (m_opHandler == nullptr)
        return false;
    const Call call(*this);
    return m_opHandler->OnKeyDown(virtualKey, isCtrl, isAlt, isShift);
}

InputState TemporaryDimensionMgr::GetInputState() const
{
    const bool isKnown = m_pAccess != nullptr && IsInputting();
    return isKnown ? m_pAccess->GetInputState(*m_opHandler) : InputState::IS_None;
}

InputField TemporaryDimensionMgr::GetInputField() const
{
    return FindInputField(m_opContext.Get(), GetInputState());
}

bool TemporaryDimensionMgr::IsRawTextInput() const
{
    return m_pAccess != nullptr && IsInputting() && m_pAccess->IsRawTextInput(*m_opHandler);
}

const IGraphicsNodeGroup* TemporaryDimensionMgr::GetGraphics() const
{
    return m_opGraphics.Get();
}

void TemporaryDimensionMgr::SetLocked(InputState field, bool isLocked, std::optional<double> value)
{
    if (isLocked)
        m_locked[field] = value;
    else
        m_locked.erase(field);
}

bool TemporaryDimensionMgr::IsLocked(InputState field) const
{
    return m_locked.count(field) != 0;
}

std::vector<InputState> TemporaryDimensionMgr::GetLocked() const
{
    std::vector<InputState> fields;
    for (const auto& [field, value] : m_locked)
        fields.push_back(field);
    return fields;
}

std::optional<double> TemporaryDimensionMgr::GetLockedValue(InputState field) const
{
    const auto found = m_locked.find(field);
    return found != m_locked.end() ? found->second : std::nullopt;
}

void TemporaryDimensionMgr::Replace(OwnerPtr<ITemporaryDimensionHandler> opHandler)
{
    OwnerPtr<ITemporaryDimensionHandler> opOld = std::exchange(m_opHandler, std::move(opHandler));
    if (opOld == nullptr)
        return;
    m_opGraphics.Reset();
    m_locked.clear();
    Retire(std::move(opOld));
}

/// Ends the input of a handler that the manager no longer uses, and frees it.
void TemporaryDimensionMgr::Retire(OwnerPtr<ITemporaryDimensionHandler> opHandler)
{
    if (opHandler == nullptr)
        return;
    ITemporaryDimensionHandler& handler = *opHandler;
    const bool wasInputting = handler.IsInputting();
    {
        const Call call(*this);
        m_retired.push_back(std::move(opHandler));
        handler.EndInput();
    }
    if (wasInputting)
        ActivateView();
}

/// Replaces the context. The previous one lives as long as a handler may use it.
void TemporaryDimensionMgr::Keep(OwnerPtr<ITemporaryDimensionContext> opContext)
{
    OwnerPtr<ITemporaryDimensionContext> opOld = std::exchange(m_opContext, std::move(opContext));
    if (m_callDepth != 0)
        m_retiredContexts.push_back(std::move(opOld));
}

void TemporaryDimensionMgr::Regenerate()
{
    ITemporaryDimensionHandler* pHandler = m_opHandler.Get();
    if (pHandler == nullptr || m_opContext == nullptr || m_isGenerating)
        return;
    const Call call(*this);
    OwnerPtr<IGraphicsNodeGroup> opGraphics;
    {
        const ScopedValue<bool> generating(m_isGenerating, true);
        opGraphics = pHandler->GenerateGraphics(m_opContext.Get());
    }
    if (pHandler != m_opHandler.Get())
        return;
    m_opGraphics = std::move(opGraphics);
    if (m_pAccess != nullptr && pHandler->IsInputting())
        m_pAccess->ResetEditorPosition(*pHandler);
}

}
