#include "Ribbon/CommandTable.h"

#include "Model/EntityEdit.h"
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
        Begin<LineAction>(L"Sketcher.Line", L"直线", workspace)
            .WithIcon(L"line")
            .WithToolTip(L"直线：单击或键入长度和角度，逐段绘制")
            .WithKeys(L"Ctrl+L"),
        Begin<RectangleAction>(L"Sketcher.Rectangle", L"矩形", workspace)
            .WithIcon(L"rectangle")
            .WithToolTip(L"矩形：单击两个对角点，或键入宽度和高度")
            .WithKeys(L"Ctrl+R"),
        Begin<CircleAction>(L"Sketcher.Circle", L"圆", workspace)
            .WithIcon(L"circle")
            .WithToolTip(L"圆：单击圆心和圆上一点，或键入半径")
            .WithKeys(L"Ctrl+I"),
        Begin<ArcThreePointsAction>(L"Sketcher.Arc3Points", L"三点圆弧", workspace)
            .WithIcon(L"arc-three-points")
            .WithToolTip(L"三点圆弧：单击起点、端点和弧上一点，或键入半径")
            .WithKeys(L"Ctrl+3"),
        Begin<ArcCentreAction>(L"Sketcher.ArcCentre", L"圆心圆弧", workspace)
            .WithIcon(L"arc-centre")
            .WithToolTip(L"圆心圆弧：单击圆心、起点和端点，或键入圆心角")
            .WithKeys(L"Ctrl+4"),
    };
    for (CommandEntry& entry : entries)
        entry.InGroup(L"绘图");
    return entries;
}

CommandEntry MakePropertyCommand(Sketch& sketch)
{
    return CommandEntry::WithParameters(
               EntityEdit::CommandId, L"设置特性",
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
        Begin<EraseAction>(L"Sketcher.Erase", L"删除", workspace)
            .WithIcon(L"erase")
            .WithToolTip(L"删除：单击要删除的图元")
            .WithKeys(L"Ctrl+E")
            .InGroup(L"编辑"),
        Begin<RotateAction>(L"Sketcher.Rotate", L"旋转", workspace)
            .WithIcon(L"rotate")
            .WithToolTip(L"旋转：将所选图元绕一点转到另一方向，或键入角度")
            .WithKeys(L"Ctrl+T")
            .InGroup(L"编辑"),
        MakePropertyCommand(sketch),
    };
}

CommandEntry MakeKeyStripCommand(DimensionInputController& input)
{
    return CommandEntry::Plain(L"Sketcher.KeyStrip", L"按键提示",
                               [&input] { input.SetKeyStripShown(!input.IsKeyStripShown()); })
        .WithIcon(L"key-strip")
        .WithToolTip(L"键入数值时显示或隐藏按键提示")
        .InGroup(L"视图");
}

CommandEntry MakeScaleCommand(int percent, SketchView& view)
{
    const std::wstring number = std::to_wstring(percent);
    return CommandEntry::Plain(ZoomMenu::ScaleId + (L"." + number), number + L"%",
                               [&view, percent] { view.SetPixelsPerUnit(percent / 100.0); })
        .WithToolTip(L"按 " + number + L"% 显示")
        .InMenu(ZoomMenu::ScaleId);
}

std::vector<CommandEntry> MakeZoomCommands(const Sketch& sketch, SketchView& view)
{
    constexpr double ZoomStep = 2.0;
    std::vector<CommandEntry> entries = {
        CommandEntry::Plain(L"Sketcher.ZoomAll", L"全图", [&view] { view.ZoomAll(); })
            .WithIcon(L"zoom-all")
            .WithToolTip(L"全图：缩放到全部图元")
            .WithKeys(L"Ctrl+0")
            .InGroup(L"视图")
            .InMenu(ZoomMenu::Id)
            .EnabledWhile([&sketch] { return !sketch.GetEntities().empty(); }),
        Begin<ZoomWindowAction>(L"Sketcher.Zoom.Window", L"窗口", view)
            .WithIcon(L"zoom-window")
            .WithToolTip(L"缩放到两个角点之间")
            .InMenu(ZoomMenu::Id),
        CommandEntry::Plain(L"Sketcher.Zoom.In", L"放大", [&view] { view.Magnify(ZoomStep); })
            .WithIcon(L"zoom-in")
            .WithToolTip(L"放大一倍")
            .InMenu(ZoomMenu::Id),
        CommandEntry::Plain(L"Sketcher.Zoom.Out", L"缩小",
                            [&view] { view.Magnify(1.0 / ZoomStep); })
            .WithIcon(L"zoom-out")
            .WithToolTip(L"缩小一半")
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
