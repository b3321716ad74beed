#pragma once

#include "Ribbon/CommandEntry.h"

#include "Journal/CommandParameters.h"

#include <optional>

class Sketch;
struct Snapshot;

/// Restores the drawing from a snapshot that is kept beside the journal: the effect of the command
/// with which a journal begins that goes on with unsaved work.
struct RecoverContent
{
    static constexpr wchar_t CommandId[] = L"Sketcher.RecoverContent";

    /// Keeps a snapshot and returns the parameters of the command; nothing if it cannot be kept.
    /// Applying them next does not read it again. May be called in another thread.
    static std::optional<vesk::CommandParameters> Keep(const Snapshot& snapshot);

    /// True if what the parameters name is kept, and whole.
    static bool IsPossible(const vesk::CommandParameters& parameters);

    /// Replaces the drawing; nothing can be undone afterwards. Does nothing if it is impossible.
    static void Apply(Sketch& sketch, const vesk::CommandParameters& parameters);
};

/// The command, which has no button. The sketch must outlive every execution.
CommandEntry MakeRecoverCommand(Sketch& sketch);
