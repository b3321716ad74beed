#include "UiTree.h"

#include "Command/ActionManager.h"
#include "Command/IAction.h"
#include "Command/IActionManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Foundation/Text.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/DrawingView.h"

#include <nlohmann/json.hpp>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <cmath>

namespace vesk
{
namespace
{

using Json = nlohmann::ordered_json;

constexpr char IsDefinition[] = "IsDefinition";
constexpr char CommandId[] = "CommandId";

std::string Utf8(const QString& text)
{
    return text.toStdString();
}

/// In global device pixels.
Json RectOf(const QWidget& widget)
{
    const double ratio = widget.devicePixelRatioF();
    const QPoint corner = widget.mapToGlobal(QPoint(0, 0));
    return {std::lround(corner.x() * ratio), std::lround(corner.y() * ratio),
            std::lround(widget.width() * ratio), std::lround(widget.height() * ratio)};
}

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

Json DescribeControl(const QObject& object)
{
    const QString commandId = object.property(CommandId).toString();
    Json control;
    control["id"] = Utf8(commandId.isEmpty() ? object.objectName() : commandId);
    control["class"] = object.metaObject()->className();
    control["text"] = Utf8(ShownText(object));
    control["rect"] = nullptr;
    control["visible"] = false;
    control["enabled"] = true;
    if (const auto* pWidget = qobject_cast<const QWidget*>(&object))
    {
        control["rect"] = RectOf(*pWidget);
        control["visible"] = pWidget->isVisible() && !pWidget->visibleRegion().isEmpty();
        control["enabled"] = pWidget->isEnabled();
    }
    if (const auto* pAction = qobject_cast<const QAction*>(&object))
    {
        control["visible"] = pAction->isVisible();
        control["enabled"] = pAction->isEnabled();
    }
    control["checked"] = CheckedOf(object);
    return control;
}

void AddControls(const QObject& object, Json& controls)
{
    if (object.property(IsDefinition).toBool())
        controls.push_back(DescribeControl(object));
    for (const QObject* pChild : object.children())
        AddControls(*pChild, controls);
}

void AddViews(const QWidget& window, Json& views)
{
    for (const DrawingView* pView : window.findChildren<DrawingView*>())
    {
        const Vector3d& centre = pView->GetCamera().GetCentre();
        const double worldPerPixel = pView->GetCamera().GetWorldPerPixel();
        views.push_back({{"id", pView->GetId()},
                         {"rect", RectOf(*pView)},
                         {"worldPerPixel", worldPerPixel / pView->devicePixelRatioF()},
                         {"centre", {centre.x(), centre.y(), centre.z()}}});
    }
}

Json DescribeEditor(const DimensionInputController& input)
{
    const QLineEdit* pEditor = input.GetActiveEditor();
    if (pEditor == nullptr)
        return nullptr;
    const TemporaryDimensionMgr& manager = *TemporaryDimensionMgr::GetInstance();
    Json locked = Json::array();
    for (const InputState state : manager.GetLocked())
        locked.push_back(static_cast<int>(state));
    bool isNumber = false;
    const double value = pEditor->text().toDouble(&isNumber);
    return {{"text", Utf8(pEditor->text())},
            {"selectedText", Utf8(pEditor->selectedText())},
            {"rect", RectOf(*pEditor)},
            {"visible", pEditor->isVisible()},
            {"focus", pEditor->hasFocus()},
            {"state", static_cast<int>(manager.GetInputState())},
            {"locked", locked},
            {"value", isNumber && std::isfinite(value) ? Json(value) : Json(nullptr)},
            {"message", Utf8(input.GetMessage())}};
}

}

std::string DescribeUi(const DimensionInputController& input, int entityCount)
{
    Json controls = Json::array();
    Json views = Json::array();
    for (const QWidget* pWindow : QApplication::topLevelWidgets())
    {
        if (pWindow->parent() != nullptr)
            continue;
        AddControls(*pWindow, controls);
        AddViews(*pWindow, views);
    }
    const IAction* pAction = IActionManager::CurrentAction();
    const std::string commandId = ToUtf8(ActionManager::GetRunningCommandId());
    return Json{{"controls", controls},
                {"views", views},
                {"editor", DescribeEditor(input)},
                {"action", commandId.empty() ? Json(nullptr) : Json(commandId)},
                {"hint", pAction != nullptr ? ToUtf8(pAction->GetViewText()) : std::string()},
                {"entities", entityCount}}
        .dump(1);
}

}
