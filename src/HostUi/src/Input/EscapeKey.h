#pragma once

class QKeyEvent;

namespace vesk
{

/// Distinguishes presses of Escape from auto-repeats: a key held down is meant once.
class EscapeKey
{
public:
    /// Receives a press. Returns true if it is a new one.
    bool Press(const QKeyEvent& event);

    /// Receives the release of any key.
    void Release(const QKeyEvent& event);

private:
    bool IsHeld(const QKeyEvent& event) const;

    /// Whether it was pressed and not released yet, and whether it is auto-repeating.
    bool m_isDown = false;
    bool m_isRepeating = false;

    /// The window system's timestamps of its last press and release.
    unsigned long m_pressTime = 0;
    unsigned long m_releaseTime = 0;
};

}
