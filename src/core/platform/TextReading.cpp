#include "core/platform/TextReading.h"

#include <algorithm>
#include <charconv>

namespace
{
/// As a C string: what stands behind a NUL isn't seen.
std::string_view UpToNul(std::string_view line)
{
    return line.substr(0, line.find('\0'));
}
} // namespace

std::string_view CLineReader::ReadLine(std::size_t longest)
{
    if (m_lineEnded || m_rest.empty())
    {
        ++m_lineNumber;
    }
    m_lineEnded = false;
    // Two characters more than the line may hold: a line end directly behind them is looked for.
    const std::size_t end = m_rest.substr(0, longest + 2).find('\n');
    if (end == std::string_view::npos)
    {
        const std::string_view line = m_rest.substr(0, longest);
        m_rest.remove_prefix(line.size());
        return UpToNul(line);
    }
    const bool carriageReturn = end > 0 && m_rest[end - 1] == '\r';
    const std::size_t length = carriageReturn ? end - 1 : end;
    if (length > longest)
    {
        const std::string_view line = m_rest.substr(0, longest);
        m_rest.remove_prefix(longest);
        return UpToNul(line);
    }
    const std::string_view line = m_rest.substr(0, length);
    m_rest.remove_prefix(end + 1);
    m_lineEnded = true;
    return UpToNul(line);
}

std::optional<std::string_view> CTokens::Next()
{
    m_rest.remove_prefix(std::min(m_rest.find_first_not_of(m_delimiter), m_rest.size()));
    if (m_rest.empty())
    {
        return std::nullopt;
    }
    const std::size_t length = std::min(m_rest.find(m_delimiter), m_rest.size());
    const std::string_view token = m_rest.substr(0, length);
    m_rest.remove_prefix(std::min(length + 1, m_rest.size()));
    return token;
}

std::optional<double> CTokens::NextPlainNumber()
{
    m_rest.remove_prefix(std::min(m_rest.find_first_not_of(m_delimiter), m_rest.size()));
    const char* const end = m_rest.data() + m_rest.size();
    const bool negative = !m_rest.empty() && m_rest.front() == '-';
    const char* const digits = m_rest.data() + (negative ? 1 : 0);
    if (digits == end || *digits < '0' || *digits > '9')
    {
        return std::nullopt;
    }
    double value = 0;
    const auto [tokenEnd, error] = std::from_chars(digits, end, value);
    if (error != std::errc() || (tokenEnd != end && *tokenEnd != m_delimiter))
    {
        return std::nullopt;
    }
    m_rest.remove_prefix(static_cast<std::size_t>(tokenEnd - m_rest.data()) + (tokenEnd == end ? 0 : 1));
    return negative ? -value : value;
}

std::optional<std::string_view> CTokens::Rest()
{
    const std::string_view rest = m_rest;
    m_rest = {};
    return rest.empty() ? std::nullopt : std::optional(rest);
}
