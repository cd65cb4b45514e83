// A disk that has room for a part of a file only.
#pragma once

#include <csignal>

#include <sys/resource.h>

/// Cuts every file at a number of bytes for as long as it lives, as a full disk does.
class CFullDisk
{
public:
    explicit CFullDisk(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~CFullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    CFullDisk(const CFullDisk&) = delete;
    CFullDisk& operator=(const CFullDisk&) = delete;

private:
    void (*m_handler)(int) = nullptr;
    rlimit m_before = {};
};
