#pragma once

#include "Foundation/HostExport.h"
#include "View/IUiDocumentViewManager.h"

#include <memory>

namespace vesk
{

class NqIJournalFactory;

/// Brings the platform up and takes it down: one lives for the time in which it is used.
///
/// Destroying it ends the running action, drops the dimension handler, frees all commands and
/// closes the journal, and leaves every static as it was before.
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
