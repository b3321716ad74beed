#include "Journal/JournalFormat.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

namespace vesk
{

namespace
{

constexpr char Unreadable[] = "the file cannot be read";
constexpr std::streamsize ChunkSize = 1 << 16;

/// The text has the memory that it needs and no more if the size of the file is known beforehand.
bool ReadText(const std::string& path, std::string& text)
{
    const std::filesystem::path file = std::filesystem::u8path(path);
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(file, unknown);
    if (!unknown)
        text.reserve(static_cast<std::size_t>(size));
    std::ifstream stream(file, std::ios::binary);
    std::vector<char> chunk(ChunkSize);
    while (stream.read(chunk.data(), ChunkSize) || stream.gcount() > 0)
        text.append(chunk.data(), static_cast<std::size_t>(stream.gcount()));
    return stream.is_open() && !stream.bad();
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

/// Reads the lines of a file and passes each with its record to `take`.
template <class Take>
bool ReadEach(std::string_view text, std::string& torn, std::string& error, const Take& take)
{
    SequenceCheck sequence;
    int number = 1;
    std::size_t begin = 0;
    const auto fail = [&](const std::string& reason) {
        error = "line " + std::to_string(number) + ": " + reason;
        return false;
    };
    for (std::size_t end = text.find('\n'); end != std::string_view::npos;
         end = text.find('\n', begin), ++number)
    {
        std::string line(text.substr(begin, end - begin));
        JournalRecord record;
        std::string reason;
        if (JournalFormat::FromLine(line, record, reason))
            reason = sequence.Add(record);
        if (!reason.empty())
            return fail(reason);
        take(std::move(line), std::move(record));
        begin = end + 1;
    }
    // The text after the last line feed is an incomplete line, unless it has a carriage return,
    // with which no journal line ends.
    torn = text.substr(begin);
    if (torn.find('\r') == std::string::npos)
        return true;
    return fail("ends with a bare carriage return");
}

/// No more than the text can have, if it is a journal.
std::size_t CountLines(const std::string& text)
{
    constexpr std::size_t Shortest = std::string_view("{\"n\":1,\"kind\":\"close\"}\n").size();
    const auto count = std::count(text.begin(), text.end(), '\n');
    return std::min(static_cast<std::size_t>(count), text.size() / Shortest);
}

}

bool JournalFormat::ReadFile(const std::string& path, std::vector<JournalRecord>& records,
                             std::string& error)
{
    records.clear();
    std::string text;
    if (!ReadText(path, text))
    {
        error = Unreadable;
        return false;
    }
    records.reserve(CountLines(text));
    std::string torn;
    return ReadEach(text, torn, error, [&records](std::string&&, JournalRecord&& record) {
        records.push_back(std::move(record));
    });
}

bool JournalFormat::ReadLines(const std::string& path, std::vector<JournalLine>& lines,
                              std::string& torn, std::string& error)
{
    lines.clear();
    torn.clear();
    std::string text;
    if (!ReadText(path, text))
    {
        error = Unreadable;
        return false;
    }
    lines.reserve(CountLines(text));
    return ReadEach(text, torn, error, [&lines](std::string&& line, JournalRecord&& record) {
        lines.push_back({std::move(line), std::move(record)});
    });
}

}
