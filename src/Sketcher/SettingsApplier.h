#pragma once

#include "Settings/Appearance.h"

#include <QObject>
#include <QString>

class SettingsStore;
class SketcherWindow;
struct CommandEntry;

namespace vesk
{
class DimensionInputController;
}

/// Makes the program follow its settings: at first those that differ from the defaults, later what
/// the user changes. Unit and snaps that are chosen in the ribbon last until the setting changes.
class SettingsApplier final : public QObject
{
    Q_OBJECT

public:
    /// The arguments are not owned and outlive this. `translations` is the folder of the program's
    /// catalogues.
    SettingsApplier(SettingsStore& store, SketcherWindow& window,
                    vesk::DimensionInputController& input, const QString& translations);

    /// Applies the settings that differ from these.
    void Apply(const Settings& before);

    /// From now on colours as the desktop has them follow the desktop.
    void FollowDesktop() { m_appearance.FollowDesktop(); }

    /// Opens the dialog, in front if it is open.
    void ShowDialog();

    /// Stores whether the ribbon is folded. Returns false if the file cannot be written.
    bool KeepRibbon();

    /// The command `Sketcher.FoldRibbon`.
    CommandEntry MakeFoldCommand();

    /// The command `Sketcher.Settings`.
    CommandEntry MakeCommand();

private:
    SettingsStore& m_store;
    SketcherWindow& m_window;
    vesk::DimensionInputController& m_input;
    const QString m_translations;
    Appearance m_appearance;
};
