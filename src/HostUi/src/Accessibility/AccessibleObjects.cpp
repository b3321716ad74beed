#include "Accessibility/AccessibleObjects.h"

#include "Accessibility/ButtonAccessible.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>

namespace vesk
{
namespace
{

/// Null for what the toolkit answers for.
QAccessibleInterface* MakeInterface(const QString&, QObject* pObject)
{
    if (pObject == nullptr || !pObject->isWidgetType())
        return nullptr;
    if (ButtonAccessible::Serves(*pObject))
        return new ButtonAccessible(static_cast<QAbstractButton&>(*pObject));
    const QVariant role = pObject->property(AccessibleObjects::RoleProperty);
    if (!role.isValid())
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(pObject),
                                 static_cast<QAccessible::Role>(role.toInt()));
}

}

AccessibleObjects::AccessibleObjects()
{
    QAccessible::installFactory(&MakeInterface);
}

AccessibleObjects::~AccessibleObjects()
{
    QAccessible::removeFactory(&MakeInterface);
}

}
