#include "Panes/EntityModel.h"

#include "Model/ShapeKind.h"
#include "Model/ShapeProperty.h"
#include "Model/Sketch.h"
#include "Model/UiText.h"

#include "Dimension/LengthUnit.h"
#include "HostUi/NumberText.h"
#include "HostUi/QtText.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

using namespace vesk;

namespace
{

constexpr std::array<const char*, EntityModel::ColumnCount> Headers = {"编号"_source, "类型"_source,
                                                                       "尺寸"_source};

/// The lengths of a shape that do not depend on its position.
QString SizeOf(const Shape& shape)
{
    const LengthUnit& unit = LengthUnit::GetCurrent();
    QStringList sizes;
    for (const wchar_t* name : {L"length", L"radius", L"width", L"height"})
    {
        if (const ShapeProperty* pProperty = FindProperty(shape, name))
            sizes << QStringLiteral("%1 %2").arg(
                ToQString(Tr(pProperty->caption)),
                ToLocalText(unit.ToShown(pProperty->get(shape)), 3));
    }
    return sizes.join("，"_tr);
}

}

EntityModel::EntityModel(const Sketch& sketch, QObject* pParent)
    : QAbstractTableModel(pParent), m_sketch(sketch)
{}

void EntityModel::Refresh()
{
    const RecentChanges& recent = m_sketch.GetRecentChanges();
    const std::optional<std::vector<int>> changed =
        m_version.has_value() ? recent.GetSince(*m_version) : std::nullopt;
    m_version = recent.GetVersion();
    const std::wstring& unit = LengthUnit::GetCurrent().GetSymbol();
    const bool isOtherUnit = std::exchange(m_unit, unit) != unit;
    if (changed.has_value())
        Refresh(*changed);
    else
        RefreshAll();
    if (isOtherUnit || !changed.has_value())
        TellChanged(0, rowCount() - 1);
}

int EntityModel::GetRow(int id) const
{
    const int place = PlaceOf(id);
    return place < rowCount() && GetId(place) == id ? place : -1;
}

/// Looks for what is different: the rows between those that are the same at both ends.
void EntityModel::RefreshAll()
{
    std::vector<int> next;
    next.reserve(m_sketch.GetEntities().size());
    for (const Entity& entity : m_sketch.GetEntities())
        next.push_back(entity.id);

    const auto same = std::mismatch(m_ids.begin(), m_ids.end(), next.begin(), next.end());
    const int front = static_cast<int>(same.first - m_ids.begin());
    const auto sameEnd = std::mismatch(m_ids.rbegin(), std::make_reverse_iterator(same.first),
                                       next.rbegin(), std::make_reverse_iterator(same.second));
    const int oldEnd = static_cast<int>(sameEnd.first.base() - m_ids.begin());
    const int newEnd = static_cast<int>(sameEnd.second.base() - next.begin());
    Remove(front, oldEnd);
    Insert(front, next.begin() + front, next.begin() + newEnd);
}

/// Only these entities, by ascending id, may have changed.
void EntityModel::Refresh(const std::vector<int>& changed)
{
    RemoveGone(changed);
    std::vector<int> rows;
    for (const int id : changed)
    {
        if (GetRow(id) >= 0)
            rows.push_back(GetRow(id));
    }
    if (!rows.empty())
        TellChanged(rows.front(), rows.back());
    InsertNew(changed);
}

/// From the end, so that the rows before it stay.
void EntityModel::RemoveGone(const std::vector<int>& changed)
{
    int begin = rowCount();
    int end = begin;
    for (auto id = changed.rbegin(); id != changed.rend(); ++id)
    {
        const int row = GetRow(*id);
        if (row < 0 || m_sketch.Find(*id) != nullptr)
            continue;
        if (row + 1 != begin)
        {
            Remove(begin, end);
            end = row + 1;
        }
        begin = row;
    }
    Remove(begin, end);
}

void EntityModel::InsertNew(const std::vector<int>& changed)
{
    std::vector<int> come;
    std::copy_if(changed.begin(), changed.end(), std::back_inserter(come),
                 [this](int id) { return GetRow(id) < 0 && m_sketch.Find(id) != nullptr; });
    for (auto begin = come.cbegin(); begin != come.cend();)
    {
        const int row = PlaceOf(*begin);
        const auto end =
            std::find_if(begin, come.cend(), [this, row](int id) { return PlaceOf(id) != row; });
        Insert(row, begin, end);
        begin = end;
    }
}

void EntityModel::Remove(int begin, int end)
{
    if (begin == end)
        return;
    beginRemoveRows(QModelIndex(), begin, end - 1);
    m_ids.erase(m_ids.begin() + begin, m_ids.begin() + end);
    endRemoveRows();
}

void EntityModel::Insert(int row, std::vector<int>::const_iterator begin,
                         std::vector<int>::const_iterator end)
{
    if (begin == end)
        return;
    beginInsertRows(QModelIndex(), row, row + static_cast<int>(end - begin) - 1);
    m_ids.insert(m_ids.begin() + row, begin, end);
    endInsertRows();
}

void EntityModel::TellChanged(int first, int last)
{
    if (first <= last)
        emit dataChanged(index(first, 0), index(last, ColumnCount - 1));
}

/// The first row whose id is not less.
int EntityModel::PlaceOf(int id) const
{
    return static_cast<int>(std::lower_bound(m_ids.begin(), m_ids.end(), id) - m_ids.begin());
}

int EntityModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_ids.size());
}

int EntityModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EntityModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    // The drawing may have changed before the rows do.
    const Entity* pEntity = m_sketch.Find(GetId(index.row()));
    if (pEntity == nullptr)
        return {};
    switch (index.column())
    {
    case NumberColumn:
        return pEntity->id;
    case KindColumn:
        return ToQString(Tr(KindOf(pEntity->shape).caption));
    default:
        return SizeOf(pEntity->shape);
    }
}

QVariant EntityModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return Tr(Headers[static_cast<std::size_t>(section)]);
}
