#pragma once

#include <chrono>
#include <string>

namespace vesk
{

/// The time in UTC in ISO 8601 format with milliseconds, "2026-11-21T08:15:30.123Z". A time before
/// 1970 is shown as 1 January 1970.
std::string FormatUtcTime(std::chrono::system_clock::time_point time);

}
