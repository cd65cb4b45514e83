#include "cli/CInterruption.h"

namespace
{
volatile std::sig_atomic_t signalThatCame = 0;

void NoteSignal(int signal)
{
    signalThatCame = signal;
}
} // namespace

CInterruption::CInterruption()
{
    signalThatCame = 0;
    struct sigaction note = {};
    note.sa_handler = NoteSignal;
    for (std::size_t k = 0; k < kSignals.size(); ++k)
    {
        ::sigaction(kSignals[k], nullptr, &m_before[k]);
        if (m_before[k].sa_handler != SIG_IGN)
        {
            ::sigaction(kSignals[k], &note, nullptr);
        }
    }
}

CInterruption::~CInterruption()
{
    for (std::size_t k = 0; k < kSignals.size(); ++k)
    {
        ::sigaction(kSignals[k], &m_before[k], nullptr);
    }
}

int CInterruption::Signal() const
{
    return signalThatCame;
}
