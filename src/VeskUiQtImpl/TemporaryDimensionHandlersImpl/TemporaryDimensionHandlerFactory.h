#pragma once

#include "Dimension/ITemporaryDimensionHandler.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

namespace vesk
{

/// Chooses the handler that fits a context; called by the manager of the host.
class VESK_UI_QT_IMPL_API TemporaryDimensionHandlerFactory final
    : public ITemporaryDimensionHandlerFactory
{
public:
    /// The registered factory; it lives as long as the library is loaded.
    static TemporaryDimensionHandlerFactory* GetInstance();

    /// A handler fits only contexts of exactly its own class. Without a context, a current view or
    /// a fitting kind it warns and returns an empty pointer.
    OwnerPtr<ITemporaryDimensionHandler>
    UpdateOrCreateHandler(const ITemporaryDimensionContext* pContext,
                          ITemporaryDimensionHandler* pCurrent) override;
};

}
