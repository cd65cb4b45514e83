#include "cli/CEngineWait.h"

#include <algorithm>

#include <poll.h>

void CEngineWait::Sleep()
{
    ::poll(nullptr, 0, m_pause);
    m_pause = std::min(m_pause + m_pause / 4, m_period);
    m_progress.Update();
}
