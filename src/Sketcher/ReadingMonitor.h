#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <cstddef>

class QMainWindow;

namespace vesk
{
class ProgressBarDefinition;
}

/// Keeps the window responsive while a journal is replayed in it, or work is done in the
/// background.
///
/// Windows are painted, moved and resized as usual; keys, the mouse and what is dropped do nothing,
/// except that Escape and closing the window cancel the work. A user who closes the window is asked
/// about the drawing as usual, as soon as the work has ended; the program closes it at once.
/// Controls are disabled, and the progress bar is shown. A modal dialog gets its input.
class ReadingMonitor final : public QObject
{
    Q_OBJECT

public:
    /// The window's ribbon and panes are disabled while the monitor lives. Neither argument is
    /// owned; the definition may be null.
    ReadingMonitor(QMainWindow& window, vesk::ProgressBarDefinition* pProgress);
    ~ReadingMonitor() override;

    /// Shows the progress and processes pending events. Returns false once cancelled.
    bool Advance(std::size_t done, std::size_t total);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void SetEnabled(bool isEnabled);

    QMainWindow& m_window;
    vesk::ProgressBarDefinition* m_pProgress;
    QElapsedTimer m_sincePause;
    qint64 m_pauseMs = 0;
    bool m_isCancelled = false;
    bool m_isClosePostponed = false; ///< Until the monitor is gone.
};
