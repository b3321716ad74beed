#include "Control/LabelDefinition.h"

#include <utility>

namespace vesk
{

LabelDefinition::LabelDefinition(std::wstring id) : ControlDefinition(std::move(id)) {}

}
