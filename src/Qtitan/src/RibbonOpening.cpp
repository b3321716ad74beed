#include "RibbonOpening.h"

#include "Qtitan/RibbonBar.h"
#include "RibbonScrollButton.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace Qtitan
{

namespace
{

bool isKey(const QEvent& event, QEvent::Type type, int key)
{
    return event.type() == type && static_cast<const QKeyEvent&>(event).key() == key;
}

bool isPopup(const QWidget& widget)
{
    return widget.windowType() == Qt::Popup;
}

} // namespace

RibbonOpening::RibbonOpening(RibbonBar& bar) : QObject(&bar), m_bar(bar)
{
    m_done.setSingleShot(true);
    connect(&m_done, &QTimer::timeout, this, &RibbonOpening::onDone);
    connect(qApp, &QApplication::focusChanged, this, &RibbonOpening::onFocusChanged);
}

void RibbonOpening::setActive(bool isActive)
{
    m_isActive = isActive;
    m_isClickElsewhere = false;
    m_done.stop();
    qApp->removeEventFilter(this);
    if (isActive)
        qApp->installEventFilter(this);
}

bool RibbonOpening::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (!pWatched->isWidgetType())
        return false;
    const auto& widget = static_cast<const QWidget&>(*pWatched);
    const QEvent::Type type = pEvent->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)
        return onPress(widget);
    if (type == QEvent::MouseButtonRelease && m_isClickElsewhere)
    {
        m_done.start(0);
        return isOfWindow(widget);
    }
    if (isKey(*pEvent, QEvent::KeyPress, Qt::Key_Escape) &&
        QApplication::activePopupWidget() == nullptr)
    {
        m_done.start(0);
        return true;
    }
    // Later, because the button handles the click after this filter, and as a rule runs a command.
    if (isOfRibbon(widget) && isDone(widget, *pEvent))
        m_done.start(0);
    return false;
}

/// Includes lists and menus, which are windows of their own.
bool RibbonOpening::isOfRibbon(const QWidget& widget) const
{
    const QWidget* pWidget = &widget;
    while (pWidget != nullptr && pWidget != &m_bar)
        pWidget = pWidget->parentWidget();
    return pWidget != nullptr;
}

bool RibbonOpening::isOfWindow(const QWidget& widget) const
{
    return widget.window() == m_bar.window();
}

/// True if the event makes a button act, or closes a list or menu.
bool RibbonOpening::isDone(const QWidget& widget, const QEvent& event) const
{
    if (event.type() == QEvent::Hide)
        return isPopup(widget);
    const bool isButton = qobject_cast<const QAbstractButton*>(&widget) != nullptr &&
                          qobject_cast<const RibbonScrollButton*>(&widget) == nullptr;
    return isButton && (event.type() == QEvent::MouseButtonRelease ||
                        isKey(event, QEvent::KeyRelease, Qt::Key_Space));
}

bool RibbonOpening::onPress(const QWidget& widget)
{
    // One on a list or menu is no click elsewhere, nor one that only closes it.
    m_isClickElsewhere = !isOfRibbon(widget) && QApplication::activePopupWidget() == nullptr;
    return m_isClickElsewhere && isOfWindow(widget);
}

void RibbonOpening::onFocusChanged(QWidget*, QWidget* pNow)
{
    if (m_isActive && pNow != nullptr && !isOfRibbon(*pNow))
        m_done.start(0);
}

/// While a button of the mouse is down, or a list is open, the click is not done.
void RibbonOpening::onDone()
{
    if (QGuiApplication::mouseButtons() == Qt::NoButton &&
        QApplication::activePopupWidget() == nullptr)
        emit ended();
}

} // namespace Qtitan
