#include "Ribbon/EditCommands.h"

#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/MirrorAction.h"
#include "Tools/MoveAction.h"
#include "Tools/OffsetAction.h"

#include "Command/ActionManager.h"

using namespace vesk;

namespace
{

template <class Action>
CommandEntry BeginTool(const std::wstring& id, const std::wstring& caption, Workspace& workspace)
{
    return CommandEntry::Interactive(
        id, caption, [&workspace]() -> OwnerPtr<IAction> { return MakeOwner<Action>(workspace); });
}

void DeleteSelected(Workspace& workspace)
{
    if (workspace.sketch.Erase(workspace.selection.GetIds()))
        ActionManager::StepDone();
}

void SelectAll(Workspace& workspace)
{
    std::vector<int> ids;
    for (const Entity& entity : workspace.sketch.GetEntities())
    {
        if (workspace.sketch.CanPick(entity))
            ids.push_back(entity.id);
    }
    workspace.selection.Select(ids);
}

}

std::vector<CommandEntry> MakeModifyCommands(Workspace& workspace)
{
    std::vector<CommandEntry> entries = {
        BeginTool<MoveAction>(L"Sketcher.Move", L"移动"_source, workspace)
            .WithIcon(L"move")
            .WithToolTip(L"移动：将所选图元从基点移到目标点，或键入距离和角度"_source)
            .WithKeys(L"Ctrl+M"),
        BeginTool<CopyAction>(L"Sketcher.CopyTo", L"复制到"_source, workspace)
            .WithIcon(L"copy-to")
            .WithToolTip(L"复制到：将所选图元从基点复制到各目标点，或键入距离和角度"_source)
            .WithKeys(L"Ctrl+Shift+M"),
        BeginTool<MirrorAction>(L"Sketcher.Mirror", L"镜像"_source, workspace)
            .WithIcon(L"mirror")
            .WithToolTip(L"镜像：按两点所定的轴复制所选图元，原图元保留"_source),
        BeginTool<OffsetAction>(L"Sketcher.Offset", L"偏移"_source, workspace)
            .WithIcon(L"offset")
            .WithToolTip(L"偏移：单击图元，再单击一侧或键入距离，画出与其平行的图元"_source),
        CommandEntry::Plain(L"Sketcher.Delete", L"删除所选"_source,
                            [&workspace] { DeleteSelected(workspace); })
            .WithIcon(L"delete")
            .WithToolTip(L"删除所选图元"_source)
            .WithKeys(L"Del")
            .EnabledWhile([&workspace] { return !workspace.selection.IsEmpty(); }),
        CommandEntry::Plain(L"Sketcher.SelectAll", L"全选"_source,
                            [&workspace] { SelectAll(workspace); })
            .WithIcon(L"select-all")
            .WithToolTip(L"选择全部可选的图元"_source)
            .WithKeys(L"Ctrl+A")
            .EnabledWhile([&workspace] { return !workspace.sketch.GetEntities().empty(); }),
    };
    for (CommandEntry& entry : entries)
    {
        // The others are mostly used with their keys.
        if (entry.kind == Command::Kind::Interactive)
            entry.InGroup(L"编辑"_source);
        else
            entry.InGroup(L"选择"_source).OnStartPage();
    }
    return entries;
}
