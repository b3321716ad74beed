#include "Input/EscapeKey.h"

#include <QKeyEvent>

namespace vesk
{

/// The toolkit does not mark every auto-repeat: a release that is read before its press looks like
/// the end. Both then carry the same timestamp, which no finger can achieve.
bool EscapeKey::Press(const QKeyEvent& event)
{
    // The press that an editor forwards to its view is still the same press.
    if (m_isDown && event.timestamp() == m_pressTime)
        return false;
    const bool isTornPair = event.timestamp() != 0 && event.timestamp() == m_releaseTime;
    m_isRepeating = event.isAutoRepeat() || isTornPair || IsHeld(event);
    m_isDown = true;
    m_pressTime = event.timestamp();
    return !m_isRepeating;
}

void EscapeKey::Release(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape || event.isAutoRepeat())
        return;
    m_isDown = false;
    m_releaseTime = event.timestamp();
}

/// While the keyboard moves from one window to another a release may be lost: that of an
/// auto-repeat, or a real one, after which the user may press again sooner than the first
/// auto-repeat would come.
bool EscapeKey::IsHeld(const QKeyEvent& event) const
{
    constexpr unsigned long ShortestDelayMs = 150;
    constexpr unsigned long LongestDelayMs = 1000;
    const unsigned long sincePress = event.timestamp() - m_pressTime;
    return m_isDown && (m_isRepeating || sincePress >= ShortestDelayMs) &&
           sincePress < LongestDelayMs;
}

}
