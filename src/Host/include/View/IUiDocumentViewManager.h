#pragma once

#include "Foundation/HostExport.h"

#include <cstdint>
#include <vector>

namespace vesk
{

class IUiView;

/// Knows the drawing views and which of them is current.
class VESK_HOST_API IUiDocumentViewManager
{
public:
    /// The installed manager, null when there is none. Not owned.
    static IUiDocumentViewManager* Get();

    virtual ~IUiDocumentViewManager() = default;

    /// The view the user works in, null when there is none. Not owned.
    virtual IUiView* GetCurrentUiView() const = 0;

    /// The view with that id, null when there is none. Not owned.
    virtual IUiView* GetUiViewById(std::uint32_t id) const = 0;

protected:
    /// Installs the manager; null removes it. Not owned.
    static void Set(IUiDocumentViewManager* pManager);
};

/// The host's manager: views come and go by AddView and RemoveView. Installed while it lives.
class VESK_HOST_API UiDocumentViewManager final : public IUiDocumentViewManager
{
public:
    UiDocumentViewManager();
    ~UiDocumentViewManager() override;
    UiDocumentViewManager(const UiDocumentViewManager&) = delete;
    UiDocumentViewManager& operator=(const UiDocumentViewManager&) = delete;

    /// The installed manager's current view, whoever installed it; null when there is none. Not
    /// owned.
    static IUiView* FindCurrentView();

    IUiView* GetCurrentUiView() const override;
    IUiView* GetUiViewById(std::uint32_t id) const override;

    /// Adds a view (not owned); the first one becomes current.
    void AddView(IUiView* pView);

    /// Forgets a view; if it was current, the first remaining one becomes current.
    void RemoveView(IUiView* pView);

    /// Makes an added view current; an unknown one is ignored, null leaves none current.
    void SetCurrentView(IUiView* pView);

private:
    std::vector<IUiView*> m_views;
    IUiView* m_pCurrent = nullptr;
};

}
