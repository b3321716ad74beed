#pragma once

#include "Settings/Languages.h"
#include "Settings/Settings.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

/// Edits settings. It is accepted only once they are usable.
class SettingsDialog final : public QDialog
{
    Q_OBJECT

public:
    /// Shows the settings. `defaultJournalFolder` is where journals go if no other folder is set.
    SettingsDialog(const Settings& settings, const QVector<Language>& languages,
                   const QString& defaultJournalFolder, QWidget* pParent);

    /// What the dialog shows.
    Settings Get() const;

    void accept() override;

private:
    QWidget* MakeSnaps();
    QWidget* MakeFolder(const QString& defaultJournalFolder);
    QWidget* MakeButtons();
    void Show(const Settings& settings);
    void OnBrowse();

    const Settings m_given; ///< For what is chosen elsewhere.
    QComboBox* m_pLanguage;
    QComboBox* m_pColours;
    QComboBox* m_pUnit;
    QComboBox* m_pSpace;
    QLineEdit* m_pFolder;
    QSpinBox* m_pAutosave;
    QLabel* m_pMessage;
    std::array<QCheckBox*, Snapper::KindCount> m_snaps{};
};
