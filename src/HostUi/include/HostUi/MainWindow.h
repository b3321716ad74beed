#pragma once

#include "HostUi/HostUiExport.h"
#include "View/IUiManager.h"
#include "Warnings/DebugMessageMgr.h"

#include <QMainWindow>
#include <QMap>
#include <QString>

#include <atomic>

class QLabel;

namespace Qtitan
{
class RibbonBar;
}

namespace vesk
{

class DrawingView;

/// The main frame: a ribbon above, a drawing view, and a status bar with the hint, the cursor, and
/// the number of warnings that were not shown.
///
/// Installed as the host's main window while it lives.
class VESK_HOST_UI_API MainWindow : public QMainWindow,
                                    public IApplicationWindow,
                                    public IMainWindow,
                                    public IDebugWarningObserver
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    WindowId GetWindowId() const override;
    WindowId GetWinId() const override;

    void OnDebugWarning(const DebugWarning& warning) override;

    /// The ribbon; owned by the window.
    Qtitan::RibbonBar* GetRibbon() const { return m_pRibbon; }

    /// Shows a drawing view, of which the window becomes the Qt parent, and its texts.
    void SetDrawingView(DrawingView* pView);

    /// Shows a text in the status bar for some seconds.
    void ShowNotice(const QString& text);

    /// Keeps a short text in the status bar for as long as it is true; its tool tip tells more.
    /// There is one for each subject, and an empty one takes it away.
    void ShowState(const QString& subject, const QString& text, const QString& details);

signals:
    /// The window is about to close; panes stand as they did.
    void closeAccepted();

protected:
    void closeEvent(QCloseEvent* pEvent) override;

private:
    void OnCursorMoved(double x, double y);
    void ShowWarningCount();

    Qtitan::RibbonBar* m_pRibbon;
    QLabel* m_pHint;
    QLabel* m_pCursor;

    struct State
    {
        QString text;
        QString details;
    };

    /// What is true for longer than a moment, by its subject.
    QMap<QString, State> m_states;
    QLabel* m_pStates;

    /// How many warnings were raised while another was on screen.
    QLabel* m_pWarningCount;
    std::atomic<bool> m_isCountStale{false};
};

}
