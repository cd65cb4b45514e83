// Programs as the machine itself runs and finds them.
#pragma once

#include "core/platform/BundledPrograms.h"
#include "core/platform/CChildProcess.h"
#include "core/platform/CPlatform.h"

#include <list>
#include <string>
#include <vector>

class CSystemPrograms : public CPrograms
{
public:
    EStart StartProgram(const std::string& program, const std::string& baseDir) override;
    bool IsRunning() override;
    void EndPrograms() override;

    EStart ShowProgram(const std::string& program, const std::string& baseDir,
                       const std::vector<std::string>& arguments) override;
    /// Both leave the choice of the program to the desktop's own opener.
    EStart ShowText(const std::string& path) override { return ShellOpen(path); }
    EStart ShellOpen(const std::string& path) override;

    /// Where a bundled program is looked for.
    std::vector<std::string> Places(const std::string& program, const std::string& baseDir) const;

private:
    std::string m_bundled = BundledProgramFolder(); ///< as the folder of the start has it
    std::list<CChildProcess> m_processes;           ///< those that ran when they were last looked at
};
