#include "Session.h"

#include "AbruptEnd.h"
#include "BackgroundWork.h"
#include "Complaint.h"
#include "Documents/DocumentCommands.h"
#include "Help/HelpCommands.h"
#include "Model/KeptContent.h"
#include "Model/ModelFile.h"
#include "Model/UiText.h"
#include "Model/UserFiles.h"
#include "OpeningFit.h"
#include "Output/DrawingExport.h"
#include "Output/DrawingSource.h"
#include "QuitWithoutClosing.h"
#include "Recovery/RecoverContent.h"
#include "Ribbon/CommandTable.h"
#include "VeskUiQtImpl/DockManagerImpl.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "Dimension/LengthUnit.h"
#include "Foundation/FileRewriting.h"
#include "Foundation/Text.h"
#include "HostUi/LayoutFile.h"
#include "HostUi/PublishConfigFile.h"
#include "HostUi/QtText.h"
#include "HostUi/QtVersions.h"
#include "Journal/JournalManager.h"
#include "Qtitan/RibbonBar.h"
#include "Warnings/DebugMessageMgr.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPixmap>
#include <QTimer>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>

using namespace vesk;

namespace
{

/// The path of a file installed with the program, next to the program folder.
QString SharedFile(const QString& name)
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/sketcher/") + name;
}

/// Fonts that are delivered with the program, for systems that may have none for its texts.
void AddFonts()
{
    const QDir folder(SharedFile(QStringLiteral("fonts")));
    for (const QString& file : folder.entryList(QDir::Files))
        QFontDatabase::addApplicationFont(folder.filePath(file));
}

QString LayoutPath()
{
    return ConfigurationFile(QStringLiteral("layout.json"));
}

/// The settings file if somebody is there whose settings it has; a replay, and a program that is
/// driven, do the same for everyone.
QString SettingsToRead(const Options& options)
{
    return options.task == Options::Task::Replay || !IsAttended() ? QString() : SettingsPath();
}

/// The user's locale, unless another language is chosen: the country decides how numbers are
/// written.
QLocale LocaleOf(const Settings& settings, const QLocale& users)
{
    const QLocale chosen(settings.language);
    return settings.language.isEmpty() || chosen.language() == users.language() ? users : chosen;
}

SessionJournal JournalOf(const Options& options, const Settings& settings)
{
    SessionJournal::SetFolder(settings.journalFolder, settings.formerJournalFolders);
    return SessionJournal(options);
}

/// Name and version, "sketcher 1.0".
std::wstring ProgramName()
{
    const QString name = QCoreApplication::applicationName();
    return ToWide((name + QLatin1Char(' ') + QCoreApplication::applicationVersion()).trimmed());
}

Documents::Manners MannersOf(const Options& options)
{
    using Manners = Documents::Manners;
    if (options.task == Options::Task::Replay || !IsAttended())
        return Manners::Silent;
    return options.journal.isEmpty() && options.model.isEmpty() ? Manners::Ask
                                                                : Manners::AskAboutFiles;
}

/// True if, as far as can be known, the file or a new one of that name can be written.
bool IsWritable(const QString& path)
{
    const QFileInfo file(path);
    QDir().mkpath(file.path());
    return QFileInfo(file.path()).isWritable() && (!file.exists() || file.isWritable());
}

bool WriteExport(const Sketch& sketch, const QString& path)
{
    const OutputFault fault = ExportDrawing(sketch.GetContent(), *ExportFormatOf(path), path,
                                            [](double) { return true; });
    if (fault != OutputFault::None)
        Complain(path.toStdString() + ": " + DescribeOutputFault(fault));
    return fault == OutputFault::None;
}

bool WritePicture(SketcherWindow& window, const QString& path)
{
    window.GetView().PaintAtOnce();
    const QPixmap picture = window.grab();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return picture.save(&buffer, "PNG") &&
           RewriteFile(path.toStdString(), {bytes.constData(), std::size_t(bytes.size())});
}

}

