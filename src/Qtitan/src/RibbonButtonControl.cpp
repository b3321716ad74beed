#include "Qtitan/RibbonButtonControl.h"

#include "RibbonButtonFilter.h"
#include "RibbonButtonLayout.h"
#include "RibbonMetrics.h"

#include <QEvent>

namespace Qtitan
{

namespace
{

struct FormMetrics
{
    int iconSize;
    QSizePolicy::Policy horizontal;
    QSizePolicy::Policy vertical;
};

/// Small buttons are as wide as their column, so that their edges and arrows line up.
constexpr FormMetrics LargeMetrics{RibbonMetrics::LargeIcon, QSizePolicy::Fixed,
                                   QSizePolicy::Expanding};
constexpr FormMetrics SmallMetrics{RibbonMetrics::SmallIcon, QSizePolicy::Minimum,
                                   QSizePolicy::Preferred};

const FormMetrics& metricsOf(RibbonButtonForm form)
{
    return form == RibbonButtonForm::Small ? SmallMetrics : LargeMetrics;
}

} // namespace

RibbonButtonControl::RibbonButtonControl(QWidget* pParent, RibbonButtonForm form)
    : QWidget(pParent), m_form(form)
{
    const FormMetrics& metrics = metricsOf(m_form);
    setSizePolicy(metrics.horizontal, metrics.vertical);
    followButton();
}

RibbonButtonControl::~RibbonButtonControl() = default;

RibbonButtonForm RibbonButtonControl::form() const
{
    return m_form;
}

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
        const int iconSize = metricsOf(m_form).iconSize;
        pButton->setIconSize(QSize(iconSize, iconSize));
        pButton->installEventFilter(this);
        pButton->setGeometry(rect());
    }
    followButton();
    updateGeometry();
}

QSize RibbonButtonControl::sizeHint() const
{
    const QToolButton* pButton = widget();
    return pButton != nullptr ? ribbonButtonSize(*pButton, m_form) : QSize(0, 0);
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
        if (pButton != nullptr && filterRibbonButton(*pButton, m_form, *pEvent))
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
    // Changes of the button's size are not announced while its page is hidden.
    updateGeometry();
}

void RibbonButtonControl::followButton()
{
    setVisible(takesRoom(m_pButton, this));
}

} // namespace Qtitan
