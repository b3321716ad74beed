#pragma once

#include "Recovery/Autosave.h"
#include "Recovery/RecoveryOffer.h"

#include "Replay/JournalReplayer.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

class SessionJournal;
class SketcherWindow;
struct Options;
struct Workspace;

/// What a session does so that no work is lost, however it or another one ends: snapshots, offers
/// of unsaved work, and going on with it.
class SessionRecovery final
{
public:
    using Records = std::vector<vesk::JournalRecord>;

    /// What the session does for recovery.
    struct Program
    {
        /// Replays records in the window, with progress. May process events.
        std::function<vesk::JournalReplayResult(const Records& records)> replay;

        /// Begins an empty drawing without a file.
        std::function<void()> beginDrawing;
    };

    /// Workspace, window and journal are not owned and outlive this.
    /// `captions` are those of the commands, by id.
    SessionRecovery(Workspace& workspace, SketcherWindow& window, SessionJournal& journal,
                    std::map<std::wstring, std::wstring> captions, Program program);

    /// Shows what earlier sessions left, unless the options say what to do or nobody is there.
    void Offer(const Options& options);

    Autosave& GetAutosave() { return m_autosave; }
    RecoveryOffer& GetOffer() { return m_offer; }

private:
    RecoveryOffer::Result GoOn(const UnsavedWork& work);
    bool LeaveDrawing(int version);
    void BeginAnew();
    std::optional<vesk::JournalReplayResult> ReplayFromSnapshot(const QString& journal,
                                                                const Records& records);
    void Look(const UnsavedWork& work);

    Workspace& m_workspace;
    SketcherWindow& m_window;
    SessionJournal& m_journal;
    const std::map<std::wstring, std::wstring> m_captions;
    const Program m_program;
    Autosave m_autosave;
    RecoveryOffer m_offer;
};
