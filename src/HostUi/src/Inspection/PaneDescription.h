#pragma once

#include <nlohmann/json.hpp>

class QMainWindow;

namespace vesk
{

/// Appends what the user sees of the window's panes, in the order of their names.
void DescribePanes(const QMainWindow& window, nlohmann::ordered_json& panes);

}
