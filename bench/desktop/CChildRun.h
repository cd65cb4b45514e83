// This program once more as a process of its own, without a screen and with settings of its own.
#pragma once

#include "bench/desktop/CScratchFolder.h"

#include <string>

class CChildRun
{
public:
    CChildRun();

    /// Runs it with one argument to its end. Gives the seconds of processor time that it took; stops the
    /// program if it fails.
    double ProcessorTime(const char* argument) const;

private:
    std::string m_program;
    CScratchFolder m_folder; ///< in which the processes are started
};
