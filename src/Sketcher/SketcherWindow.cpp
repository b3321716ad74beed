#include "SketcherWindow.h"

#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Ribbon/CommandMenus.h"
#include "Ribbon/CommandTable.h"
#include "Ribbon/ContextMenu.h"
#include "Ribbon/DrawingPanel.h"
#include "Ribbon/KeyTips.h"
#include "Ribbon/PenPanel.h"
#include "Ribbon/SnapPanel.h"
#include "Ribbon/StepTips.h"
#include "Ribbon/UnitPanel.h"
#include "View/EntityText.h"
#include "View/SketchView.h"
#include "View/ViewDescription.h"

#include "Control/CommandButtonDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/ProgressBarDefinition.h"
#include "Foundation/IApplication.h"
#include "Foundation/UpdateCtrlStatusEvent.h"
#include "HostUi/ControlHost.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/ElidedLabel.h"
#include "HostUi/QtText.h"
#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonGroup.h"
#include "Qtitan/RibbonPage.h"

#include <QApplication>
#include <QIcon>
#include <QLineEdit>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>

#include <algorithm>
#include <map>
#include <utility>

using namespace vesk;

/// The icons are in a static library and must be requested explicitly.
static void LoadIcons()
{
    Q_INIT_RESOURCE(Sketcher);
}

namespace
{

/// Drawing tools are used all day.
constexpr const wchar_t* LargeGroup = L"绘图"_source;

/// The style of a button without a caption.
constexpr int IconOnly = 0;

using Groups = std::map<std::wstring, Qtitan::RibbonGroup*>;

/// Adds the groups of the start page that the commands use, from left to right; others may follow.
Groups AddStartGroups(const std::vector<CommandEntry>& commands, Qtitan::RibbonPage& page)
{
    Groups groups;
    for (const wchar_t* caption :
         {L"文件"_source, L"输出"_source, L"剪贴板"_source, L"选择"_source, L"帮助"_source})
    {
        const bool isUsed =
            std::any_of(commands.begin(), commands.end(), [caption](const CommandEntry& entry) {
                return entry.isOnStartPage && entry.group == caption;
            });
        if (isUsed)
            groups[caption] = page.addGroup(ToQString(Tr(caption)));
    }
    return groups;
}

OwnerPtr<CommandButtonDefinition> MakeDefinition(const CommandEntry& entry)
{
    auto opDefinition = MakeOwner<CommandButtonDefinition>(entry.id, entry.id);
    opDefinition->SetCaption(entry.GetCaption());
    opDefinition->SetTooltip(entry.GetToolTip());
    opDefinition->SetIconPath(entry.iconPath);
    opDefinition->SetVisible(false);
    if (entry.group == TabRow)
        opDefinition->SetButtonStyle(IconOnly);
    return opDefinition;
}

void PostStatusRefresh()
{
    if (IApplication* pApplication = IApplication::Get())
        pApplication->PostEvent(MakeOwner<UpdateCtrlStatusEvent>());
}

}

SketcherWindow::SketcherWindow(Workspace& workspace, DimensionInputController& input)
    : m_workspace(workspace), m_input(input), m_pView(new SketchView(workspace, input, this)),
      m_pDescription(new ViewDescription(workspace, *m_pView)),
      m_ribbonFocus(*GetRibbon(), *m_pView, input), m_pPointed(new ElidedLabel)
{
    LoadIcons();
    setWindowIcon(QIcon(QStringLiteral(":/icons/sketcher.svg")));
    SetDrawingView(m_pView);
    BuildPointedText();
    resize(1200, 800);
    connect(&workspace.sketch, &Sketch::changed, this, &SketcherWindow::OnSketchChanged);
    connect(&workspace.sketch, &Sketch::changed, this, &PostStatusRefresh);
    connect(&workspace.selection, &Selection::changed, this, &PostStatusRefresh);
    OnSketchChanged();
}

SketcherWindow::~SketcherWindow() = default;

