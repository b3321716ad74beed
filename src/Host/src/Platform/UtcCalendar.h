#pragma once

#include <ctime>

namespace vesk
{

/// The calendar date and time in UTC. Thread-safe.
std::tm ToUtc(std::time_t time);

}
