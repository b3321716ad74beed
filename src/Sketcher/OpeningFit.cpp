#include "OpeningFit.h"

#include "View/SketchView.h"

#include <QCoreApplication>
#include <QEvent>

OpeningFit::OpeningFit(SketchView& view) : QObject(&view), m_view(view)
{
    qApp->installEventFilter(this);
}

bool OpeningFit::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    switch (pEvent->type())
    {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        deleteLater();
        qApp->removeEventFilter(this);
        break;
    case QEvent::Resize:
        // The view itself gets the event first.
        if (pWatched == &m_view)
            QMetaObject::invokeMethod(
                this, [this] { m_view.ZoomAll(); }, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return false;
}
