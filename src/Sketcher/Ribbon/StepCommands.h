#pragma once

#include "Ribbon/CommandEntry.h"

class Sketch;

/// Undo and redo of the last step, which are recorded with the entity they were about. The sketch
/// must outlive every execution of the commands.
CommandEntry MakeUndoCommand(Sketch& sketch);
CommandEntry MakeRedoCommand(Sketch& sketch);
