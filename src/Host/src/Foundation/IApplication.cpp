#include "Foundation/IApplication.h"

#include <atomic>

namespace vesk
{

namespace
{

// Atomic because warnings in other threads check whether there is an application.
std::atomic<IApplication*> s_pApplication{nullptr};

}

IApplication* IApplication::Get()
{
    return s_pApplication;
}

void IApplication::Set(IApplication* pApplication)
{
    s_pApplication = pApplication;
}

}
