#pragma once

#include <utility>
#include <vector>

namespace Qtitan
{
class RibbonBar;
}

/// The keys of the controls of the ribbon, by their ids. They are the same in every language and in
/// every version: what a hand has learnt stays right.
const std::vector<std::pair<const char*, const char*>>& KeyTipsOfDrawingPage();
const std::vector<std::pair<const char*, const char*>>& KeyTipsOfStartPage();

/// Gives the controls on these pages of the ribbon their keys.
void AssignKeyTips(const Qtitan::RibbonBar& ribbon);
