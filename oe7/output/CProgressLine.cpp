#include "oe7/output/CProgressLine.h"

#include "core/platform/NumberText.h"

#include <algorithm>
#include <ostream>

namespace oe7
{

CProgressLine::~CProgressLine()
{
    if (!m_shown.empty())
    {
        m_stream << '\r' << std::string(m_shown.size(), ' ') << '\r' << std::flush;
    }
}

void CProgressLine::Show(std::string_view what, double part)
{
    constexpr double percent = 100;
    const std::string line =
        FormatText("%3.0f %% ", percent * std::clamp(part, 0.0, 1.0)) + std::string(what);
    const std::lock_guard lock(m_mutex);
    if (line == m_shown)
    {
        return;
    }
    const std::size_t rest = m_shown.size() - std::min(m_shown.size(), line.size());
    m_stream << '\r' << line << std::string(rest, ' ') << std::flush;
    m_shown = line;
}

} // namespace oe7
