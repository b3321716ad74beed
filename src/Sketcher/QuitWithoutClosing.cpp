#include "QuitWithoutClosing.h"

#include <QCoreApplication>
#include <QEvent>

QuitWithoutClosing::QuitWithoutClosing()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool QuitWithoutClosing::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched != QCoreApplication::instance() || pEvent->type() != QEvent::Quit)
        return false;
    QCoreApplication::exit();
    return true;
}
