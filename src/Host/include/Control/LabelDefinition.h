#pragma once

#include "Control/ControlDefinition.h"
#include "Control/ILabelDefinition.h"

namespace vesk
{

class VESK_HOST_API LabelDefinition : public ControlDefinition<ILabelDefinition>
{
public:
    explicit LabelDefinition(std::wstring id);
};

}
