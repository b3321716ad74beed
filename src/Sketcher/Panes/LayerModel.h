#pragma once

#include "Model/Layer.h"

#include <QAbstractTableModel>

#include <string>
#include <variant>
#include <vector>

class Sketch;

/// The layers of a drawing as rows of a table. Edits are sent as commands; the rows show them once
/// they are done.
class LayerModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        CurrentColumn,
        NameColumn,
        ColourColumn,
        VisibleColumn,
        LockedColumn,
        ColumnCount,
    };

    /// The sketch is not owned and outlives the model.
    LayerModel(const Sketch& sketch, QObject* pParent);

    /// Updates the rows from the drawing. The row of a layer that is still there is kept, and said
    /// to have changed only if it differs.
    void Refresh();

    const Layer& GetLayer(int row) const { return m_layers[static_cast<std::size_t>(row)]; }

    /// The row of a layer; -1 if it has none.
    int GetRow(int layerId) const;

    /// Sends a new value of a property as a command, if it is possible.
    void Change(int row, const std::wstring& property,
                const std::variant<bool, std::wstring>& value);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// A change was sent as a command, or refused; the reason is empty if it was not.
    void answered(const QString& refusal);

private:
    void FitRows(const std::vector<Layer>& next);
    void DropRow(int row);
    QVariant GetText(const Layer& layer, int column) const;

    const Sketch& m_sketch;

    /// What the rows show.
    std::vector<Layer> m_layers;
    int m_currentLayer = Layer::BaseId;
};
