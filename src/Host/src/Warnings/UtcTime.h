#pragma once

#include <chrono>
#include <string>

namespace vesk
{

/// The time as ISO 8601 in UTC to the millisecond, "2026-11-21T08:15:30.123Z".
/// A time before 1970 shows as the first of January 1970.
std::string FormatUtcTime(std::chrono::system_clock::time_point time);

}
