#include "Ribbon/LayerCommands.h"

#include "Model/LayerEdit.h"
#include "Model/Sketch.h"
#include "Model/UiText.h"

#include "Command/ActionManager.h"

#include <optional>

using namespace vesk;

namespace
{

/// A command that applies the edit of that class that its parameters describe.
template <class Edit>
CommandEntry MakeLayerCommand(const std::wstring& caption, Sketch& sketch)
{
    return CommandEntry::WithParameters(Edit::CommandId, caption,
                                        [&sketch](const CommandParameters& parameters) {
                                            const std::optional<Edit> edit = Edit::From(parameters);
                                            if (edit.has_value() && edit->Apply(sketch))
                                                ActionManager::StepDone();
                                        })
        .PossibleWith([&sketch](const CommandParameters& parameters) {
            const std::optional<Edit> edit = Edit::From(parameters);
            return edit.has_value() && edit->IsPossible(sketch);
        });
}

}

std::vector<CommandEntry> MakeLayerCommands(Sketch& sketch)
{
    return {
        MakeLayerCommand<LayerAddition>(L"新建图层"_source, sketch),
        MakeLayerCommand<LayerEdit>(L"设置图层"_source, sketch),
        MakeLayerCommand<LayerRemoval>(L"删除图层"_source, sketch),
    };
}
