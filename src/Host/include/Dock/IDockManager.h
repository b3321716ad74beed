#pragma once

#include "Dock/IDock.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"

#include <string>
#include <vector>

namespace vesk
{

/// The area of the main window in which a pane is docked.
enum class DockArea : int
{
    None = 0,
    Left = 1,
    Right = 2,
    Top = 4,
    Bottom = 8,
    All = 15,
};

/// How panes are arranged relative to each other.
enum class DockOrientation : int
{
    Vertical = 0,   ///< One above the other.
    Horizontal = 1, ///< Side by side.
};

/// The panes of the main window, each under its name.
///
/// An operation that is impossible is reported as a debug warning and changes nothing; an unknown
/// pane name causes no warning.
class VESK_HOST_API IDockManager
{
public:
    virtual ~IDockManager();

    /// Creates a pane, which is in no area until it is added. Owned by the caller.
    virtual OwnerPtr<IDock> CreateDock(const std::wstring& name,
                                       const std::wstring& title) const = 0;

    /// Docks a pane, which belongs to the main window from then on. A pane whose name is already in
    /// use is destroyed.
    virtual void AddDock(OwnerPtr<IDock> opDock, DockArea area, DockOrientation orientation) = 0;

    /// Removes a pane; its widget remains a hidden child of the main window. The property panel
    /// cannot be removed.
    virtual void DeleteDock(const std::wstring& name) = 0;

    /// The pane with that name, null if there is none. Not owned.
    virtual IDock* GetDock(const std::wstring& name) = 0;

    /// Only checks its arguments: sizes do not change.
    virtual void ResizeDocks(const std::vector<IDock*>& docks, const std::vector<int>& sizes,
                             DockOrientation orientation) = 0;

    /// Puts the second pane beside the first, in the space of the first.
    virtual void SplitDock(IDock* first, IDock* second, DockOrientation orientation) = 0;

    /// The panes that are tabbed with this one, excluding it.
    virtual std::vector<IDock*> TabifiedDocks(IDock* dock) const = 0;

    /// Tabs the second pane on top of the first.
    virtual void TabifyDock(IDock* first, IDock* second) = 0;

    /// Shows every pane, including those that were hidden before HideAllDockPane.
    virtual void ShowAllDockPane() = 0;

    /// Hides every pane without remembering which were visible.
    virtual void HideAllDockPane() = 0;

    /// True when the user can close, move and float the pane.
    virtual bool IsDockable(const std::wstring& name) const = 0;

    /// Sets whether the user can close, move and float the pane. False if there is no such pane.
    virtual bool SetIsDockable(const std::wstring& name, bool isDockable) = 0;

    /// Removes the title bar, and with it the means to close, move and float the pane. False if
    /// there is no such pane.
    virtual bool RemoveDockTitleBar(const std::wstring& name) = 0;

    /// Updates the content of every pane that is not hidden.
    virtual void UpdateAllDockStatus() = 0;
};

}
