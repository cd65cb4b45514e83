#include "core/platform/NumberText.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include <locale.h>

namespace
{
locale_t CLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

/// Makes the C locale the calling thread's for as long as it lives.
class CLocaleScope
{
public:
    CLocaleScope() : m_before(uselocale(CLocale())) {}
    ~CLocaleScope() { uselocale(m_before); }
    CLocaleScope(const CLocaleScope&) = delete;
    CLocaleScope& operator=(const CLocaleScope&) = delete;

private:
    locale_t m_before;
};

constexpr bool IsSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}
constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}
constexpr char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string_view WithoutLeadingSpace(std::string_view text)
{
    while (!text.empty() && IsSpace(text.front()))
    {
        text.remove_prefix(1);
    }
    return text;
}

int Clamped(long long value)
{
    return static_cast<int>(
        std::clamp<long long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// Reads sign and digits of one base; nothing without a digit.
std::optional<int> DigitsAtStart(std::string_view digits, int base, bool negative)
{
    constexpr unsigned long long beyondInt = 1ULL << 40;
    unsigned long long magnitude = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude, base);
    if (result.ec == std::errc::invalid_argument)
    {
        return std::nullopt;
    }
    const bool fits = result.ec == std::errc() && magnitude < beyondInt;
    const auto value = static_cast<long long>(fits ? magnitude : beyondInt);
    return Clamped(negative ? -value : value);
}

/// Takes a sign away; true for a minus.
bool TakeSign(std::string_view& text)
{
    if (text.empty() || (text.front() != '-' && text.front() != '+'))
    {
        return false;
    }
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

bool BeginsHexadecimal(std::string_view unsignedText)
{
    return unsignedText.size() >= 2 && unsignedText[0] == '0' && Lower(unsignedText[1]) == 'x';
}

/// strtod itself, for the texts that are rare in files: hexadecimal, infinities, out of range.
double StandardNumber(std::string_view text)
{
    const std::string ended(text.substr(0, 512));
    return strtod_l(ended.c_str(), nullptr, CLocale());
}
} // namespace

void AppendFixed(std::string& text, double value, CFixedFormat format)
{
    AppendDecimals(text, value, format.Decimals());
}

void AppendDecimals(std::string& text, double value, int decimals)
{
    std::array<char, 400> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, decimals);
    text.append(buffer.data(), result.ptr);
}

std::string FixedText(double value, CFixedFormat format)
{
    std::string text;
    AppendFixed(text, value, format);
    return text;
}

std::string IntegerText(int value)
{
    return std::to_string(value);
}

std::string ShortestText(float value)
{
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end};
}

std::string FormatText(const char* format, ...)
{
    const CLocaleScope scope;
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(static_cast<std::size_t>(std::max(length, 0)), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    return text;
}

double NumberAtStart(std::string_view text)
{
    const std::string_view number = WithoutLeadingSpace(text);
    std::string_view digits = number;
    const bool negative = TakeSign(digits);
    const bool plain = !digits.empty() && (IsDigit(digits.front()) || digits.front() == '.');
    if (!plain || BeginsHexadecimal(digits))
    {
        return StandardNumber(number);
    }
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range)
    {
        return StandardNumber(number);
    }
    // A lone "-." is no number, so its zero has no sign.
    return negative && result.ec == std::errc() ? -value : value;
}

int IntegerAtStart(std::string_view text)
{
    std::string_view digits = WithoutLeadingSpace(text);
    const bool negative = TakeSign(digits);
    return DigitsAtStart(digits, 10, negative).value_or(0);
}

bool HoldsInteger(std::string_view text)
{
    std::string_view digits = WithoutLeadingSpace(text);
    TakeSign(digits);
    return !digits.empty() && IsDigit(digits.front());
}

std::optional<int> ScanInteger(std::string_view text)
{
    std::string_view digits = WithoutLeadingSpace(text);
    const bool negative = TakeSign(digits);
    if (BeginsHexadecimal(digits))
    {
        // The C library takes "0x" without a digit for its zero.
        return DigitsAtStart(digits.substr(2), 16, negative).value_or(0);
    }
    const bool octal = !digits.empty() && digits.front() == '0';
    return DigitsAtStart(digits, octal ? 8 : 10, negative);
}

std::optional<float> ScanFloat(std::string_view text)
{
    const CLocaleScope scope;
    float value = 0;
    const std::string ended(text.substr(0, 512));
    if (std::sscanf(ended.c_str(), "%f", &value) != 1)
    {
        return std::nullopt;
    }
    return value;
}

int Truncated(double value)
{
    if (std::isnan(value))
    {
        return 0;
    }
    return static_cast<int>(
        std::clamp<double>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

float Narrowed(double value)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::isnan(value) ? value : std::clamp(value, -largest, largest));
}
