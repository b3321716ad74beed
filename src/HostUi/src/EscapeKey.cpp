#include "EscapeKey.h"

#include <QKeyEvent>

namespace vesk
{

/// The toolkit does not mark every repetition: when the keyboard goes to another window a release
/// may be lost, and a release that is read before its press looks like the end. The two then bear
/// the same time, which no finger can do.
bool EscapeKey::Press(const QKeyEvent& event)
{
    constexpr qint64 LongestRepeatDelayMs = 1000;
    const bool isDown = m_isDown && m_sincePress.elapsed() < LongestRepeatDelayMs;
    const bool isTornPair = event.timestamp() != 0 && event.timestamp() == m_releaseTime;
    m_isDown = true;
    m_sincePress.start();
    return !event.isAutoRepeat() && !isDown && !isTornPair;
}

void EscapeKey::Release(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape || event.isAutoRepeat())
        return;
    m_isDown = false;
    m_releaseTime = event.timestamp();
}

}
