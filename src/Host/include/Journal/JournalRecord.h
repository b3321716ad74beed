#pragma once

#include "Dimension/InputState.h"
#include "Geometry/Vector3d.h"
#include "Journal/CommandParameters.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vesk
{

/// The first record of a file, number 0; files of version 1 have none.
struct HeaderRecord
{
    /// The version that this program writes.
    static constexpr int CurrentVersion = 2;

    int version = CurrentVersion; ///< The version of the format that the file is in.
    std::wstring program;         ///< Name and version of the program that wrote the file.
    std::wstring time;            ///< When it began, in UTC: "2026-11-21T08:15:30.123Z".
};

/// A command is about to run, or to wait for its turn.
struct CommandRecord
{
    std::wstring commandId;       ///< Which command.
    CommandParameters parameters; ///< Its parameters; empty if the record has the id alone.
};

/// A step of an action is finished.
struct PointRecord
{
    Vector3d point = Vector3d::Zero(); ///< The final world point.
    std::optional<int> entity;         ///< The entity picked there.
};

/// A value was typed.
struct ValueRecord
{
    InputState field = InputState::IS_None; ///< Which value.
    std::wstring text;                      ///< As typed.
    double value = 0.0;                     ///< In model units.
};

/// The user selected exactly these entities.
struct SelectionRecord
{
    std::vector<int> entities; ///< Their ids.
};

/// A property was set by the user.
struct PropertyRecord
{
    std::wstring object;   ///< The object: "drawing", "pen", "selection".
    std::wstring property; ///< The property: "name", "style", "colour", "width", "layer".
    std::wstring value;    ///< As text, in the form in which drawing files have it.
};

/// An undo reverted the last step; `entity` is the one that appeared or disappeared.
struct UndoRecord
{
    int entity = 0; ///< Its id; of several the first, 0 for none.
};

/// A redo repeated the step that was undone last; `entity` as for an undo.
struct RedoRecord
{
    int entity = 0; ///< Its id; of several the first, 0 for none.
};

/// A step is finished.
struct MarkRecord
{
    std::string digest;      ///< Of the document after it.
    std::optional<int> time; ///< In milliseconds since this program began with the file.
};

/// The program that wrote the records before this one has ended in order.
struct CloseRecord
{};

/// A command has ended.
struct EndRecord
{
    int command = 0;        ///< The number of the command's record.
    bool isRefused = false; ///< It was disabled when its turn came, or could not be done.
};

/// The content of a journal line; `number` counts the records from 1, an end record repeats its
/// command's, a header has 0.
struct JournalRecord
{
    int number = 0; ///< Unique in its file, but for ends.
    std::variant<CommandRecord, PointRecord, ValueRecord, SelectionRecord, PropertyRecord,
                 UndoRecord, EndRecord, HeaderRecord, RedoRecord, MarkRecord, CloseRecord>
        what; ///< The record itself, one of the kinds above.
};

}
