#pragma once

#include <QTableView>

/// A list of rows with a few columns, in which rows are selected. It keeps nothing for each row but
/// a few bytes, so that one more row costs the same however many there are; a tree view would lay
/// all of them out again.
class EntityList final : public QTableView
{
    Q_OBJECT

public:
    EntityList();

    void setModel(QAbstractItemModel* pModel) override;

protected:
    /// Home and End go to the first and the last row, Left and Right scroll.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void changeEvent(QEvent* pEvent) override;

private:
    void FitRows();
};
