#pragma once

#include "Control/IControl.h"

namespace vesk
{

/// Base class for controls written outside this library; its own controls do not need it.
class Control : public IControl
{
public:
    IControlDefinition* GetControlDefinition() const override = 0;
    void UpdateStatus() override = 0;
};

}
