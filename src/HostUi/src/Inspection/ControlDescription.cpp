#include "Inspection/ControlDescription.h"

#include "HostUi/QtVersions.h"
#include "Qtitan/RibbonBar.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QVariant>

#include <cmath>

namespace vesk
{
namespace
{

using Json = nlohmann::ordered_json;

constexpr char CommandId[] = "CommandId";

QString ShownText(const QObject& object)
{
    if (const auto* pButton = qobject_cast<const QAbstractButton*>(&object))
        return pButton->text();
    if (const auto* pLabel = qobject_cast<const QLabel*>(&object))
        return pLabel->text();
    if (const auto* pEdit = qobject_cast<const QLineEdit*>(&object))
        return pEdit->text();
    if (const auto* pCombo = qobject_cast<const QComboBox*>(&object))
        return pCombo->currentText();
    if (const auto* pBar = qobject_cast<const QProgressBar*>(&object))
        return pBar->text();
    if (const auto* pMenu = qobject_cast<const QMenu*>(&object))
        return pMenu->title();
    const auto* pAction = qobject_cast<const QAction*>(&object);
    return pAction != nullptr ? pAction->text() : QString();
}

Json CheckedOf(const QObject& object)
{
    const auto* pButton = qobject_cast<const QAbstractButton*>(&object);
    if (pButton != nullptr && pButton->isCheckable())
        return pButton->isChecked();
    const auto* pAction = qobject_cast<const QAction*>(&object);
    if (pAction != nullptr && pAction->isCheckable())
        return pAction->isChecked();
    return nullptr;
}

bool IsOnScreen(const QWidget& widget)
{
    return widget.isVisible() && !widget.visibleRegion().isEmpty();
}

/// A widget inside a disabled one cannot be used.
bool IsReachable(const QWidget* pWidget)
{
    while (pWidget != nullptr && pWidget->isEnabled())
        pWidget = pWidget->parentWidget();
    return pWidget == nullptr;
}

void DescribeWidget(const QWidget& widget, Json& control)
{
    control["rect"] = DescribeRect(widget, widget.rect());
    control["visible"] = IsOnScreen(widget);
    control["enabled"] = widget.isEnabled();
}

/// The position of an action on screen. Only entries of an open menu have one.
void DescribePlace(QAction& action, Json& control)
{
    for (const QWidget* pWidget : WidgetsOf(action))
    {
        const auto* pMenu = qobject_cast<const QMenu*>(pWidget);
        if (!action.isVisible() || !IsOnScreen(*pWidget))
            continue;
        control["visible"] = true;
        if (pMenu != nullptr)
            control["rect"] = DescribeRect(*pMenu, pMenu->actionGeometry(&action));
    }
}

void DescribeAction(QAction& action, Json& control)
{
    control["enabled"] = action.isEnabled() && IsReachable(ParentWidgetOf(action));
    DescribePlace(action, control);
}

/// A closed menu is where the entry that opens it is.
void DescribeClosedMenu(const QMenu& menu, Json& control)
{
    control["rect"] = nullptr;
    control["enabled"] = menu.isEnabled() && IsReachable(menu.parentWidget());
    DescribePlace(*menu.menuAction(), control);
}

}

Json DescribeRect(const QWidget& widget, const QRect& part)
{
    const double ratio = widget.devicePixelRatioF();
    const QPoint corner = widget.mapToGlobal(part.topLeft());
    return {std::lround(corner.x() * ratio), std::lround(corner.y() * ratio),
            std::lround(part.width() * ratio), std::lround(part.height() * ratio)};
}

Json DescribeControl(QObject& object)
{
    const QString commandId = object.property(CommandId).toString();
    Json control;
    control["id"] = (commandId.isEmpty() ? object.objectName() : commandId).toStdString();
    control["class"] = object.metaObject()->className();
    control["text"] = ShownText(object).toStdString();
    control["rect"] = nullptr;
    control["visible"] = false;
    // A button group, which is not a widget, can be used if its parent can.
    control["enabled"] = IsReachable(qobject_cast<QWidget*>(object.parent()));
    if (const auto* pWidget = qobject_cast<const QWidget*>(&object))
        DescribeWidget(*pWidget, control);
    const auto* pMenu = qobject_cast<const QMenu*>(&object);
    if (pMenu != nullptr && !pMenu->isVisible())
        DescribeClosedMenu(*pMenu, control);
    if (auto* pAction = qobject_cast<QAction*>(&object))
        DescribeAction(*pAction, control);
    control["checked"] = CheckedOf(object);
    const QString keyTip = object.property(Qtitan::KeyTipProperty).toString();
    if (!keyTip.isEmpty())
        control["keyTip"] = keyTip.toStdString();
    return control;
}

}
