#pragma once

#include "HostUi/HostUiExport.h"
#include "View/IUiManager.h"

#include <QMainWindow>

class QLabel;

namespace Qtitan
{
class RibbonBar;
}

namespace vesk
{

class DrawingView;

/// The main frame: a ribbon above, a drawing view, and a status bar with the hint and the cursor.
///
/// Installed as the host's main window while it lives.
class VESK_HOST_UI_API MainWindow : public QMainWindow,
                                    public IApplicationWindow,
                                    public IMainWindow
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    WindowId GetWindowId() const override;
    WindowId GetWinId() const override;

    /// The ribbon; owned by the window.
    Qtitan::RibbonBar* GetRibbon() const { return m_pRibbon; }

    /// Shows a drawing view, of which the window becomes the Qt parent, and its texts.
    void SetDrawingView(DrawingView* pView);

protected:
    void closeEvent(QCloseEvent* pEvent) override;

private:
    void OnCursorMoved(double x, double y);

    Qtitan::RibbonBar* m_pRibbon;
    QLabel* m_pHint;
    QLabel* m_pCursor;
};

}
