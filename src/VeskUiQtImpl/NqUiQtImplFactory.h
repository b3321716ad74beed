#pragma once

#include "Warnings/NqUiInterfaceFactory.h"

namespace vesk
{

/// Provides the host with this library's user-interface services.
class NqUiQtImplFactory final : public NqUiInterfaceFactory
{
public:
    /// Registers the new factory with the host.
    NqUiQtImplFactory();

    IPropertyWidget* GetPropertyWidget() override;
    OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() override;
};

}
