#pragma once

#include "Clipboard/ClipboardCommands.h"
#include "DialogSizes.h"
#include "Documents/Documents.h"
#include "KeepingMonitor.h"
#include "LanguageSwitch.h"
#include "Model/Workspace.h"
#include "Options.h"
#include "Output/ImportCommands.h"
#include "Panes/Panes.h"
#include "ReadingMonitor.h"
#include "ReplayPace.h"
#include "SessionJournal.h"
#include "SessionRecovery.h"
#include "Settings/SettingsStore.h"
#include "SettingsApplier.h"
#include "SketcherWindow.h"
#include "ToolkitTexts.h"
#include "WarningRaiser.h"

#include "Dock/IDockManager.h"
#include "HostCore.h"
#include "HostUi/ControlHost.h"
#include "HostUi/ControlLibrary.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/TerminationRequests.h"
#include "HostUi/TranslationCatalogue.h"
#include "HostUi/UiApplication.h"
#include "HostUi/UiTreeWriter.h"
#include "Replay/JournalReplayer.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class WorkProgress;

/// One run of the program: the host, the library, the drawing and the window, in order of
/// construction.
class Session final : public vesk::IJournalReplayTarget
{
public:
    explicit Session(const Options& options);
    ~Session() override;

    /// Does what the options ask for and returns the program's exit code: 0, 2 for an unusable
    /// file, or 3 for a journal that cannot be replayed.
    int Run();

    bool CanRepeat(const vesk::CommandRecord& record) override;
    bool OnProgress(std::size_t done, std::size_t total) override;
    bool ReplaySelection(const vesk::SelectionRecord& record) override;
    bool ReplayProperty(const vesk::PropertyRecord& record) override;
    bool VerifyUndo(const vesk::UndoRecord& record) override;
    bool VerifyRedo(const vesk::RedoRecord& record) override;
    std::optional<int> GetLastUndone() override;
    std::string VerifyMark(const vesk::MarkRecord& record) override;

private:
    enum class Display
    {
        There,
        Lost,
    };

    std::vector<CommandEntry> MakeCommands();
    OutputRunner MakeOutputRunner();
    void BuildControls();
    void Rebuild();
    void RunWork(const std::function<void(WorkProgress&)>& work);
    void MakeDocuments();
    bool OpenFiles();
    bool OpenLog();
    bool ReadJournal(const QString& path);
    void ObeyVersion();
    void RestoreLayout();
    void SaveLayout();
    void KeepRibbon();
    void ObeyTerminationRequests();
    int Draw();
    void OpenDocument();
    int ReadDocument();
    int Replay();
    void Open();
    void BeginRecovery();
    SessionJournal::Work GetWork() const;
    vesk::JournalReplayResult Repeat();
    vesk::JournalReplayResult RepeatInWindow();
    vesk::JournalReplayResult RepeatInRealTime();
    void ShowReplay();
    QString GoOn(const vesk::JournalReplayResult& result);
    int GetLastNumber() const;
    void ShowFailure(const vesk::JournalReplayResult& result);
    void ShowOtherJournal(const QString& path);
    bool WriteResults(Display display);

    const Options m_options;
    SettingsStore m_settings;
    const QLocale m_locale; ///< The user's, if no language is chosen.
    SessionJournal m_journal;
    std::vector<vesk::JournalRecord> m_records;
    std::map<std::wstring, std::function<bool(const vesk::CommandParameters&)>> m_possibilities;
    std::map<std::wstring, std::wstring> m_captions;
    std::vector<CommandEntry> m_commands;

    /// Files not named by an option that could not be written at the end.
    QStringList m_unwritten;

    bool m_isEndRequested = false; ///< By the operating system.
    bool m_isEndDecided = false;   ///< The user has closed the window.

    vesk::HostCore m_host;
    vesk::UiApplication m_application;
    vesk::TranslationCatalogue m_translations;
    ToolkitTexts m_toolkitTexts;
    DialogSizes m_dialogSizes;
    vesk::ControlLibrary m_library;
    vesk::DimensionInputController m_input;
    Workspace m_workspace;
    SketcherWindow m_window;
    const std::unique_ptr<vesk::IDockManager> m_pDocks;
    vesk::ControlHost m_controls;
    OutputCommands m_output;
    ImportCommands m_import;
    SettingsApplier m_settingsApplier;
    LanguageSwitch m_languageSwitch;
    std::unique_ptr<Panes> m_pPanes;
    std::unique_ptr<Documents> m_pDocuments;
    ClipboardCommands m_clipboard;
    std::unique_ptr<vesk::UiTreeWriter> m_pUiTree;
    std::unique_ptr<WarningRaiser> m_pWarningRaiser;
    std::unique_ptr<ReplayPace> m_pPace;  ///< Set during a replay in real time.
    ReadingMonitor* m_pReading = nullptr; ///< Set while a drawing is opened; not owned.
    std::unique_ptr<KeepingMonitor> m_pKeeping;
    std::unique_ptr<SessionRecovery> m_pRecovery;
    std::unique_ptr<vesk::TerminationRequests> m_pTermination;
};
