#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

namespace vesk::test
{

// A program loads a library only if it references a symbol of it, and not every test does.
extern TemporaryDimensionHandlerFactory* (*const s_pLibraryReference)();
TemporaryDimensionHandlerFactory* (*const s_pLibraryReference)() =
    &TemporaryDimensionHandlerFactory::GetInstance;

}
