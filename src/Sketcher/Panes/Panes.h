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

/// The panes of the window: properties, entities, layers, journal and inspector. Creates and
/// positions them, keeps them up to date, and provides the commands that show and hide them.
class Panes final : public QObject, public vesk::IJournalObserver
{
    Q_OBJECT

public:
    /// Creates all panes in the default layout. The arguments are not owned and outlive this.
    Panes(Workspace& workspace, vesk::MainWindow& window, vesk::IDockManager& docks,
          vesk::ControlHost& controls, const vesk::DimensionInputController& input);
    ~Panes() override;

    /// Destroys the contents of the panes; the controls in them are destroyed already. That of the
    /// journal stays: it has the records so far, and follows the language by itself.
    void Empty();

    /// Creates these contents, and shows the titles of all panes in the user's language.
    void Fill();

    vesk::PaneLayout& GetLayout() { return m_layout; }

    /// Refreshes the panes as soon as the event loop is idle.
    void Refresh()
    {
        if (!m_refresh.isActive())
            m_refresh.start(0);
    }

    std::vector<CommandEntry> MakeCommands();

    /// Keeps the check marks of a button's menu entries that show or hide a pane correct, and makes
    /// the button itself show all panes even while a tool runs. The button is not owned and may be
    /// destroyed first.
    void Attend(QToolButton& button);

    void OnRecord(const vesk::JournalRecord& record) override;
    void OnUiObject(const vesk::IJournalUiObject& object, int kind) override;

signals:
    /// The user wants the menu of what is selected, at a point of the screen.
    void menuRequested(const QPoint& position);

private:
    void Mark(QMenu& menu);
    void Toggle(const std::wstring& name);
    void OnAllChosen();

    Workspace& m_workspace;
    vesk::MainWindow& m_window;
    vesk::ControlHost& m_controls;
    const vesk::DimensionInputController& m_input;
    vesk::IDockManager& m_docks;
    vesk::Inspector* m_pInspector = nullptr; ///< Owned by its pane.
    vesk::PaneLayout m_layout;

    /// Fires when the panes must be refreshed.
    QTimer m_refresh;
};
