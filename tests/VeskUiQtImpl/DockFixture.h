#pragma once

#include "Dock/IPropertyWidget.h"
#include "Support/HostFixture.h"
#include "Support/MemberAccess.h"
#include "VeskUiQtImpl/DockManagerImpl.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QStringList>

#include <functional>
#include <map>
#include <string>

namespace vesk::test
{

VESK_EXPOSE(ManagerWindow, IApplicationWindow*, DockManagerImpl, m_pMainWindow)

using DocksByName = std::map<std::wstring, IDock*>;
VESK_EXPOSE(DockTable, DocksByName, DockManagerImpl, m_docks)

using DocksByWidget = std::map<QDockWidget*, IDock*>;
VESK_EXPOSE(WidgetTable, DocksByWidget, DockManagerImpl, m_qDockWidgetToIDockMap)

/// A main window that can hold panes.
class DockWindow final : public QMainWindow, public IApplicationWindow
{
public:
    DockWindow() { resize(800, 600); }

    WindowId GetWindowId() const override { return winId(); }
};

/// Content that Qt can show.
class WidgetContent final : public QWidget, public IWidget
{
public:
    void UpdateStatus() override
    {
        if (onUpdate)
            onUpdate();
    }

    std::function<void()> onUpdate;
};

/// Content that Qt cannot show; reports its destruction.
class PlainContent final : public IWidget
{
public:
    explicit PlainContent(bool* pIsDestroyed) : m_pIsDestroyed(pIsDestroyed) {}
    ~PlainContent() override { *m_pIsDestroyed = true; }

    void UpdateStatus() override {}

private:
    bool* m_pIsDestroyed;
};

class PropertyPanel final : public QWidget, public IPropertyWidget
{
public:
    void UpdateStatus() override {}
};

/// A pane that is not a Qt object; records what is asked of it and when it is destroyed.
class PlainDock final : public IDock
{
public:
    PlainDock(std::wstring name, QStringList* pNotes) : m_name(std::move(name)), m_pNotes(pNotes) {}
    ~PlainDock() override { Note("destroyed"); }

    const std::wstring& GetName() const override { return m_name; }
    void Move(int, int) override {}
    IWidget* GetWidget() const override { return nullptr; }
    void SetWidget(OwnerPtr<IWidget>) override {}
    void SetTitle(const std::wstring&) override {}
    std::wstring GetTitle() const override { return {}; }
    void Show() override { Note("shown"); }
    void Hide() override { Note("hidden"); }
    void Raise() override {}
    bool IsHidden() const override { return false; }
    void SetFloating(bool) override {}
    bool IsFloating() const override { return false; }

private:
    void Note(const char* what)
    {
        *m_pNotes << QString::fromStdWString(m_name) + ' ' + QLatin1String(what);
    }

    std::wstring m_name;
    QStringList* m_pNotes;
};

/// A manager of the panes of a main window, both known to the host.
struct DockFixture
{
    DockFixture()
    {
        host.window.SetDockManager(&manager);
        host.window.SetWindowId(window.GetWindowId());
    }

    /// Adds a pane on the left, one above the other; not owned.
    IDock* Add(const std::wstring& name) { return Add(name, DockArea::Left); }

    IDock* Add(const std::wstring& name, DockArea area,
               DockOrientation orientation = DockOrientation::Vertical)
    {
        manager.AddDock(manager.CreateDock(name, name), area, orientation);
        return manager.GetDock(name);
    }

    /// Adds a shown pane whose content does this when it is updated.
    IDock* AddUpdated(const std::wstring& name, std::function<void()> onUpdate)
    {
        auto opContent = MakeOwner<WidgetContent>();
        opContent->onUpdate = std::move(onUpdate);
        IDock* pDock = Add(name);
        pDock->SetWidget(std::move(opContent));
        pDock->Show();
        return pDock;
    }

    /// Enters something that `AddDock` would reject: a pane of another kind, or null.
    void Enter(const std::wstring& name, IDock* pDock)
    {
        (manager.*MemberOf(DockTable()))[name] = pDock;
    }

    /// Replaces the window of the manager by one that cannot hold panes.
    void TakeWindow() { manager.*MemberOf(ManagerWindow()) = &host.window; }

    std::size_t CountDocks() const { return (manager.*MemberOf(DockTable())).size(); }
    std::size_t CountWidgets() const { return (manager.*MemberOf(WidgetTable())).size(); }

    HostFixture host;
    DockWindow window;
    DockManagerImpl manager{&window};
};

inline QDockWidget* WidgetOf(IDock* pDock)
{
    return dynamic_cast<QDockWidget*>(pDock);
}

}
