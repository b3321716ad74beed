#pragma once

#include "Command/Command.h"

#include <string>
#include <vector>

class Sketch;
class SketchView;

/// One command of the program: what the ribbon shows, and what is done.
struct CommandEntry
{
    std::wstring id;
    std::wstring group; ///< The ribbon group that holds its button.
    std::wstring caption;
    std::wstring iconPath;
    std::wstring toolTip;
    std::wstring keys; ///< Shortcut, as "Ctrl+Z".
    vesk::Command::Kind kind = vesk::Command::Kind::Plain;
    vesk::Command::Execution execute;
    vesk::Command::Condition isEnabled; ///< Without one the command is always enabled.
};

/// All commands, in the order of the ribbon. Sketch and view outlive the commands' execution.
std::vector<CommandEntry> MakeCommandTable(Sketch& sketch, SketchView& view);

/// Registers the commands with the host.
void RegisterCommands(const std::vector<CommandEntry>& entries);
