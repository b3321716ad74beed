#pragma once

#include "Ribbon/CommandEntry.h"

#include <vector>

class Documents;

/// The commands for drawing files: those with buttons, which ask, and those that they run, which a
/// replay repeats. The documents must outlive every execution.
std::vector<CommandEntry> MakeDocumentCommands(Documents& documents);
