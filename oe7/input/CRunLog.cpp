#include "oe7/input/CRunLog.h"

#include <algorithm>

namespace oe7
{
namespace
{
void KeepOnce(std::vector<std::string>& texts, const std::string& text)
{
    if (std::find(texts.begin(), texts.end(), text) == texts.end())
    {
        texts.push_back(text);
    }
}
} // namespace

void CRunLog::Warn(const std::string& text)
{
    KeepOnce(m_warnings, text);
}

void CRunLog::Note(const std::string& text)
{
    KeepOnce(m_notes, text);
}

} // namespace oe7
