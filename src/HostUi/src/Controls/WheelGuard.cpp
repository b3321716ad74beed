#include "Controls/WheelGuard.h"

#include <QComboBox>
#include <QEvent>

namespace vesk
{

void WheelGuard::Protect(QWidget& widget)
{
    if (auto* pBox = qobject_cast<QComboBox*>(&widget))
        new WheelGuard(*pBox);
}

WheelGuard::WheelGuard(QComboBox& box) : QObject(&box)
{
    if (box.focusPolicy() == Qt::WheelFocus)
        box.setFocusPolicy(Qt::StrongFocus);
    box.installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() != QEvent::Wheel || static_cast<QWidget*>(pWatched)->hasFocus())
        return false;
    // Qt offers an ignored wheel event to the parent even though the box never saw it.
    pEvent->ignore();
    return true;
}

}
