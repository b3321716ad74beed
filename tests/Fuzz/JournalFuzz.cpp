#include "Journal/JournalFormat.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using vesk::JournalFormat;
using vesk::JournalRecord;

/// Reads each line of a journal. What is read must be the same again once written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(pData), size);
    for (std::size_t begin = 0; begin < text.size();)
    {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        JournalRecord record;
        JournalRecord again;
        std::string error;
        if (JournalFormat::FromLine(text.substr(begin, end - begin), record, error))
        {
            const std::string line = JournalFormat::ToLine(record);
            if (!JournalFormat::FromLine(line, again, error) ||
                JournalFormat::ToLine(again) != line)
                std::abort();
        }
        else if (error.empty())
            std::abort();
        begin = end + 1;
    }
    return 0;
}
