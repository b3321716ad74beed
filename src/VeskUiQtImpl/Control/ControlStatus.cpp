#include "Control/ControlStatus.h"

#include "Control/IControlDefinition.h"

#include <QPointer>
#include <QWidget>

namespace vesk
{

bool ApplyStatus(QWidget& widget, const IControlDefinition& definition)
{
    const QPointer<QWidget> pWidget(&widget);
    const bool isVisible = definition.IsVisible();
    const bool isEnabled = definition.IsEnabled();

    pWidget->setVisible(isVisible);
    if (pWidget != nullptr)
        pWidget->setEnabled(isEnabled);
    return pWidget != nullptr;
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
