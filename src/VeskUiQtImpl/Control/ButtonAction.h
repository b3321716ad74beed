#pragma once

#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/PropertyName.h"
#include "VeskUiQtImpl/CreateChild.h"

#include "HostUi/QtText.h"

#include <QAction>
#include <QIcon>
#include <QToolButton>
#include <QVariant>

namespace vesk
{

/// Makes the checkable action on which the look of a button lives, a child of that button: caption,
/// tool tip and icon come from the definition. Null, with a warning in the name of `function`, when
/// it could not be made.
template <class Definition>
QAction* CreateAction(const Definition& definition, QToolButton* pButton, const char* function)
{
    auto* pAction = CreateChild<QAction>(pButton, function);
    if (pAction == nullptr)
        return nullptr;
    pAction->setProperty(PropertyName::IsDefinition, true);
    pAction->setText(ToQString(definition.GetCaption()));
    pAction->setCheckable(true);
    pAction->setToolTip(ToQString(definition.GetTooltip()));
    pAction->setIcon(QIcon(ToQString(definition.GetIconPath())));
    return pAction;
}

}
