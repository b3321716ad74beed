#pragma once

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
    bool IsHeld(const QKeyEvent& event) const;

    /// Whether it was pressed and its release has not come yet, and whether it repeats itself.
    bool m_isDown = false;
    bool m_isRepeating = false;

    /// The window system's times of its last press and release.
    unsigned long m_pressTime = 0;
    unsigned long m_releaseTime = 0;
};

}
