#pragma once

#include "Dimension/InputState.h"
#include "Journal/JournalRecord.h"

#include <optional>
#include <vector>

/// The values that the user has typed for a step of an action, in model units. The cursor no longer
/// changes them; their dimensions show it.
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

    /// Takes a value instead of the one that its field had.
    void Take(const vesk::ValueRecord& value);

    /// Writes those values to the journal that were not yet written, in the order of taking.
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

/// Puts a value in a field while it lives, to see what would come of it. Nothing is locked or
/// recorded, and no value may be taken or dropped meanwhile.
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
