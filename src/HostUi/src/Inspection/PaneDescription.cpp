#include "Inspection/PaneDescription.h"

#include "Dock/IDockManager.h"
#include "Foundation/Text.h"
#include "Inspection/ControlDescription.h"
#include "View/IUiManager.h"

#include <QDockWidget>
#include <QMainWindow>

#include <map>
#include <string>

namespace vesk
{
namespace
{

using Json = nlohmann::ordered_json;

/// By name.
using Panes = std::map<std::string, const QDockWidget*>;

Panes FindPanes(const QMainWindow& window)
{
    const IUiManager* pUiManager = IUiManager::Get();
    IDockManager* pManager = pUiManager != nullptr ? pUiManager->GetDockManager() : nullptr;
    Panes panes;
    for (QDockWidget* pWidget : window.findChildren<QDockWidget*>())
    {
        const auto* pDock = dynamic_cast<IDock*>(pWidget);
        if (pDock != nullptr && pManager != nullptr && pManager->GetDock(pDock->GetName()) == pDock)
            panes[ToUtf8(pDock->GetName())] = pWidget;
    }
    return panes;
}

const char* NameOf(Qt::DockWidgetArea area)
{
    switch (area)
    {
    case Qt::LeftDockWidgetArea:
        return "left";
    case Qt::RightDockWidgetArea:
        return "right";
    case Qt::TopDockWidgetArea:
        return "top";
    default:
        return "bottom";
    }
}

/// The panes tabbed with a pane, without the pane itself.
QList<QDockWidget*> TabsBeside(const QMainWindow& window, const QDockWidget& pane)
{
    return window.tabifiedDockWidgets(const_cast<QDockWidget*>(&pane));
}

/// The toolkit moves a pane behind another tab out of the window.
bool IsInFront(const QDockWidget& pane)
{
    return pane.isFloating() || pane.geometry().right() >= 0;
}

/// A pane behind another tab is where the one in front is.
const QDockWidget& FrontOf(const QMainWindow& window, const QDockWidget& pane)
{
    if (IsInFront(pane))
        return pane;
    for (const QDockWidget* pBeside : TabsBeside(window, pane))
    {
        if (IsInFront(*pBeside))
            return *pBeside;
    }
    return pane;
}

Json DescribePane(const QMainWindow& window, const std::string& name, const QDockWidget& pane)
{
    Json tabs = Json::array();
    for (const QDockWidget* pBeside : TabsBeside(window, pane))
    {
        if (const auto* pDock = dynamic_cast<const IDock*>(pBeside))
            tabs.push_back(ToUtf8(pDock->GetName()));
    }
    const QDockWidget& front = FrontOf(window, pane);
    return {{"name", name},
            {"title", pane.windowTitle().toStdString()},
            {"rect", pane.isHidden() ? Json(nullptr) : DescribeRect(front, front.rect())},
            {"visible", !pane.isHidden()},
            {"current", &front == &pane},
            {"floating", pane.isFloating()},
            {"area", NameOf(window.dockWidgetArea(const_cast<QDockWidget*>(&pane)))},
            {"tabbedWith", tabs}};
}

}

void DescribePanes(const QMainWindow& window, Json& panes)
{
    for (const auto& [name, pPane] : FindPanes(window))
        panes.push_back(DescribePane(window, name, *pPane));
}

}
