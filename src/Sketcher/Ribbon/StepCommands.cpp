#include "Ribbon/StepCommands.h"

#include "Model/Sketch.h"
#include "Model/UiText.h"

#include "Command/ActionManager.h"
#include "Journal/JournalManager.h"

using namespace vesk;

namespace
{

void Undo(Sketch& sketch)
{
    JournalManager::GetInstance().Add(UndoRecord{sketch.Undo()});
    // A running action may now continue from another point.
    ActionManager::StepDone();
}

void Redo(Sketch& sketch)
{
    JournalManager::GetInstance().Add(RedoRecord{sketch.Redo()});
    ActionManager::StepDone();
}

}

CommandEntry MakeUndoCommand(Sketch& sketch)
{
    return CommandEntry::Plain(L"Sketcher.Undo", L"撤销"_source, [&sketch] { Undo(sketch); })
        .WithIcon(L"undo")
        .WithToolTip(L"撤销上一步"_source)
        .WithKeys(L"Ctrl+Z")
        .InGroup(L"编辑"_source)
        .EnabledWhile([&sketch] { return sketch.CanUndo(); });
}

CommandEntry MakeRedoCommand(Sketch& sketch)
{
    return CommandEntry::Plain(L"Sketcher.Redo", L"重做"_source, [&sketch] { Redo(sketch); })
        .WithIcon(L"redo")
        .WithToolTip(L"重做上一步"_source)
        .WithKeys(L"Ctrl+Y")
        .WithOtherKeys(L"Ctrl+Shift+Z")
        .InGroup(L"编辑"_source)
        .EnabledWhile([&sketch] { return sketch.CanRedo(); });
}
