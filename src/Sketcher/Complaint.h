#pragma once

#include <string>

/// Exit codes of the program, beside 0.
constexpr int ExitUnusableFile = 2;
constexpr int ExitNotRepeated = 3;

/// Writes one line to standard error, after the program's name.
void Complain(const std::string& text);
