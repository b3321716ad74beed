#include "Foundation/UtcTime.h"

#include "Platform/UtcCalendar.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>

namespace vesk
{

std::string FormatUtcTime(std::chrono::system_clock::time_point time)
{
    using namespace std::chrono;
    const auto sinceEpoch =
        std::max(duration_cast<milliseconds>(time.time_since_epoch()), milliseconds::zero());
    const auto wholeSeconds = duration_cast<seconds>(sinceEpoch);
    const std::tm utc = ToUtc(static_cast<std::time_t>(wholeSeconds.count()));
    const auto millis = static_cast<int>((sinceEpoch - wholeSeconds).count());

    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &utc);
    std::snprintf(text.data() + length, text.size() - length, ".%03dZ", millis);
    return text.data();
}

}
