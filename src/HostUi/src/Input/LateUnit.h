#pragma once

#include "Input/KeptKey.h"

#include <QString>

#include <vector>

namespace vesk
{

/// Keys typed directly after a Space that committed a value. A unit there was meant for that value
/// and comes too late: its letters are kept until they form a unit, and then dropped, because they
/// would begin the next value. Letters that cannot become a unit were meant as something else.
class LateUnit
{
public:
    /// A Space has committed a value.
    void Begin();

    /// True until something other than a unit is typed.
    bool IsAwaited() const { return m_isAwaited; }

    /// True for a key press that can continue a unit after those already received.
    bool CanTake(const QKeyEvent& event) const;

    /// Adds such a key. Returns true if the keys now form a whole unit: they are dropped. It may
    /// still become a longer one.
    bool Take(const QKeyEvent& event);

    /// The text typed so far.
    const QString& GetText() const { return m_text; }

    /// Stops awaiting a unit and returns the keys that belong to none, in order.
    std::vector<KeptKey> End();

private:
    bool m_isAwaited = false;
    QString m_text;

    /// The keys that do not form a whole unit yet.
    std::vector<KeptKey> m_kept;
};

}