Session::Session(const Options& options)
    : m_options(options), m_settings(SettingsToRead(options), SettingsPath()),
      m_journal(JournalOf(options, m_settings.Get())),
      m_translations(SharedFile(QStringLiteral("translations")), QStringLiteral("sketcher"),
                     LocaleOf(m_settings.Get(), m_locale)),
      m_window(m_workspace, m_input), m_pDocks(std::make_unique<DockManagerImpl>(&m_window)),
      m_output(m_workspace, m_window, MakeOutputRunner()),
      m_import(m_workspace, m_window, MakeOutputRunner()),
      m_settingsApplier(m_settings, m_window, m_input, SharedFile(QStringLiteral("translations"))),
      m_languageSwitch(m_translations, [this] { Rebuild(); }),
      m_clipboard(m_workspace, [this](const QString& text) { m_window.ShowNotice(text); })
{
    AddFonts();
    QLocale::setDefault(LocaleOf(m_settings.Get(), m_locale));
    LoadPublishConfig(SharedFile(QStringLiteral("publish.ini")));
    m_host.GetViewManager().AddView(&m_window.GetView());
    m_application.SetMainWindow(&m_window);
    // Pane sizes depend on the window's size, and a warning appears where the window will be.
    if (m_options.task != Options::Task::Replay)
        m_window.setWindowState(Qt::WindowMaximized);
    m_application.SetDockManager(m_pDocks.get());
    m_pPanes = std::make_unique<Panes>(m_workspace, m_window, *m_pDocks, m_controls, m_input);
    QObject::connect(&m_window, &SketcherWindow::unitChanged, m_pPanes.get(), &Panes::Refresh);
    QObject::connect(m_pPanes.get(), &Panes::menuRequested, &m_window,
                     &SketcherWindow::ShowContextMenu);
    m_commands = MakeCommands();
    RegisterCommands(m_commands);
    JournalManager::GetInstance().SetSynced(m_options.repetition.isSynced);
    JournalManager::GetInstance().SetProgram(ProgramName());
    JournalManager::GetInstance().SetDigestSource(
        [this] { return m_workspace.sketch.GetDigest(); });
    BuildControls();
    m_settingsApplier.Apply(Settings());
    QObject::connect(&m_settings, &SettingsStore::changed, &m_languageSwitch,
                     [this](const Settings& before) {
                         if (m_settings.Get().language != before.language)
                             m_languageSwitch.Set(LocaleOf(m_settings.Get(), m_locale));
                     });
    if (!m_options.uiTree.isEmpty())
        m_pUiTree = std::make_unique<UiTreeWriter>(m_options.uiTree, m_input, [this] {
            return static_cast<int>(m_workspace.sketch.GetEntities().size());
        });
}

void Session::BuildControls()
{
    m_window.BuildControls(m_commands, m_controls);
    if (QToolButton* pButton = m_window.GetPaneButton())
        m_pPanes->Attend(*pButton);
}

/// Builds what is on screen anew, in the user's language: a tool tip of the library's controls
/// cannot be changed.
void Session::Rebuild()
{
    const int page = m_window.GetRibbon()->currentPageIndex();
    const std::wstring unit = LengthUnit::GetCurrent().GetSymbol();
    m_window.ReleaseControls();
    m_controls.RemoveAll();
    m_window.ClearRibbon();
    m_pPanes->Empty();
    m_pPanes->Fill();
    BuildControls();
    m_window.ChooseUnit(unit);
    m_window.GetRibbon()->setCurrentPageIndex(page);
    if (m_pRecovery != nullptr)
        m_pRecovery->GetOffer().ShowAnew();
}

/// All commands of the program.
std::vector<CommandEntry> Session::MakeCommands()
{
    MakeDocuments();
    m_clipboard.SetPicture([](const SketchContent& content) {
        return MakeSvg(content, [](double) { return true; }).bytes;
    });
    std::vector<CommandEntry> commands = MakeCommandTable(m_workspace, m_window.GetView(), m_input);
    const auto add = [&commands](std::vector<CommandEntry> others) {
        std::move(others.begin(), others.end(), std::back_inserter(commands));
    };
    add(m_pPanes->MakeCommands());
    add(m_output.MakeCommands());
    add(m_import.MakeCommands());
    add(MakeDocumentCommands(*m_pDocuments));
    add(m_clipboard.MakeCommands());
    add({MakeRecoverCommand(m_workspace.sketch), m_settingsApplier.MakeFoldCommand(),
         m_settingsApplier.MakeCommand()});
    add(MakeHelpCommands(commands, m_window));
    for (const CommandEntry& entry : commands)
    {
        m_captions[entry.id] = entry.caption;
        if (entry.isPossible)
            m_possibilities[entry.id] = entry.isPossible;
    }
    return commands;
}

Session::~Session()
{
    ActionManager::Reset();
    JournalManager::GetInstance().SetDigestSource(nullptr);
    m_window.ReleaseControls();
    m_application.SetDockManager(nullptr);
    m_application.SetMainWindow(nullptr);
    m_host.GetViewManager().RemoveView(&m_window.GetView());
    DebugMessageMgr::GetDebugMessageMgr()->CloseLog();
    QLocale::setDefault(m_locale);
}

int Session::Run()
{
    if (!m_library.IsLoaded())
    {
        Complain(m_library.GetError().toStdString());
        return ExitUnusableFile;
    }
    if (!OpenFiles())
        return ExitUnusableFile;

    const bool isReplay = m_options.task == Options::Task::Replay;
    if (isReplay)
        DebugMessageMgr::GetDebugMessageMgr()->SetAttended(false);
    const int code = isReplay ? Replay() : Draw();
    if (code == ExitUnusableFile)
        return code;
    return WriteResults(Display::There) ? code : ExitUnusableFile;
}

