#include "Panes/LayerModel.h"

#include "Model/LayerEdit.h"
#include "Model/Sketch.h"
#include "Model/UiText.h"
#include "Panes/ColourSwatch.h"

#include "Command/ActionManager.h"
#include "HostUi/QtText.h"

#include <QGuiApplication>
#include <QPalette>
#include <QPointer>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

using namespace vesk;

namespace
{

struct LayerColumn
{
    const char* header;
    const char* toolTip;
};

const LayerColumn& ColumnAt(int column)
{
    static const std::array<LayerColumn, LayerModel::ColumnCount> s_columns = {{
        {"", "新图元画在当前图层上；单击设为当前"_source},
        {"名称"_source, "双击改名"_source},
        {"颜色"_source, "颜色为默认的图元所用的颜色；单击选择"_source},
        {"可见"_source, "不可见的图层不显示，也不能选取和捕捉"_source},
        {"锁定"_source, "锁定的图层可以捕捉，但不能选取和修改"_source},
    }};
    return s_columns[static_cast<std::size_t>(column)];
}

const LineColour& ColourOf(const Layer& layer)
{
    return LineColours()[static_cast<std::size_t>(layer.colour)];
}

QVariant ToCheckState(bool isOn)
{
    return isOn ? Qt::Checked : Qt::Unchecked;
}

QString DescribeNameRefusal(const std::wstring& name)
{
    return name.empty() ? "图层名不能为空"_tr : "已有名为“%1”的图层"_tr.arg(ToQString(name));
}

}

LayerModel::LayerModel(const Sketch& sketch, QObject* pParent)
    : QAbstractTableModel(pParent), m_sketch(sketch)
{}

void LayerModel::Refresh()
{
    FitRows(m_sketch.GetLayers());
    const std::vector<Layer> before = std::exchange(m_layers, m_sketch.GetLayers());
    const int currentBefore = std::exchange(m_currentLayer, m_sketch.GetCurrentPen().layer);
    // Only rows that differ: a name that is being typed in another stays.
    for (int row = 0; row < rowCount(); ++row)
    {
        const Layer& former = before[static_cast<std::size_t>(row)];
        const bool wasCurrent = former.id == currentBefore;
        const bool isCurrent = former.id == m_currentLayer;
        if (!(former == GetLayer(row)) || wasCurrent != isCurrent)
            emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    }
}

int LayerModel::GetRow(int layerId) const
{
    const auto found = std::find_if(m_layers.begin(), m_layers.end(),
                                    [layerId](const Layer& layer) { return layer.id == layerId; });
    return found != m_layers.end() ? static_cast<int>(found - m_layers.begin()) : -1;
}

void LayerModel::Change(int row, const std::wstring& property,
                        const std::variant<bool, std::wstring>& value)
{
    const LayerEdit edit{GetLayer(row).id, property, value};
    const auto* pName = std::get_if<std::wstring>(&value);
    const QPointer<LayerModel> pThis(this);
    QString refusal;
    if (edit.IsPossible(m_sketch))
        ActionManager::RunCommand(LayerEdit::CommandId, edit.ToParameters());
    else if (pName != nullptr)
        refusal = DescribeNameRefusal(*pName);
    if (pThis != nullptr)
        emit answered(refusal);
}

int LayerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_layers.size());
}

int LayerModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LayerModel::data(const QModelIndex& index, int role) const
{
    const Layer& layer = GetLayer(index.row());
    const int column = index.column();
    switch (role)
    {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return GetText(layer, column);
    case Qt::CheckStateRole:
        if (column == VisibleColumn || column == LockedColumn)
            return ToCheckState(column == VisibleColumn ? layer.isVisible : layer.isLocked);
        return {};
    case Qt::DecorationRole:
        if (column == ColourColumn)
            return MakeColourSwatch(ColourOf(layer).colour.isValid()
                                        ? ColourOf(layer).colour
                                        : QGuiApplication::palette().color(QPalette::Text));
        return {};
    case Qt::ToolTipRole:
        return column == ColourColumn ? ToQString(Tr(ColourOf(layer).caption))
                                      : Tr(ColumnAt(column).toolTip);
    case Qt::TextAlignmentRole:
        return column == CurrentColumn ? QVariant(Qt::AlignCenter) : QVariant();
    default:
        return {};
    }
}

bool LayerModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    // The toolkit offers what was typed for a layer when its row is about to go, too.
    if (m_sketch.FindLayer(GetLayer(index.row()).id) == nullptr)
        return false;
    if (index.column() == NameColumn && role == Qt::EditRole)
    {
        const std::wstring name = ToWide(value.toString().trimmed());
        if (name != GetLayer(index.row()).name)
            Change(index.row(), L"name", name);
        return true;
    }
    if (role != Qt::CheckStateRole)
        return false;
    Change(index.row(), index.column() == VisibleColumn ? L"visible" : L"locked",
           value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags LayerModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    switch (index.column())
    {
    case NameColumn:
        return flags | Qt::ItemIsEditable;
    case VisibleColumn:
    case LockedColumn:
        return flags | Qt::ItemIsUserCheckable;
    default:
        return flags;
    }
}

QVariant LayerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    // The mark of the current layer has no header to be seen.
    const bool isUnseen = role == Qt::AccessibleTextRole && section == CurrentColumn;
    if (role == Qt::ToolTipRole || isUnseen)
        return Tr(ColumnAt(section).toolTip);
    return role == Qt::DisplayRole ? Tr(ColumnAt(section).header) : QVariant();
}

/// Removes and inserts rows until there is one for each layer; both are in the order of ids. Rows
/// that stay are not touched, nor is the name that is being typed in one of them.
void LayerModel::FitRows(const std::vector<Layer>& next)
{
    int row = 0;
    for (const Layer& layer : next)
    {
        while (row < rowCount() && GetLayer(row).id < layer.id)
            DropRow(row);
        if (row == rowCount() || GetLayer(row).id != layer.id)
        {
            beginInsertRows(QModelIndex(), row, row);
            m_layers.insert(m_layers.begin() + row, layer);
            endInsertRows();
        }
        ++row;
    }
    while (row < rowCount())
        DropRow(row);
}

void LayerModel::DropRow(int row)
{
    beginRemoveRows(QModelIndex(), row, row);
    m_layers.erase(m_layers.begin() + row);
    endRemoveRows();
}

QVariant LayerModel::GetText(const Layer& layer, int column) const
{
    if (column == NameColumn)
        return ToQString(layer.name);
    if (column == CurrentColumn && layer.id == m_currentLayer)
        return QStringLiteral("●");
    return {};
}
