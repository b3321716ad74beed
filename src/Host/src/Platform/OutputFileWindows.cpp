#include "Platform/OutputFile.h"

#include <windows.h>

#include <algorithm>
#include <utility>

namespace vesk
{

namespace
{

HANDLE HandleOf(std::intptr_t handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

/// `share` is what other programs may do with the file while it is open.
std::intptr_t OpenAtEnd(const std::filesystem::path& path, DWORD access, DWORD share,
                        DWORD disposition)
{
    return reinterpret_cast<std::intptr_t>(::CreateFileW(
        path.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

}

OutputFile::Opening OutputFile::OpenAlone(const std::filesystem::path& path)
{
    Close();
    m_handle = OpenAtEnd(path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, OPEN_ALWAYS);
    if (IsOpen())
        return Opening::Done;
    return ::GetLastError() == ERROR_SHARING_VIOLATION ? Opening::InUse : Opening::Failed;
}

bool OutputFile::IsInUse(const std::filesystem::path& path)
{
    OutputFile file;
    file.m_handle =
        OpenAtEnd(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  OPEN_EXISTING);
    return !file.IsOpen() && ::GetLastError() == ERROR_SHARING_VIOLATION;
}

bool OutputFile::OpenShared(const std::filesystem::path& path)
{
    Close();
    m_handle = OpenAtEnd(path, FILE_APPEND_DATA | SYNCHRONIZE,
                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_ALWAYS);
    return IsOpen();
}

bool OutputFile::Create(const std::filesystem::path& path)
{
    Close();
    m_handle = OpenAtEnd(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW);
    return IsOpen();
}

std::size_t OutputFile::Write(std::string_view bytes)
{
    constexpr std::size_t MostAtOnce = 1 << 20;
    const LARGE_INTEGER end = {};
    ::SetFilePointerEx(HandleOf(m_handle), end, nullptr, FILE_END);
    std::size_t written = 0;
    while (IsOpen() && written < bytes.size())
    {
        DWORD count = 0;
        const auto size = static_cast<DWORD>(std::min(bytes.size() - written, MostAtOnce));
        if (!::WriteFile(HandleOf(m_handle), bytes.data() + written, size, &count, nullptr) ||
            count == 0)
            break;
        written += count;
    }
    return written;
}

bool OutputFile::CutTo(std::uint64_t size)
{
    LARGE_INTEGER present = {};
    if (!::GetFileSizeEx(HandleOf(m_handle), &present))
        return false;
    if (static_cast<std::uint64_t>(present.QuadPart) <= size)
        return true;
    LARGE_INTEGER end = {};
    end.QuadPart = static_cast<LONGLONG>(size);
    return ::SetFilePointerEx(HandleOf(m_handle), end, nullptr, FILE_BEGIN) &&
           ::SetEndOfFile(HandleOf(m_handle));
}

bool OutputFile::Sync()
{
    // Devices have nothing to be synced to disk.
    return IsOpen() && (::GetFileType(HandleOf(m_handle)) != FILE_TYPE_DISK ||
                        ::FlushFileBuffers(HandleOf(m_handle)));
}

bool OutputFile::SyncData()
{
    return Sync();
}

bool OutputFile::Close()
{
    return !IsOpen() || ::CloseHandle(HandleOf(std::exchange(m_handle, NoHandle)));
}

}
