#pragma once

#include <QAbstractTableModel>

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

    /// Updates the rows from the drawing; rows of remaining entities are kept.
    void Refresh();

    int GetId(int row) const { return m_ids[static_cast<std::size_t>(row)]; }

    /// The row of an entity; -1 if it has none.
    int GetRow(int id) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Sketch& m_sketch;

    /// Ascending.
    std::vector<int> m_ids;
};
