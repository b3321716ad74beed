#pragma once

#include "Settings/Settings.h"

#include <QPalette>
#include <QString>

#include <memory>

class DesktopWish;

/// The colours of all windows of the program. Restores those of the desktop when it is destroyed.
class Appearance final
{
public:
    Appearance();
    ~Appearance();
    Appearance(const Appearance&) = delete;
    Appearance& operator=(const Appearance&) = delete;

    /// From now on what the desktop asks programs for holds for Colours::Desktop, as far as the
    /// toolkit does not follow the desktop itself.
    void FollowDesktop();

    /// The other colours are shown in the toolkit's own style, because that of a desktop need
    /// not accept others than its own.
    void Set(Settings::Colours colours);

private:
    void Apply();
    Settings::Colours FindColours() const;
    void Show(Settings::Colours colours);
    void SetStyle(const QString& name);

    const QString m_desktopStyle;
    const QPalette m_desktopPalette; ///< At the start.
    const QPalette m_desktopToolTips;
    std::unique_ptr<DesktopWish> m_pWish;                     ///< Null until it is followed.
    Settings::Colours m_colours = Settings::Colours::Desktop; ///< As chosen.
    Settings::Colours m_shown = Settings::Colours::Desktop;
};
