#pragma once

#include "Options.h"
#include "Support/MovedUserFolders.h"
#include "Warnings/DebugMessageMgr.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The files of one session, folders of its own for configuration and data, and every warning the
/// session raised.
class ScenarioFixture final : public vesk::IDebugWarningObserver
{
public:
    ScenarioFixture();
    ~ScenarioFixture() override;

    void OnDebugWarning(const vesk::DebugWarning& warning) override;

    /// A file in a folder that lives as long as the fixture.
    QString File(const QString& name) const;

    /// Where a session stores the layout of its panes.
    static QString LayoutFile();

    /// Options that name the journal "journal", the model "model" and the log "log".
    Options Draw() const;

    /// Options that replay a journal into a model.
    Options Replay(const QString& journal, const QString& model) const;

    /// The messages of the warnings, one each.
    const QStringList& GetWarnings() const { return m_warnings; }

private:
    QTemporaryDir m_folder;
    // Neither the user's own files nor those of another test are used.
    vesk::test::MovedUserFolders m_userFolders{m_folder.path()};
    QStringList m_warnings;
};
