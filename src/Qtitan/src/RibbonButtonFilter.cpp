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

bool opensMenu(const QToolButton& button, const QEvent& event)
{
    if (button.menu() == nullptr)
        return false;
    return event.type() == QEvent::KeyPress && isMenuKey(static_cast<const QKeyEvent&>(event));
}

/// Shows the arrow pressed while the menu is open: Qt paints the button before it opens the menu
/// and after it has closed it.
void updateOnceMenuIsOpen(QToolButton& button)
{
    QMetaObject::invokeMethod(&button, qOverload<>(&QWidget::update), Qt::QueuedConnection);
}

} // namespace

bool filterRibbonButton(QToolButton& button, RibbonButtonForm form, const QEvent& event)
{
    if (event.type() == QEvent::Paint)
    {
        paintRibbonButton(button, form);
        return true;
    }
    const bool isOpening = opensMenu(button, event);
    if (isOpening || event.type() == QEvent::MouseButtonPress)
        updateOnceMenuIsOpen(button);
    if (isOpening)
        button.showMenu();
    return isOpening;
}

} // namespace Qtitan
