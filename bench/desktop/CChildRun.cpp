#include "bench/desktop/CChildRun.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
double Seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}
} // namespace

CChildRun::CChildRun() : m_program(fs::read_symlink("/proc/self/exe")) {}

double CChildRun::ProcessorTime(const char* argument) const
{
    const pid_t child = ::fork();
    if (child == 0)
    {
        ::setenv("XDG_CONFIG_HOME", m_folder.Path().c_str(), 1);
        ::setenv("XDG_RUNTIME_DIR", m_folder.Path().c_str(), 1);
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
        if (::chdir(m_folder.Path().c_str()) == 0)
        {
            ::execl(m_program.c_str(), m_program.c_str(), argument, nullptr);
        }
        ::_exit(EXIT_FAILURE);
    }
    int status = 0;
    rusage usage = {};
    if (child < 0 || ::wait4(child, &status, 0, &usage) != child || status != 0)
    {
        std::cerr << "can't measure " << m_program << ' ' << argument << '\n';
        std::exit(EXIT_FAILURE);
    }
    return Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
}
