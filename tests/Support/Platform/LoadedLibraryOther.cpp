#include "Support/Platform/LoadedLibrary.h"

#include <dlfcn.h>

#include <utility>

namespace vesk::test
{

LoadedLibrary::LoadedLibrary(const QString& path)
    : m_pHandle(dlopen(path.toUtf8().constData(), RTLD_NOW | RTLD_LOCAL))
{
    if (m_pHandle == nullptr)
        m_error = QString::fromUtf8(dlerror());
}

void LoadedLibrary::Unload()
{
    if (m_pHandle != nullptr)
        dlclose(std::exchange(m_pHandle, nullptr));
}

bool LoadedLibrary::IsInTheProcess(const QString& path)
{
    void* pHandle = dlopen(path.toUtf8().constData(), RTLD_NOW | RTLD_NOLOAD);
    if (pHandle != nullptr)
        dlclose(pHandle);
    return pHandle != nullptr;
}

}
