#pragma once

#include "Control/IControl.h"

namespace vesk
{

/// The base of controls that are written outside this library; its own controls do not need it.
class Control : public IControl
{
public:
    IControlDefinition* GetControlDefinition() const override = 0;
    void UpdateStatus() override = 0;
};

}
