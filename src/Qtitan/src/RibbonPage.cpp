#include "Qtitan/RibbonPage.h"

#include "Caption.h"
#include "Qtitan/RibbonGroup.h"
#include "RibbonColors.h"
#include "RibbonControls.h"
#include "RibbonMetrics.h"
#include "RibbonScrollButton.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QWheelEvent>

namespace Qtitan
{

namespace
{

constexpr int NotchLength = 60;
constexpr int AngleOfNotch = 120;

} // namespace

RibbonPage::RibbonPage(const QString& title, QWidget* pParent)
    : QWidget(pParent), m_title(title), m_pContent(new QWidget(this)),
      m_pGroups(new QHBoxLayout(m_pContent)),
      m_pLeft(new RibbonScrollButton(Qt::LeftArrow, tr("Scroll left"), this)),
      m_pRight(new RibbonScrollButton(Qt::RightArrow, tr("Scroll right"), this))
{
    setAccessibleName(plainCaption(title));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_pGroups->setContentsMargins(2, 0, 2, 1);
    m_pGroups->setSpacing(0);
    m_pGroups->addStretch();
    const auto step = [this] { return isRightToLeft() ? -width() / 2 : width() / 2; };
    connect(m_pLeft, &QToolButton::clicked, this, [this, step] { scrollTo(m_offset - step()); });
    connect(m_pRight, &QToolButton::clicked, this, [this, step] { scrollTo(m_offset + step()); });
    connect(qApp, &QApplication::focusChanged, this, &RibbonPage::OnFocusChanged);
}

RibbonPage::~RibbonPage() = default;

QString RibbonPage::title() const
{
    return m_title;
}

RibbonGroup* RibbonPage::addGroup(const QString& title)
{
    auto* pGroup = new RibbonGroup(title, m_pContent);
    m_pGroups->insertWidget(m_pGroups->count() - 1, pGroup);
    return pGroup;
}

void RibbonPage::ensureVisible(const QWidget& widget)
{
    if (!m_pContent->isAncestorOf(&widget))
        return;
    const QRect place(widget.mapTo(m_pContent, QPoint()), widget.size());
    const int start = QStyle::visualRect(layoutDirection(), m_pContent->rect(), place).left();
    // An arrow may cover either end, so keep the widget clear of both.
    const int firstOffset = start + widget.width() + RibbonMetrics::ArrowWidth - width();
    const int lastOffset = start - RibbonMetrics::ArrowWidth;
    scrollTo(qMin(qMax(m_offset, firstOffset), lastOffset));
}

QSize RibbonPage::sizeHint() const
{
    return m_pContent->sizeHint();
}

QSize RibbonPage::minimumSizeHint() const
{
    return QSize(4 * RibbonMetrics::ArrowWidth, m_pContent->minimumSizeHint().height());
}

bool RibbonPage::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::LayoutDirectionChange)
        arrange();
    if (pEvent->type() == QEvent::LayoutRequest)
    {
        updateGeometry();
        arrange();
        orderFocus(*this);
    }
    return QWidget::event(pEvent);
}

bool RibbonPage::focusNextPrevChild(bool next)
{
    orderFocus(*this);
    return QWidget::focusNextPrevChild(next);
}

void RibbonPage::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), RibbonColors(palette()).page);
}

void RibbonPage::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    arrange();
}

void RibbonPage::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    arrange();
    orderFocus(*this);
}

void RibbonPage::wheelEvent(QWheelEvent* pEvent)
{
    if (maximumOffset() == 0)
    {
        pEvent->ignore();
        return;
    }
    const QPoint delta = pEvent->angleDelta();
    const int angle = qAbs(delta.x()) > qAbs(delta.y()) ? delta.x() : delta.y();
    scrollTo(m_offset - angle * NotchLength / AngleOfNotch);
    pEvent->accept();
}

void RibbonPage::OnFocusChanged(QWidget*, QWidget* pNow)
{
    if (pNow != nullptr)
        ensureVisible(*pNow);
}

void RibbonPage::arrange()
{
    m_pLeft->setGeometry(0, 0, RibbonMetrics::ArrowWidth, height());
    m_pRight->setGeometry(width() - RibbonMetrics::ArrowWidth, 0, RibbonMetrics::ArrowWidth,
                          height());
    scrollTo(m_offset);
}

void RibbonPage::scrollTo(int offset)
{
    m_offset = qBound(0, offset, maximumOffset());
    const QRect content(-m_offset, 0, qMax(width(), m_pContent->sizeHint().width()), height());
    m_pContent->setGeometry(QStyle::visualRect(layoutDirection(), rect(), content));
    const bool isMirrored = isRightToLeft();
    (isMirrored ? m_pRight : m_pLeft)->setVisible(m_offset > 0);
    (isMirrored ? m_pLeft : m_pRight)->setVisible(m_offset < maximumOffset());
    m_pLeft->raise();
    m_pRight->raise();
}

int RibbonPage::maximumOffset() const
{
    return qMax(0, m_pContent->sizeHint().width() - width());
}

} // namespace Qtitan
