// Numbers as text and text as numbers, as the C library's printf, atof and sscanf have them, but always in
// the C locale: a user whose locale writes a comma still reads and writes files with a point.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

// An older clang takes an expression with a consteval call for one without temporaries, and destroys those
// only at the end of the block: lines would be written in the wrong order.
#if defined(__clang__) && __clang_major__ < 17
#define ONDARA_CONSTEVAL constexpr
#else
#define ONDARA_CONSTEVAL consteval
#endif

/// The printf format of one number with a fixed count of decimals: "%.0f" to "%.9f". Checked when it is
/// compiled.
class CFixedFormat
{
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a literal is the format
    ONDARA_CONSTEVAL CFixedFormat(const char* text) : m_decimals(text[2] - '0')
    {
        if (text[0] != '%' || text[1] != '.' || m_decimals < 0 || m_decimals > 9 || text[3] != 'f' ||
            text[4] != '\0')
        {
            throw std::invalid_argument("a format reads \"%.2f\"");
        }
    }

    constexpr int Decimals() const { return m_decimals; }

private:
    int m_decimals;
};

/// Appends a number as printf writes it: rounded from its exact binary value, half to even.
void AppendFixed(std::string& text, double value, CFixedFormat format);
/// The same with a count of decimals, 0 to 9, that is known only at run time.
void AppendDecimals(std::string& text, double value, int decimals);
std::string FixedText(double value, CFixedFormat format);
std::string IntegerText(int value);
/// The shortest text that reads back to the same float.
std::string ShortestText(float value);

/// printf into a text, in the C locale.
[[gnu::format(printf, 1, 2)]] std::string FormatText(const char* format, ...);

/// atof: the number at the text's start, 0 if there is none. Hexadecimal, "inf" and "nan" are numbers too.
double NumberAtStart(std::string_view text);
/// atoi: the integer at the text's start, 0 if there is none, the nearest int if it is too large for one.
int IntegerAtStart(std::string_view text);

/// What sscanf(text, "%i") stores: a decimal, octal ("010") or hexadecimal ("0x10") integer, the nearest int
/// if it is too large; nothing if no integer stands at the start. "-1.00" gives -1, ".5" nothing.
std::optional<int> ScanInteger(std::string_view text);
/// Whether ScanInteger finds an integer. Asked of every number of a project file, so that it takes no more
/// than a look at the first digit.
bool HoldsInteger(std::string_view text);
/// What sscanf(text, "%f") stores, nothing if no number stands at the start.
std::optional<float> ScanFloat(std::string_view text);

/// A number as a 32-bit float; one that is too large for it is the largest.
float Narrowed(double value);

/// The integer part of a number, the nearest int if it is too large, 0 for a NaN.
int Truncated(double value);
