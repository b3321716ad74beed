#include "Ribbon/CommandTable.h"

#include "Model/EntityEdit.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Ribbon/EditCommands.h"
#include "Ribbon/LayerCommands.h"
#include "Ribbon/StepCommands.h"
#include "Tools/ArcCentreAction.h"
#include "Tools/ArcThreePointsAction.h"
#include "Tools/CircleAction.h"
#include "Tools/EraseAction.h"
#include "Tools/LineAction.h"
#include "Tools/RectangleAction.h"
#include "Tools/RotateAction.h"
#include "Tools/ZoomWindowAction.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "Command/ICommandManager.h"
#include "HostUi/DimensionInputController.h"
#include "View/IUiDocumentViewManager.h"

#include <optional>
#include <utility>

using namespace vesk;

namespace
{

/// A command that begins an action of that class.
template <class Action, class Argument>
CommandEntry Begin(const std::wstring& id, const std::wstring& caption, Argument& argument)
{
    return CommandEntry::Interactive(
        id, caption, [&argument]() -> OwnerPtr<IAction> { return MakeOwner<Action>(argument); });
}

void SetProperty(Sketch& sketch, const CommandParameters& parameters)
{
    const std::optional<EntityEdit> edit = EntityEdit::From(parameters);
    if (edit.has_value() && edit->Apply(sketch))
        ActionManager::StepDone();
}

std::vector<CommandEntry> MakeDrawingCommands(Workspace& workspace)
{
    std::vector<CommandEntry> entries = {
        Begin<LineAction>(L"Sketcher.Line", L"直线"_source, workspace)
            .WithIcon(L"line")
            .WithToolTip(L"直线：单击或键入长度和角度，逐段绘制"_source)
            .WithKeys(L"Ctrl+L"),
        Begin<RectangleAction>(L"Sketcher.Rectangle", L"矩形"_source, workspace)
            .WithIcon(L"rectangle")
            .WithToolTip(L"矩形：单击两个对角点，或键入宽度和高度"_source)
            .WithKeys(L"Ctrl+R"),
        Begin<CircleAction>(L"Sketcher.Circle", L"圆"_source, workspace)
            .WithIcon(L"circle")
            .WithToolTip(L"圆：单击圆心和圆上一点，或键入半径"_source)
            .WithKeys(L"Ctrl+I"),
        Begin<ArcThreePointsAction>(L"Sketcher.Arc3Points", L"三点圆弧"_source, workspace)
            .WithIcon(L"arc-three-points")
            .WithToolTip(L"三点圆弧：单击起点、端点和弧上一点，或键入半径"_source)
            .WithKeys(L"Ctrl+3"),
        Begin<ArcCentreAction>(L"Sketcher.ArcCentre", L"圆心圆弧"_source, workspace)
            .WithIcon(L"arc-centre")
            .WithToolTip(L"圆心圆弧：单击圆心、起点和端点，或键入圆心角"_source)
            .WithKeys(L"Ctrl+4"),
    };
    for (CommandEntry& entry : entries)
        entry.InGroup(L"绘图"_source);
    return entries;
}

CommandEntry MakePropertyCommand(Sketch& sketch)
{
    return CommandEntry::WithParameters(
               EntityEdit::CommandId, L"设置特性"_source,
               [&sketch](const CommandParameters& parameters) { SetProperty(sketch, parameters); })
        .PossibleWith([&sketch](const CommandParameters& parameters) {
            const std::optional<EntityEdit> edit = EntityEdit::From(parameters);
            return edit.has_value() && edit->IsPossible(sketch);
        });
}

std::vector<CommandEntry> MakeEditCommands(Workspace& workspace)
{
    Sketch& sketch = workspace.sketch;
    return {
        MakeUndoCommand(sketch),
        MakeRedoCommand(sketch),
        Begin<EraseAction>(L"Sketcher.Erase", L"删除"_source, workspace)
            .WithIcon(L"erase")
            .WithToolTip(L"删除：单击要删除的图元"_source)
            .WithKeys(L"Ctrl+E")
            .InGroup(L"编辑"_source),
        Begin<RotateAction>(L"Sketcher.Rotate", L"旋转"_source, workspace)
            .WithIcon(L"rotate")
            .WithToolTip(L"旋转：将所选图元绕一点转到另一方向，或键入角度"_source)
            .WithKeys(L"Ctrl+T")
            .InGroup(L"编辑"_source),
        MakePropertyCommand(sketch),
    };
}

CommandEntry MakeKeyStripCommand(DimensionInputController& input)
{
    return CommandEntry::Plain(L"Sketcher.KeyStrip", L"按键提示"_source,
                               [&input] { input.SetKeyStripShown(!input.IsKeyStripShown()); })
        .WithIcon(L"key-strip")
        .WithToolTip(L"键入数值时显示或隐藏按键提示"_source)
        .InGroup(L"视图"_source);
}

CommandEntry MakeScaleCommand(int percent, SketchView& view)
{
    const std::wstring number = std::to_wstring(percent);
    return CommandEntry::Plain(ZoomMenu::ScaleId + (L"." + number), number + L"%",
                               [&view, percent] { view.SetPixelsPerUnit(percent / 100.0); })
        .WithToolTip(L"按 %1 显示"_source, number + L"%")
        .InMenu(ZoomMenu::ScaleId);
}

std::vector<CommandEntry> MakeZoomCommands(const Sketch& sketch, SketchView& view)
{
    constexpr double ZoomStep = 2.0;
    std::vector<CommandEntry> entries = {
        CommandEntry::Plain(L"Sketcher.ZoomAll", L"全图"_source, [&view] { view.ZoomAll(); })
            .WithIcon(L"zoom-all")
            .WithToolTip(L"全图：缩放到全部图元"_source)
            .WithKeys(L"Ctrl+0")
            .InGroup(L"视图"_source)
            .InMenu(ZoomMenu::Id)
            .EnabledWhile([&sketch] { return !sketch.GetEntities().empty(); }),
        Begin<ZoomWindowAction>(L"Sketcher.Zoom.Window", L"窗口"_source, view)
            .WithIcon(L"zoom-window")
            .WithToolTip(L"缩放到两个角点之间"_source)
            .InMenu(ZoomMenu::Id),
        CommandEntry::Plain(L"Sketcher.Zoom.In", L"放大"_source,
                            [&view] { view.Magnify(ZoomStep); })
            .WithIcon(L"zoom-in")
            .WithToolTip(L"放大一倍"_source)
            .InMenu(ZoomMenu::Id),
        CommandEntry::Plain(L"Sketcher.Zoom.Out", L"缩小"_source,
                            [&view] { view.Magnify(1.0 / ZoomStep); })
            .WithIcon(L"zoom-out")
            .WithToolTip(L"缩小一半"_source)
            .InMenu(ZoomMenu::Id),
    };
    for (const int percent : {25, 50, 100, 200, 400, 1000})
        entries.push_back(MakeScaleCommand(percent, view));
    return entries;
}

}

std::vector<CommandEntry> MakeCommandTable(Workspace& workspace, SketchView& view,
                                           DimensionInputController& input)
{
    std::vector<CommandEntry> entries = MakeDrawingCommands(workspace);
    for (CommandEntry& entry : MakeEditCommands(workspace))
        entries.push_back(std::move(entry));
    for (CommandEntry& entry : MakeModifyCommands(workspace))
        entries.push_back(std::move(entry));
    for (CommandEntry& entry : MakeLayerCommands(workspace.sketch))
        entries.push_back(std::move(entry));
    entries.push_back(MakeKeyStripCommand(input));
    for (CommandEntry& entry : MakeZoomCommands(workspace.sketch, view))
        entries.push_back(std::move(entry));
    return entries;
}

void RegisterCommands(const std::vector<CommandEntry>& entries)
{
    for (const CommandEntry& entry : entries)
        ICommandManager::Get()->AddCommand(
            MakeOwner<Command>(entry.id, entry.kind, entry.execute, entry.isEnabled));
}