OutputRunner Session::MakeOutputRunner()
{
    return [this](const std::function<void(const OutputProgress&)>& work) {
        RunWork([&work](WorkProgress& progress) {
            work([&progress](double share) { return progress.Advance(share); });
        });
    };
}

/// Runs work while the window lives, if it is shown.
void Session::RunWork(const std::function<void(WorkProgress&)>& work)
{
    if (m_pReading != nullptr)
        return RunInBackground(*m_pReading, work);
    if (m_window.isVisible())
    {
        RunInBackground(m_window, m_window.GetProgress(), work);
        return;
    }
    WorkProgress progress;
    work(progress);
}

void Session::MakeDocuments()
{
    const auto run = [this](const Documents::Work& work) {
        RunWork([&work](WorkProgress& progress) {
            work([&progress](std::size_t done, std::size_t total) {
                return progress.Advance(static_cast<double>(done) / static_cast<double>(total));
            });
        });
    };
    m_pDocuments =
        std::make_unique<Documents>(m_workspace.sketch, m_window, MannersOf(m_options), run);
    QObject::connect(m_pDocuments.get(), &Documents::changed, &m_window, [this] {
        if (m_options.task == Options::Task::Replay)
            m_window.ShowDocument("%1（查看）"_tr.arg(ToQString(m_workspace.sketch.GetShownName())),
                                  false);
        else
            m_window.ShowDocument(m_pDocuments->GetDocument().GetName(),
                                  m_pDocuments->IsModified());
    });
    m_output.SetNaming([this] {
        const QFileInfo file(m_pDocuments->GetDocument().path);
        return m_pDocuments->GetDocument().HasFile() ? file.dir().filePath(file.completeBaseName())
                                                     : QString();
    });
    QObject::connect(m_pDocuments.get(), &Documents::opened, &m_window,
                     [this] { m_window.GetView().ZoomAll(); });
}

/// The journal to replay is read before anything is replaced.
bool Session::OpenFiles()
{
    std::string error;
    const QString& source = m_options.GetSource();
    KeptContent::Get().Forget();
    KeptContent::Get().SetSource(source);
    bool isDone = m_journal.Reserve(error);
    if (isDone && ((!source.isEmpty() && !ReadJournal(source)) || !OpenLog()))
        return false;
    isDone = isDone && m_journal.Open(error);
    if (!isDone)
        Complain(error);
    if (!m_journal.GetSecured().isEmpty())
        m_window.ShowState(
            QStringLiteral("secured"), [] { return "原日志未保存，已移入恢复文件夹"_tr; },
            [path = m_journal.GetSecured()] { return path; });
    return isDone;
}

/// Only a log named by an option must be writable.
bool Session::OpenLog()
{
    const bool isNamed = !m_options.log.isEmpty();
    const QString path = isNamed ? m_options.log : DataFile(QStringLiteral("warnings.log"));
    if (DebugMessageMgr::GetDebugMessageMgr()->OpenLog(path.toStdString()))
        return true;
    if (isNamed)
        Complain("cannot write " + path.toStdString());
    else
        m_window.ShowState(
            QStringLiteral("log"), [] { return "警告未记录"_tr; },
            [path] { return "无法写入警告日志 %1"_tr.arg(path); });
    return !isNamed;
}

void Session::RestoreLayout()
{
    const LayoutFile::Reading reading = LayoutFile::Read(LayoutPath());
    if (reading.content == LayoutFile::Content::Missing)
        return;
    const bool isRestored = m_pPanes->GetLayout().Restore(reading.layout);
    const bool isNewer = reading.content == LayoutFile::Content::Newer;
    if (!isRestored)
        m_window.ShowNotice(isNewer ? "面板布局来自更新的版本，已用默认布局"_tr
                                    : "面板布局文件已损坏，已用默认布局"_tr);
}

void Session::SaveLayout()
{
    if (!LayoutFile::Write(LayoutPath(), m_pPanes->GetLayout().Save()))
        m_unwritten << LayoutPath();
}

/// Only somebody whose settings were read has them changed.
void Session::KeepRibbon()
{
    if (!SettingsToRead(m_options).isEmpty() && !m_settingsApplier.KeepRibbon())
        m_unwritten << SettingsPath();
}

/// Ends the program as closing the window does; dialogs and menus close too.
void Session::ObeyTerminationRequests()
{
    m_pTermination = std::make_unique<TerminationRequests>();
    QObject::connect(m_pTermination.get(), &TerminationRequests::requested, &m_window, [this] {
        m_isEndRequested = true;
        m_pDocuments->EndWithoutQuestions();
        m_window.close();
        QCoreApplication::quit();
    });
}

