#pragma once

#include "Ribbon/CommandTable.h"

#include "Command/ActionManager.h"
#include "HostUi/PaneLayout.h"
#include "Journal/JournalManager.h"

#include <QObject>
#include <QTimer>

#include <string>
#include <vector>

class QMenu;
class QToolButton;
struct Workspace;

namespace vesk
{
class ControlHost;
class DimensionInputController;
class IDockManager;
class Inspector;
class MainWindow;
}

/// The panes of the window: properties, entities, journal and inspector. Makes and places them,
/// keeps them in step with what they show, and has the commands that show and hide them.
class Panes final : public QObject, public vesk::IJournalObserver
{
    Q_OBJECT

public:
    /// Makes all panes, in their factory places. The arguments are not owned; they outlive this.
    Panes(Workspace& workspace, vesk::MainWindow& window, vesk::IDockManager& docks,
          vesk::ControlHost& controls, const vesk::DimensionInputController& input);
    ~Panes() override;

    vesk::PaneLayout& GetLayout() { return m_layout; }

    /// Has the panes come in step with what they show, as soon as the event loop is idle.
    void Refresh() { m_refresh.start(0); }

    std::vector<CommandEntry> MakeCommands();

    /// Keeps the marks of the entries of a button's menu, of those that show or hide a pane, at the
    /// truth, and has the button itself show all panes also when a tool runs. The button is not
    /// owned and may go first.
    void Attend(QToolButton& button);

    void OnRecord(const vesk::JournalRecord& record) override;
    void OnUiObject(const vesk::IJournalUiObject& object, int kind) override;

private:
    void Add(const std::wstring& name, const wchar_t* title,
             vesk::OwnerPtr<vesk::IWidget> opContent);
    void Mark(QMenu& menu);
    void Toggle(const std::wstring& name);
    void OnAllChosen();

    vesk::IDockManager& m_docks;
    vesk::Inspector* m_pInspector; ///< Owned by its pane.
    vesk::PaneLayout m_layout;

    /// Runs out when the panes are to come in step.
    QTimer m_refresh;
};
