#include "DialogSizes.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QScreen>

namespace
{

/// Leaves room for the frame of the window.
QSize MostOfScreen(const QWidget& dialog)
{
    return dialog.screen()->availableSize() * 9 / 10;
}

}

DialogSizes::DialogSizes()
{
    qApp->installEventFilter(this);
}

bool DialogSizes::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const bool isShown = pEvent->type() == QEvent::Show;
    // A spontaneous one comes from a window that was minimised.
    if ((!isShown && pEvent->type() != QEvent::Hide) || pEvent->spontaneous())
        return false;
    auto* pDialog = qobject_cast<QDialog*>(pWatched);
    if (pDialog == nullptr)
        return false;
    const QString& name = pDialog->objectName();
    if (isShown)
        pDialog->resize(m_sizes.value(name, pDialog->size()).boundedTo(MostOfScreen(*pDialog)));
    else if (!name.isEmpty() && !pDialog->isMaximized())
        m_sizes[name] = pDialog->size();
    return false;
}
