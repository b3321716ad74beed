#include "Platform/UtcCalendar.h"

#include <time.h>

namespace vesk
{

std::tm ToUtc(std::time_t time)
{
    std::tm utc{};
    gmtime_r(&time, &utc);
    return utc;
}

}
