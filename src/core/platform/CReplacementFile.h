// A file of the program's own that replaces one as a whole: it grows beside it and takes its name at the end,
// so that no reader ever sees half of it.
#pragma once

#include "core/platform/CFileHandle.h"

#include <string>
#include <string_view>

class CReplacementFile
{
public:
    explicit CReplacementFile(const std::string& path);
    /// An unfinished file goes.
    ~CReplacementFile();
    CReplacementFile(const CReplacementFile&) = delete;
    CReplacementFile& operator=(const CReplacementFile&) = delete;

    /// False once not all bytes have reached the file.
    bool Append(std::string_view content);
    /// Takes the name, for what can be made again. False if that fails; the old file then stands.
    bool Finish();
    /// The same once the content is on the disk.
    bool FinishOnDisk();

private:
    std::string m_target;
    std::string m_temporary;
    CFileHandle m_file;
    bool m_made; ///< the file beside is this one's
    bool m_good;
    bool m_finished = false;
};
