#include "Foundation/IApplication.h"

#include <atomic>

namespace vesk
{

namespace
{

// Warnings of other threads ask whether there is an application.
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