void SketcherWindow::BuildControls(const std::vector<CommandEntry>& commands, ControlHost& controls)
{
    const Pages pages{*GetRibbon()->addPage("开始"_tr), *GetRibbon()->addPage("草图"_tr)};
    GetRibbon()->setCurrentPageIndex(1);
    BuildButtons(commands, pages, controls);
    BuildPanels(pages.drawing, controls);
    AssignKeyTips(*GetRibbon());
    BuildProgress(controls);
    // It translates its entries when it opens, and knows which tool was the last.
    if (m_pContextMenu == nullptr)
        m_pContextMenu = std::make_unique<ContextMenu>(commands, *m_pView);
    m_panels.push_back(std::make_unique<StepTips>(m_workspace.sketch, *this));
    controls.RefreshControls();
    m_pDescription->Update();
    m_pPointed->setAccessibleDescription("光标处的图元"_tr);
    OnSketchChanged();
    ShowPointed();
}

void SketcherWindow::ClearRibbon()
{
    qDeleteAll(std::exchange(m_shortcuts, {}));
    while (GetRibbon()->pageCount() > 0)
        delete GetRibbon()->page(0);
}

void SketcherWindow::ShowContextMenu(const QPoint& position)
{
    if (m_pContextMenu != nullptr)
        m_pContextMenu->Show(position);
}

void SketcherWindow::ChooseSnaps(const std::array<bool, Snapper::KindCount>& snaps)
{
    if (m_pSnaps != nullptr)
        m_pSnaps->Choose(snaps);
}

void SketcherWindow::ChooseUnit(const std::wstring& symbol)
{
    if (m_pUnits != nullptr)
        m_pUnits->Choose(symbol);
}

void SketcherWindow::ShowDocument(const QString& name, bool isModified)
{
    m_documentName = name;
    OnSketchChanged();
    // Setting it again would send the title to the window manager again, after each step.
    if (isModified != isWindowModified())
        setWindowModified(isModified);
}

void SketcherWindow::ReleaseControls()
{
    m_pProgress = nullptr;
    m_pPaneButton = nullptr;
    m_pSnaps = nullptr;
    m_pUnits = nullptr;
    m_panels.clear();
}

void SketcherWindow::BuildButtons(const std::vector<CommandEntry>& commands, const Pages& pages,
                                  ControlHost& controls)
{
    Groups startGroups = AddStartGroups(commands, pages.start);
    Groups groups;
    for (const CommandEntry& entry : commands)
    {
        if (entry.group.empty())
            continue;
        if (entry.group == TabRow)
        {
            AddTabRowButton(entry, controls);
            continue;
        }
        Qtitan::RibbonPage& page = entry.isOnStartPage ? pages.start : pages.drawing;
        Qtitan::RibbonGroup*& pGroup = (entry.isOnStartPage ? startGroups : groups)[entry.group];
        if (pGroup == nullptr)
            pGroup = page.addGroup(ToQString(Tr(entry.group)));
        auto* pButton = qobject_cast<QToolButton*>(controls.Create(MakeDefinition(entry)));
        if (pButton == nullptr)
            continue;
        if (entry.group == LargeGroup)
            pGroup->addButton(pButton);
        else
            pGroup->addSmallButton(pButton);
        for (const std::wstring& keys : {entry.keys, entry.otherKeys})
            AddShortcut(entry, keys, *pButton, controls);
    }
    AddMenu(MakeZoomMenu(commands), *groups[L"视图"_source], controls);
    m_pPaneButton = AddMenu(MakePaneMenu(commands), *groups[L"面板"_source], controls);
}

void SketcherWindow::AddTabRowButton(const CommandEntry& entry, ControlHost& controls)
{
    auto* pButton = qobject_cast<QToolButton*>(controls.Create(MakeDefinition(entry)));
    if (pButton == nullptr)
        return;
    GetRibbon()->addTabRowButton(pButton);
    AddShortcut(entry, entry.keys, *pButton, controls);
}

void SketcherWindow::AddShortcut(const CommandEntry& entry, const std::wstring& keys,
                                 QToolButton& button, ControlHost& controls)
{
    if (keys.empty())
        return;
    auto* pShortcut = new QShortcut(QKeySequence(ToQString(keys)), this);
    m_shortcuts.append(pShortcut);
    pShortcut->setContext(Qt::ApplicationShortcut);
    const bool isNotWhileTyping = entry.isNotWhileTyping;
    connect(pShortcut, &QShortcut::activated, &button,
            [this, isNotWhileTyping, &button, &controls] {
                if (isNotWhileTyping && IsTyping())
                    return;
                // The key may come before the refresh that what it needs has posted.
                controls.RefreshControls();
                button.click();
            });
}

