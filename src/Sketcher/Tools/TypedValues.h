#pragma once

#include "Dimension/InputState.h"
#include "Journal/JournalRecord.h"

#include <optional>
#include <vector>

/// The values that the user has typed for a step of an action, in model units. The cursor no longer
/// changes them, and their dimensions are shown as locked.
class TypedValues final
{
public:
    class Trial;

    TypedValues() = default;
    ~TypedValues() { Clear(); }
    TypedValues(const TypedValues&) = delete;
    TypedValues& operator=(const TypedValues&) = delete;

    bool IsEmpty() const { return m_values.empty(); }
    std::optional<double> Get(vesk::InputState field) const;

    /// Adds a value, replacing the previous one of its field.
    void Take(const vesk::ValueRecord& value);

    /// Writes the values that are not in the journal yet, in the order in which they were added.
    void Record();

    /// Drops one value, or all.
    void Drop(vesk::InputState field);
    void Clear();

private:
    struct Value
    {
        vesk::ValueRecord record;
        bool isRecorded;
    };

    std::vector<Value> m_values;
};

/// Gives a field a value while it lives, to try it out. Nothing is locked or recorded, and no value
/// may be added or dropped in the meantime.
class TypedValues::Trial final
{
public:
    Trial(TypedValues& values, vesk::InputState field, double value);
    ~Trial();
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

private:
    TypedValues& m_values;
    std::vector<Value> m_before;
};
