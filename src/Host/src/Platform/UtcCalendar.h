#pragma once

#include <ctime>

namespace vesk
{

/// The calendar's date and time of a moment, in UTC. Safe to use from any thread.
std::tm ToUtc(std::time_t time);

}