/// True in a text field, and while the text of a dimension is typed, whose editor need not have the
/// keyboard yet.
bool SketcherWindow::IsTyping() const
{
    const auto* pField = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
    return (pField != nullptr && !pField->isReadOnly()) || m_input.GetOpenField() != nullptr;
}

/// Adds a button with a menu and returns it; null if it could not be created.
QToolButton* SketcherWindow::AddMenu(OwnerPtr<CommandButtonMenuDefinition> opDefinition,
                                     Qtitan::RibbonGroup& group, ControlHost& controls)
{
    CommandButtonMenuDefinition* pDefinition = opDefinition.Get();
    auto* pButton = qobject_cast<QToolButton*>(
        controls.Create(OwnerPtr<ICommandButtonMenuDefinition>(std::move(opDefinition))));
    if (pButton == nullptr)
        return nullptr;
    group.addSmallButton(pButton);
    pDefinition->SetVisible(true);
    return pButton;
}

void SketcherWindow::BuildPanels(Qtitan::RibbonPage& page, ControlHost& controls)
{
    Qtitan::RibbonGroup* pLines = page.addGroup("线条"_tr);
    Qtitan::RibbonGroup* pDrafting = page.addGroup("绘图设置"_tr);
    Qtitan::RibbonGroup* pDrawing = page.addGroup("图纸"_tr);
    m_panels.push_back(std::make_unique<PenPanel>(m_workspace, *pLines, *pDrawing, controls));
    auto pSnaps = std::make_unique<SnapPanel>(m_workspace.snapper, *pDrafting, controls);
    m_pSnaps = pSnaps.get();
    m_panels.push_back(std::move(pSnaps));
    auto pUnits = std::make_unique<UnitPanel>(*m_pView, *pDrafting, controls);
    connect(pUnits.get(), &UnitPanel::unitChanged, this, &SketcherWindow::unitChanged);
    connect(pUnits.get(), &UnitPanel::unitChanged, m_pView, &vesk::DrawingView::TellCursor);
    m_pUnits = pUnits.get();
    m_panels.push_back(std::move(pUnits));
    m_panels.push_back(std::make_unique<DrawingPanel>(m_workspace, *pDrawing, controls));
}

void SketcherWindow::BuildProgress(ControlHost& controls)
{
    auto opProgress = MakeOwner<ProgressBarDefinition>(L"Sketcher.Progress");
    ProgressBarDefinition* pProgress = opProgress.Get();
    pProgress->SetTooltip(L"正在进行的操作的进度；Esc 取消"_tr);
    pProgress->SetVisible(false);
    QWidget* pWidget = controls.Create(OwnerPtr<IProgressBarDefinition>(std::move(opProgress)));
    if (pWidget == nullptr)
        return;
    statusBar()->insertPermanentWidget(1, pWidget);
    m_pProgress = pProgress;
}

void SketcherWindow::BuildPointedText()
{
    constexpr int Margin = 6;
    m_pPointed->setObjectName(QStringLiteral("Pointed"));
    m_pPointed->setContentsMargins(Margin, 0, Margin, 0);
    statusBar()->insertPermanentWidget(1, m_pPointed);
    connect(m_pView, &SketchView::pointedChanged, this, &SketcherWindow::ShowPointed);
    connect(this, &SketcherWindow::unitChanged, this, &SketcherWindow::ShowPointed);
}

void SketcherWindow::ShowPointed()
{
    const Entity* pEntity = m_workspace.sketch.Find(m_pView->GetPointed());
    m_pPointed->setText(pEntity != nullptr ? DescribeEntity(*pEntity) : QString());
    m_pPointed->setToolTip(m_pPointed->text());
}

void SketcherWindow::OnSketchChanged()
{
    QString name =
        m_documentName.isEmpty() ? ToQString(m_workspace.sketch.GetShownName()) : m_documentName;
    // A name that looks like the place of the mark is not one.
    name.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    setWindowTitle(name + QStringLiteral("[*] - Sketcher"));
}
