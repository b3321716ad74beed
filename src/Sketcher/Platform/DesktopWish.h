#pragma once

#include <QObject>

#include <memory>

/// The colours that the user has asked all programs for, where the toolkit's palette of the desktop
/// does not tell: dark ones, or high contrast. Neither at first, and on a desktop that says
/// nothing.
class DesktopWish final : public QObject
{
    Q_OBJECT

public:
    /// Asks the desktop, which may answer at once or later.
    DesktopWish();
    ~DesktopWish() override;

    bool IsDark() const { return m_isDark; }
    bool IsHighContrast() const { return m_isHighContrast; }

    /// What the desktop answers.
    void SetDark(bool isDark);
    void SetHighContrast(bool isHighContrast);

signals:
    void changed();

private:
    bool m_isDark = false;
    bool m_isHighContrast = false;
    std::unique_ptr<QObject> m_pSource; ///< Listens to the desktop.
};
