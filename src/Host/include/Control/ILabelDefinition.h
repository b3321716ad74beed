#pragma once

#include "Control/IControlDefinition.h"

namespace vesk
{

/// A text that is only shown: its caption.
class VESK_HOST_API ILabelDefinition : public IControlDefinition
{};

}
