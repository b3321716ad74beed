#pragma once

#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/PropertyName.h"
#include "VeskUiQtImpl/CreateChild.h"

#include "HostUi/QtText.h"

#include <QAction>
#include <QToolButton>
#include <QVariant>

namespace vesk
{

/// Creates the checkable action that carries the appearance of a button, as a child of that button:
/// caption and tool tip come from the definition. Returns null, with a warning in the name of
/// `function`, if it cannot be created.
template <class Definition>
QAction* CreateAction(const Definition& definition, const QIcon& icon, QToolButton* pButton,
                      const char* function)
{
    auto* pAction = CreateChild<QAction>(pButton, function);
    if (pAction == nullptr)
        return nullptr;
    pAction->setProperty(PropertyName::IsDefinition, true);
    pAction->setText(ToQString(definition.GetCaption()));
    pAction->setCheckable(true);
    pAction->setToolTip(ToQString(definition.GetTooltip()));
    pAction->setIcon(icon);
    return pAction;
}

}
