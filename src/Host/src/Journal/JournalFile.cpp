#include "Journal/JournalFormat.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

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
    int m_last = 0;
    std::set<int> m_running;
};

}

bool JournalFormat::ReadFile(const std::string& path, std::vector<JournalRecord>& records,
                             std::string& error)
{
    records.clear();
    std::string text;
    if (!ReadText(path, text))
    {
        error = "the file cannot be read";
        return false;
    }
    SequenceCheck sequence;
    std::size_t lineNumber = 1;
    std::size_t begin = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin))
    {
        JournalRecord record;
        std::string reason;
        if (FromLine(text.substr(begin, end - begin), record, reason))
            reason = sequence.Add(record);
        if (!reason.empty())
        {
            error = "line " + std::to_string(lineNumber) + ": " + reason;
            return false;
        }
        records.push_back(record);
        ++lineNumber;
        begin = end + 1;
    }
    // The text after the last line feed is an incomplete line, unless it has a carriage return,
    // with which no journal line ends.
    if (text.find('\r', begin) == std::string::npos)
        return true;
    error = "line " + std::to_string(lineNumber) + ": ends with a bare carriage return";
    return false;
}

}
