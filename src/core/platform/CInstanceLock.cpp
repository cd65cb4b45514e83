#include "core/platform/CInstanceLock.h"

#include "core/platform/Files.h"

#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

CInstanceLock::CInstanceLock(const std::string& path)
    : m_handle(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
{
    m_first = m_handle < 0 || ::flock(m_handle, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

CInstanceLock::~CInstanceLock()
{
    if (m_handle >= 0)
    {
        ::close(m_handle);
    }
}

std::string CInstanceLock::DefaultPath()
{
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && *runtime != '\0')
    {
        return JoinPath(runtime, "ondara.lock");
    }
    return "/tmp/ondara-" + std::to_string(::getuid()) + ".lock";
}
