#include "DialogSizes.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QScreen>

namespace
{

/// The toolkit's file dialog is too narrow for its columns at first.
QSize FirstSize(const QDialog& dialog)
{
    constexpr QSize OfFiles(760, 460);
    const bool isOfFiles = qobject_cast<const QFileDialog*>(&dialog) != nullptr;
    return isOfFiles ? dialog.size().expandedTo(OfFiles) : dialog.size();
}

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
        pDialog->resize(m_sizes.value(name, FirstSize(*pDialog)).boundedTo(MostOfScreen(*pDialog)));
    else if (!name.isEmpty() && !pDialog->isMaximized())
        m_sizes[name] = pDialog->size();
    return false;
}
