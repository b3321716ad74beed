#pragma once

#include "Foundation/OwnerPtr.h"
#include "HostUi/ControlHost.h"
#include "Qtitan/RibbonGroup.h"

#include <QString>
#include <QWidget>

#include <utility>

/// Creates the control of a definition and adds it to a group with a label. The definition is
/// invisible meanwhile, so that the control does not open as a window, and made visible afterwards.
/// Null if there is no control; the definition is owned by the control.
template <class Definition>
Definition* PlaceControl(vesk::OwnerPtr<Definition> opDefinition, const QString& label,
                         Qtitan::RibbonGroup& group, vesk::ControlHost& controls)
{
    Definition* pDefinition = opDefinition.Get();
    pDefinition->SetVisible(false);
    QWidget* pWidget = controls.Create(std::move(opDefinition));
    if (pWidget == nullptr)
        return nullptr;
    group.addWidget(label, pWidget);
    pDefinition->SetVisible(true);
    return pDefinition;
}
