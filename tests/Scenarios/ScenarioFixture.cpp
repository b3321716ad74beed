#include "ScenarioFixture.h"

#include <QStandardPaths>

ScenarioFixture::ScenarioFixture()
{
    vesk::DebugMessageMgr::GetDebugMessageMgr()->AddObserver(this);
}

ScenarioFixture::~ScenarioFixture()
{
    vesk::DebugMessageMgr::GetDebugMessageMgr()->RemoveObserver(this);
}

void ScenarioFixture::OnDebugWarning(const vesk::DebugWarning& warning)
{
    m_warnings << QString::fromStdString(warning.function) + QStringLiteral(": ") +
                      QString::fromStdWString(warning.message);
}

QString ScenarioFixture::File(const QString& name) const
{
    return m_folder.filePath(name);
}

QString ScenarioFixture::LayoutFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/layout.json");
}

Options ScenarioFixture::Draw() const
{
    Options options;
    options.journal = File(QStringLiteral("journal"));
    options.model = File(QStringLiteral("model"));
    options.log = File(QStringLiteral("log"));
    return options;
}

Options ScenarioFixture::Replay(const QString& journal, const QString& model) const
{
    Options options;
    options.task = Options::Task::Replay;
    options.replay = journal;
    options.model = model;
    options.log = File(QStringLiteral("replay-log"));
    return options;
}
