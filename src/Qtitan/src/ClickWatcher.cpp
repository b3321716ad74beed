#include "ClickWatcher.h"

#include <QCoreApplication>
#include <QEvent>

namespace Qtitan
{

ClickWatcher::ClickWatcher(QObject* pParent) : QObject(pParent) {}

void ClickWatcher::setActive(bool isActive)
{
    qApp->removeEventFilter(this);
    if (isActive)
        qApp->installEventFilter(this);
}

bool ClickWatcher::eventFilter(QObject*, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::MouseButtonPress)
        emit clicked();
    return false;
}

} // namespace Qtitan
