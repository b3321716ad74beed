#include "Inspection/UiTree.h"

#include "Command/ActionManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Foundation/Text.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/DrawingView.h"
#include "Inspection/ControlDescription.h"
#include "Inspection/PaneDescription.h"
#include "View/IUiDocumentViewManager.h"
#include "Warnings/DebugMessageMgr.h"

#include <nlohmann/json.hpp>

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>

#include <optional>

namespace vesk
{
namespace
{

using Json = nlohmann::ordered_json;

constexpr char IsDefinition[] = "IsDefinition";

std::string Utf8(const QString& text)
{
    return text.toStdString();
}

void AddControls(QObject& object, Json& controls)
{
    if (object.property(IsDefinition).toBool())
        controls.push_back(DescribeControl(object));
    for (QObject* pChild : object.children())
        AddControls(*pChild, controls);
}

void AddViews(const QWidget& window, Json& views)
{
    for (const DrawingView* pView : window.findChildren<DrawingView*>())
    {
        const Vector3d& centre = pView->GetCamera().GetCentre();
        const double worldPerPixel = pView->GetCamera().GetWorldPerPixel();
        views.push_back({{"id", pView->GetId()},
                         {"rect", DescribeRect(*pView, pView->rect())},
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
    const std::optional<double> value = input.GetValue();
    return {{"text", Utf8(pEditor->text())},
            {"selectedText", Utf8(pEditor->selectedText())},
            {"rect", DescribeRect(*pEditor, pEditor->rect())},
            {"visible", pEditor->isVisible()},
            {"focus", pEditor->hasFocus()},
            {"state", static_cast<int>(manager.GetInputState())},
            {"locked", locked},
            {"value", value.has_value() ? Json(*value) : Json(nullptr)},
            {"message", Utf8(input.GetMessage())}};
}

Json DescribePoint(const DimensionInputController& input)
{
    const std::optional<DimensionInputController::TypedPoint> point = input.GetTypedPoint();
    if (!point.has_value())
        return nullptr;
    return {{"x", Utf8(point->x)},
            {"y", Utf8(point->y)},
            {"field", Utf8(input.GetOpenField()->objectName())},
            {"rect", DescribeRect(*input.GetOpenField(), input.GetOpenField()->rect())},
            {"focus", input.GetOpenField()->hasFocus()},
            {"message", Utf8(point->message)}};
}

/// The prompt shown for the current view.
std::string DescribeHint()
{
    const auto* pDrawingView =
        dynamic_cast<const DrawingView*>(UiDocumentViewManager::FindCurrentView());
    return pDrawingView != nullptr ? Utf8(pDrawingView->GetViewText()) : std::string();
}

/// The debug warning on screen.
Json DescribeWarning()
{
    const std::optional<ShownDebugWarning> shown =
        DebugMessageMgr::GetDebugMessageMgr()->GetShownWarning();
    if (!shown.has_value())
        return nullptr;
    return {{"function", shown->function},
            {"message", ToUtf8(shown->message)},
            {"suppressed", shown->suppressed}};
}

}

std::string DescribeUi(const DimensionInputController& input, int entityCount)
{
    Json controls = Json::array();
    Json views = Json::array();
    Json panes = Json::array();
    for (QWidget* pWindow : QApplication::topLevelWidgets())
    {
        if (pWindow->parent() != nullptr)
            continue;
        AddControls(*pWindow, controls);
        AddViews(*pWindow, views);
        if (const auto* pMainWindow = qobject_cast<const QMainWindow*>(pWindow))
            DescribePanes(*pMainWindow, panes);
    }
    const std::string commandId = ToUtf8(ActionManager::GetRunningCommandId());
    return Json{{"controls", controls},
                {"views", views},
                {"editor", DescribeEditor(input)},
                {"point", DescribePoint(input)},
                {"action", commandId.empty() ? Json(nullptr) : Json(commandId)},
                {"hint", DescribeHint()},
                {"entities", entityCount},
                {"docks", panes},
                {"warning", DescribeWarning()}}
        .dump(1);
}

}
