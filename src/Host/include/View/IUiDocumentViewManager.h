#pragma once

#include "Foundation/HostExport.h"

#include <cstdint>
#include <vector>

namespace vesk
{

class IUiView;

/// Manages the drawing views and knows which is current.
class VESK_HOST_API IUiDocumentViewManager
{
public:
    /// The installed manager, null if there is none. Not owned.
    static IUiDocumentViewManager* Get();

    virtual ~IUiDocumentViewManager() = default;

    /// The view the user works in, null if there is none. Not owned.
    virtual IUiView* GetCurrentUiView() const = 0;

    /// The view with that id, null if there is none. Not owned.
    virtual IUiView* GetUiViewById(std::uint32_t id) const = 0;

protected:
    /// Installs the manager; null removes it. Not owned.
    static void Set(IUiDocumentViewManager* pManager);
};

/// The host's manager: views are added by AddView and removed by RemoveView. Installed as long as
/// it exists.
class VESK_HOST_API UiDocumentViewManager final : public IUiDocumentViewManager
{
public:
    UiDocumentViewManager();
    ~UiDocumentViewManager() override;
    UiDocumentViewManager(const UiDocumentViewManager&) = delete;
    UiDocumentViewManager& operator=(const UiDocumentViewManager&) = delete;

    /// The installed manager's current view, whoever installed it; null if there is none. Not
    /// owned.
    static IUiView* FindCurrentView();

    IUiView* GetCurrentUiView() const override;
    IUiView* GetUiViewById(std::uint32_t id) const override;

    /// Adds a view (not owned); the first one becomes current.
    void AddView(IUiView* pView);

    /// Forgets a view; if it was current, the first remaining one becomes current.
    void RemoveView(IUiView* pView);

    /// Makes an added view current; an unknown view is ignored, and after null no view is current.
    void SetCurrentView(IUiView* pView);

private:
    std::vector<IUiView*> m_views;
    IUiView* m_pCurrent = nullptr;
};

}
