#include "Panes/Panes.h"

#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Panes/EntityPane.h"
#include "Panes/JournalPane.h"
#include "Panes/LayerPane.h"
#include "Panes/PropertyPane.h"

#include "Command/ActionManager.h"
#include "Dock/IDockManager.h"
#include "Dock/IPropertyWidget.h"
#include "HostUi/Inspector.h"
#include "HostUi/MainWindow.h"
#include "HostUi/QtText.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QToolButton>

#include <algorithm>
#include <utility>

using namespace vesk;

namespace
{

constexpr wchar_t EntitiesName[] = L"Entities";
constexpr wchar_t LayersName[] = L"Layers";
constexpr wchar_t JournalName[] = L"Journal";
constexpr wchar_t InspectorName[] = L"Inspector";
constexpr wchar_t CommandPrefix[] = L"Sketcher.Pane.";
constexpr wchar_t ShowAllId[] = L"Sketcher.ShowAllPanes";

/// In the order of the menu.
std::vector<PanePlace> FactoryPlaces()
{
    constexpr int SideWidth = 230;
    constexpr int BottomHeight = 150;
    return {
        {IPropertyWidget::GetTypeName(), DockArea::Right, SideWidth, L""},
        {EntitiesName, DockArea::Left, SideWidth, L""},
        {LayersName, DockArea::Left, SideWidth, EntitiesName},
        {JournalName, DockArea::Bottom, BottomHeight, L""},
        {InspectorName, DockArea::Bottom, BottomHeight, JournalName},
    };
}

}

Panes::Panes(Workspace& workspace, MainWindow& window, IDockManager& docks, ControlHost& controls,
             const DimensionInputController& input)
    : m_docks(docks), m_layout(window, docks, FactoryPlaces())
{
    auto opInspector = MakeOwner<Inspector>(controls, input);
    m_pInspector = opInspector.Get();
    Add(IPropertyWidget::GetTypeName(), L"特性"_source,
        MakeOwner<PropertyPane>(workspace, controls));
    auto opEntities = MakeOwner<EntityPane>(workspace);
    connect(opEntities.Get(), &EntityPane::menuRequested, this, &Panes::menuRequested);
    Add(EntitiesName, L"图元"_source, std::move(opEntities));
    Add(LayersName, L"图层"_source, MakeOwner<LayerPane>(workspace));
    Add(JournalName, L"日志"_source, MakeOwner<JournalPane>());
    Add(InspectorName, L"检查器"_source, std::move(opInspector));
    m_layout.RestoreDefault();

    // Any number of changes at once refresh the panes once.
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, [this] { m_docks.UpdateAllDockStatus(); });
    connect(&workspace.sketch, &Sketch::changed, this, &Panes::Refresh);
    connect(&workspace.selection, &Selection::changed, this, &Panes::Refresh);
    connect(&m_layout, &PaneLayout::visibilityChanged, this, &Panes::Refresh);
    JournalManager::GetInstance().AddObserver(this);
}

Panes::~Panes()
{
    JournalManager::GetInstance().RemoveObserver(this);
    m_pInspector->Stop();
}

std::vector<CommandEntry> Panes::MakeCommands()
{
    std::vector<CommandEntry> entries = {
        CommandEntry::Plain(L"Sketcher.HideAllPanes", L"隐藏全部面板"_source,
                            [this] { m_layout.ToggleAllHidden(); })
            .WithIcon(L"panes-hide")
            .WithToolTip(L"隐藏全部面板；再按一次恢复原样"_source)
            .WithKeys(L"Ctrl+H")
            .InGroup(L"面板"_source),
        CommandEntry::Plain(L"Sketcher.DefaultLayout", L"恢复默认布局"_source,
                            [this] { m_layout.RestoreDefault(); })
            .WithIcon(L"panes-default")
            .WithToolTip(L"恢复面板的默认布局"_source)
            .InGroup(L"面板"_source),
        CommandEntry::Plain(ShowAllId, L"显示全部面板"_source,
                            [this] { m_docks.ShowAllDockPane(); })
            .WithToolTip(L"显示全部面板"_source),
    };
    for (const PanePlace& place : FactoryPlaces())
        entries.push_back(CommandEntry::Plain(CommandPrefix + place.name,
                                              m_docks.GetDock(place.name)->GetTitle(),
                                              [this, name = place.name] { Toggle(name); })
                              .WithToolTip(L"显示或隐藏此面板"_source)
                              .InMenu(PaneMenu::Id));
    return entries;
}

void Panes::Attend(QToolButton& button)
{
    if (button.menu() != nullptr)
        Mark(*button.menu());
    if (button.defaultAction() != nullptr)
        connect(button.defaultAction(), &QAction::triggered, this, &Panes::OnAllChosen);
}

void Panes::OnRecord(const JournalRecord&)
{
    Refresh();
}

void Panes::OnUiObject(const IJournalUiObject&, int) {}

void Panes::Add(const std::wstring& name, const wchar_t* title, OwnerPtr<IWidget> opContent)
{
    OwnerPtr<IDock> opDock = m_docks.CreateDock(name, Tr(title));
    opDock->SetWidget(std::move(opContent));
    m_docks.AddDock(std::move(opDock), DockArea::Bottom, DockOrientation::Horizontal);
}

void Panes::Mark(QMenu& menu)
{
    const auto mark = [this, pMenu = QPointer<QMenu>(&menu)] {
        if (pMenu == nullptr)
            return;
        for (QAction* pAction : pMenu->actions())
        {
            const QString commandId = pAction->property("CommandId").toString();
            const QString name = commandId.mid(ToQString(CommandPrefix).size());
            if (const IDock* pDock = m_docks.GetDock(ToWide(name)))
                pAction->setChecked(!pDock->IsHidden());
        }
    };
    connect(&m_layout, &PaneLayout::visibilityChanged, this, mark);
    // The code that checks a menu's chosen entry does not know what the marks mean here.
    for (const QAction* pAction : menu.actions())
        connect(pAction, &QAction::toggled, this, mark);
    mark();
}

void Panes::Toggle(const std::wstring& name)
{
    IDock* pDock = m_docks.GetDock(name);
    if (!pDock->IsHidden())
    {
        pDock->Hide();
        return;
    }
    pDock->Show();
    pDock->Raise();
}

/// Runs after the button has handled the click. A click that ends a tool does nothing else, but the
/// user asked for all panes.
void Panes::OnAllChosen()
{
    const std::vector<PanePlace> places = FactoryPlaces();
    const bool isAnyHidden =
        std::any_of(places.begin(), places.end(), [this](const PanePlace& place) {
            return m_docks.GetDock(place.name)->IsHidden();
        });
    if (isAnyHidden)
        ActionManager::RunCommand(ShowAllId, {});
}
