#pragma once

#include "Settings/Settings.h"

#include <QPalette>
#include <QString>

/// The colours of all windows of the program. Restores those of the desktop when it is destroyed.
class Appearance final
{
public:
    Appearance();
    ~Appearance();
    Appearance(const Appearance&) = delete;
    Appearance& operator=(const Appearance&) = delete;

    /// Light and dark colours are shown in the toolkit's own style, because that of a desktop need
    /// not accept others than its own.
    void Set(Settings::Colours colours);

private:
    void SetStyle(const QString& name);

    const QString m_desktopStyle;
    const QPalette m_desktopToolTips;
    Settings::Colours m_colours = Settings::Colours::Desktop;
};
