// How a session reads a journal and replays it.

#include "Session.h"

#include "Complaint.h"
#include "Model/UiText.h"
#include "OpeningFit.h"
#include "Output/DrawingSource.h"
#include "View/SketchView.h"

#include "Foundation/Text.h"
#include "Journal/JournalFormat.h"
#include "Journal/JournalManager.h"

#include <QApplication>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

using namespace vesk;

bool Session::CanRepeat(const CommandRecord& record)
{
    const auto found = m_possibilities.find(record.commandId);
    return found == m_possibilities.end() || found->second(record.parameters);
}

bool Session::OnProgress(std::size_t done, std::size_t total)
{
    const auto advance = [&] { return m_pReading == nullptr || m_pReading->Advance(done, total); };
    return m_pPace != nullptr ? m_pPace->WaitFor(done, advance) : advance();
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

bool Session::VerifyRedo(const RedoRecord& record)
{
    return m_workspace.sketch.GetLastUndone() == record.entity;
}

std::optional<int> Session::GetLastUndone()
{
    return m_workspace.sketch.GetLastUndone();
}

std::string Session::VerifyMark(const MarkRecord& record)
{
    const std::string actual = m_workspace.sketch.GetDigest();
    return actual == record.digest ? std::string() : actual;
}

bool Session::ReadJournal(const QString& path)
{
    std::string error;
    if (JournalFormat::ReadFile(path.toStdString(), m_records, error))
    {
        ObeyVersion();
        m_options.repetition.Cut(m_records);
        return true;
    }
    Complain(path.toStdString() + ": " + error);
    return false;
}

/// Records of version 1 go on as such, into whatever file: in them a name is no step.
void Session::ObeyVersion()
{
    if (!m_records.empty() && std::holds_alternative<HeaderRecord>(m_records.front().what))
        return;
    m_workspace.sketch.SetNamesWithoutSteps();
    JournalManager::GetInstance().SetVersion(1);
}

/// Replays a journal in the window. If cancelled, the drawing is as before.
void Session::Open()
{
    const JournalReplayResult result = RepeatInWindow();
    if (!result.failure.empty())
        ShowFailure(result);
    // If the window was closed in the meantime, no other journal is needed.
    if (!result.isStopped || m_window.isVisible())
        ShowOtherJournal(GoOn(result));
    if (result.isStopped)
        m_workspace.sketch.Clear();
    m_pKeeping->Update();
    m_window.GetView().Activate();
}

/// Reads the document without the window.
int Session::ReadDocument()
{
    DrawingSource source = ReadDrawing(m_options.document, m_options.dxfUnit);
    if (source.error.empty() && m_workspace.sketch.Restore(std::move(source.content)))
        return 0;
    Complain(m_options.document.toStdString() + ": " + source.error);
    return ExitUnusableFile;
}

int Session::Replay()
{
    if (!m_options.document.isEmpty())
        return ReadDocument();
    const bool isRealTime = m_options.repetition.isRealTime;
    if (isRealTime)
        ShowReplay();
    const JournalReplayResult result = isRealTime ? RepeatInRealTime() : Repeat();
    if (result.failure.empty() && !result.isStopped)
        m_journal.GoOn(result, GetLastNumber());
    const bool isClosed = isRealTime && !m_window.isVisible();
    if (m_options.repetition.isStaying && !isClosed)
    {
        ShowReplay();
        m_window.GetView().ZoomAll();
        new OpeningFit(m_window.GetView());
        QApplication::exec();
    }
    return result.failure.empty() ? 0 : ExitNotRepeated;
}

/// Shows the window in its own size: a replay reads no layout.
void Session::ShowReplay()
{
    if (m_window.isVisible())
        return;
    ObeyTerminationRequests();
    // Without a journal there is nothing that could fail to be kept.
    if (m_options.journal.isEmpty())
        m_window.ShowState(
            QStringLiteral("replay"), [] { return "仅供查看"_tr; },
            [] { return "在此窗口中所做的操作不会保存"_tr; });
    else
        m_pKeeping = std::make_unique<KeepingMonitor>(m_window);
    m_window.show();
}

JournalReplayResult Session::RepeatInRealTime()
{
    m_pPace = std::make_unique<ReplayPace>(m_records);
    const JournalReplayResult result = RepeatInWindow();
    m_pPace.reset();
    return result;
}

/// Replays it while the window shows the progress.
JournalReplayResult Session::RepeatInWindow()
{
    ReadingMonitor monitor(m_window, m_window.GetProgress());
    const QScopedValueRollback<ReadingMonitor*> reading(m_pReading, &monitor);
    return Repeat();
}

/// Replays the journal that was read; reports the record that could not be replayed and unfinished
/// commands.
JournalReplayResult Session::Repeat()
{
    JournalReplayResult result = JournalReplayer::Replay(m_records, *this);
    if (result.isStopped)
        return result;
    for (const std::wstring& commandId : result.unfinishedCommands)
        Complain("unfinished in the journal: " + ToUtf8(commandId));
    if (!result.failure.empty())
        Complain(result.failure);
    return result;
}

/// Continues the journal after the replay. Returns the path if it continues in another file.
QString Session::GoOn(const JournalReplayResult& result)
{
    if (result.isStopped)
        return m_journal.StartAnew();
    return result.failure.empty() ? m_journal.GoOn(result, GetLastNumber())
                                  : m_journal.LeaveForAnother();
}

/// The greatest record number that was read; an end record repeats its command's number.
int Session::GetLastNumber() const
{
    int last = 0;
    for (const JournalRecord& record : m_records)
        last = std::max(last, record.number);
    return last;
}

void Session::ShowFailure(const JournalReplayResult& result)
{
    const QString much = QStringLiteral("%1 / %2").arg(result.repeatedCount).arg(m_records.size());
    const auto text = [number = result.failedNumber, much] {
        return "第 %1 条记录无法重做，已恢复 %2 条"_tr.arg(number).arg(much);
    };
    const QString reason = QString::fromStdString(result.failure);
    m_window.ShowState(QStringLiteral("reading"), text, [reason] { return reason; });
    m_window.ShowNotice(text() + "（%1）"_tr.arg(reason));
}

void Session::ShowOtherJournal(const QString& path)
{
    if (path.isEmpty())
        return;
    Complain(m_options.journal.toStdString() + " is left unchanged; the journal continues in " +
             path.toStdString());
    m_window.ShowState(
        QStringLiteral("other journal"), [] { return "日志改存于另一文件"_tr; },
        [path] { return path; });
}
