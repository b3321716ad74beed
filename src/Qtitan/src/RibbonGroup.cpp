#include "Qtitan/RibbonGroup.h"

#include "Caption.h"
#include "Qtitan/RibbonButtonControl.h"
#include "RibbonColors.h"
#include "RibbonColumn.h"
#include "RibbonMetrics.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace Qtitan
{

RibbonGroup::RibbonGroup(const QString& title, QWidget* pParent)
    : QWidget(pParent), m_title(plainCaption(title)), m_pItems(new QHBoxLayout)
{
    setAccessibleName(m_title);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_pItems->setSpacing(RibbonMetrics::ItemSpacing);

    auto* pCentred = new QHBoxLayout(this);
    pCentred->setSpacing(0);
    pCentred->addStretch();
    pCentred->addLayout(m_pItems);
    pCentred->addStretch();
    applyMetrics();
}

RibbonGroup::~RibbonGroup() = default;

QString RibbonGroup::title() const
{
    return m_title;
}

RibbonButtonControl* RibbonGroup::addButton(QToolButton* pButton)
{
    auto* pControl = new RibbonButtonControl(this);
    pControl->setWidget(pButton);
    m_pColumn = nullptr;
    append(pControl);
    return pControl;
}

RibbonButtonControl* RibbonGroup::addSmallButton(QToolButton* pButton)
{
    auto* pControl = new RibbonButtonControl(this, RibbonButtonForm::Small);
    pControl->setWidget(pButton);
    addWidget(pControl);
    return pControl;
}

void RibbonGroup::addWidget(QWidget* pWidget)
{
    addWidget(QString(), pWidget);
}

void RibbonGroup::addWidget(const QString& label, QWidget* pWidget)
{
    if (pWidget == nullptr)
        return;
    const bool isAlone = isColumnOfItsOwn(*pWidget);
    if (!isAlone && m_pColumn != nullptr && !m_pColumn->isFull())
    {
        m_pColumn->addRow(label, pWidget);
        return;
    }
    auto* pColumn = new RibbonColumn(this);
    pColumn->addRow(label, pWidget);
    append(pColumn);
    m_pColumn = isAlone ? nullptr : pColumn;
}

QSize RibbonGroup::sizeHint() const
{
    return grownToTitle(QWidget::sizeHint());
}

QSize RibbonGroup::minimumSizeHint() const
{
    return grownToTitle(QWidget::minimumSizeHint());
}

bool RibbonGroup::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (type == QEvent::ShowToParent || type == QEvent::HideToParent)
        followItems();
    return QWidget::eventFilter(pWatched, pEvent);
}

void RibbonGroup::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange)
        applyMetrics();
}

void RibbonGroup::paintEvent(QPaintEvent*)
{
    const RibbonColors colors(palette());
    QPainter painter(this);
    painter.setPen(colors.line);
    painter.drawLine(width() - 1, 5, width() - 1, height() - 6);
    painter.setPen(colors.quietText);
    const int titleHeight = RibbonMetrics::titleHeight(*this);
    const QRect titleRect(0, height() - titleHeight - 1, width() - 1, titleHeight);
    painter.drawText(titleRect, Qt::AlignCenter | Qt::TextSingleLine, m_title);
}

void RibbonGroup::append(QWidget* pItem)
{
    pItem->installEventFilter(this);
    m_pItems->addWidget(pItem);
    followItems();
}

void RibbonGroup::applyMetrics()
{
    layout()->setContentsMargins(RibbonMetrics::GroupMargin, 4, RibbonMetrics::GroupMargin + 1,
                                 RibbonMetrics::titleHeight(*this) + 2);
    updateGeometry();
}

void RibbonGroup::followItems()
{
    const QList<QWidget*> items = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    const bool isAnyShown = std::any_of(items.begin(), items.end(), [this](const QWidget* pItem) {
        return takesRoom(pItem, this);
    });
    if (isAnyShown == !m_hiddenWhileEmpty || (!isAnyShown && !takesRoom(this, parentWidget())))
        return;
    m_hiddenWhileEmpty = !isAnyShown;
    setVisible(isAnyShown);
}

QSize RibbonGroup::grownToTitle(const QSize& size) const
{
    const QMargins margins = layout()->contentsMargins();
    const int titleWidth =
        fontMetrics().horizontalAdvance(m_title) + 2 * RibbonMetrics::GroupMargin;
    const int height = RibbonMetrics::contentHeight(*this) + margins.top() + margins.bottom();
    return size.expandedTo(QSize(titleWidth, height));
}

} // namespace Qtitan
