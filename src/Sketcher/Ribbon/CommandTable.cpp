#include "Ribbon/CommandTable.h"

#include "Model/EntityEdit.h"
#include "Model/Workspace.h"
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
#include "Journal/JournalManager.h"
#include "View/IUiDocumentViewManager.h"

#include <optional>
#include <utility>

using namespace vesk;

namespace
{

constexpr Command::Kind Plain = Command::Kind::Plain;
constexpr Command::Kind Interactive = Command::Kind::Interactive;

template <class Action, class Argument>
Command::Execution Begin(Argument& argument)
{
    return [&argument](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
        return MakeOwner<Action>(argument);
    };
}

template <class Function>
Command::Execution Do(Function function)
{
    return [function](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
        function();
        return nullptr;
    };
}

void Undo(Sketch& sketch)
{
    JournalManager::GetInstance().Add(UndoRecord{sketch.Undo()});
    // A running action may go on from another point now.
    ActionManager::StepDone();
}

void SetProperty(Sketch& sketch, const CommandParameters& parameters)
{
    const std::optional<EntityEdit> edit = EntityEdit::From(parameters);
    if (edit.has_value() && edit->Apply(sketch))
        ActionManager::StepDone();
}

template <class Action>
CommandEntry MakeAction(const std::wstring& id, const std::wstring& caption,
                        const std::wstring& iconPath, const std::wstring& toolTip,
                        const std::wstring& group, const std::wstring& keys, Workspace& workspace)
{
    return {id,  caption, iconPath,    toolTip + L" (" + keys + L")", group,
            L"", keys,    Interactive, Begin<Action>(workspace),      {}};
}

std::vector<CommandEntry> MakeDrawingCommands(Workspace& workspace)
{
    return {
        {L"Sketcher.Line",
         L"直线",
         L":/icons/line.svg",
         L"直线：单击或键入长度和角度，逐段绘制 (Ctrl+L)",
         L"绘图",
         L"",
         L"Ctrl+L",
         Interactive,
         Begin<LineAction>(workspace),
         {}},
        MakeAction<RectangleAction>(L"Sketcher.Rectangle", L"矩形", L":/icons/rectangle.svg",
                                    L"矩形：单击两个对角点，或键入宽度和高度", L"绘图", L"Ctrl+R",
                                    workspace),
        MakeAction<CircleAction>(L"Sketcher.Circle", L"圆", L":/icons/circle.svg",
                                 L"圆：单击圆心和圆上一点，或键入半径", L"绘图", L"Ctrl+I",
                                 workspace),
        MakeAction<ArcThreePointsAction>(
            L"Sketcher.Arc3Points", L"三点圆弧", L":/icons/arc-three-points.svg",
            L"三点圆弧：单击起点、端点和弧上一点，或键入半径", L"绘图", L"Ctrl+3", workspace),
        MakeAction<ArcCentreAction>(L"Sketcher.ArcCentre", L"圆心圆弧", L":/icons/arc-centre.svg",
                                    L"圆心圆弧：单击圆心、起点和端点，或键入圆心角", L"绘图",
                                    L"Ctrl+4", workspace),
        {L"Sketcher.Erase",
         L"删除",
         L":/icons/erase.svg",
         L"删除：单击要删除的图元 (Ctrl+E)",
         L"绘图",
         L"",
         L"Ctrl+E",
         Interactive,
         Begin<EraseAction>(workspace),
         {}},
    };
}

std::vector<CommandEntry> MakeEditCommands(Workspace& workspace)
{
    Sketch& sketch = workspace.sketch;
    return {
        {L"Sketcher.Undo", L"撤销", L":/icons/undo.svg", L"撤销上一步 (Ctrl+Z)", L"编辑", L"",
         L"Ctrl+Z", Plain, Do([&sketch] { Undo(sketch); }), [&sketch] { return sketch.CanUndo(); }},
        MakeAction<RotateAction>(L"Sketcher.Rotate", L"旋转", L":/icons/rotate.svg",
                                 L"旋转：将所选图元绕一点转到另一方向，或键入角度", L"编辑",
                                 L"Ctrl+T", workspace),
        {EntityEdit::CommandId,
         L"设置特性",
         L"",
         L"",
         L"",
         L"",
         L"",
         Plain,
         [&sketch](IUiView*, const CommandParameters& parameters) -> OwnerPtr<IAction> {
             SetProperty(sketch, parameters);
             return nullptr;
         },
         {}},
    };
}

CommandEntry MakeKeyStripCommand(DimensionInputController& input)
{
    return {L"Sketcher.KeyStrip",
            L"按键提示",
            L":/icons/key-strip.svg",
            L"键入数值时显示或隐藏按键提示",
            L"视图",
            L"",
            L"",
            Plain,
            Do([&input] { input.SetKeyStripShown(!input.IsKeyStripShown()); }),
            {}};
}

std::vector<CommandEntry> MakeZoomCommands(const Sketch& sketch, SketchView& view)
{
    constexpr double ZoomStep = 2.0;
    std::vector<CommandEntry> entries = {
        {L"Sketcher.ZoomAll", L"全部", L":/icons/zoom-all.svg", L"缩放到全部图元 (Ctrl+0)", L"视图",
         ZoomMenu::Id, L"Ctrl+0", Plain, Do([&view] { view.ZoomAll(); }),
         [&sketch] { return !sketch.GetEntities().empty(); }},
        {L"Sketcher.Zoom.Window",
         L"窗口",
         L":/icons/zoom-window.svg",
         L"缩放到两个角点之间",
         L"",
         ZoomMenu::Id,
         L"",
         Interactive,
         Begin<ZoomWindowAction>(view),
         {}},
        {L"Sketcher.Zoom.In",
         L"放大",
         L":/icons/zoom-in.svg",
         L"放大一倍",
         L"",
         ZoomMenu::Id,
         L"",
         Plain,
         Do([&view] { view.Magnify(ZoomStep); }),
         {}},
        {L"Sketcher.Zoom.Out",
         L"缩小",
         L":/icons/zoom-out.svg",
         L"缩小一半",
         L"",
         ZoomMenu::Id,
         L"",
         Plain,
         Do([&view] { view.Magnify(1.0 / ZoomStep); }),
         {}},
    };
    for (const int percent : {25, 50, 100, 200, 400, 1000})
    {
        const std::wstring number = std::to_wstring(percent);
        entries.push_back({ZoomMenu::ScaleId + (L"." + number),
                           number + L"%",
                           L"",
                           L"按 " + number + L"% 显示",
                           L"",
                           ZoomMenu::ScaleId,
                           L"",
                           Plain,
                           Do([&view, percent] { view.SetPixelsPerUnit(percent / 100.0); }),
                           {}});
    }
    return entries;
}

}

std::vector<CommandEntry> MakeCommandTable(Workspace& workspace, SketchView& view,
                                           DimensionInputController& input)
{
    std::vector<CommandEntry> entries = MakeDrawingCommands(workspace);
    for (CommandEntry& entry : MakeEditCommands(workspace))
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
