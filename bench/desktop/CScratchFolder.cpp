#include "bench/desktop/CScratchFolder.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace fs = std::filesystem;

CScratchFolder::CScratchFolder() : m_path(fs::temp_directory_path() / "ondara-bench-XXXXXX")
{
    if (::mkdtemp(m_path.data()) == nullptr)
    {
        std::cerr << "can't make the folder " << m_path << '\n';
        std::exit(EXIT_FAILURE);
    }
}

CScratchFolder::~CScratchFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}
