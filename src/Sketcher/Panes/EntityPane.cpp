#include "Panes/EntityPane.h"

#include "Model/ShapeKind.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Panes/EntityList.h"
#include "Panes/EntityModel.h"

#include "HostUi/QtText.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace
{

/// Mostly they are in order, which is found out much sooner than it is established.
std::vector<int> Ascending(std::vector<int> rows)
{
    if (!std::is_sorted(rows.begin(), rows.end()))
        std::sort(rows.begin(), rows.end());
    return rows;
}

/// In pixels, in the language of the moment.
int WidestKind(const QFontMetrics& metrics)
{
    int widest = 0;
    for (const Shape& shape :
         {Shape(LineShape()), Shape(CircleShape()), Shape(ArcShape()), Shape(RectangleShape())})
        widest =
            std::max(widest, metrics.horizontalAdvance(vesk::ToQString(Tr(KindOf(shape).caption))));
    return widest;
}

}

EntityPane::EntityPane(Workspace& workspace)
    : m_workspace(workspace), m_pModel(new EntityModel(workspace.sketch, this)),
      m_pView(new EntityList)
{
    m_pView->setObjectName(QStringLiteral("Entities"));
    m_pView->setModel(m_pModel);
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    m_pView->horizontalHeader()->resizeSection(EntityModel::NumberColumn, 6 * digit);
    m_pView->horizontalHeader()->resizeSection(EntityModel::KindColumn,
                                               WidestKind(fontMetrics()) + digit);
    // Gets the rest of the pane.
    m_pView->horizontalHeader()->resizeSection(EntityModel::SizeColumn, 6 * digit);

    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pView);
    connect(m_pView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &EntityPane::OnSelected);
    m_pView->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_pView, &QWidget::customContextMenuRequested, this, [this](const QPoint& position) {
        emit menuRequested(m_pView->viewport()->mapToGlobal(position));
    });
    UpdateStatus();
}

void EntityPane::UpdateStatus()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    m_pModel->Refresh();
    const std::vector<int>& ids = m_workspace.selection.GetIds();
    const std::vector<int> rows = ToRows(ids);
    if (rows == Ascending(GetSelectedRows()))
        return;
    // In two steps, because in one the toolkit compares each range with every earlier one.
    m_pView->selectionModel()->clearSelection();
    m_pView->selectionModel()->select(ToSelection(rows), QItemSelectionModel::Select);
    if (!ids.empty())
        m_pView->scrollTo(m_pModel->index(m_pModel->GetRow(ids.back()), 0));
}

void EntityPane::OnSelected()
{
    if (m_isShowing)
        return;
    std::vector<int> ids;
    for (const int row : GetSelectedRows())
        ids.push_back(m_pModel->GetId(row));
    // Rows whose entities are no longer in the drawing, hidden or locked cannot be selected there.
    ids.erase(std::remove_if(ids.begin(), ids.end(),
                             [this](int id) { return !m_workspace.sketch.CanPick(id); }),
              ids.end());
    m_workspace.selection.Select(ids);
}

/// In the order in which they were selected.
std::vector<int> EntityPane::GetSelectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : m_pView->selectionModel()->selection())
    {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    return rows;
}

/// Ascending, without duplicates.
std::vector<int> EntityPane::ToRows(const std::vector<int>& ids) const
{
    std::vector<int> rows;
    for (const int id : ids)
        rows.push_back(m_pModel->GetRow(id));
    rows = Ascending(std::move(rows));
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

/// Uses as few ranges as possible.
QItemSelection EntityPane::ToSelection(const std::vector<int>& rows) const
{
    QItemSelection selection;
    const int lastColumn = m_pModel->columnCount() - 1;
    for (std::size_t i = 0; i < rows.size();)
    {
        std::size_t end = i + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1)
            ++end;
        selection.select(m_pModel->index(rows[i], 0), m_pModel->index(rows[end - 1], lastColumn));
        i = end;
    }
    return selection;
}
