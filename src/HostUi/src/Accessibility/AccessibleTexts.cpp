#include "Accessibility/AccessibleTexts.h"

#include "Accessibility/AccessibleObjects.h"

#include <QString>
#include <QVariant>
#include <QWidget>

namespace vesk
{

void SetAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    widget.setProperty(AccessibleObjects::RoleProperty, static_cast<int>(role));
    // The toolkit may have asked for an object already, while the widget was being created.
    if (!QAccessible::isActive())
        return;
    if (QAccessibleInterface* pEarly = QAccessible::queryAccessibleInterface(&widget))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(pEarly));
}

void SetAccessibleTexts(QWidget& widget, const QString& name, const QString& description)
{
    if (widget.accessibleName() != name)
        widget.setAccessibleName(name);
    if (widget.accessibleDescription() != description)
        widget.setAccessibleDescription(description);
}

}
