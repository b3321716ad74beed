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

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QDockWidget>
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

/// The title of a pane: a source text.
const wchar_t* TitleOf(const std::wstring& name)
{
    if (name == EntitiesName)
        return L"图元"_source;
    if (name == LayersName)
        return L"图层"_source;
    if (name == JournalName)
        return L"日志"_source;
    return name == InspectorName ? L"检查器"_source : L"特性"_source;
}

void Name(QWidget& window, const char* button, const QString& name, const QString& description)
{
    for (auto* pButton : window.findChildren<QAbstractButton*>(QLatin1String(button)))
    {
        pButton->setAccessibleName(name);
        pButton->setAccessibleDescription(description);
    }
}

/// The toolkit names them once, when a dock is created.
void NameDockButtons(QWidget& window)
{
    Name(window, "qt_dockwidget_floatbutton", QDockWidget::tr("Float"),
         QDockWidget::tr("Undocks and re-attaches the dock widget"));
    Name(window, "qt_dockwidget_closebutton", QDockWidget::tr("Close"),
         QDockWidget::tr("Closes the dock widget"));
}

/// A list has no caption of its own: the title of its pane says what is in it.
void NameLists(IWidget* pContent, const std::wstring& title)
{
    const auto* pWidget = dynamic_cast<QWidget*>(pContent);
    if (pWidget == nullptr)
        return;
    for (QAbstractItemView* pList : pWidget->findChildren<QAbstractItemView*>())
        pList->setAccessibleName(ToQString(title));
}

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
    : m_workspace(workspace), m_window(window), m_controls(controls), m_input(input),
      m_docks(docks), m_layout(window, docks, FactoryPlaces())
{
    for (const PanePlace& place : FactoryPlaces())
        m_docks.AddDock(m_docks.CreateDock(place.name, Tr(TitleOf(place.name))), DockArea::Bottom,
                        DockOrientation::Horizontal);
    m_docks.GetDock(JournalName)->SetWidget(MakeOwner<JournalPane>());
    Fill();
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
        entries.push_back(CommandEntry::Plain(CommandPrefix + place.name, TitleOf(place.name),
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

void Panes::Empty()
{
    m_refresh.stop();
    m_pInspector->Stop();
    for (const PanePlace& place : FactoryPlaces())
    {
        if (place.name != JournalName)
            delete dynamic_cast<QWidget*>(m_docks.GetDock(place.name)->GetWidget());
    }
    m_pInspector = nullptr;
}

void Panes::Fill()
{
    auto opInspector = MakeOwner<Inspector>(m_controls, m_input);
    m_pInspector = opInspector.Get();
    auto opEntities = MakeOwner<EntityPane>(m_workspace);
    connect(opEntities.Get(), &EntityPane::menuRequested, this, &Panes::menuRequested);
    m_docks.GetDock(IPropertyWidget::GetTypeName())
        ->SetWidget(MakeOwner<PropertyPane>(m_workspace, m_controls));
    m_docks.GetDock(EntitiesName)->SetWidget(std::move(opEntities));
    m_docks.GetDock(LayersName)->SetWidget(MakeOwner<LayerPane>(m_workspace));
    m_docks.GetDock(InspectorName)->SetWidget(std::move(opInspector));
    for (const PanePlace& place : FactoryPlaces())
    {
        m_docks.GetDock(place.name)->SetTitle(Tr(TitleOf(place.name)));
        NameLists(m_docks.GetDock(place.name)->GetWidget(), Tr(TitleOf(place.name)));
    }
    NameDockButtons(m_window);
    Refresh();
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
