#include "Warnings/UtcTime.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace vesk
{

namespace
{

using Days = std::chrono::duration<long long, std::ratio<86400>>;

struct Date
{
    long long year;
    int month;
    int day;
};

constexpr bool IsLeapYear(long long year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

constexpr int GetMonthLength(long long year, int month)
{
    constexpr std::array<int, 12> lengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : lengths[static_cast<std::size_t>(month - 1)];
}

/// The date of a day counted from the first of January 1970.
constexpr Date GetDate(long long days)
{
    Date date{1970, 1, 1};
    while (days >= (IsLeapYear(date.year) ? 366 : 365))
    {
        days -= IsLeapYear(date.year) ? 366 : 365;
        ++date.year;
    }
    while (days >= GetMonthLength(date.year, date.month))
    {
        days -= GetMonthLength(date.year, date.month);
        ++date.month;
    }
    date.day += static_cast<int>(days);
    return date;
}

}

// The C library's calendar functions share one buffer between all threads.
std::string FormatUtcTime(std::chrono::system_clock::time_point time)
{
    using namespace std::chrono;
    const auto sinceEpoch =
        std::max(duration_cast<milliseconds>(time.time_since_epoch()), milliseconds::zero());
    const auto days = duration_cast<Days>(sinceEpoch);
    const Date date = GetDate(days.count());
    const long long millis = (sinceEpoch - days).count();
    std::array<char, 96> text{};
    std::snprintf(text.data(), text.size(), "%04lld-%02d-%02dT%02lld:%02lld:%02lld.%03lldZ",
                  date.year, date.month, date.day, millis / 3600000, millis / 60000 % 60,
                  millis / 1000 % 60, millis % 1000);
    return text.data();
}

}
