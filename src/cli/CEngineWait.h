// Waits for the engine where there is no timer: sleeps, looks, and lets the progress line go on.
#pragma once

#include "cli/CInterruption.h"
#include "cli/CProgressLine.h"

/// What a signal's number is added to for the exit code.
constexpr int kSignalBase = 128;

class CEngineWait
{
public:
    /// `period` is the longest sleep, in milliseconds.
    CEngineWait(CProgressLine& progress, int period) : m_progress(progress), m_period(period) {}

    /// Sleeps until it is time to look again, or a signal has come. The first sleeps are short: a fast engine
    /// shall not cost the user a whole period.
    void Sleep();
    /// The signal that came meanwhile; 0 if none did.
    int Signal() const { return m_interruption.Signal(); }

private:
    static constexpr int kFirstPause = 20; ///< milliseconds

    CInterruption m_interruption;
    CProgressLine& m_progress;
    int m_period;
    int m_pause = kFirstPause;
};
