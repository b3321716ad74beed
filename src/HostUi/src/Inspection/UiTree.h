#pragma once

#include <string>

namespace vesk
{

class DimensionInputController;

/// What is on screen at this moment, as JSON.
std::string DescribeUi(const DimensionInputController& input, int entityCount);

}
