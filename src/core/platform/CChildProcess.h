// A program that this one has started and watches.
#pragma once

#include "core/platform/CPlatform.h"

#include <string>
#include <vector>

#include <sys/types.h>

class CChildProcess
{
public:
    CChildProcess() = default;
    /// A program that still runs goes on.
    ~CChildProcess() = default;
    CChildProcess(const CChildProcess&) = delete;
    CChildProcess& operator=(const CChildProcess&) = delete;

    /// Starts the program at `path` in the current folder, as the first of a process group of its own. Its
    /// standard streams lead nowhere; it gets no other open file of this program, and signals act on it as
    /// they do by default. `Refused` if this object has a program that still runs.
    EStart Start(const std::string& path, const std::vector<std::string>& arguments = {});

    /// Whether it still runs. A program that has ended leaves nothing behind once this was asked.
    bool IsRunning();

    /// Ends it and all of its process group: asks first, and doesn't ask a second time. Back when the program
    /// is gone, that is after two seconds at the latest.
    void End();

    /// Starts a program that nobody watches, in a session of its own; otherwise as Start.
    static EStart StartDetached(const std::string& path, const std::vector<std::string>& arguments);

private:
    pid_t m_process = 0; ///< 0: none that runs
};
