#include "SketcherWindow.h"

#include "CommandTable.h"
#include "DrawingPanel.h"
#include "Sketch.h"
#include "SketchView.h"

#include "Control/CommandButtonDefinition.h"
#include "HostUi/ControlHost.h"
#include "HostUi/QtText.h"
#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonGroup.h"
#include "Qtitan/RibbonPage.h"

#include <QIcon>
#include <QShortcut>
#include <QToolButton>

#include <utility>

using namespace vesk;

/// The icons stand in a static library: somebody has to ask for them.
static void LoadIcons()
{
    Q_INIT_RESOURCE(Sketcher);
}

namespace
{

OwnerPtr<CommandButtonDefinition> MakeDefinition(const CommandEntry& entry)
{
    auto opDefinition = MakeOwner<CommandButtonDefinition>(entry.id, entry.id);
    opDefinition->SetCaption(entry.caption);
    opDefinition->SetTooltip(entry.toolTip);
    opDefinition->SetIconPath(entry.iconPath);
    opDefinition->SetVisible(false);
    return opDefinition;
}

}

SketcherWindow::SketcherWindow(Sketch& sketch, DimensionInputController& input)
    : m_sketch(sketch), m_pView(new SketchView(sketch, input, this))
{
    LoadIcons();
    setWindowIcon(QIcon(QStringLiteral(":/icons/sketcher.svg")));
    SetDrawingView(m_pView);
    resize(1200, 800);
    connect(&sketch, &Sketch::changed, this, &SketcherWindow::OnSketchChanged);
    OnSketchChanged();
}

SketcherWindow::~SketcherWindow() = default;

void SketcherWindow::BuildRibbon(const std::vector<CommandEntry>& commands, ControlHost& controls)
{
    Qtitan::RibbonPage* pPage = GetRibbon()->addPage(QStringLiteral("草图"));
    Qtitan::RibbonGroup* pGroup = nullptr;
    std::wstring groupTitle;
    for (const CommandEntry& entry : commands)
    {
        if (pGroup == nullptr || entry.group != groupTitle)
            pGroup = pPage->addGroup(ToQString(entry.group));
        groupTitle = entry.group;
        auto* pButton = qobject_cast<QToolButton*>(controls.Create(MakeDefinition(entry)));
        if (pButton == nullptr)
            continue;
        pGroup->addButton(pButton);
        auto* pShortcut = new QShortcut(QKeySequence(ToQString(entry.keys)), this);
        pShortcut->setContext(Qt::ApplicationShortcut);
        connect(pShortcut, &QShortcut::activated, pButton, &QToolButton::click);
    }
    m_pPanel = std::make_unique<DrawingPanel>(m_sketch, *pPage->addGroup(QStringLiteral("图纸")),
                                              controls);
    controls.RefreshControls();
}

void SketcherWindow::ReleaseControls()
{
    m_pPanel.reset();
}

void SketcherWindow::OnSketchChanged()
{
    setWindowTitle(QStringLiteral("%1 - Sketcher").arg(ToQString(m_sketch.GetName())));
}
