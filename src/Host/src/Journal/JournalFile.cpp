#include "Journal/JournalFormat.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <utility>

namespace vesk
{

namespace
{

bool ReadText(const std::string& path, std::string& text)
{
    std::ifstream stream(std::filesystem::u8path(path), std::ios::binary);
    std::ostringstream content;
    // An empty file is valid, but inserting nothing sets the fail bit.
    if (stream.is_open() && stream.peek() != std::ifstream::traits_type::eof())
        content << stream.rdbuf();
    text = content.str();
    return stream.is_open() && !stream.bad() && content.good();
}

/// Checks that the order of records is valid for a journal.
class SequenceCheck
{
public:
    /// Empty if the record may come next; otherwise why not.
    std::string Add(const JournalRecord& record)
    {
        const std::string number = std::to_string(record.number);
        const bool isFirst = std::exchange(m_isFirst, false);
        if (std::holds_alternative<HeaderRecord>(record.what))
            return isFirst ? "" : "a header that is not in the first line";
        if (std::holds_alternative<EndRecord>(record.what))
            return m_running.erase(record.number) == 1 ? "" : "no command " + number + " to end";
        if (record.number <= m_last)
            return "record " + number + " comes after record " + std::to_string(m_last);
        m_last = record.number;
        if (std::holds_alternative<CommandRecord>(record.what))
            m_running.insert(record.number);
        return {};
    }

private:
    bool m_isFirst = true;
    int m_last = 0;
    std::set<int> m_running;
};

}

bool JournalFormat::ReadFile(const std::string& path, std::vector<JournalRecord>& records,
                             std::string& error)
{
    records.clear();
    std::vector<JournalLine> lines;
    std::string torn;
    const bool isRead = ReadLines(path, lines, torn, error);
    records.reserve(lines.size());
    for (JournalLine& line : lines)
        records.push_back(std::move(line.record));
    return isRead;
}

bool JournalFormat::ReadLines(const std::string& path, std::vector<JournalLine>& lines,
                              std::string& torn, std::string& error)
{
    lines.clear();
    torn.clear();
    std::string text;
    if (!ReadText(path, text))
    {
        error = "the file cannot be read";
        return false;
    }
    SequenceCheck sequence;
    std::size_t begin = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin))
    {
        JournalLine line{text.substr(begin, end - begin), {}};
        std::string reason;
        if (FromLine(line.text, line.record, reason))
            reason = sequence.Add(line.record);
        if (!reason.empty())
        {
            error = "line " + std::to_string(lines.size() + 1) + ": " + reason;
            return false;
        }
        lines.push_back(std::move(line));
        begin = end + 1;
    }
    // The text after the last line feed is an incomplete line, unless it has a carriage return,
    // with which no journal line ends.
    torn = text.substr(begin);
    if (torn.find('\r') == std::string::npos)
        return true;
    error = "line " + std::to_string(lines.size() + 1) + ": ends with a bare carriage return";
    return false;
}

}
