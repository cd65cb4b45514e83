#include "core/platform/CReplacementFile.h"

#include "core/platform/Files.h"

#include <filesystem>

namespace fs = std::filesystem;

CReplacementFile::CReplacementFile(const std::string& path)
    : m_target(ResolvedPath(path)),
      m_temporary(m_target + "." + std::to_string(::getpid()) + ".new"),
      m_file(m_temporary, O_WRONLY | O_CREAT | O_TRUNC),
      m_made(m_file.IsOpen()),
      m_good(m_made)
{
}

CReplacementFile::~CReplacementFile()
{
    if (m_made && !m_finished)
    {
        std::error_code ignored;
        fs::remove(m_temporary, ignored);
    }
}

bool CReplacementFile::Append(std::string_view content)
{
    m_good = m_good && m_file.Write(content);
    return m_good;
}

bool CReplacementFile::Finish()
{
    m_good = m_good && m_file.Close();
    std::error_code error;
    if (m_good)
    {
        fs::rename(m_temporary, m_target, error);
    }
    m_finished = m_good && !error;
    return m_finished;
}

bool CReplacementFile::FinishOnDisk()
{
    m_good = m_good && m_file.Flush();
    return Finish();
}
