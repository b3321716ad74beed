#pragma once

#include <QAbstractTableModel>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class Sketch;

/// The entities of a drawing as rows of a table, in drawing order.
class EntityModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NumberColumn,
        KindColumn,
        SizeColumn,
        ColumnCount,
    };

    /// The sketch is not owned and outlives the model.
    EntityModel(const Sketch& sketch, QObject* pParent);

    /// Updates the rows from the drawing; rows of remaining entities are kept. Costs what has
    /// changed, not what the drawing holds, unless much has changed. Tells of no other rows.
    void Refresh();

    int GetId(int row) const { return m_ids[static_cast<std::size_t>(row)]; }

    /// The row of an entity; -1 if it has none.
    int GetRow(int id) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void RefreshAll();
    void Refresh(const std::vector<int>& changed);
    void RemoveGone(const std::vector<int>& changed);
    void InsertNew(const std::vector<int>& changed);
    void Remove(int begin, int end);
    void Insert(int row, std::vector<int>::const_iterator begin,
                std::vector<int>::const_iterator end);
    void TellChanged(int first, int last);
    int PlaceOf(int id) const;

    const Sketch& m_sketch;

    /// Ascending.
    std::vector<int> m_ids;

    /// What the rows show: nothing yet, or that version of the drawing in that unit.
    std::optional<std::uint64_t> m_version;
    std::wstring m_unit;
};
