#pragma once

#include "Dimension/ITemporaryDimensionHandler.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

namespace vesk
{

/// Chooses the handler that fits a context; the host's manager asks it.
class VESK_UI_QT_IMPL_API TemporaryDimensionHandlerFactory final
    : public ITemporaryDimensionHandlerFactory
{
public:
    /// The registered factory; it lives as long as the library is loaded.
    static TemporaryDimensionHandlerFactory* GetInstance();

    /// Handlers fit contexts of exactly their own class. Without a context, a current view or a
    /// fitting kind it warns, and the result is empty.
    OwnerPtr<ITemporaryDimensionHandler>
    UpdateOrCreateHandler(const ITemporaryDimensionContext* pContext,
                          ITemporaryDimensionHandler* pCurrent) override;
};

}
