#pragma once

#include "Foundation/DebugMessageMgr.h"
#include "Options.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// Files of one session, and every warning that it raised.
class ScenarioFixture final : public vesk::IDebugWarningObserver
{
public:
    ScenarioFixture();
    ~ScenarioFixture() override;

    void OnDebugWarning(const vesk::DebugWarning& warning) override;

    /// A file in a folder that lives as long as the fixture.
    QString File(const QString& name) const;

    /// Options that name the journal "journal", the model "model" and the log "log".
    Options Draw() const;

    /// Options that replay a journal into a model.
    Options Replay(const QString& journal, const QString& model) const;

    /// What was warned of, one text each.
    const QStringList& GetWarnings() const { return m_warnings; }

private:
    QTemporaryDir m_folder;
    QStringList m_warnings;
};
