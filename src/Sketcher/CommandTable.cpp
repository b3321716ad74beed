#include "CommandTable.h"

#include "EraseAction.h"
#include "LineAction.h"
#include "Sketch.h"
#include "SketchView.h"

#include "Command/ActionManager.h"
#include "Command/ICommandManager.h"
#include "Journal/JournalManager.h"

using namespace vesk;

namespace
{

template <class Action>
Command::Execution Begin(Sketch& sketch)
{
    return [&sketch](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
        return MakeOwner<Action>(sketch);
    };
}

Command::Execution ZoomAll(SketchView& view)
{
    return [&view](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
        view.ZoomAll();
        return nullptr;
    };
}

Command::Execution Undo(Sketch& sketch)
{
    return [&sketch](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
        JournalManager::GetInstance().Add(UndoRecord{sketch.Undo()});
        // A running action may go on from another point now.
        ActionManager::StepDone();
        return nullptr;
    };
}

}

std::vector<CommandEntry> MakeCommandTable(Sketch& sketch, SketchView& view)
{
    const auto hasEntities = [&sketch] { return !sketch.GetEntities().empty(); };
    return {
        {L"Sketcher.Line",
         L"绘图",
         L"直线",
         L":/icons/line.svg",
         L"直线：单击或键入长度和角度，逐段绘制 (Ctrl+L)",
         L"Ctrl+L",
         Command::Kind::Interactive,
         Begin<LineAction>(sketch),
         {}},
        {L"Sketcher.Erase",
         L"绘图",
         L"删除",
         L":/icons/erase.svg",
         L"删除：单击要删除的图元 (Ctrl+E)",
         L"Ctrl+E",
         Command::Kind::Interactive,
         Begin<EraseAction>(sketch),
         {}},
        {L"Sketcher.Undo", L"编辑", L"撤销", L":/icons/undo.svg", L"撤销上一步 (Ctrl+Z)", L"Ctrl+Z",
         Command::Kind::Plain, Undo(sketch), [&sketch] { return sketch.CanUndo(); }},
        {L"Sketcher.ZoomAll", L"视图", L"全部", L":/icons/zoom-all.svg", L"缩放到全部图元 (Ctrl+0)",
         L"Ctrl+0", Command::Kind::Plain, ZoomAll(view), hasEntities},
    };
}

void RegisterCommands(const std::vector<CommandEntry>& entries)
{
    for (const CommandEntry& entry : entries)
        ICommandManager::Get()->AddCommand(
            MakeOwner<Command>(entry.id, entry.kind, entry.execute, entry.isEnabled));
}
