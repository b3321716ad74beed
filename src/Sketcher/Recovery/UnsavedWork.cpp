#include "Recovery/UnsavedWork.h"

#include "Documents/Documents.h"
#include "Model/Sketch.h"

#include "Journal/JournalFormat.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <set>
#include <utility>

using namespace vesk;

namespace
{

bool IsMark(const JournalRecord& record)
{
    return std::holds_alternative<MarkRecord>(record.what);
}

/// Counts the steps of a journal that are in no drawing file, record by record.
class StepCounter
{
public:
    void Add(const JournalRecord& record)
    {
        if (const auto* pCommand = std::get_if<CommandRecord>(&record.what))
            AddCommand(record.number, *pCommand);
        else if (const auto* pMark = std::get_if<MarkRecord>(&record.what))
            AddMark(*pMark);
        else if (const auto* pEnd = std::get_if<EndRecord>(&record.what))
            AddEnd(*pEnd);
        else if (IsStepWithoutMark(record))
            ++m_unmarked;
    }

    const std::wstring& GetCommand() const { return m_command; }

    /// 0 if the drawing is as it was in the beginning, or as it was saved last.
    int Get() const
    {
        if (!m_hasMarks)
            return m_unmarked;
        return m_digest == m_savedDigest ? 0 : m_steps;
    }

private:
    void AddCommand(int number, const CommandRecord& record)
    {
        m_command = record.commandId;
        if (m_command == Documents::SaveId)
            m_saving = {number, Documents::GetSavedDigest(record.parameters)};
        // Whether what was there before is to be saved was asked then.
        if (m_command == Documents::NewId || m_command == Documents::OpenId)
            m_opening = number;
    }

    void AddMark(const MarkRecord& mark)
    {
        m_hasMarks = true;
        if (std::exchange(m_opening, 0) != 0)
        {
            m_steps = 0;
            m_digest = m_savedDigest = mark.digest;
        }
        m_steps += mark.digest == m_digest ? 0 : 1;
        m_digest = mark.digest;
    }

    void AddEnd(const EndRecord& end)
    {
        if (end.command == m_opening)
            m_opening = 0;
        if (end.command != m_saving.command)
            return;
        const Saving saving = std::exchange(m_saving, {});
        if (end.isRefused)
            return;
        m_savedDigest = saving.digest;
        m_steps = m_digest == m_savedDigest ? 0 : m_steps;
    }

    /// In a file of version 1, which has no marks.
    static bool IsStepWithoutMark(const JournalRecord& record)
    {
        return std::holds_alternative<PointRecord>(record.what) ||
               std::holds_alternative<PropertyRecord>(record.what) ||
               std::holds_alternative<UndoRecord>(record.what);
    }

    /// A command that saves the drawing with that digest.
    struct Saving
    {
        int command = 0;
        std::string digest;
    };

    std::wstring m_command;
    std::string m_digest = Sketch().GetDigest();
    std::string m_savedDigest = m_digest;
    Saving m_saving;   ///< Has no end yet; number 0 if there is none.
    int m_opening = 0; ///< The same; the next mark is that of the drawing that was opened.
    bool m_hasMarks = false;
    int m_steps = 0;
    int m_unmarked = 0;
};

}

bool IsEnded(const QString& journal)
{
    // A closing record is short.
    constexpr qint64 TailSize = 1024;
    QFile file(journal);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    file.seek(std::max<qint64>(0, file.size() - TailSize));
    const QByteArray tail = file.readAll();
    if (!tail.endsWith('\n'))
        return false;
    const int begin = tail.lastIndexOf('\n', tail.size() - 2) + 1;
    JournalRecord record;
    std::string error;
    return JournalFormat::FromLine(tail.mid(begin).trimmed().toStdString(), record, error) &&
           std::holds_alternative<CloseRecord>(record.what);
}

bool IsReadable(const QString& journal)
{
    std::vector<JournalRecord> records;
    std::string error;
    return JournalFormat::ReadFile(journal.toStdString(), records, error);
}

std::optional<UnsavedWork> FindUnsavedWork(const QString& journal)
{
    UnsavedWork work;
    work.journal = journal;
    work.time = QFileInfo(journal).lastModified();
    std::vector<JournalRecord> records;
    std::string error;
    work.isReadInFull = JournalFormat::ReadFile(journal.toStdString(), records, error);
    StepCounter counter;
    for (const JournalRecord& record : records)
        counter.Add(record);
    work.command = counter.GetCommand();
    work.steps = counter.Get();
    return work.steps > 0 ? std::optional(work) : std::nullopt;
}

std::vector<JournalRecord> CompletedOf(const std::vector<JournalRecord>& records)
{
    const auto lastMark = std::find_if(records.rbegin(), records.rend(), &IsMark).base();
    if (lastMark == records.begin())
        return records;
    std::set<int> ended;
    for (const JournalRecord& record : records)
    {
        if (const auto* pEnd = std::get_if<EndRecord>(&record.what))
            ended.insert(pEnd->command);
    }
    std::vector<JournalRecord> completed(records.begin(), lastMark);
    std::copy_if(lastMark, records.end(), std::back_inserter(completed),
                 [&ended](const JournalRecord& record) {
                     return std::holds_alternative<EndRecord>(record.what) ||
                            (std::holds_alternative<CommandRecord>(record.what) &&
                             ended.count(record.number) != 0);
                 });
    return completed;
}
