#pragma once

#include "Foundation/OwnerPtr.h"
#include "HostUi/MainWindow.h"
#include "HostUi/RibbonFocus.h"
#include "Model/Snapper.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

class ContextMenu;
class QLabel;
class QShortcut;
class QToolButton;
class SketchView;
class SnapPanel;
class UnitPanel;
class ViewDescription;
struct CommandEntry;
struct Workspace;

namespace Qtitan
{
class RibbonGroup;
class RibbonPage;
}

namespace vesk
{
class CommandButtonMenuDefinition;
class ControlHost;
class DimensionInputController;
class ProgressBarDefinition;
}

/// The program's window: the ribbon pages 开始 and 草图, of which the second is shown at first, the
/// drawing, the status bar.
class SketcherWindow final : public vesk::MainWindow
{
    Q_OBJECT

public:
    /// The arguments are not owned and outlive the window.
    SketcherWindow(Workspace& workspace, vesk::DimensionInputController& input);
    ~SketcherWindow() override;

    SketchView& GetView() { return *m_pView; }

    /// Creates all controls: a button or a menu entry for each command, and the panels.
    void BuildControls(const std::vector<CommandEntry>& commands, vesk::ControlHost& controls);

    /// Removes all pages of the ribbon and the keys of its buttons, so that BuildControls can be
    /// called again. The controls are destroyed already.
    void ClearRibbon();

    /// The progress of opening a drawing; null if there is no such control. Not owned.
    vesk::ProgressBarDefinition* GetProgress() const { return m_pProgress; }

    /// The button that shows all panes, with their menu; null if there is none. Not owned.
    QToolButton* GetPaneButton() const { return m_pPaneButton; }

    /// Opens the menu of what is selected at a point of the screen.
    void ShowContextMenu(const QPoint& position);

    /// Switches exactly these snaps on, or chooses the unit with that symbol, in the ribbon.
    void ChooseSnaps(const std::array<bool, Snapper::KindCount>& snaps);
    void ChooseUnit(const std::wstring& symbol);

    /// Shows the name of the file that the drawing is in; without one, that of the drawing.
    void ShowDocument(const QString& name, bool isModified);

    /// Drops all references to the controls before they are destroyed.
    void ReleaseControls();

signals:
    /// Lengths are shown in another unit from now on.
    void unitChanged();

private:
    /// The pages of the ribbon.
    struct Pages
    {
        Qtitan::RibbonPage& start;
        Qtitan::RibbonPage& drawing;
    };

    void BuildButtons(const std::vector<CommandEntry>& commands, const Pages& pages,
                      vesk::ControlHost& controls);
    void AddTabRowButton(const CommandEntry& entry, vesk::ControlHost& controls);
    void AddShortcut(const CommandEntry& entry, const std::wstring& keys, QToolButton& button,
                     vesk::ControlHost& controls);
    bool IsTyping() const;
    QToolButton* AddMenu(vesk::OwnerPtr<vesk::CommandButtonMenuDefinition> opDefinition,
                         Qtitan::RibbonGroup& group, vesk::ControlHost& controls);
    void BuildPanels(Qtitan::RibbonPage& page, vesk::ControlHost& controls);
    void BuildProgress(vesk::ControlHost& controls);
    void BuildPointedText();
    void ShowPointed();
    void OnSketchChanged();

    Workspace& m_workspace;
    const vesk::DimensionInputController& m_input;
    SketchView* m_pView;
    ViewDescription* m_pDescription;
    vesk::RibbonFocus m_ribbonFocus;
    QString m_documentName;
    QLabel* m_pPointed; ///< What is under the cursor, in the status bar.
    vesk::ProgressBarDefinition* m_pProgress = nullptr;
    QToolButton* m_pPaneButton = nullptr;
    QVector<QShortcut*> m_shortcuts;
    std::unique_ptr<ContextMenu> m_pContextMenu;
    std::vector<std::unique_ptr<QObject>> m_panels;
    SnapPanel* m_pSnaps = nullptr; ///< These two are among the panels.
    UnitPanel* m_pUnits = nullptr;
};
