#pragma once

#include "HostUi/HostUiExport.h"
#include "View/IUiManager.h"
#include "Warnings/DebugMessageMgr.h"

#include <QMainWindow>
#include <QMap>
#include <QString>

#include <atomic>
#include <functional>

class QLabel;

namespace Qtitan
{
class RibbonBar;
}

namespace vesk
{

class DrawingView;

/// The main frame: a ribbon at the top, bars below it as needed, a drawing view, and a status bar
/// with the prompt, the cursor position, and the number of warnings that were not shown.
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

    /// Shows a drawing view and its texts; the window becomes the view's Qt parent.
    void SetDrawingView(DrawingView* pView);

    /// Adds a bar below the ribbon, for an offer that nobody has to answer. The window becomes its
    /// Qt parent; hide or destroy the bar when it is no longer needed. Screen readers take it for
    /// an alert, and say its accessible name when it appears.
    void AddBar(QWidget* pBar);

    /// Shows a text in the status bar for a few seconds; for screen readers it is the name of the
    /// status bar as long.
    void ShowNotice(const QString& text);

    /// Tells a text in the user's language; asked again when that changes.
    using Told = std::function<QString()>;

    /// Shows a short text in the status bar until it is replaced or removed, with the details, if
    /// there are any, as its tool tip. There is one text per subject.
    void ShowState(const QString& subject, Told text, Told details = {});

    /// Does nothing if there is no text for that subject.
    void RemoveState(const QString& subject);

signals:
    /// The window is about to close; the panes are still in position.
    void closeAccepted();

protected:
    void changeEvent(QEvent* pEvent) override;
    void closeEvent(QCloseEvent* pEvent) override;

private:
    void NameLabels();
    void OnCursorMoved(double x, double y);
    void ShowWarningCount();
    void ShowStates();

    Qtitan::RibbonBar* m_pRibbon;
    QLabel* m_pHint;
    QLabel* m_pCursor;

    struct State
    {
        Told text;
        Told details;
    };

    /// The lasting texts of the status bar, by subject.
    QMap<QString, State> m_states;
    QLabel* m_pStates;

    /// How many warnings were raised while another was on screen.
    QLabel* m_pWarningCount;
    std::atomic<bool> m_isCountStale{false};
};

}
