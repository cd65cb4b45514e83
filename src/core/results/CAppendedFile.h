// A file that is there already and grows in place.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>

class CAppendedFile
{
public:
    /// Opens the file as it is; IsOpen tells whether that could be done.
    explicit CAppendedFile(const std::string& path);

    bool IsOpen() const { return m_file.is_open(); }
    /// Takes bytes off its end, all if there are fewer. False if that can't be done.
    bool CutEnd(int bytes);
    std::int64_t Length() const { return m_length; }
    void Append(const std::string& bytes);
    /// False if not all bytes reached the file.
    bool Close();

private:
    std::string m_path;
    std::fstream m_file;
    std::int64_t m_length = 0;
};
