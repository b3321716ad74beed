#pragma once

#include "Journal/JournalFormat.h"

#include <optional>
#include <string>
#include <vector>

/// A journal as it was read.
struct JournalText
{
    std::vector<vesk::JournalLine> lines;
    std::string torn; ///< The incomplete last line; empty if there is none.
};

/// A record in words, with its number in front, in one line.
std::string Describe(const vesk::JournalRecord& record);

/// What can be said about a journal without replaying it.
struct JournalSummary
{
    int version = 1;
    int records = 0;
    int marks = 0;

    /// Why the journal is not complete, one sentence each.
    std::vector<std::string> faults;
};

JournalSummary Summarize(const JournalText& journal);

/// The first record at which two sessions part, as it is in each of them.
struct Parting
{
    std::string first;
    std::string second;
};

/// Nothing if they are the same. Headers, times and incomplete last lines are not compared.
std::optional<Parting> FindParting(const JournalText& first, const JournalText& second);
