#include "core/results/CAppendedFile.h"

#include <algorithm>
#include <filesystem>

CAppendedFile::CAppendedFile(const std::string& path)
    : m_path(path),
      m_file(path, std::ios::in | std::ios::out | std::ios::binary)
{
    if (m_file.seekp(0, std::ios::end))
    {
        m_length = static_cast<std::streamoff>(m_file.tellp());
    }
}

bool CAppendedFile::CutEnd(int bytes)
{
    std::error_code error;
    const std::int64_t length = std::max<std::int64_t>(0, m_length - bytes);
    std::filesystem::resize_file(m_path, static_cast<std::uintmax_t>(length), error);
    m_length = length;
    return !error && m_file.seekp(length);
}

void CAppendedFile::Append(const std::string& bytes)
{
    m_file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    m_length += static_cast<std::int64_t>(bytes.size());
}

bool CAppendedFile::Close()
{
    m_file.close();
    return !m_file.fail();
}
