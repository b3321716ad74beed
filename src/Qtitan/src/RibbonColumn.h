#pragma once

#include "RibbonMetrics.h"

#include <QLabel>
#include <QPointer>
#include <QWidget>

#include <array>

class QGridLayout;

namespace Qtitan
{

/// Whether a widget stacks widgets of its own, and so needs a column to itself.
bool isColumnOfItsOwn(const QWidget& widget);

/// A column of up to three widgets with their labels. Rows whose widget is hidden or deleted close
/// up; the column hides when all of them are.
class RibbonColumn final : public QWidget
{
    Q_OBJECT

public:
    explicit RibbonColumn(QWidget* pParent = nullptr);

    /// Whether every row holds a live widget.
    bool isFull() const;

    /// Puts a widget into the first free row; an empty label means none. A widget that needs a
    /// column to itself requires an empty column; the margins and spacing of its layout are
    /// removed.
    void addRow(const QString& label, QWidget* pWidget);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void childEvent(QChildEvent* pEvent) override;

private:
    struct Row
    {
        QPointer<QWidget> pWidget;
        QPointer<QLabel> pLabel;
    };

    int freeRow() const;
    void followWidgets();

    QGridLayout* m_pGrid;
    std::array<Row, RibbonMetrics::RowsInColumn> m_rows;
};

} // namespace Qtitan
