#include "VeskUiQtImpl/Control/ControlStatus.h"

#include <QPointer>

namespace vesk
{

bool ApplyStatus(QWidget& widget, const IControlDefinition& definition)
{
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
