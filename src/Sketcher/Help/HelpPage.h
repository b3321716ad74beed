#pragma once

#include <QString>

#include <vector>

struct CommandEntry;

/// The page that explains the keys and what may be typed, as HTML. The keys of commands are those
/// of the table.
QString MakeHelpPage(const std::vector<CommandEntry>& commands);
