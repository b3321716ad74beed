#pragma once

#include "Dock/IDock.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

#include <string>
#include <vector>

namespace vesk
{

/// Where in the main window a pane stands.
enum class DockArea : int
{
    None = 0,
    Left = 1,
    Right = 2,
    Top = 4,
    Bottom = 8,
    All = 15,
};

/// How panes stand to each other.
enum class DockOrientation : int
{
    Vertical = 0,   ///< One above the other.
    Horizontal = 1, ///< Side by side.
};

/// The panes of the main window, each under its name.
///
/// What cannot be done is reported as a debug warning and changes nothing; a name that no pane has
/// is no reason to warn.
class VESK_HOST_API IDockManager
{
public:
    virtual ~IDockManager();

    /// Makes a pane, which is nowhere until it is added. Owned by the caller.
    virtual OwnerPtr<IDock> CreateDock(const std::wstring& name,
                                       const std::wstring& title) const = 0;

    /// Places a pane, which belongs to the main window from then on. A pane whose name is taken is
    /// destroyed.
    virtual void AddDock(OwnerPtr<IDock> opDock, DockArea area, DockOrientation orientation) = 0;

    /// Takes a pane out; its widget stays a hidden child of the main window. The property panel
    /// cannot be taken out.
    virtual void DeleteDock(const std::wstring& name) = 0;

    /// The pane with that name, null when there is none. Not owned.
    virtual IDock* GetDock(const std::wstring& name) = 0;

    /// Checks its arguments only: sizes stay as they are.
    virtual void ResizeDocks(const std::vector<IDock*>& docks, const std::vector<int>& sizes,
                             DockOrientation orientation) = 0;

    /// Puts the second pane beside the first, in the room of the first.
    virtual void SplitDock(IDock* first, IDock* second, DockOrientation orientation) = 0;

    /// The panes that share their place with this one, without it.
    virtual std::vector<IDock*> TabifiedDocks(IDock* dock) const = 0;

    /// Puts the second pane on top of the first.
    virtual void TabifyDock(IDock* first, IDock* second) = 0;

    /// Shows every pane, also those that were hidden before all were.
    virtual void ShowAllDockPane() = 0;

    /// Hides every pane and does not remember which were visible.
    virtual void HideAllDockPane() = 0;

    /// True when the user can close, move and float the pane.
    virtual bool IsDockable(const std::wstring& name) const = 0;

    /// Lets the user close, move and float the pane, or do none of it. False when there is no such
    /// pane.
    virtual bool SetIsDockable(const std::wstring& name, bool isDockable) = 0;

    /// Takes the title away, and with it the means to close, move and float the pane. False when
    /// there is no such pane.
    virtual bool RemoveDockTitleBar(const std::wstring& name) = 0;

    /// Has the content of every pane that is not hidden come in step.
    virtual void UpdateAllDockStatus() = 0;
};

}
