#pragma once

#include "Ribbon/CommandEntry.h"

#include <vector>

struct Workspace;

/// The tools and commands that change what is selected. The workspace must outlive every execution
/// of the commands.
std::vector<CommandEntry> MakeModifyCommands(Workspace& workspace);
