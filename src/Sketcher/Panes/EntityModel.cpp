#include "Panes/EntityModel.h"

#include "Model/ShapeKind.h"
#include "Model/ShapeProperty.h"
#include "Model/Sketch.h"

#include "Dimension/LengthUnit.h"
#include "HostUi/QtText.h"

#include <algorithm>
#include <array>
#include <iterator>

using namespace vesk;

namespace
{

const std::array<QString, EntityModel::ColumnCount>& Headers()
{
    static const std::array<QString, EntityModel::ColumnCount> s_headers = {
        QStringLiteral("编号"), QStringLiteral("类型"), QStringLiteral("尺寸")};
    return s_headers;
}

/// The lengths of a shape that do not depend on its position.
QString SizeOf(const Shape& shape)
{
    const LengthUnit& unit = LengthUnit::GetCurrent();
    QStringList sizes;
    for (const wchar_t* name : {L"length", L"radius", L"width", L"height"})
    {
        if (const ShapeProperty* pProperty = FindProperty(shape, name))
            sizes << QStringLiteral("%1 %2").arg(
                ToQString(pProperty->caption),
                QString::number(unit.ToShown(pProperty->get(shape)), 'f', 3));
    }
    return sizes.join(QStringLiteral("，"));
}

}

EntityModel::EntityModel(const Sketch& sketch, QObject* pParent)
    : QAbstractTableModel(pParent), m_sketch(sketch)
{}

void EntityModel::Refresh()
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
    if (oldEnd > front)
    {
        beginRemoveRows(QModelIndex(), front, oldEnd - 1);
        m_ids.erase(m_ids.begin() + front, m_ids.begin() + oldEnd);
        endRemoveRows();
    }
    if (newEnd > front)
    {
        beginInsertRows(QModelIndex(), front, newEnd - 1);
        m_ids.insert(m_ids.begin() + front, next.begin() + front, next.begin() + newEnd);
        endInsertRows();
    }
    if (!m_ids.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int EntityModel::GetRow(int id) const
{
    const auto found = std::lower_bound(m_ids.begin(), m_ids.end(), id);
    return found != m_ids.end() && *found == id ? static_cast<int>(found - m_ids.begin()) : -1;
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
        return ToQString(KindOf(pEntity->shape).caption);
    default:
        return SizeOf(pEntity->shape);
    }
}

QVariant EntityModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return Headers()[static_cast<std::size_t>(section)];
}
