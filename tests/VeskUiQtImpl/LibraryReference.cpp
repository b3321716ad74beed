#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

namespace vesk::test
{

// Only a program that names something of a library has it loaded, and not each test does.
extern TemporaryDimensionHandlerFactory* (*const s_pLibraryReference)();
TemporaryDimensionHandlerFactory* (*const s_pLibraryReference)() =
    &TemporaryDimensionHandlerFactory::GetInstance;

}
