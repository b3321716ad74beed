#include "HostUi/RibbonFocus.h"

#include "Command/IActionManager.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/DrawingView.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>

namespace vesk
{
namespace
{

bool IsActionRunning()
{
    return IActionManager::CurrentAction() != nullptr;
}

/// Open lists and menus are popups.
bool IsPopup(const QWidget& widget)
{
    return widget.windowType() == Qt::Popup;
}

/// True for a widget that can have the focus but has no use for keys meant for the drawing.
bool TakesNoText(const QWidget& widget)
{
    return widget.focusPolicy() != Qt::NoFocus && !widget.testAttribute(Qt::WA_InputMethodEnabled);
}

}

RibbonFocus::RibbonFocus(const QWidget& ribbon, DrawingView& view,
                         const DimensionInputController& input)
    : m_ribbon(ribbon), m_view(view), m_input(input)
{
    qApp->installEventFilter(this);
}

RibbonFocus::~RibbonFocus() = default;

bool RibbonFocus::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (!pWatched->isWidgetType())
        return false;
    const auto& widget = static_cast<const QWidget&>(*pWatched);
    switch (pEvent->type())
    {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        OnPress(widget);
        break;
    case QEvent::Show:
        OnPopupShown(widget);
        break;
    case QEvent::Hide:
        if (IsPopup(widget))
            OnSomethingDone();
        break;
    case QEvent::MouseButtonRelease:
        OnSomethingDone();
        break;
    default:
        break;
    }
    return false;
}

/// Includes descendants in windows of their own.
bool RibbonFocus::IsOfRibbon(const QWidget& widget) const
{
    const QWidget* pWidget = &widget;
    while (pWidget != nullptr && pWidget != &m_ribbon)
        pWidget = pWidget->parentWidget();
    return pWidget != nullptr;
}

/// The toolkit has just moved the focus. It is taken back before the control receives the click, so
/// that no key typed before the click is done is lost.
void RibbonFocus::OnPress(const QWidget& pressed)
{
    // Lists and menus, and clicks that a control leaves to the ribbon around it.
    if (pressed.focusPolicy() == Qt::NoFocus)
        return;
    m_isUnderWay =
        IsActionRunning() && pressed.isEnabled() && IsOfRibbon(pressed) && TakesNoText(pressed);
    if (m_isUnderWay)
        m_view.setFocus(Qt::OtherFocusReason);
}

void RibbonFocus::OnPopupShown(const QWidget& popup)
{
    const QWidget* pOwner = popup.parentWidget();
    if (pOwner == nullptr || !IsPopup(popup) || !IsActionRunning())
        return;
    m_isUnderWay = m_isUnderWay || (IsOfRibbon(*pOwner) && TakesNoText(*pOwner));
}

/// Queued, because the control receives the event after the filter.
void RibbonFocus::OnSomethingDone()
{
    if (m_isUnderWay)
        QMetaObject::invokeMethod(
            this, [this] { GiveBack(); }, Qt::QueuedConnection);
}

void RibbonFocus::GiveBack()
{
    if (!m_isUnderWay || QApplication::activePopupWidget() != nullptr)
        return;
    m_isUnderWay = false;
    // A dialog that the click has opened keeps the keyboard, as does another program.
    if (!IsActionRunning() || QApplication::activeModalWidget() != nullptr ||
        QGuiApplication::applicationState() != Qt::ApplicationActive)
        return;
    m_view.Activate();
    QLineEdit* pField = m_input.GetOpenField();
    if (pField == nullptr)
        return;
    pField->activateWindow();
    pField->setFocus(Qt::OtherFocusReason);
}

}
