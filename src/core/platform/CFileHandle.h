// A file descriptor that is closed with its owner.
#pragma once

#include <cerrno>
#include <cstddef>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

class CFileHandle
{
public:
    CFileHandle(const std::string& path, int flags, mode_t mode = 0666)
        : m_handle(::open(path.c_str(), flags | O_CLOEXEC, mode))
    {
    }
    ~CFileHandle() { Close(); }
    CFileHandle(const CFileHandle&) = delete;
    CFileHandle& operator=(const CFileHandle&) = delete;

    bool IsOpen() const { return m_handle >= 0; }
    int Get() const { return m_handle; }

    bool Write(std::string_view content) const
    {
        while (!content.empty())
        {
            const ssize_t written = ::write(m_handle, content.data(), content.size());
            if (written < 0 && errno == EINTR)
            {
                continue;
            }
            if (written <= 0)
            {
                return false;
            }
            content.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

    /// Reads at most `length` bytes; 0 at the end and after a failure.
    std::size_t Read(char* bytes, std::size_t length) const
    {
        ssize_t count = 0;
        do
        {
            count = ::read(m_handle, bytes, length);
        } while (count < 0 && errno == EINTR);
        return count > 0 ? static_cast<std::size_t>(count) : 0;
    }

    /// Waits until the content is on the disk. What isn't a disk (a pipe, a terminal) has nothing to wait
    /// for.
    bool Flush() const { return ::fsync(m_handle) == 0 || errno == EINVAL || errno == EROFS; }

    bool Close()
    {
        const int handle = m_handle;
        m_handle = -1;
        return handle < 0 || ::close(handle) == 0;
    }

private:
    int m_handle;
};
