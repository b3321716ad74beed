#include "JournalReports.h"

#include "Foundation/Text.h"

#include <algorithm>
#include <map>

using namespace vesk;

namespace
{

/// The record without what differs between two runs of the same session.
std::string Comparable(JournalRecord record)
{
    if (auto* pMark = std::get_if<MarkRecord>(&record.what))
        pMark->time.reset();
    return JournalFormat::ToLine(record);
}

std::vector<JournalRecord> RecordsOf(const JournalText& journal)
{
    std::vector<JournalRecord> records;
    for (const JournalLine& line : journal.lines)
    {
        if (!std::holds_alternative<HeaderRecord>(line.record.what))
            records.push_back(line.record);
    }
    return records;
}

std::string DescribeAt(const std::vector<JournalRecord>& records, std::size_t index)
{
    return index < records.size() ? Describe(records[index]) : "ends before that record";
}

/// The commands that have no end, by number.
std::map<int, std::string> FindUnfinished(const std::vector<JournalRecord>& records)
{
    std::map<int, std::string> unfinished;
    for (const JournalRecord& record : records)
    {
        if (const auto* pCommand = std::get_if<CommandRecord>(&record.what))
            unfinished[record.number] = ToUtf8(pCommand->commandId);
        if (std::holds_alternative<EndRecord>(record.what))
            unfinished.erase(record.number);
    }
    return unfinished;
}

}

JournalSummary Summarize(const JournalText& journal)
{
    JournalSummary summary;
    if (!journal.lines.empty())
    {
        const auto* pHeader = std::get_if<HeaderRecord>(&journal.lines.front().record.what);
        summary.version = pHeader != nullptr ? pHeader->version : 1;
    }
    const std::vector<JournalRecord> records = RecordsOf(journal);
    summary.records = static_cast<int>(records.size());
    summary.marks = static_cast<int>(
        std::count_if(records.begin(), records.end(), [](const JournalRecord& record) {
            return std::holds_alternative<MarkRecord>(record.what);
        }));
    for (const auto& [number, id] : FindUnfinished(records))
        summary.faults.push_back("record " + std::to_string(number) + ": " + id +
                                 " is not finished");
    const bool isClosed =
        !records.empty() && std::holds_alternative<CloseRecord>(records.back().what);
    if (!isClosed && summary.version > 1)
        summary.faults.emplace_back("the program has not ended in order");
    if (!journal.torn.empty())
        summary.faults.emplace_back("the last line is incomplete");
    return summary;
}

std::optional<Parting> FindParting(const JournalText& first, const JournalText& second)
{
    const std::vector<JournalRecord> a = RecordsOf(first);
    const std::vector<JournalRecord> b = RecordsOf(second);
    const std::size_t common = std::min(a.size(), b.size());
    std::size_t same = 0;
    while (same < common && Comparable(a[same]) == Comparable(b[same]))
        ++same;
    if (same == a.size() && same == b.size())
        return std::nullopt;
    return Parting{DescribeAt(a, same), DescribeAt(b, same)};
}
