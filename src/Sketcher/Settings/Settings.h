#pragma once

#include "Model/Snapper.h"

#include <QString>
#include <QStringList>

#include <array>
#include <string>

/// What the user has chosen for all drawings. A value-initialised one has the defaults.
struct Settings
{
    enum class Colours
    {
        Desktop, ///< As the desktop has them.
        Light,
        Dark,
        HighContrast, ///< White on black.
    };

    static constexpr int GreatestAutosaveMinutes = 120;

    /// The name of a locale, such as "de" or "zh"; empty for the desktop's. Takes effect when the
    /// program starts.
    QString language;
    Colours colours = Colours::Desktop;

    /// Whether only the tabs of the ribbon are shown. Kept when the window closes.
    bool isRibbonFolded = false;

    /// The symbol of the unit in which lengths are shown and typed at start.
    QString unit = QStringLiteral("mm");

    /// Which snaps are on at start, by Snapper::Kind.
    std::array<bool, Snapper::KindCount> snaps = {true};

    /// Whether Space commits a typed number where it can. Otherwise it is a blank everywhere.
    bool isSpaceCommitting = true;

    /// The folder for journals that no option names; empty for the user's data folder.
    QString journalFolder;

    /// Folders that were chosen before, the last one first: unsaved work in them is still offered.
    /// No choice of the user: SettingsStore keeps them.
    QStringList formerJournalFolders;

    /// The time between automatic saves; 0 for none.
    int autosaveMinutes = 5;
};

/// Compares what the user has chosen.
bool operator==(const Settings& a, const Settings& b);

/// Reads settings from the text of a settings file. Whatever is missing or not usable has its
/// default, in a text that cannot be read at all everything.
Settings SettingsFromText(const std::string& text);

/// The text of a settings file. Fields of the former text that this version of the program does not
/// know are kept.
std::string ToText(const Settings& settings, const std::string& formerText);
