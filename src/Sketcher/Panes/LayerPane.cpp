#include "Panes/LayerPane.h"

#include "Model/LayerEdit.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Panes/ColourSwatch.h"
#include "Panes/LayerModel.h"
#include "Panes/RefusalMessage.h"

#include "Command/ActionManager.h"
#include "HostUi/QtText.h"
#include "Journal/JournalRecord.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <string>

using namespace vesk;

namespace
{

constexpr int NoLayer = -1;

/// "图层 1", or with the next number that no layer has.
std::wstring FreeLayerName(const Sketch& sketch)
{
    int number = 1;
    std::wstring name;
    do
        name = ToWide("图层 %1"_tr.arg(number++));
    while (sketch.FindLayer(name) != nullptr);
    return name;
}

void ArrangeColumns(QTreeView& view)
{
    QHeaderView& header = *view.header();
    header.setSectionsMovable(false);
    header.setStretchLastSection(false);
    header.setMinimumSectionSize(1);
    header.setSectionResizeMode(QHeaderView::Interactive);
    header.setSectionResizeMode(LayerModel::NameColumn, QHeaderView::Stretch);
    constexpr int Padding = 12;
    const int mark = view.fontMetrics().horizontalAdvance(QStringLiteral("●")) + Padding;
    header.resizeSection(LayerModel::CurrentColumn, mark);
    for (const int column :
         {LayerModel::ColourColumn, LayerModel::VisibleColumn, LayerModel::LockedColumn})
    {
        const QString caption = view.model()->headerData(column, Qt::Horizontal).toString();
        header.resizeSection(column, view.fontMetrics().horizontalAdvance(caption) + Padding);
    }
}

}

LayerPane::LayerPane(Workspace& workspace)
    : m_workspace(workspace), m_pModel(new LayerModel(workspace.sketch, this)),
      m_pView(new QTreeView), m_pMessage(MakeRefusalMessage(QStringLiteral("LayerMessage")))
{
    m_pView->setObjectName(QStringLiteral("Layers"));
    m_pView->setModel(m_pModel);
    m_pView->setRootIsDecorated(false);
    m_pView->setUniformRowHeights(true);
    m_pView->setFrameShape(QFrame::NoFrame);
    ArrangeColumns(*m_pView);

    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(MakeButtons());
    pLayout->addWidget(m_pView);
    pLayout->addWidget(m_pMessage);
    connect(m_pView, &QTreeView::clicked, this, &LayerPane::Choose);
    connect(m_pView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LayerPane::ShowPossible);
    connect(m_pModel, &LayerModel::answered, this, &LayerPane::OnAnswered);
    UpdateStatus();
}

/// A name that is being typed is taken when the pane disappears, and the pane hears of that.
LayerPane::~LayerPane()
{
    hide();
}

void LayerPane::UpdateStatus()
{
    const int selected = GetSelected();
    m_pModel->Refresh();
    if (GetSelected() != selected)
        Select(selected);
    ShowPossible();
}

QWidget* LayerPane::MakeButtons()
{
    auto* pButtons = new QWidget;
    auto* pRow = new QHBoxLayout(pButtons);
    pRow->setContentsMargins(2, 2, 2, 2);
    pRow->setSpacing(2);
    pRow->addWidget(
        MakeButton(QStringLiteral("NewLayer"), "新建"_tr, "新建图层"_tr, &LayerPane::OnNew));
    m_pRemove = MakeButton(QStringLiteral("RemoveLayer"), Tr("删除"_source, "layer"),
                           "删除所选图层；基础图层和有图元的图层不能删除"_tr, &LayerPane::OnRemove);
    m_pMakeCurrent = MakeButton(QStringLiteral("MakeLayerCurrent"), "设为当前"_tr,
                                "新图元画在所选图层上"_tr, &LayerPane::OnMakeCurrent);
    pRow->addWidget(m_pRemove);
    pRow->addWidget(m_pMakeCurrent);
    pRow->addStretch();
    return pButtons;
}

