#include "VeskUiQtImpl/DockManagerImpl.h"

#include "Dock/IPropertyWidget.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/DockImpl.h"
#include "VeskUiQtImpl/LayoutPause.h"
#include "View/IUiManager.h"

#include <QDockWidget>
#include <QMainWindow>

#include <cstddef>
#include <functional>
#include <utility>

namespace vesk
{
namespace
{

/// What the user can do with a dockable pane.
constexpr QDockWidget::DockWidgetFeatures DockableFeatures = QDockWidget::DockWidgetClosable |
                                                             QDockWidget::DockWidgetMovable |
                                                             QDockWidget::DockWidgetFloatable;

/// Tells an operation of a manager that runs external code whether the manager is still alive.
///
/// Lives on the stack of that operation; operations may nest.
class LifeWatch
{
public:
    explicit LifeWatch(const DockManagerImpl* pManager)
        : m_pManager(pManager), m_pOuter(std::exchange(s_pInnermost, this))
    {}
    ~LifeWatch() { s_pInnermost = m_pOuter; }
    LifeWatch(const LifeWatch&) = delete;
    LifeWatch& operator=(const LifeWatch&) = delete;

    bool IsAlive() const { return m_pManager != nullptr; }

    static void OnDestroyed(const DockManagerImpl* pManager)
    {
        for (LifeWatch* pWatch = s_pInnermost; pWatch != nullptr; pWatch = pWatch->m_pOuter)
        {
            if (pWatch->m_pManager == pManager)
                pWatch->m_pManager = nullptr;
        }
    }

private:
    const DockManagerImpl* m_pManager;
    LifeWatch* m_pOuter;

