#pragma once

#include "Dock/IDockManager.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QtCore/qnamespace.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

class QDockWidget;
class QMainWindow;

namespace vesk
{

class IApplicationWindow;
class IPropertyWidget;

/// Manages the panes of a main window that is a `QMainWindow`.
///
/// An added pane belongs to the window; the manager only refers to it, and copies of a manager
/// refer to the same panes. The manager must be destroyed before the window.
class VESK_UI_QT_IMPL_API DockManagerImpl : public IDockManager
{
public:
    /// The window is not owned.
    explicit DockManagerImpl(IApplicationWindow* pMainWindow);

    /// Refers to the same window and panes.
    DockManagerImpl(const DockManagerImpl& other);

    /// Refers to the window and panes of `other` from now on.
    DockManagerImpl& operator=(const DockManagerImpl& other);
    ~DockManagerImpl() override;

    OwnerPtr<IDock> CreateDock(const std::wstring& name, const std::wstring& title) const override;
    void AddDock(OwnerPtr<IDock> opDock, DockArea area, DockOrientation orientation) override;
    void DeleteDock(const std::wstring& name) override;
    IDock* GetDock(const std::wstring& name) override;
    void ResizeDocks(const std::vector<IDock*>& docks, const std::vector<int>& sizes,
                     DockOrientation orientation) override;
    void SplitDock(IDock* first, IDock* second, DockOrientation orientation) override;
    std::vector<IDock*> TabifiedDocks(IDock* dock) const override;
    void TabifyDock(IDock* first, IDock* second) override;
    void ShowAllDockPane() override;
    void HideAllDockPane() override;
    bool IsDockable(const std::wstring& name) const override;
    bool SetIsDockable(const std::wstring& name, bool isDockable) override;
    bool RemoveDockTitleBar(const std::wstring& name) override;
    void UpdateAllDockStatus() override;

    /// The content of the pane that holds the property panel; null if there is none.
    static IPropertyWidget* GetPropertyWidget();

private:
    Qt::DockWidgetArea GetQtDockArea(DockArea area) const;
    Qt::Orientation GetQtOrientation(DockOrientation orientation) const;
    QMainWindow* GetQMainWindow() const;
    QDockWidget* GetQDockWidget(IDock* pDock) const;

    void ForEachDock(const std::function<void(IDock&)>& operation) const;
    QDockWidget* FindQDock(const std::wstring& name, const char* function) const;
    bool CheckHostManager(const char* function) const;

    IApplicationWindow* m_pMainWindow;

    /// In the order in which panes are hidden, shown and updated.
    std::map<std::wstring, IDock*> m_docks;
    std::map<QDockWidget*, IDock*> m_qDockWidgetToIDockMap;
};

}
