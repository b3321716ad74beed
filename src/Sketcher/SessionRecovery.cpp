#include "SessionRecovery.h"

#include "Model/KeptContent.h"
#include "Model/Workspace.h"
#include "Options.h"
#include "Recovery/RecoverContent.h"
#include "Recovery/Snapshot.h"
#include "SessionJournal.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "HostUi/QtText.h"
#include "Journal/JournalFormat.h"
#include "Journal/JournalManager.h"
#include "Warnings/DebugMessageMgr.h"

#include <QCoreApplication>
#include <QProcess>

#include <algorithm>
#include <utility>

using namespace vesk;

namespace
{

/// The records with which a journal begins that restores a snapshot first; empty if the snapshot is
/// not of these records or cannot be kept.
std::vector<JournalRecord> RecordsAfter(const Snapshot& snapshot,
                                        const std::vector<JournalRecord>& records)
{
    const auto mark = std::find_if(records.begin(), records.end(), [&](const JournalRecord& record) {
        const auto* pMark = std::get_if<MarkRecord>(&record.what);
        return pMark != nullptr && record.number == snapshot.record &&
               pMark->digest == snapshot.digest;
    });
    if (mark == records.end())
        return {};
    const std::optional<CommandParameters> parameters = RecoverContent::Keep(snapshot.bytes);
    if (!parameters.has_value())
        return {};
    // The mark has the greatest number so far and is no command's.
    const CommandRecord restore{RecoverContent::CommandId, *parameters};
    std::vector<JournalRecord> rest = {{snapshot.record, restore},
                                       {snapshot.record, EndRecord{snapshot.record, false}}};
    rest.insert(rest.end(), mark + 1, records.end());
    return rest;
}

}

SessionRecovery::SessionRecovery(Workspace& workspace, SketcherWindow& window,
                                 SessionJournal& journal, Replay replay)
    : m_workspace(workspace), m_window(window), m_journal(journal), m_replay(std::move(replay)),
      m_autosave(workspace.sketch,
                 [this] { return m_journal.IsNamed() ? QString() : m_journal.GetPath(); }),
      m_offer(window, SessionJournal::GetFolder(),
              {[this](const std::wstring& id) {
                   const auto found = m_captions.find(id);
                   return found != m_captions.end() ? ToQString(found->second) : QString();
               },
               [this](const UnsavedWork& work) { return GoOn(work); },
               [this](const UnsavedWork& work) { Look(work); }})
{}

void SessionRecovery::SetCaption(const std::wstring& commandId, const std::wstring& caption)
{
    m_captions[commandId] = caption;
}

void SessionRecovery::Offer(const Options& options)
{
    const bool isToldWhatToDo = !options.journal.isEmpty() || !options.model.isEmpty() ||
                                !options.GetSource().isEmpty();
    const bool isSomebodyThere = qEnvironmentVariable("VESK_UNATTENDED") != QLatin1String("1");
    if (!isToldWhatToDo && isSomebodyThere)
        m_offer.Search(m_journal.GetPath());
}

/// What is in the drawing stays in its journal, and is offered too if it is worth it.
RecoveryOffer::Result SessionRecovery::GoOn(const UnsavedWork& work)
{
    Records all;
    std::string error;
    // Up to a damaged line it can be used.
    JournalFormat::ReadFile(work.journal.toStdString(), all, error);
    const Records records = CompletedOf(all);
    KeptContent::Get().SetSource(work.journal);
    if (!LeaveJournal())
    {
        m_window.ShowNotice(QStringLiteral("日志文件无法写入，现有的图纸会丢失，不能继续上次的操作"));
        return RecoveryOffer::Result::Cancelled;
    }
    std::optional<JournalReplayResult> result = ReplayFromSnapshot(work.journal, records);
    if (!result.has_value())
        result = m_replay(records);
    if (result->isStopped)
        LeaveJournal();
    m_window.GetView().Activate();
    if (result->isStopped)
        return RecoveryOffer::Result::Cancelled;
    const bool isWhole = result->failure.empty() && work.isReadInFull;
    return isWhole ? RecoveryOffer::Result::Done : RecoveryOffer::Result::Partly;
}

/// Begins another journal and an empty drawing. The journal in use is removed if it holds no work,
/// otherwise offered. Returns false and changes nothing if that would lose the drawing.
bool SessionRecovery::LeaveJournal()
{
    const bool isEmpty = m_workspace.sketch.GetEntities().empty();
    if (!JournalManager::GetInstance().IsKept() && !isEmpty)
        return false;
    const QString left = m_journal.GetPath();
    m_journal.StartAnother();
    m_workspace.selection.Clear();
    m_workspace.sketch.Clear();
    if (const std::optional<UnsavedWork> work = FindUnsavedWork(left))
        m_offer.Add(*work);
    else
        JournalFolder::Remove(left);
    return true;
}

/// Nothing if there is no snapshot from which the last mark is reached: a later undo, for example,
/// may have gone back beyond it. The drawing and the journal are then as before.
std::optional<JournalReplayResult> SessionRecovery::ReplayFromSnapshot(const QString& journal,
                                                                       const Records& records)
{
    const std::optional<Snapshot> snapshot = Snapshot::FindNewest(journal);
    if (!snapshot.has_value())
        return std::nullopt;
    const Records rest = RecordsAfter(*snapshot, records);
    if (rest.empty())
        return std::nullopt;
    JournalReplayResult result = m_replay(rest);
    if (result.failure.empty() || result.isStopped)
        return result;
    const QString failed = m_journal.GetPath();
    m_journal.StartAnother();
    JournalFolder::Remove(failed);
    m_workspace.selection.Clear();
    m_workspace.sketch.Clear();
    return std::nullopt;
}

/// In a program of its own, which writes nothing.
void SessionRecovery::Look(const UnsavedWork& work)
{
    Records all;
    std::string error;
    JournalFormat::ReadFile(work.journal.toStdString(), all, error);
    int last = 0;
    for (const JournalRecord& record : CompletedOf(all))
        last = std::max(last, record.number);
    QProcess::startDetached(QCoreApplication::applicationFilePath(),
                            {QStringLiteral("--replay"), work.journal, QStringLiteral("--stay"),
                             QStringLiteral("--until"), QString::number(last)});
}
