#include "VeskUiQtImpl/Control/ControlStatus.h"

#include <QPointer>

namespace vesk
{

namespace
{

/// True if Qt would not do anything when both states are written: it keeps apart what was written
/// and what a widget gets from its parent.
bool IsStatusWritten(const QWidget& widget, const IControlDefinition& definition)
{
    return widget.testAttribute(Qt::WA_WState_ExplicitShowHide) &&
           widget.isHidden() != definition.IsVisible() &&
           widget.testAttribute(Qt::WA_ForceDisabled) != definition.IsEnabled();
}

}

bool ApplyStatus(QWidget& widget, const IControlDefinition& definition)
{
    if (IsStatusWritten(widget, definition))
        return true;
    const QPointer<QWidget> pWidget(&widget);
    return ApplyStatus(widget, definition, [&pWidget] { return pWidget != nullptr; });
}

void UpdateVisible(QWidget& widget, bool isVisible)
{
    if (widget.isVisible() != isVisible)
        widget.setVisible(isVisible);
}

void UpdateEnabled(QWidget& widget, bool isEnabled)
{
    if (widget.isEnabled() != isEnabled)
        widget.setEnabled(isEnabled);
}

}
