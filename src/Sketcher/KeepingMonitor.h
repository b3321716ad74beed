#pragma once

#include "Journal/JournalManager.h"

namespace vesk
{
class MainWindow;
}

/// Reports in the window when records do not reach the journal file: once as a notice, and in the
/// status bar for as long as it lasts.
class KeepingMonitor final : public vesk::IJournalObserver
{
public:
    /// The window is not owned and outlives the monitor.
    explicit KeepingMonitor(vesk::MainWindow& window);
    ~KeepingMonitor() override;

    void OnRecord(const vesk::JournalRecord& record) override;
    void OnUiObject(const vesk::IJournalUiObject& object, int kind) override;

    /// Checks again whether records reach the journal file, which may have changed.
    void Update();

private:
    vesk::MainWindow& m_window;
    bool m_isKept = true;
};
