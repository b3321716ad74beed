#pragma once

#include "Control/IControlDefinition.h"

namespace vesk
{

/// A read-only text: its caption.
class VESK_HOST_API ILabelDefinition : public IControlDefinition
{};

}
