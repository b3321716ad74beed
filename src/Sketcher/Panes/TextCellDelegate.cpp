#include "Panes/TextCellDelegate.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QTextOption>
#include <QWidget>

namespace
{

QStyle& StyleOf(const QStyleOptionViewItem& cell)
{
    return *cell.widget->style();
}

/// Where styles put a text that stands alone in its cell.
QRect TextRect(const QStyleOptionViewItem& cell)
{
    const int margin =
        StyleOf(cell).pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
    return cell.rect.adjusted(margin, 0, -margin, 0);
}

QColor TextColour(const QStyleOptionViewItem& cell)
{
    QPalette::ColorGroup group = QPalette::Disabled;
    if (cell.state.testFlag(QStyle::State_Enabled))
        group = cell.state.testFlag(QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive;
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    return cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

/// A layout that keeps the glyphs for drawing.
void LayOut(QTextLayout& layout, const QStyleOptionViewItem& cell, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::ManualWrap);
    option.setTextDirection(cell.direction);
    option.setAlignment(QStyle::visualAlignment(cell.direction, cell.displayAlignment));
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    layout.createLine().setLineWidth(width);
    layout.endLayout();
}

}

void TextCellDelegate::paint(QPainter* pPainter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QRect rect = TextRect(cell);
    QTextLayout layout(cell.text, cell.font);
    LayOut(layout, cell, rect.width());
    const QTextLine line = layout.lineAt(0);
    const bool fits =
        line.textLength() == cell.text.size() && line.naturalTextWidth() <= rect.width();
    if (!fits || cell.state.testFlag(QStyle::State_HasFocus))
    {
        StyleOf(cell).drawControl(QStyle::CE_ItemViewItem, &cell, pPainter, cell.widget);
        return;
    }
    pPainter->save();
    pPainter->setClipRect(cell.rect);
    StyleOf(cell).drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, pPainter, cell.widget);
    pPainter->setPen(TextColour(cell));
    const QRect placed = QStyle::alignedRect(Qt::LayoutDirectionAuto, cell.displayAlignment,
                                             layout.boundingRect().size().toSize(), rect);
    layout.draw(pPainter, QPointF(rect.x(), placed.top()));
    pPainter->restore();
}
