#include "Session.h"

#include "CommandTable.h"
#include "DockManagerImpl.h"
#include "ModelFile.h"
#include "SketchView.h"

#include "Command/ActionManager.h"
#include "Foundation/DebugMessageMgr.h"
#include "Foundation/Text.h"
#include "HostUi/LayoutFile.h"
#include "HostUi/PublishConfigFile.h"
#include "Journal/JournalFormat.h"
#include "Journal/JournalManager.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QPixmap>
#include <QStandardPaths>
#include <QTimer>

#include <iostream>
#include <utility>

using namespace vesk;

namespace
{

constexpr int ExitUnusableFile = 2;
constexpr int ExitNotRepeated = 3;

/// A file below the user's data folder, which is made when it is missing.
QString DataFile(const QString& name)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + name;
}

/// What is delivered with the program, beside the folder of programs.
QString SharedFile(const QString& name)
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/sketcher/") + name;
}

/// Where the layout of the panes is kept, below the user's configuration folder.
QString LayoutPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/layout.json");
}

void Complain(const std::string& text)
{
    std::cerr << "sketcher: " << text << std::endl;
}

}

Session::Session(const Options& options)
    : m_options(options),
      m_translations(SharedFile(QStringLiteral("translations")), QStringLiteral("sketcher")),
      m_window(m_workspace, m_input), m_pDocks(std::make_unique<DockManagerImpl>(&m_window))
{
    LoadPublishConfig(SharedFile(QStringLiteral("publish.ini")));
    m_host.GetViewManager().AddView(&m_window.GetView());
    m_application.SetMainWindow(&m_window);
    m_application.SetDockManager(m_pDocks.get());
    m_pPanes = std::make_unique<Panes>(m_workspace, m_window, *m_pDocks, m_controls, m_input);
    std::vector<CommandEntry> commands = MakeCommandTable(m_workspace, m_window.GetView(), m_input);
    for (CommandEntry& entry : m_pPanes->MakeCommands())
        commands.push_back(std::move(entry));
    RegisterCommands(commands);
    m_window.BuildControls(commands, m_controls);
    if (QToolButton* pButton = m_window.GetPaneButton())
        m_pPanes->Attend(*pButton);
    if (!m_options.uiTree.isEmpty())
        m_pUiTree = std::make_unique<UiTreeWriter>(m_options.uiTree, m_input, [this] {
            return static_cast<int>(m_workspace.sketch.GetEntities().size());
        });
}

Session::~Session()
{
    ActionManager::Reset();
    m_window.ReleaseControls();
    m_application.SetDockManager(nullptr);
    m_application.SetMainWindow(nullptr);
    m_host.GetViewManager().RemoveView(&m_window.GetView());
    DebugMessageMgr::GetDebugMessageMgr()->CloseLog();
}

int Session::Run()
{
    if (!m_library.IsLoaded())
    {
        Complain(m_library.GetError().toStdString());
        return ExitUnusableFile;
    }
    // The journal to repeat is read first: it may be the very file that is replaced.
    const QString& source = m_options.replay.isEmpty() ? m_options.open : m_options.replay;
    if ((!source.isEmpty() && !ReadJournal(source)) || !OpenLog() || !OpenJournal())
        return ExitUnusableFile;

    const bool isReplay = m_options.task == Options::Task::Replay;
    if (isReplay)
        DebugMessageMgr::GetDebugMessageMgr()->SetAttended(false);
    const int code = isReplay ? Replay() : Draw();
    return WriteResults() ? code : ExitUnusableFile;
}

bool Session::OnProgress(std::size_t done, std::size_t total)
{
    return m_pReading == nullptr || m_pReading->Advance(done, total);
}

bool Session::ReplaySelection(const SelectionRecord& record)
{
    return m_workspace.selection.Select(record.entities);
}

bool Session::ReplayProperty(const PropertyRecord& record)
{
    return m_workspace.properties.Set(record);
}

bool Session::VerifyUndo(const UndoRecord& record)
{
    return m_workspace.sketch.GetLastUndone() == record.entity;
}

