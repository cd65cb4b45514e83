// Takes the signals that end a program (Ctrl+C, Ctrl+\, a request to terminate, a terminal that goes
// away) for as long as it lives, so that what was started can be ended first. Signals that the program was
// told to ignore stay ignored.
#pragma once

#include <array>
#include <csignal>

class CInterruption
{
public:
    CInterruption();
    ~CInterruption();
    CInterruption(const CInterruption&) = delete;
    CInterruption& operator=(const CInterruption&) = delete;

    /// The signal that came; 0 if none did.
    int Signal() const;

private:
    static constexpr std::array<int, 4> kSignals = {SIGINT, SIGQUIT, SIGTERM, SIGHUP};

    std::array<struct sigaction, kSignals.size()> m_before = {};
};
