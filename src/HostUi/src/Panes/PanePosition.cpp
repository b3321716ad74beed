#include "Panes/PanePosition.h"

#include "Platform/WindowPosition.h"

#include <QDockWidget>
#include <QEvent>
#include <QWindow>

namespace vesk
{

void PanePosition::Watch(QDockWidget& pane)
{
    if (pane.findChild<PanePosition*>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        new PanePosition(pane);
}

PanePosition::PanePosition(QDockWidget& pane) : QObject(&pane), m_pane(pane)
{
    pane.installEventFilter(this);
    WatchWindow();
}

bool PanePosition::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    // It may have another window each time that it leaves its area.
    if (type == QEvent::Show)
        WatchWindow();
    if (pWatched != &m_pane &&
        (type == QEvent::Expose || type == QEvent::Move || type == QEvent::Enter))
        Correct();
    return QObject::eventFilter(pWatched, pEvent);
}

void PanePosition::WatchWindow()
{
    if (QWindow* pWindow = m_pane.windowHandle())
        pWindow->installEventFilter(this);
}

/// A pane that is being dragged is where the cursor has it.
void PanePosition::Correct() const
{
    const QWindow* pWindow = m_pane.windowHandle();
    if (pWindow != nullptr && m_pane.isFloating() &&
        !m_pane.windowFlags().testFlag(Qt::X11BypassWindowManagerHint))
        TellPosition(*pWindow);
}

}
