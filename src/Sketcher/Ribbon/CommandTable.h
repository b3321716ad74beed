#pragma once

#include "Command/Command.h"

#include <string>
#include <vector>

class SketchView;
struct Workspace;

namespace vesk
{
class DimensionInputController;
}

/// One command of the program: where it is shown, and what is done.
struct CommandEntry
{
    std::wstring id;
    std::wstring caption;
    std::wstring iconPath;
    std::wstring toolTip;

    std::wstring group; ///< The ribbon group that holds its button; empty for none.
    std::wstring menu;  ///< The menu or sub-menu that holds an entry for it; empty for none.
    std::wstring keys;  ///< Shortcut of the button, as "Ctrl+Z".

    vesk::Command::Kind kind = vesk::Command::Kind::Plain;
    vesk::Command::Execution execute;
    vesk::Command::Condition isEnabled; ///< Without one the command is always enabled.
};

/// All commands, in the order of the ribbon and of the menus. The arguments outlive the commands'
/// execution.
std::vector<CommandEntry> MakeCommandTable(Workspace& workspace, SketchView& view,
                                           vesk::DimensionInputController& input);

/// Registers the commands with the host.
void RegisterCommands(const std::vector<CommandEntry>& entries);

/// The menu of the zoom button, and its sub-menu of fixed scales.
namespace ZoomMenu
{

constexpr wchar_t Id[] = L"Sketcher.Zoom";
constexpr wchar_t ScaleId[] = L"Sketcher.Zoom.Scale";

}

/// The menu of the panes' button.
namespace PaneMenu
{

constexpr wchar_t Id[] = L"Sketcher.Panes";

}
