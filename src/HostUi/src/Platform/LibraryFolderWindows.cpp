#include "Platform/LibraryFolder.h"

#include <QFileInfo>

#include <windows.h>

#include <array>

namespace vesk
{

QString FindLibraryFolder()
{
    constexpr DWORD LongestPath = 32768;
    constexpr DWORD OfAddress =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    static std::array<wchar_t, LongestPath> s_path;
    HMODULE module = nullptr;
    if (GetModuleHandleExW(OfAddress, reinterpret_cast<LPCWSTR>(&FindLibraryFolder), &module) == 0)
        return {};
    const DWORD length = GetModuleFileNameW(module, s_path.data(), LongestPath);
    return length > 0
               ? QFileInfo(QString::fromWCharArray(s_path.data(), int(length))).absolutePath()
               : QString();
}

}
