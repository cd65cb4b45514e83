// The text of the listing while it is made: lines, and rows of numbers in columns. Numbers never run
// together, and no line becomes too long, however large they are.
#pragma once

#include "oe7/input/CRunLog.h"

#include <string>
#include <string_view>

namespace oe7
{

class CListingText
{
public:
    /// The log is told of values that are no numbers.
    explicit CListingText(CRunLog& log) : m_log(log) {}

    CListingText& Add(std::string_view text);
    /// A text behind, or before, as many blanks as fill the column.
    CListingText& Right(std::string_view text, int width);
    CListingText& Left(std::string_view text, int width);
    CListingText& Integer(int value, int width = 0);
    /// A number with so many decimals, right in its column. There is a blank before one that fills its
    /// column, and one that is far too large for it is written with an exponent.
    CListingText& Number(double value, int width, int decimals);
    CListingText& Exponential(double value, int width);
    /// A signed encounter frequency (rad/s) without its sign, always in five characters.
    CListingText& Encounter(double frequency);

    void End() { m_text += '\n'; }
    void Line(std::string_view text) { Add(text).End(); }
    void EmptyLine() { End(); }

    std::string Take() { return std::move(m_text); }

private:
    void Column(const std::string& text, int width);

    CRunLog& m_log;
    std::string m_text;
};

} // namespace oe7
