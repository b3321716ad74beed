#pragma once

#include <string>

struct JournalText;

/// The source of a scenario test that replays the journal and compares the drawing with the digest
/// of its last mark; empty if it has none. The journal's file name is used, whatever its folder: it
/// belongs into tests/Scenarios/journals, whose path the CMakeLists there defines for the test.
std::string MakeTestText(const std::string& name, const std::string& path,
                         const JournalText& journal);
