#pragma once

#include <QString>

#include <vector>

class QKeyEvent;

namespace vesk
{

/// What is typed directly after a blank that took a value. A unit there was meant for that value
/// and comes too late: its letters are kept until they are one, and then dropped, for they would
/// begin the next value. Letters that can become no unit were something else.
class LateUnit
{
public:
    /// A blank has taken a value.
    void Begin();

    /// True until something else than a unit has come.
    bool IsAwaited() const { return m_isAwaited; }

    /// True for a key press that can belong to a unit, after those that came before.
    bool CanTake(const QKeyEvent& event) const;

    /// Takes such a key. True when there is a whole unit now: its keys are dropped. It may still
    /// become a longer one.
    bool Take(const QKeyEvent& event);

    /// What was typed so far.
    const QString& GetText() const { return m_text; }

    /// Awaits no unit any more and hands back the keys that are none's, in their order.
    std::vector<QKeyEvent> End();

private:
    bool m_isAwaited = false;
    QString m_text;

    /// The keys that are part of no whole unit yet.
    std::vector<QKeyEvent> m_kept;
};

}
