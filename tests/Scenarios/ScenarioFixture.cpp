#include "ScenarioFixture.h"

#include <QFile>
#include <QStandardPaths>

namespace
{

constexpr char ConfigFolder[] = "XDG_CONFIG_HOME";

}

ScenarioFixture::ScenarioFixture() : m_configBefore(qgetenv(ConfigFolder))
{
    // Uses neither the user's own pane layout nor that of another test.
    qputenv(ConfigFolder, QFile::encodeName(File(QStringLiteral("config"))));
    vesk::DebugMessageMgr::GetDebugMessageMgr()->AddObserver(this);
}

ScenarioFixture::~ScenarioFixture()
{
    vesk::DebugMessageMgr::GetDebugMessageMgr()->RemoveObserver(this);
    if (m_configBefore.isNull())
        qunsetenv(ConfigFolder);
    else
        qputenv(ConfigFolder, m_configBefore);
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
