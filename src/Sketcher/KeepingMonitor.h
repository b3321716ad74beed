#pragma once

#include "Journal/JournalManager.h"

namespace vesk
{
class MainWindow;
}

/// Says in the window when the journal does not keep what is done, once as a notice and in the
/// status bar for as long as it lasts.
class KeepingMonitor final : public vesk::IJournalObserver
{
public:
    /// The window is not owned and outlives the monitor.
    explicit KeepingMonitor(vesk::MainWindow& window);
    ~KeepingMonitor() override;

    void OnRecord(const vesk::JournalRecord& record) override;
    void OnUiObject(const vesk::IJournalUiObject& object, int kind) override;

    /// Looks whether the journal keeps what is done: another file may be in use since.
    void Update();

private:
    vesk::MainWindow& m_window;
    bool m_isKept = true;
};
