#pragma once

#include <QElapsedTimer>

class QKeyEvent;

namespace vesk
{

/// Tells the presses of Escape from its repetitions: a key that is held down was meant once.
class EscapeKey
{
public:
    /// Hears of a press. True when it is a new one.
    bool Press(const QKeyEvent& event);

    /// Hears of the release of any key.
    void Release(const QKeyEvent& event);

private:
    /// Whether it was pressed and its release has not come yet, and since when it was heard of.
    bool m_isDown = false;
    QElapsedTimer m_sincePress;

    /// The window system's time of its last release.
    unsigned long m_releaseTime = 0;
};

}
