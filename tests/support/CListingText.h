// The text of a listing while it is made: lines, and rows of numbers in columns. Quick, since the largest
// listing holds several million numbers.
#pragma once

#include "core/platform/NumberText.h"

#include <string>
#include <string_view>

class CListingText
{
public:
    CListingText& Add(std::string_view text)
    {
        m_text += text;
        return *this;
    }
    /// A number behind as many blanks as fill the column.
    CListingText& Number(double value, int width, int decimals)
    {
        const std::size_t begin = m_text.size();
        AppendDecimals(m_text, value, decimals);
        const std::size_t length = m_text.size() - begin;
        if (length < static_cast<std::size_t>(width))
        {
            m_text.insert(begin, static_cast<std::size_t>(width) - length, ' ');
        }
        return *this;
    }
    void End() { m_text += '\n'; }
    void Line(std::string_view text) { Add(text).End(); }
    void EmptyLine() { End(); }

    std::string Take() { return std::move(m_text); }

private:
    std::string m_text;
};
