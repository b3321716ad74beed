#pragma once

#include <QElapsedTimer>

#include <cstddef>
#include <functional>
#include <vector>

namespace vesk
{
struct JournalRecord;
}

/// When each record of a journal is due if it is replayed as fast as it was recorded.
///
/// The times are those of the marks: what belongs to a step is due when the step was finished.
/// Records without a mark after them are due with the last one. The time between two sittings is
/// not waited for.
class ReplayPace final
{
public:
    explicit ReplayPace(const std::vector<vesk::JournalRecord>& records);

    /// When a record is due, in milliseconds since the replay began.
    int GetDue(std::size_t index) const { return m_due[index]; }

    /// Runs an event loop until the record is due. `goOn` is called from time to time; if it
    /// returns false, so does this, at once.
    bool WaitFor(std::size_t index, const std::function<bool()>& goOn);

private:
    std::vector<int> m_due;
    QElapsedTimer m_sinceBegin; ///< Started by the first wait.
};
