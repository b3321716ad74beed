#include "Platform/OutputFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace vesk
{

namespace
{

constexpr mode_t NewFileMode = 0666;
constexpr int CommonFlags = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC;

int DescriptorOf(std::intptr_t handle)
{
    return static_cast<int>(handle);
}

/// Some files, such as devices, have nothing to be synced to disk.
bool IsSyncUnknown()
{
    return errno == EINVAL || errno == ENOSYS || errno == ENOTSUP || errno == EROFS;
}

}

OutputFile::Opening OutputFile::OpenAlone(const std::filesystem::path& path)
{
    Close();
    const int descriptor = ::open(path.c_str(), CommonFlags, NewFileMode);
    if (descriptor < 0)
        return Opening::Failed;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
    {
        ::close(descriptor);
        return Opening::InUse;
    }
    m_handle = descriptor;
    return Opening::Done;
}

bool OutputFile::IsInUse(const std::filesystem::path& path)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isLocked = ::flock(descriptor, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(descriptor);
    return isLocked;
}

bool OutputFile::OpenShared(const std::filesystem::path& path)
{
    Close();
    m_handle = ::open(path.c_str(), CommonFlags, NewFileMode);
    return IsOpen();
}

bool OutputFile::Create(const std::filesystem::path& path)
{
    Close();
    m_handle = ::open(path.c_str(), CommonFlags | O_EXCL, NewFileMode);
    return IsOpen();
}

std::size_t OutputFile::Write(std::string_view bytes)
{
    std::size_t written = 0;
    while (IsOpen() && written < bytes.size())
    {
        const ssize_t count =
            ::write(DescriptorOf(m_handle), bytes.data() + written, bytes.size() - written);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        written += static_cast<std::size_t>(count);
    }
    return written;
}

bool OutputFile::CutTo(std::uint64_t size)
{
    struct stat status = {};
    if (::fstat(DescriptorOf(m_handle), &status) != 0)
        return false;
    const bool isLonger = static_cast<std::uint64_t>(status.st_size) > size;
    return !isLonger || ::ftruncate(DescriptorOf(m_handle), static_cast<off_t>(size)) == 0;
}

bool OutputFile::Sync()
{
    return ::fsync(DescriptorOf(m_handle)) == 0 || IsSyncUnknown();
}

bool OutputFile::SyncData()
{
    return ::fdatasync(DescriptorOf(m_handle)) == 0 || IsSyncUnknown();
}

bool OutputFile::Close()
{
    if (!IsOpen())
        return true;
    const int descriptor = DescriptorOf(std::exchange(m_handle, NoHandle));
    return ::close(descriptor) == 0 || errno == EINTR;
}

}