    static LifeWatch* s_pInnermost;
};

LifeWatch* LifeWatch::s_pInnermost = nullptr;

}

DockManagerImpl::DockManagerImpl(IApplicationWindow* pMainWindow) : m_pMainWindow(pMainWindow) {}

DockManagerImpl::DockManagerImpl(const DockManagerImpl& other) = default;

DockManagerImpl& DockManagerImpl::operator=(const DockManagerImpl& other) = default;

DockManagerImpl::~DockManagerImpl()
{
    LifeWatch::OnDestroyed(this);
}

OwnerPtr<IDock> DockManagerImpl::CreateDock(const std::wstring& name,
                                            const std::wstring& title) const
{
    const IMainWindow* pMainWindow = IMainWindow::GetMainWindow();
    QWidget* pParent = pMainWindow != nullptr ? QWidget::find(pMainWindow->GetWinId()) : nullptr;
    return MakeOwner<DockImpl>(name, title, pParent);
}

void DockManagerImpl::AddDock(OwnerPtr<IDock> opDock, DockArea area, DockOrientation orientation)
{
    constexpr char Function[] = "vesk::DockManagerImpl::AddDock";
    if (!Check(opDock != nullptr, VESK_SITE(Function, L"opDock是空指针")))
        return;
    const std::wstring name = opDock->GetName();
    const std::wstring isTaken = name + L"： Dock名已经存在！";
    if (!Check(m_docks.count(name) == 0, VESK_SITE(Function, isTaken.c_str())))
        return;
    QMainWindow* pQMainWindow = GetQMainWindow();
    if (!Check(pQMainWindow != nullptr, VESK_SITE(Function, L"pQMainWindow是空指针")))
        return;
    QDockWidget* pQDockWidget = GetQDockWidget(opDock.Get());
    if (!Check(pQDockWidget != nullptr, VESK_SITE(Function, L"pQDockWidget是空指针")))
        return;

    m_docks[name] = opDock.Get();
    m_qDockWidgetToIDockMap[pQDockWidget] = opDock.Get();
    opDock.Release();
    pQMainWindow->addDockWidget(GetQtDockArea(area), pQDockWidget, GetQtOrientation(orientation));
    // Qt adds nothing for an invalid area, and then nobody would own the pane.
    if (pQDockWidget->parent() == nullptr)
        pQDockWidget->setParent(pQMainWindow, pQDockWidget->windowFlags());
}

void DockManagerImpl::DeleteDock(const std::wstring& name)
{
    constexpr char Function[] = "vesk::DockManagerImpl::DeleteDock";
    if (!Check(name != IPropertyWidget::GetTypeName(), VESK_SITE(Function, L"不能删除属性面板")))
        return;
    IDock* pDock = GetDock(name);
    if (pDock == nullptr)
        return;
    QMainWindow* pQMainWindow = GetQMainWindow();
    if (!Check(pQMainWindow != nullptr, VESK_SITE(Function, L"pQMainWindow是空指针")))
        return;
    QDockWidget* pQDockWidget = GetQDockWidget(pDock);
    if (!Check(pQDockWidget != nullptr, VESK_SITE(Function, L"pQDockWidget是空指针")))
        return;

    pQMainWindow->removeDockWidget(pQDockWidget);
    m_qDockWidgetToIDockMap.erase(pQDockWidget);
    m_docks.erase(name);
}

IDock* DockManagerImpl::GetDock(const std::wstring& name)
{
    const auto found = m_docks.find(name);
    return found != m_docks.end() ? found->second : nullptr;
}

void DockManagerImpl::ResizeDocks(const std::vector<IDock*>& docks, const std::vector<int>& sizes,
                                  DockOrientation orientation)
{
    constexpr char Function[] = "vesk::DockManagerImpl::ResizeDocks";
    if (!Check(docks.size() == sizes.size(), VESK_SITE(Function, L"docks和sizes个数不相等")))
        return;
    QMainWindow* pQMainWindow = GetQMainWindow();
    if (!Check(pQMainWindow != nullptr, VESK_SITE(Function, L"pQMainWindow是空指针")))
        return;

    QList<QDockWidget*> qDockWidgets;
    QList<int> qSizes;
    // The loop is bounded by the list it builds, so nothing is resized; hosts rely on that.
    for (int i = 0; i < qDockWidgets.size(); ++i)
    {
        const auto index = static_cast<std::size_t>(i);
        QDockWidget* pQDockWidget = GetQDockWidget(docks[index]);
        if (!Check(pQDockWidget != nullptr, VESK_SITE(Function, L"pQDockWidget是空指针")))
            continue;
        qDockWidgets.append(pQDockWidget);
        qSizes.append(sizes[index]);
    }
    pQMainWindow->resizeDocks(qDockWidgets, qSizes, GetQtOrientation(orientation));
}

void DockManagerImpl::SplitDock(IDock* first, IDock* second, DockOrientation orientation)
{
    constexpr char Function[] = "vesk::DockManagerImpl::SplitDock";
    QMainWindow* pQMainWindow = GetQMainWindow();
    QDockWidget* pFirstQDock = GetQDockWidget(first);
    QDockWidget* pSecondQDock = GetQDockWidget(second);
    if (!Check(pQMainWindow != nullptr, VESK_SITE(Function, L"pQMainWindow是空指针")))
        return;
    if (!Check(pFirstQDock != nullptr, VESK_SITE(Function, L"pFirstQDock是空指针")))
        return;
    if (!Check(pSecondQDock != nullptr, VESK_SITE(Function, L"pSecondQDock是空指针")))
        return;

    pQMainWindow->splitDockWidget(pFirstQDock, pSecondQDock, GetQtOrientation(orientation));
}

std::vector<IDock*> DockManagerImpl::TabifiedDocks(IDock* dock) const
{
    constexpr char Function[] = "vesk::DockManagerImpl::TabifiedDocks";
    const QMainWindow* pQMainWindow = GetQMainWindow();
    if (!Check(pQMainWindow != nullptr, VESK_SITE(Function, L"pQMainWindow是空指针")))
        return {};
    QDockWidget* pQDockWidget = GetQDockWidget(dock);
    if (!Check(pQDockWidget != nullptr, VESK_SITE(Function, L"pQDockWidget是空指针")))
        return {};

    // Reported first: a report may run an event loop, in which panes and even the manager may be
    // destroyed.
    const LifeWatch watch(this);
    const QList<QDockWidget*> qTabified = pQMainWindow->tabifiedDockWidgets(pQDockWidget);
    for (QDockWidget* pTabified : qTabified)
    {
        Check(m_qDockWidgetToIDockMap.count(pTabified) != 0,
              VESK_SITE(Function, L"m_qDockWidgetToIDockMap里没有要找的东西"));
        if (!watch.IsAlive())
            return {};
    }
    std::vector<IDock*> tabified;
    for (QDockWidget* pTabified : qTabified)
    {
        const auto found = m_qDockWidgetToIDockMap.find(pTabified);
        if (found != m_qDockWidgetToIDockMap.end())
            tabified.push_back(found->second);
    }
    return tabified;
}

void DockManagerImpl::TabifyDock(IDock* first, IDock* second)
{
    constexpr char Function[] = "vesk::DockManagerImpl::TabifyDock";
    QMainWindow* pQMainWindow = GetQMainWindow();
    QDockWidget* pFirstQDock = GetQDockWidget(first);
    QDockWidget* pSecondQDock = GetQDockWidget(second);
    if (!Check(pQMainWindow != nullptr, VESK_SITE(Function, L"pQMainWindow是空指针")))
        return;
    if (!Check(pFirstQDock != nullptr, VESK_SITE(Function, L"pFirstQDock是空指针")))
        return;
    if (!Check(pSecondQDock != nullptr, VESK_SITE(Function, L"pSecondQDock是空指针")))
        return;

    pQMainWindow->tabifyDockWidget(pFirstQDock, pSecondQDock);
}

void DockManagerImpl::ShowAllDockPane()
{
    if (!CheckHostManager("vesk::DockManagerImpl::ShowAllDockPane"))
        return;
    // Laid out once, all panes get back the sizes with which they were hidden. Laid out one by one,
    // the first would fill their area, and the others would have to take from it.
    LayoutPause pause(GetQMainWindow());
    ForEachDock([](IDock& dock) { dock.Show(); });
    pause.LayOut();
}

void DockManagerImpl::HideAllDockPane()
{
    if (!CheckHostManager("vesk::DockManagerImpl::HideAllDockPane"))
        return;
    ForEachDock([](IDock& dock) { dock.Hide(); });
}

bool DockManagerImpl::IsDockable(const std::wstring& name) const
{
    const QDockWidget* pQDock = FindQDock(name, "vesk::DockManagerImpl::IsDockable");
    return pQDock != nullptr && pQDock->features() == DockableFeatures;
}

bool DockManagerImpl::SetIsDockable(const std::wstring& name, bool isDockable)
{
    QDockWidget* pQDock = FindQDock(name, "vesk::DockManagerImpl::SetIsDockable");
    if (pQDock == nullptr)
        return false;
    pQDock->setFeatures(isDockable ? DockableFeatures : QDockWidget::NoDockWidgetFeatures);
    return true;
}

bool DockManagerImpl::RemoveDockTitleBar(const std::wstring& name)
{
    QDockWidget* pQDock = FindQDock(name, "vesk::DockManagerImpl::RemoveDockTitleBar");
    if (pQDock == nullptr)
        return false;
    pQDock->setTitleBarWidget(new QWidget);
    pQDock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    return true;
}

void DockManagerImpl::UpdateAllDockStatus()
{
    ForEachDock([](const IDock& dock) {
        if (dock.IsHidden())
            return;
        IWidget* pWidget = dock.GetWidget();
        if (Check(pWidget != nullptr,
                  VESK_SITE("vesk::DockManagerImpl::UpdateAllDockStatus", L"pWidget是空指针")))
            pWidget->UpdateStatus();
    });
}

IPropertyWidget* DockManagerImpl::GetPropertyWidget()
{
    const IUiManager* pUiManager = IUiManager::Get();
    if (!Check(pUiManager != nullptr,
               VESK_SITE("vesk::DockManagerImpl::GetPropertyWidget", L"pUiManager为空")))
        return nullptr;

    IDockManager* pDockManager = pUiManager->GetDockManager();
    const IDock* pDock =
        pDockManager != nullptr ? pDockManager->GetDock(IPropertyWidget::GetTypeName()) : nullptr;
    return pDock != nullptr ? dynamic_cast<IPropertyWidget*>(pDock->GetWidget()) : nullptr;
}

Qt::DockWidgetArea DockManagerImpl::GetQtDockArea(DockArea area) const
{
    switch (area)
    {
    case DockArea::Left:
        return Qt::LeftDockWidgetArea;
    case DockArea::Right:
        return Qt::RightDockWidgetArea;
    case DockArea::Top:
        return Qt::TopDockWidgetArea;
    case DockArea::Bottom:
        return Qt::BottomDockWidgetArea;
    case DockArea::All:
        return Qt::AllDockWidgetAreas;
    default:
        return Qt::NoDockWidgetArea;
    }
}

Qt::Orientation DockManagerImpl::GetQtOrientation(DockOrientation orientation) const
{
    return orientation == DockOrientation::Horizontal ? Qt::Horizontal : Qt::Vertical;
}

QMainWindow* DockManagerImpl::GetQMainWindow() const
{
    return dynamic_cast<QMainWindow*>(m_pMainWindow);
}

QDockWidget* DockManagerImpl::GetQDockWidget(IDock* pDock) const
{
    return dynamic_cast<QDockWidget*>(pDock);
}

/// Applies an operation to each pane, in order of the names. Panes may be added or removed
/// meanwhile: one that is gone when its turn comes is skipped, and the loop ends if the manager is
/// destroyed.
void DockManagerImpl::ForEachDock(const std::function<void(IDock&)>& operation) const
{
    const LifeWatch watch(this);
    const std::map<std::wstring, IDock*> docks = m_docks;
    for (const auto& [name, pDock] : docks)
    {
        if (!watch.IsAlive())
            return;
        const auto found = m_docks.find(name);
        if (pDock != nullptr && found != m_docks.end() && found->second == pDock)
            operation(*pDock);
    }
}

/// The widget of the pane with that name; null if there is no such name, or, with a warning in the
/// name of `function`, if the pane is null or not a widget.
QDockWidget* DockManagerImpl::FindQDock(const std::wstring& name, const char* function) const
{
    const auto found = m_docks.find(name);
    if (found == m_docks.end())
        return nullptr;
    if (!Check(found->second != nullptr, VESK_SITE(function, L"pDock是空指针")))
        return nullptr;
    QDockWidget* pQDock = GetQDockWidget(found->second);
    Check(pQDock != nullptr, VESK_SITE(function, L"pQDock是空指针"));
    return pQDock;
}

/// The host must have a manager, even though the panes used are this manager's own.
bool DockManagerImpl::CheckHostManager(const char* function) const
{
    const IUiManager* pUiManager = IUiManager::Get();
    return Check(pUiManager != nullptr, VESK_SITE(function, L"pUiManager为空")) &&
           Check(pUiManager->GetDockManager() != nullptr,
                 VESK_SITE(function, L"dockManager是空指针"));
}

}
