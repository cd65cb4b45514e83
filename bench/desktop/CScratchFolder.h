// A folder for one measurement, gone after it.
#pragma once

#include <string>

class CScratchFolder
{
public:
    /// Stops the program if there can be none.
    CScratchFolder();
    ~CScratchFolder();
    CScratchFolder(const CScratchFolder&) = delete;
    CScratchFolder& operator=(const CScratchFolder&) = delete;

    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};
