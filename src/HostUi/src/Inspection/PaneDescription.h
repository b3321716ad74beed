#pragma once

#include <nlohmann/json.hpp>

class QMainWindow;

namespace vesk
{

/// Appends what the user sees of the window's panes, sorted by name.
void DescribePanes(const QMainWindow& window, nlohmann::ordered_json& panes);

}
