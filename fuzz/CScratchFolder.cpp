#include "fuzz/CScratchFolder.h"

#include "fuzz/CFuzzProject.h"

#include <filesystem>

#include <unistd.h>

namespace fs = std::filesystem;

CScratchFolder::CScratchFolder() : m_path("/dev/shm/ondara-fuzz-XXXXXX")
{
    if (::mkdtemp(m_path.data()) == nullptr)
    {
        m_path = fs::temp_directory_path() / "ondara-fuzz-XXXXXX";
        Require(::mkdtemp(m_path.data()) != nullptr, "there is a folder for the target's files");
    }
}

CScratchFolder::~CScratchFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}
