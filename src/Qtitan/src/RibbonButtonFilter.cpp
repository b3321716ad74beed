#include "RibbonButtonFilter.h"

#include "RibbonButtonPainter.h"

#include <QKeyEvent>
#include <QToolButton>

namespace Qtitan
{

namespace
{

bool isMenuKey(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() == Qt::Key_Down)
        return modifiers == Qt::NoModifier || modifiers == Qt::AltModifier;
    return event.key() == Qt::Key_F4 && modifiers == Qt::NoModifier;
}

} // namespace

bool filterRibbonButton(QToolButton& button, const QEvent& event)
{
    if (event.type() == QEvent::Paint)
    {
        paintRibbonButton(button);
        return true;
    }
    if (event.type() != QEvent::KeyPress || button.menu() == nullptr)
        return false;
    if (!isMenuKey(static_cast<const QKeyEvent&>(event)))
        return false;
    button.showMenu();
    return true;
}

} // namespace Qtitan