int Session::Draw()
{
    ObeyTerminationRequests();
    if (IsAttended())
        m_settingsApplier.FollowDesktop();
    RestoreLayout();
    if (!IsWritable(LayoutPath()))
        m_window.ShowState(
            QStringLiteral("layout"), [] { return "面板布局不会保存"_tr; },
            [] { return "无法写入 %1"_tr.arg(LayoutPath()); });
    m_pKeeping = std::make_unique<KeepingMonitor>(m_window);
    QObject::connect(&m_window, &MainWindow::closeAccepted, &m_window, [this] {
        SaveLayout();
        KeepRibbon();
        m_isEndDecided = !m_isEndRequested;
    });
    // At the end of the desktop's session nobody is asked: what is not saved is offered afterwards.
    KeepWindowsAtSessionEnd();
    const QuitWithoutClosing quitting;
    BeginRecovery();
    m_window.showMaximized();
    m_window.GetView().Activate();
    if (!m_options.open.isEmpty())
        QTimer::singleShot(0, &m_window, [this] { Open(); });
    if (!m_options.document.isEmpty())
        QTimer::singleShot(0, m_pDocuments.get(), [this] { OpenDocument(); });
    if (!m_options.raiseWarnings.isEmpty())
        m_pWarningRaiser =
            std::make_unique<WarningRaiser>(m_options.raiseWarnings, m_window.GetView());
    const AbruptEnd abruptEnd([this] { WriteResults(Display::Lost); });
    return QApplication::exec();
}

void Session::BeginRecovery()
{
    const auto replay = [this](const SessionRecovery::Records& records) {
        m_records = records;
        ObeyVersion();
        const JournalReplayResult result = RepeatInWindow();
        m_pKeeping->Update();
        return result;
    };
    m_pRecovery = std::make_unique<SessionRecovery>(
        m_workspace, m_window, m_journal, m_captions,
        SessionRecovery::Program{replay, [this] { m_pDocuments->DoNew(); }});
    m_pRecovery->GetAutosave().SetInterval(m_settings.Get().autosaveMinutes);
    QObject::connect(&m_settings, &SettingsStore::changed, &m_pRecovery->GetAutosave(), [this] {
        m_pRecovery->GetAutosave().SetInterval(m_settings.Get().autosaveMinutes);
    });
    m_pRecovery->Offer(m_options);
}

/// A drawing file is opened; any other drawing is added to the empty one.
void Session::OpenDocument()
{
    if (IsDxfFile(m_options.document))
        m_import.Import(m_options.document, m_options.dxfUnit);
    else
        m_pDocuments->OpenFile(m_options.document);
    // The user may have closed the window in the meantime.
    if (!m_window.isVisible())
        return;
    m_window.GetView().ZoomAll();
    new OpeningFit(m_window.GetView());
}

/// Only a user who closes the window decides about unsaved work.
SessionJournal::Work Session::GetWork() const
{
    const bool isUndecided =
        m_options.task == Options::Task::Draw && !m_isEndDecided && m_pDocuments->IsModified();
    return isUndecided ? SessionJournal::Work::Undecided : SessionJournal::Work::Decided;
}

/// Reports in one line what could not be written. Returns false if an option named any of it.
bool Session::WriteResults(Display display)
{
    QStringList named;
    const auto note = [](bool isDone, const QString& path, QStringList& unwritten) {
        if (!isDone)
            unwritten << path;
    };
    // Without a display the process is exiting: tables that the others need may be gone already.
    const bool hasDisplay = display == Display::There;
    if (hasDisplay && !m_options.model.isEmpty())
        note(WriteModelFile(m_workspace.sketch, m_options.model), m_options.model, named);
    if (hasDisplay && !m_options.exportFile.isEmpty())
        note(WriteExport(m_workspace.sketch, m_options.exportFile), m_options.exportFile, named);
    if (hasDisplay && !m_options.screenshot.isEmpty())
        note(WritePicture(m_window, m_options.screenshot), m_options.screenshot, named);
    if (hasDisplay && m_pUiTree != nullptr)
        note(m_pUiTree->Write(), m_options.uiTree, named);
    note(m_journal.Close(hasDisplay ? GetWork() : SessionJournal::Work::Undecided),
         m_journal.GetPath(), m_journal.IsNamed() ? named : m_unwritten);
    const bool isLogNamed = !m_options.log.isEmpty();
    note(DebugMessageMgr::GetDebugMessageMgr()->CloseLog(),
         isLogNamed ? m_options.log : DataFile(QStringLiteral("warnings.log")),
         isLogNamed ? named : m_unwritten);
    const QStringList all = named + m_unwritten;
    if (!all.isEmpty())
        Complain("cannot write " + all.join(QStringLiteral(", ")).toStdString());
    return named.isEmpty();
}
