#include "core/platform/CSystemPrograms.h"

EStart CSystemPrograms::StartProgram(const std::string& program, const std::string& baseDir)
{
    const auto path = FirstProgram(Places(program, baseDir));
    if (!path)
    {
        return EStart::NotFound;
    }
    m_processes.emplace_back();
    const EStart start = m_processes.back().Start(*path);
    if (start != EStart::Started)
    {
        m_processes.pop_back();
    }
    return start;
}

bool CSystemPrograms::IsRunning()
{
    m_processes.remove_if([](CChildProcess& process) { return !process.IsRunning(); });
    return !m_processes.empty();
}

void CSystemPrograms::EndPrograms()
{
    for (CChildProcess& process : m_processes)
    {
        process.End();
    }
    m_processes.clear();
}

EStart CSystemPrograms::ShowProgram(const std::string& program, const std::string& baseDir,
                                    const std::vector<std::string>& arguments)
{
    const auto path = FirstProgram(Places(program, baseDir));
    return path ? CChildProcess::StartDetached(*path, arguments) : EStart::NotFound;
}

EStart CSystemPrograms::ShellOpen(const std::string& path)
{
    const auto opener = FindSystemProgram("xdg-open");
    return opener ? CChildProcess::StartDetached(*opener, {path}) : EStart::NotFound;
}

std::vector<std::string> CSystemPrograms::Places(const std::string& program, const std::string& baseDir) const
{
    return BundledProgramPlaces(program, baseDir, m_bundled);
}
