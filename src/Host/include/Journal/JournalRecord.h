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

/// A command is about to run, or to wait for its turn.
struct CommandRecord
{
    std::wstring commandId;
    CommandParameters parameters;
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
    InputState field = InputState::IS_None;
    std::wstring text;  ///< As typed.
    double value = 0.0; ///< In model units.
};

/// The user selected exactly these entities.
struct SelectionRecord
{
    std::vector<int> entities;
};

/// A property was set by the user.
struct PropertyRecord
{
    std::wstring object;   ///< The object: "drawing", "selection".
    std::wstring property; ///< The property: "name".
    std::wstring value;
};

/// An undo reverted the last step; `entity` is the one that appeared or disappeared.
struct UndoRecord
{
    int entity = 0;
};

/// A command has ended.
struct EndRecord
{
    int command = 0;        ///< The number of the command's record.
    bool isRefused = false; ///< It was disabled when its turn came.
};

/// The content of a journal line; `number` counts the records from 1, an end record repeats its
/// command's.
struct JournalRecord
{
    int number = 0;
    std::variant<CommandRecord, PointRecord, ValueRecord, SelectionRecord, PropertyRecord,
                 UndoRecord, EndRecord>
        what;
};

}
