// A folder for the files of a fuzz target: in memory where the system has such a one. Made once.
#pragma once

#include <string>

class CScratchFolder
{
public:
    CScratchFolder();
    ~CScratchFolder();
    CScratchFolder(const CScratchFolder&) = delete;
    CScratchFolder& operator=(const CScratchFolder&) = delete;

    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};
