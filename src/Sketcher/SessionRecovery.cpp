#include "SessionRecovery.h"

#include "BackgroundWork.h"
#include "Model/KeptContent.h"
#include "Model/UiText.h"
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

#include <QCoreApplication>
#include <QProcess>

#include <algorithm>
#include <utility>

using namespace vesk;

namespace
{

/// The records of a journal, up to a damaged line.
std::vector<JournalRecord> ReadAll(const QString& journal)
{
    std::vector<JournalRecord> records;
    std::string error;
    JournalFormat::ReadFile(journal.toStdString(), records, error);
    return records;
}

/// The records with which a journal begins that restores a snapshot first; empty if the snapshot is
/// not of these records or cannot be kept.
std::vector<JournalRecord> RecordsAfter(const Snapshot& snapshot,
                                        const std::vector<JournalRecord>& records)
{
    const auto mark =
        std::find_if(records.begin(), records.end(), [&](const JournalRecord& record) {
            const auto* pMark = std::get_if<MarkRecord>(&record.what);
            return pMark != nullptr && record.number == snapshot.record &&
                   pMark->digest == snapshot.digest;
        });
    if (mark == records.end())
        return {};
    const std::optional<CommandParameters> parameters = RecoverContent::Keep(snapshot);
    if (!parameters.has_value())
        return {};
    // The mark has the greatest number so far and is no command's.
    const CommandRecord restore{RecoverContent::CommandId, *parameters};
    std::vector<JournalRecord> rest = {{0, HeaderRecord()},
                                       {snapshot.record, restore},
                                       {snapshot.record, EndRecord{snapshot.record, false}}};
    rest.insert(rest.end(), mark + 1, records.end());
    return rest;
}

/// Files of version 1 have no header.
int VersionOf(const std::vector<JournalRecord>& records)
{
    const auto* pHeader =
        records.empty() ? nullptr : std::get_if<HeaderRecord>(&records.front().what);
    return pHeader != nullptr ? pHeader->version : 1;
}

}

SessionRecovery::SessionRecovery(Workspace& workspace, SketcherWindow& window,
                                 SessionJournal& journal,
                                 std::map<std::wstring, std::wstring> captions, Program program)
    : m_workspace(workspace), m_window(window), m_journal(journal), m_captions(std::move(captions)),
      m_program(std::move(program)),
      m_autosave(workspace.sketch,
                 [this] { return m_journal.IsNamed() ? QString() : m_journal.GetPath(); }),
      m_offer(window, SessionJournal::GetFolders(),
              {[this](const std::wstring& id) {
                   const auto found = m_captions.find(id);
                   return found != m_captions.end() ? ToQString(Tr(found->second)) : QString();
               },
               [this](const UnsavedWork& work) { return GoOn(work); },
               [this](const UnsavedWork& work) { Look(work); }})
{}

void SessionRecovery::Offer(const Options& options)
{
    const bool isToldWhatToDo =
        !options.journal.isEmpty() || !options.model.isEmpty() || !options.GetSource().isEmpty();
    if (!isToldWhatToDo && IsAttended())
        m_offer.Search(m_journal.GetPath());
}

RecoveryOffer::Result SessionRecovery::GoOn(const UnsavedWork& work)
{
    Records records;
    const bool isRead = RunInBackground(m_window, m_window.GetProgress(), [&](WorkProgress&) {
        records = CompletedOf(ReadAll(work.journal));
    });
    if (!isRead)
        return RecoveryOffer::Result::Cancelled;
    KeptContent::Get().SetSource(work.journal);
    if (!LeaveDrawing(VersionOf(records)))
    {
        m_window.ShowNotice("日志文件无法写入，现有的图纸会丢失，不能继续上次的操作"_tr);
        return RecoveryOffer::Result::Cancelled;
    }
    std::optional<JournalReplayResult> result = ReplayFromSnapshot(work.journal, records);
    if (!result.has_value())
        result = m_program.replay(records);
    if (result->isStopped)
        BeginAnew();
    m_window.GetView().Activate();
    if (result->isStopped)
        return RecoveryOffer::Result::Cancelled;
    if (result->failure.empty())
        return RecoveryOffer::Result::Done;
    m_window.ShowState(
        QStringLiteral("reading"),
        [number = result->failedNumber] {
            return "第 %1 条记录无法重做，其后的操作没有恢复"_tr.arg(number);
        },
        [reason = QString::fromStdString(result->failure)] { return reason; });
    return RecoveryOffer::Result::Partly;
}

/// What is in the drawing stays in its journal, which is offered if there is work in it. Returns
/// false and changes nothing if the drawing would be lost.
bool SessionRecovery::LeaveDrawing(int version)
{
    const bool isEmpty = m_workspace.sketch.GetEntities().empty();
    if (!JournalManager::GetInstance().IsKept() && !isEmpty)
        return false;
    const QString left = m_journal.StartAnother(version);
    m_program.beginDrawing();
    if (const std::optional<UnsavedWork> work = FindUnsavedWork(left))
        m_offer.Add(*work);
    else
        JournalFolder::Remove(left);
    return true;
}

/// Drops what is in the drawing and its journal.
void SessionRecovery::BeginAnew()
{
    JournalFolder::Remove(m_journal.StartAnother());
    m_program.beginDrawing();
}

/// Nothing if there is no snapshot from which the last mark can be reached: a later undo, for
/// example, may have gone back beyond it. Drawing and journal are then as before.
std::optional<JournalReplayResult> SessionRecovery::ReplayFromSnapshot(const QString& journal,
                                                                       const Records& records)
{
    Records rest;
    const bool isRead = RunInBackground(m_window, m_window.GetProgress(), [&](WorkProgress&) {
        if (const std::optional<Snapshot> snapshot = Snapshot::FindNewest(journal))
            rest = RecordsAfter(*snapshot, records);
    });
    if (!isRead)
    {
        JournalReplayResult cancelled;
        cancelled.isStopped = true;
        return cancelled;
    }
    if (rest.empty())
        return std::nullopt;
    JournalReplayResult result = m_program.replay(rest);
    if (result.failure.empty() || result.isStopped)
        return result;
    BeginAnew();
    return std::nullopt;
}

/// In a program of its own, which writes nothing.
void SessionRecovery::Look(const UnsavedWork& work)
{
    int last = 0;
    for (const JournalRecord& record : CompletedOf(ReadAll(work.journal)))
        last = std::max(last, record.number);
    QProcess::startDetached(QCoreApplication::applicationFilePath(),
                            {QStringLiteral("--replay"), work.journal, QStringLiteral("--stay"),
                             QStringLiteral("--until"), QString::number(last)});
}
