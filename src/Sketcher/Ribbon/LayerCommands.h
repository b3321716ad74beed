#pragma once

#include "Ribbon/CommandEntry.h"

#include <vector>

class Sketch;

/// The commands that add, change and remove layers, each as its parameters say. They have no
/// buttons: the layer pane runs them, and a replay. The sketch must outlive every execution.
std::vector<CommandEntry> MakeLayerCommands(Sketch& sketch);
