#pragma once

#include "Control/ControlDefinition.h"
#include "Control/ILabelDefinition.h"

namespace vesk
{

/// A text that the program can change.
class VESK_HOST_API LabelDefinition : public ControlDefinition<ILabelDefinition>
{
public:
    /// `id` never changes; it is the object name of the widget.
    explicit LabelDefinition(std::wstring id);
};

}
