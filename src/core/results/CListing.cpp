#include "core/results/CListing.h"

#include "core/platform/NumberText.h"

#include <cmath>
#include <limits>
#include <utility>

CListing::CListing(std::string text) : m_text(std::move(text)) {}

void CListing::ReadLines(int count)
{
    for (int k = 0; k < count; ++k)
    {
        ReadLine();
    }
}

void CListing::Scan(std::string_view marker, int limit)
{
    for (int count = 0; m_line.find(marker) == std::string_view::npos;)
    {
        ReadLine();
        if (++count == limit)
        {
            throw CCompletionError();
        }
    }
}

std::optional<float> CListing::AfterColon() const
{
    CTokens parts(m_line, ':');
    parts.Next();
    const auto word = CTokens(parts.Rest().value_or("")).Next();
    return word ? std::optional(ListingNumber(*word)) : std::nullopt;
}

float ListingNumber(std::string_view word)
{
    return SinglePrecision(NumberAtStart(word));
}

float SinglePrecision(double value)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float largest = std::numeric_limits<float>::max();
    // Half a unit in the last place behind the largest, where rounding begins to give infinity.
    constexpr double overflow = 0x1.ffffffp+127;
    if (std::abs(value) > static_cast<double>(largest))
    {
        return std::copysign(std::abs(value) < overflow ? largest : infinity,
                             static_cast<float>(value > 0 ? 1 : -1));
    }
    return static_cast<float>(value);
}
