#pragma once

#include "Ribbon/CommandEntry.h"

#include <vector>

class SketchView;
struct Workspace;

namespace vesk
{
class DimensionInputController;
}

/// All commands, in the order of the ribbon and the menus. The arguments must outlive every
/// execution of the commands.
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

/// The menu of the pane button.
namespace PaneMenu
{

constexpr wchar_t Id[] = L"Sketcher.Panes";

}
