#pragma once

#include "Ribbon/CommandEntry.h"

#include <vector>

class QWidget;

/// The commands that open the help and the window about the program. The help lists the keys of
/// the commands given here and of its own. The window is not owned and outlives every execution.
std::vector<CommandEntry> MakeHelpCommands(const std::vector<CommandEntry>& commands,
                                           QWidget& window);
