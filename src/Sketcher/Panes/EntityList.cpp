#include "Panes/EntityList.h"

#include "Panes/TextCellDelegate.h"

#include <QEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScrollBar>
#include <QStyleOptionViewItem>

EntityList::EntityList()
{
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    setItemDelegate(new TextCellDelegate(this));
    FitRows();
}

void EntityList::setModel(QAbstractItemModel* pModel)
{
    QTableView::setModel(pModel);
    // To paint itself a header asks whether every row of a column is selected, although that makes
    // no difference here: it gets a selection of its own that stays empty.
    horizontalHeader()->setSelectionModel(new QItemSelectionModel(pModel, this));
}

QModelIndex EntityList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int column = qMax(0, currentIndex().column());
    switch (action)
    {
    case MoveHome:
        return model()->index(0, column);
    case MoveEnd:
        return model()->index(model()->rowCount() - 1, column);
    case MoveLeft:
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
        return currentIndex();
    case MoveRight:
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd);
        return currentIndex();
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

void EntityList::changeEvent(QEvent* pEvent)
{
    QTableView::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        FitRows();
}

void EntityList::FitRows()
{
    QStyleOptionViewItem row;
    row.initFrom(this);
    row.font = font();
    row.features = QStyleOptionViewItem::HasDisplay;
    row.text = QStringLiteral("0");
    const QSize size = style()->sizeFromContents(QStyle::CT_ItemViewItem, &row, {}, this);
    verticalHeader()->setDefaultSectionSize(size.height());
}
