#include "cli/CProgressLine.h"

#include <ostream>

void CProgressLine::Begin(const std::string& text)
{
    m_text = text;
    m_start = std::chrono::steady_clock::now();
    m_seconds = 0;
    Write();
}

void CProgressLine::Update()
{
    const auto elapsed = std::chrono::steady_clock::now() - m_start;
    const long seconds = std::chrono::duration_cast<std::chrono::seconds>(elapsed).count();
    if (!m_text.empty() && seconds != m_seconds)
    {
        m_seconds = seconds;
        Write();
    }
}

void CProgressLine::Write()
{
    if (m_terminal)
    {
        m_shown = m_text + std::to_string(m_seconds) + " s";
        m_stream << '\r' << m_shown << std::flush;
    }
}

void CProgressLine::End()
{
    if (!m_shown.empty())
    {
        m_stream << '\r' << std::string(m_shown.size(), ' ') << '\r' << std::flush;
    }
    m_text.clear();
    m_shown.clear();
}
