#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <cstddef>

class QMainWindow;

namespace vesk
{
class ProgressBarDefinition;
}

/// Keeps the window alive while a journal is read in it.
///
/// Windows are painted, moved and resized as ever; keys and the mouse do nothing, but Escape and
/// closing the window cancel the reading. Controls are disabled. The progress is on screen as long.
class ReadingMonitor final : public QObject
{
    Q_OBJECT

public:
    /// The window's ribbon and panes are disabled as long as the monitor lives. Neither argument is
    /// owned; the definition may be null.
    ReadingMonitor(QMainWindow& window, vesk::ProgressBarDefinition* pProgress);
    ~ReadingMonitor() override;

    /// Shows how far the reading has come and handles what waits. False once it was cancelled.
    bool Advance(std::size_t done, std::size_t total);

    bool IsCancelled() const { return m_isCancelled; }

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void SetEnabled(bool isEnabled);

    QMainWindow& m_window;
    vesk::ProgressBarDefinition* m_pProgress;
    QElapsedTimer m_sincePause;
    qint64 m_pauseMs = 0;
    bool m_isCancelled = false;
};
