#include "Qtitan/RibbonButtonControl.h"

#include "RibbonButtonFilter.h"
#include "RibbonMetrics.h"

#include <QEvent>

namespace Qtitan
{

RibbonButtonControl::RibbonButtonControl(QWidget* pParent) : QWidget(pParent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    followButton();
}

RibbonButtonControl::~RibbonButtonControl() = default;

QToolButton* RibbonButtonControl::widget() const
{
    return qobject_cast<QToolButton*>(m_pButton.data());
}

void RibbonButtonControl::setWidget(QToolButton* pButton)
{
    if (pButton == m_pButton)
        return;
    if (QWidget* pOld = m_pButton)
    {
        m_pButton = nullptr;
        pOld->removeEventFilter(this);
        pOld->setParent(nullptr);
    }
    m_pButton = pButton;
    if (pButton != nullptr)
    {
        pButton->setParent(this);
        pButton->setIconSize(QSize(RibbonMetrics::LargeIcon, RibbonMetrics::LargeIcon));
        pButton->installEventFilter(this);
        pButton->setGeometry(rect());
    }
    followButton();
    updateGeometry();
}

QSize RibbonButtonControl::sizeHint() const
{
    if (m_pButton == nullptr)
        return QSize(0, 0);
    return m_pButton->sizeHint().expandedTo(QSize(RibbonMetrics::LargeButtonWidth, 0));
}

QSize RibbonButtonControl::minimumSizeHint() const
{
    return sizeHint();
}

bool RibbonButtonControl::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QWidget::event(pEvent);
}

bool RibbonButtonControl::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (pWatched == m_pButton)
    {
        QToolButton* pButton = widget();
        if (pButton != nullptr && filterRibbonButton(*pButton, *pEvent))
            return true;
    }
    if (type == QEvent::ShowToParent || type == QEvent::HideToParent)
        followButton();
    return QWidget::eventFilter(pWatched, pEvent);
}

void RibbonButtonControl::childEvent(QChildEvent* pEvent)
{
    QWidget::childEvent(pEvent);
    if (!pEvent->removed())
        return;
    if (m_pButton != nullptr && pEvent->child() == m_pButton)
    {
        m_pButton->removeEventFilter(this);
        m_pButton = nullptr;
    }
    followButton();
}

void RibbonButtonControl::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    if (m_pButton != nullptr)
        m_pButton->setGeometry(rect());
}

void RibbonButtonControl::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    // What changed the button's size on a page that was not shown was not announced.
    updateGeometry();
}

void RibbonButtonControl::followButton()
{
    setVisible(takesRoom(m_pButton, this));
}

} // namespace Qtitan
