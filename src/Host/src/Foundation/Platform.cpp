#include "Foundation/Platform.h"

#include "Foundation/IApplication.h"

namespace vesk
{

bool Platform::IsApplicationConstructed()
{
    return IApplication::Get() != nullptr;
}

}