QToolButton* LayerPane::MakeButton(const QString& name, const QString& text, const QString& toolTip,
                                   void (LayerPane::*onClicked)())
{
    auto* pButton = new QToolButton;
    pButton->setObjectName(name);
    pButton->setText(text);
    pButton->setToolTip(toolTip);
    pButton->setAutoRaise(true);
    pButton->setFocusPolicy(Qt::TabFocus);
    connect(pButton, &QToolButton::clicked, this, onClicked);
    return pButton;
}

void LayerPane::Choose(const QModelIndex& index)
{
    if (index.column() == LayerModel::CurrentColumn)
        MakeCurrent(m_pModel->GetLayer(index.row()).id);
    if (index.column() == LayerModel::ColourColumn)
        ChooseColour(index);
}

void LayerPane::ChooseColour(const QModelIndex& index)
{
    const int layerId = m_pModel->GetLayer(index.row()).id;
    auto* pMenu = new QMenu(this);
    pMenu->setObjectName(QStringLiteral("LayerColours"));
    pMenu->setAttribute(Qt::WA_DeleteOnClose);
    for (const LineColour& colour : LineColours())
    {
        const QColor& shown =
            colour.colour.isValid() ? colour.colour : palette().color(QPalette::Text);
        QAction* pAction = pMenu->addAction(MakeColourSwatch(shown), ToQString(Tr(colour.caption)));
        connect(pAction, &QAction::triggered, this, [this, layerId, name = colour.name] {
            const int row = m_pModel->GetRow(layerId);
            if (row >= 0)
                m_pModel->Change(row, L"colour", name);
        });
    }
    pMenu->popup(m_pView->viewport()->mapToGlobal(m_pView->visualRect(index).bottomLeft()));
}

/// The name of the new layer can be typed at once.
void LayerPane::OnNew()
{
    const QPointer<LayerPane> pThis(this);
    const LayerAddition addition{FreeLayerName(m_workspace.sketch)};
    if (addition.IsPossible(m_workspace.sketch))
        ActionManager::RunCommand(LayerAddition::CommandId, addition.ToParameters());
    if (pThis == nullptr)
        return;
    OnAnswered(QString());
    const Layer& added = m_workspace.sketch.GetLayers().back();
    if (added.name != addition.name)
        return;
    Select(added.id);
    m_pView->edit(m_pModel->index(m_pModel->GetRow(added.id), LayerModel::NameColumn));
}

void LayerPane::OnRemove()
{
    const QPointer<LayerPane> pThis(this);
    const LayerRemoval removal{GetSelected()};
    if (removal.IsPossible(m_workspace.sketch))
        ActionManager::RunCommand(LayerRemoval::CommandId, removal.ToParameters());
    if (pThis != nullptr)
        OnAnswered(QString());
}

void LayerPane::OnMakeCurrent()
{
    if (GetSelected() != NoLayer)
        MakeCurrent(GetSelected());
}

void LayerPane::OnAnswered(const QString& refusal)
{
    m_pMessage->setText(refusal);
    m_pMessage->setVisible(!refusal.isEmpty());
    UpdateStatus();
}

void LayerPane::MakeCurrent(int layerId)
{
    if (layerId != m_workspace.sketch.GetCurrentPen().layer)
        m_workspace.properties.Set(PropertyRecord{L"pen", L"layer", std::to_wstring(layerId)});
    OnAnswered(QString());
}

/// Selects a layer, or none if there is none with that id.
void LayerPane::Select(int layerId)
{
    const int row = m_pModel->GetRow(layerId);
    if (row >= 0)
        m_pView->setCurrentIndex(m_pModel->index(row, LayerModel::NameColumn));
    else
        m_pView->clearSelection();
}

void LayerPane::ShowPossible()
{
    const int selected = GetSelected();
    m_pRemove->setEnabled(LayerRemoval{selected}.IsPossible(m_workspace.sketch));
    m_pMakeCurrent->setEnabled(selected != NoLayer &&
                               selected != m_workspace.sketch.GetCurrentPen().layer);
}

int LayerPane::GetSelected() const
{
    const QModelIndexList rows = m_pView->selectionModel()->selectedRows();
    return rows.isEmpty() ? NoLayer : m_pModel->GetLayer(rows.front().row()).id;
}
