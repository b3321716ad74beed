#pragma once

#include "Foundation/OwnerPtr.h"

#include <vector>

struct CommandEntry;

namespace vesk
{
class CommandButtonMenuDefinition;
}

/// The button whose menu holds the zoom commands, with the fixed scales in a sub-menu.
vesk::OwnerPtr<vesk::CommandButtonMenuDefinition>
MakeZoomMenu(const std::vector<CommandEntry>& commands);

/// The button whose menu shows and hides panes; its main part shows all of them.
vesk::OwnerPtr<vesk::CommandButtonMenuDefinition>
MakePaneMenu(const std::vector<CommandEntry>& commands);
