#include "RibbonColumn.h"

#include "Caption.h"
#include "Qtitan/RibbonButtonControl.h"
#include "RibbonButtonFilter.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QToolButton>

#include <algorithm>

namespace Qtitan
{

namespace
{

constexpr int BoxSpacing = 6;

/// Lets four rows of check boxes fit beside the three rows of a column.
void tighten(QLayout& layout)
{
    layout.setContentsMargins(0, 0, 0, 0);
    layout.setSpacing(0);
    if (auto* pGrid = qobject_cast<QGridLayout*>(&layout))
        pGrid->setHorizontalSpacing(BoxSpacing);
}

} // namespace

bool isColumnOfItsOwn(const QWidget& widget)
{
    const auto* pBox = qobject_cast<const QBoxLayout*>(widget.layout());
    if (pBox == nullptr)
        return qobject_cast<const QGridLayout*>(widget.layout()) != nullptr;
    return pBox->direction() == QBoxLayout::TopToBottom ||
           pBox->direction() == QBoxLayout::BottomToTop;
}

RibbonColumn::RibbonColumn(QWidget* pParent) : QWidget(pParent), m_pGrid(new QGridLayout(this))
{
    m_pGrid->setContentsMargins(4, 0, 4, 0);
    m_pGrid->setHorizontalSpacing(6);
    m_pGrid->setVerticalSpacing(RibbonMetrics::RowSpacing);
    m_pGrid->setRowStretch(RibbonMetrics::RowsInColumn, 1);
    m_pGrid->setColumnStretch(1, 1);
}

bool RibbonColumn::isFull() const
{
    return freeRow() == RibbonMetrics::RowsInColumn;
}

void RibbonColumn::addRow(const QString& label, QWidget* pWidget)
{
    const int index = freeRow();
    Row& row = m_rows.at(static_cast<std::size_t>(index));
    delete row.pLabel;
    row.pWidget = pWidget;
    const bool isTall = isColumnOfItsOwn(*pWidget);
    const int rowSpan = isTall ? RibbonMetrics::RowsInColumn + 1 : 1;
    const Qt::Alignment alignment = isTall ? Qt::AlignTop : Qt::Alignment();
    if (isTall)
        tighten(*pWidget->layout());
    if (label.isEmpty())
    {
        m_pGrid->addWidget(pWidget, index, 0, rowSpan, 2, alignment);
    }
    else
    {
        row.pLabel = new QLabel(label, this);
        row.pLabel->setBuddy(pWidget);
        m_pGrid->addWidget(row.pLabel, index, 0);
        m_pGrid->addWidget(pWidget, index, 1, rowSpan, 1, alignment);
        if (pWidget->accessibleName().isEmpty())
            pWidget->setAccessibleName(plainCaption(label));
    }
    pWidget->installEventFilter(this);
    followWidgets();
}

bool RibbonColumn::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    auto* pButton = qobject_cast<QToolButton*>(pWatched);
    // A button stacked without a form is arranged by its own style, like a large one.
    if (pButton != nullptr && filterRibbonButton(*pButton, RibbonButtonForm::Large, *pEvent))
        return true;
    if (type == QEvent::ShowToParent || type == QEvent::HideToParent)
        followWidgets();
    return QWidget::eventFilter(pWatched, pEvent);
}

void RibbonColumn::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        followWidgets();
}

void RibbonColumn::childEvent(QChildEvent* pEvent)
{
    QWidget::childEvent(pEvent);
    if (!pEvent->removed())
        return;
    for (Row& row : m_rows)
    {
        if (row.pWidget == pEvent->child())
            row.pWidget = nullptr;
    }
    pEvent->child()->removeEventFilter(this);
    followWidgets();
}

int RibbonColumn::freeRow() const
{
    const auto it = std::find_if(m_rows.begin(), m_rows.end(),
                                 [](const Row& row) { return row.pWidget == nullptr; });
    return static_cast<int>(it - m_rows.begin());
}

void RibbonColumn::followWidgets()
{
    const int height = RibbonMetrics::rowHeight(*this);
    bool isAnyShown = false;
    int index = 0;
    for (const Row& row : m_rows)
    {
        const bool isShown = takesRoom(row.pWidget, this);
        isAnyShown = isAnyShown || isShown;
        m_pGrid->setRowMinimumHeight(index++, isShown ? height : 0);
        if (row.pLabel != nullptr)
            row.pLabel->setVisible(isShown);
    }
    setVisible(isAnyShown);
}

} // namespace Qtitan
