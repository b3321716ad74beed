#include "Support/Platform/LoadedLibrary.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

#include <utility>

namespace vesk::test
{
namespace
{

std::wstring NativePath(const QString& path)
{
    return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()).toStdWString();
}

}

LoadedLibrary::LoadedLibrary(const QString& path)
    : m_pHandle(LoadLibraryW(NativePath(path).c_str()))
{
    if (m_pHandle == nullptr)
        m_error = QStringLiteral("error %1").arg(GetLastError());
}

void LoadedLibrary::Unload()
{
    if (m_pHandle != nullptr)
        FreeLibrary(static_cast<HMODULE>(std::exchange(m_pHandle, nullptr)));
}

bool LoadedLibrary::IsInTheProcess(const QString& path)
{
    return GetModuleHandleW(NativePath(path).c_str()) != nullptr;
}

}
