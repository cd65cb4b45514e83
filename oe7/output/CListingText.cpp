#include "oe7/output/CListingText.h"

#include "core/platform/NumberText.h"
#include "oe7/output/Finite.h"

#include <algorithm>
#include <cmath>

namespace oe7
{
namespace
{
/// A column of any row is at most as wide, so that the longest row stays below 254 characters.
constexpr int kWidest = 13;
constexpr int kEncounterWidth = 5;
} // namespace

CListingText& CListingText::Add(std::string_view text)
{
    m_text += text;
    return *this;
}

CListingText& CListingText::Right(std::string_view text, int width)
{
    const auto room = static_cast<std::size_t>(width);
    m_text.append(room - std::min(room, text.size()), ' ');
    return Add(text);
}

CListingText& CListingText::Left(std::string_view text, int width)
{
    const auto room = static_cast<std::size_t>(width);
    Add(text);
    m_text.append(room - std::min(room, text.size()), ' ');
    return *this;
}

void CListingText::Column(const std::string& text, int width)
{
    if (text.size() >= static_cast<std::size_t>(width) && !m_text.empty() && m_text.back() != ' ')
    {
        m_text += ' ';
    }
    Right(text, width);
}

CListingText& CListingText::Integer(int value, int width)
{
    return Right(IntegerText(value), width);
}

CListingText& CListingText::Number(double value, int width, int decimals)
{
    const double number = Finite(value, m_log);
    std::string text;
    AppendDecimals(text, number, decimals);
    if (text.size() > static_cast<std::size_t>(std::max(width, kWidest)))
    {
        text = FormatText("%.4e", number);
    }
    Column(text, width);
    return *this;
}

CListingText& CListingText::Exponential(double value, int width)
{
    Column(FormatText("%.6e", Finite(value, m_log)), width);
    return *this;
}

CListingText& CListingText::Encounter(double frequency)
{
    constexpr double largest = 99999;
    const double value = std::min(std::abs(Finite(frequency, m_log)), largest);
    const int decimals = value < 9.9995 ? 3 : value < 99.995 ? 2 : value < 999.95 ? 1 : 0;
    return Number(value, kEncounterWidth, decimals);
}

} // namespace oe7
