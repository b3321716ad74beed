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

/// The user selected entities: these and no others.
struct SelectionRecord
{
    std::vector<int> entities;
};

/// A property was set by the user.
struct PropertyRecord
{
    std::wstring object;   ///< Whose property: "drawing", "selection".
    std::wstring property; ///< Which one: "name".
    std::wstring value;
};

/// An undo took its last step back; `entity` is the one that came or went.
struct UndoRecord
{
    int entity = 0;
};

/// A command has come to its end.
struct EndRecord
{
    int command = 0;        ///< The number of the command's record.
    bool isRefused = false; ///< It was disabled when its turn came.
};

/// What a journal line says; `number` counts the records from 1, an end repeats its command's.
struct JournalRecord
{
    int number = 0;
    std::variant<CommandRecord, PointRecord, ValueRecord, SelectionRecord, PropertyRecord,
                 UndoRecord, EndRecord>
        what;
};

}