bool Session::OpenLog()
{
    const QString path =
        m_options.log.isEmpty() ? DataFile(QStringLiteral("warnings.log")) : m_options.log;
    const bool isOpen = DebugMessageMgr::GetDebugMessageMgr()->OpenLog(path.toStdString());
    if (!isOpen)
        Complain("cannot write " + path.toStdString());
    return isOpen;
}

/// Nothing drawn is ever lost: without a name the journal goes below the user's data folder.
bool Session::OpenJournal()
{
    QString& path = m_options.journal;
    if (path.isEmpty() && m_options.task == Options::Task::Replay)
        return true;
    if (path.isEmpty())
        path = DataFile(
            QStringLiteral("journal-%1-%2.jsonl")
                .arg(QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss")))
                .arg(QCoreApplication::applicationPid()));
    const bool isOpen = JournalManager::GetInstance().Open(path.toStdString());
    if (!isOpen)
        Complain("cannot write " + path.toStdString());
    return isOpen;
}

bool Session::ReadJournal(const QString& path)
{
    std::string error;
    if (JournalFormat::ReadFile(path.toStdString(), m_records, error))
        return true;
    Complain(path.toStdString() + ": " + error);
    return false;
}

void Session::RestoreLayout()
{
    const LayoutFile::Reading reading = LayoutFile::Read(LayoutPath());
    if (reading.content == LayoutFile::Content::Missing)
        return;
    const bool isRestored = m_pPanes->GetLayout().Restore(reading.layout);
    const bool isNewer = reading.content == LayoutFile::Content::Newer;
    if (!isRestored)
        m_window.ShowNotice(isNewer ? QStringLiteral("面板布局来自更新的版本，已用默认布局")
                                    : QStringLiteral("面板布局文件已损坏，已用默认布局"));
}

void Session::SaveLayout()
{
    if (!LayoutFile::Write(LayoutPath(), m_pPanes->GetLayout().Save()))
        Complain("cannot write " + LayoutPath().toStdString());
}

int Session::Draw()
{
    // Sizes of panes hold for the window's size.
    m_window.setWindowState(Qt::WindowMaximized);
    RestoreLayout();
    QObject::connect(&m_window, &MainWindow::closeAccepted, &m_window, [this] { SaveLayout(); });
    m_window.showMaximized();
    m_window.GetView().Activate();
    if (!m_options.open.isEmpty())
        QTimer::singleShot(0, &m_window, [this] { Open(); });
    if (!m_options.raiseWarnings.isEmpty())
        m_pWarningRaiser =
            std::make_unique<WarningRaiser>(m_options.raiseWarnings, m_window.GetView());
    return QApplication::exec();
}

/// Repeats a journal in the window. Cancelled, it leaves the drawing and the new journal as they
/// were before.
void Session::Open()
{
    m_pReading = std::make_unique<ReadingMonitor>(m_window, m_window.GetProgress());
    Repeat();
    const bool isCancelled = m_pReading->IsCancelled();
    m_pReading.reset();
    if (isCancelled)
    {
        m_workspace.sketch.Clear();
        OpenJournal();
    }
    m_window.GetView().Activate();
}

int Session::Replay()
{
    return Repeat() ? 0 : ExitNotRepeated;
}

/// Repeats the journal that was read; tells of what could not be repeated and what was unfinished.
bool Session::Repeat()
{
    const JournalReplayResult result = JournalReplayer::Replay(m_records, *this);
    if (result.isStopped)
        return true;
    for (const std::wstring& commandId : result.unfinishedCommands)
        Complain("not finished in the journal: " + ToUtf8(commandId));
    if (!result.failure.empty())
        Complain(result.failure);
    return result.failure.empty();
}

bool Session::WriteResults()
{
    bool isWritten = true;
    const auto note = [&isWritten](bool isDone, const QString& path) {
        if (!isDone)
            Complain("cannot write " + path.toStdString());
        isWritten = isWritten && isDone;
    };
    if (!m_options.model.isEmpty())
        note(WriteModelFile(m_workspace.sketch, m_options.model), m_options.model);
    if (!m_options.screenshot.isEmpty())
        note(m_window.grab().save(m_options.screenshot, "PNG"), m_options.screenshot);
    if (m_pUiTree != nullptr)
        note(m_pUiTree->Write(), m_options.uiTree);
    return isWritten;
}
