#pragma once

#include <sys/resource.h>

#include <csignal>

namespace vesk
{

/// During its lifetime, no file of this process can grow beyond that many bytes, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        // Otherwise the process would be terminated instead of getting an error.
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        Set(bytes);
    }

    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

    void Set(rlim_t bytes)
    {
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }

private:
    rlimit m_before{};
};

}
