// printf's placeholders in lines of text, checked against their values when they are compiled, and always in
// the C locale.
#pragma once

#include "core/platform/NumberText.h"

#include <array>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

/// One value behind a format: a number, an integer or a text. It doesn't own the text.
class CFormatValue
{
public:
    enum class EKind
    {
        Number,
        Integer,
        Text
    };

    // NOLINTBEGIN(google-explicit-constructor): a value stands for itself
    CFormatValue(double number) : m_kind(EKind::Number), m_number(number) {}
    CFormatValue(float number) : m_kind(EKind::Number), m_number(static_cast<double>(number)) {}
    CFormatValue(int integer) : m_kind(EKind::Integer), m_integer(integer) {}
    CFormatValue(std::string_view text) : m_kind(EKind::Text), m_text(text) {}
    CFormatValue(const std::string& text) : m_kind(EKind::Text), m_text(text) {}
    CFormatValue(const char* text) : m_kind(EKind::Text), m_text(text) {}
    // NOLINTEND(google-explicit-constructor)

    EKind Kind() const { return m_kind; }
    double Number() const { return m_number; }
    int Integer() const { return m_integer; }
    std::string_view Text() const { return m_text; }

private:
    EKind m_kind;
    double m_number = 0;
    int m_integer = 0;
    std::string_view m_text;
};

/// The last character of a placeholder that a value of a type takes.
template <class Value>
constexpr bool TakesPlaceholder(char conversion)
{
    if (std::is_floating_point_v<Value>)
    {
        return conversion == 'f' || conversion == 'e';
    }
    return std::is_same_v<Value, int> ? conversion == 'i' || conversion == 'd' : conversion == 's';
}

/// The length of the placeholder that a text begins with, "%" included; 0 if it doesn't end.
constexpr std::size_t PlaceholderLength(std::string_view text)
{
    const std::size_t end = text.find_first_not_of("0123456789.", 1);
    return end == std::string_view::npos ? 0 : end + 1;
}

/// A line with one placeholder for each value, in order: "%f" or "%e" for numbers, "%i" or "%d" for integers,
/// "%s" for texts, the first two kinds with width and precision as printf has them. Any other fails to
/// compile.
template <class... Values>
class CLineFormat
{
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a literal is the format
    ONDARA_CONSTEVAL CLineFormat(const char* text) : m_text(text)
    {
        constexpr std::array<bool (*)(char), sizeof...(Values)> takes = {
            TakesPlaceholder<std::decay_t<Values>>...};
        std::string_view rest = m_text;
        std::size_t count = 0;
        for (std::size_t at = rest.find('%'); at != std::string_view::npos; at = rest.find('%'))
        {
            rest.remove_prefix(at);
            const std::size_t length = PlaceholderLength(rest);
            if (length == 0 || count == takes.size() || !takes[count](rest[length - 1]))
            {
                throw std::invalid_argument("a placeholder doesn't fit its value");
            }
            rest.remove_prefix(length);
            ++count;
        }
        if (count != takes.size())
        {
            throw std::invalid_argument("a value has no placeholder");
        }
    }

    constexpr std::string_view Text() const { return m_text; }

private:
    std::string_view m_text;
};

/// Appends a format's text with its values in the places of the placeholders.
void AppendFormat(std::string& text, std::string_view format, std::span<const CFormatValue> values);
