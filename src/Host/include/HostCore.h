#pragma once

#include "Foundation/HostExport.h"
#include "View/IUiDocumentViewManager.h"

#include <memory>

namespace vesk
{

class NqIJournalFactory;

/// Sets up the platform and tears it down: one instance exists as long as the platform is used.
///
/// Destroying it ends the running action, drops the dimension handler, frees all commands, closes
/// the journal, resets the debug warnings, and unregisters its view manager and journal factory.
class VESK_HOST_API HostCore
{
public:
    HostCore();
    ~HostCore();
    HostCore(const HostCore&) = delete;
    HostCore& operator=(const HostCore&) = delete;

    /// The views; owned.
    UiDocumentViewManager& GetViewManager() { return m_viewManager; }

private:
    UiDocumentViewManager m_viewManager;
    std::unique_ptr<NqIJournalFactory> m_pJournalFactory;
};

}
