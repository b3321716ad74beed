#pragma once

#include "HostUi/MainWindow.h"

#include <memory>
#include <string>
#include <vector>

class DrawingPanel;
class Sketch;
class SketchView;
struct CommandEntry;

namespace vesk
{
class ControlHost;
class DimensionInputController;
}

/// The program's window: ribbon page "草图", the drawing, the status bar.
class SketcherWindow final : public vesk::MainWindow
{
    Q_OBJECT

public:
    /// The arguments are not owned and outlive the window.
    SketcherWindow(Sketch& sketch, vesk::DimensionInputController& input);
    ~SketcherWindow() override;

    SketchView& GetView() { return *m_pView; }

    /// Fills the ribbon with a button for each command, and the drawing's panel.
    void BuildRibbon(const std::vector<CommandEntry>& commands, vesk::ControlHost& controls);

    /// Drops what refers to the controls, before they go.
    void ReleaseControls();

private:
    void OnSketchChanged();

    Sketch& m_sketch;
    SketchView* m_pView;
    std::unique_ptr<DrawingPanel> m_pPanel;
};
