#include "Application/ClosedPopupKeys.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace vesk
{
namespace
{

bool IsKey(const QEvent& event)
{
    return event.type() == QEvent::ShortcutOverride || event.type() == QEvent::KeyPress ||
           event.type() == QEvent::KeyRelease;
}

/// The window of the focus widget or, until the window system has reported it, the window from
/// which the popup was opened; null if there is neither.
QWindow* FindReceiver(const QWindow& popup)
{
    const QWidget* pFocus = QApplication::focusWidget();
    return pFocus != nullptr && pFocus->isVisible() ? pFocus->window()->windowHandle()
                                                    : popup.transientParent();
}

}

ClosedPopupKeys::ClosedPopupKeys()
{
    qApp->installEventFilter(this);
}

bool ClosedPopupKeys::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (!IsKey(*pEvent) || !pWatched->isWindowType())
        return false;
    const auto& window = static_cast<const QWindow&>(*pWatched);
    if (window.type() != Qt::Popup)
        return false;
    if (pEvent->type() == QEvent::ShortcutOverride)
        m_isLate = !window.isVisible();
    QWindow* pReceiver = m_isLate ? FindReceiver(window) : nullptr;
    if (pReceiver == nullptr)
        return false;
    QCoreApplication::sendEvent(pReceiver, pEvent);
    return true;
}

}
