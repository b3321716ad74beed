#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// How the program ends.
namespace JournalExit
{

constexpr int Fine = 0;
constexpr int Different = 1; ///< Two sessions part, or a journal is not complete.
constexpr int Unusable = 2;  ///< Arguments, or a file that cannot be read, written or understood.

}

/// Runs the program: `show`, `check`, `cut`, `diff` or `to-test`, with their arguments (UTF-8,
/// without the program's name). Results go to `out`, what is wrong to `err`. Returns the exit code.
int RunJournalTool(std::vector<std::string> arguments, std::ostream& out, std::ostream& err);
