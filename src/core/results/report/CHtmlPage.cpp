#include "core/results/report/CHtmlPage.h"

#include <algorithm>

namespace
{
constexpr std::size_t kPieceSize = 65536; ///< bytes that go to a sink at once
}

void CHtmlPage::WriteLine(std::string_view text)
{
    const std::size_t start = m_text.size();
    m_text += text;
    EndLine(start);
}

void CHtmlPage::WriteValues(std::string_view format, std::span<const CFormatValue> values)
{
    const std::size_t start = m_text.size();
    AppendFormat(m_text, format, values);
    EndLine(start);
}

void CHtmlPage::EndLine(std::size_t start)
{
    if (m_text.find('\r', start) != std::string::npos)
    {
        const auto line = m_text.begin() + static_cast<std::ptrdiff_t>(start);
        m_text.erase(std::remove(line, m_text.end(), '\r'), m_text.end());
    }
    m_text += '\n';
    if (m_sink && m_text.size() >= kPieceSize)
    {
        Flush();
    }
}

void CHtmlPage::Flush()
{
    if (m_sink)
    {
        m_sink(m_text);
        m_text.clear();
    }
}

void CHtmlPage::WriteHead(const char* title)
{
    // Each quoted value stands on a line of its own, between the lines that carry its quote marks.
    for (const char* line : {"<!DOCTYPE html PUBLIC", "\"", "-//W3C//DTD XHTML 1.0 Transitional//EN", "\"",
                             "\"", "http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd", "\">",
                             "<html xmlns=", "\"", "http://www.w3.org/1999/xhtml", "\">", "<head>"})
    {
        WriteLine(line);
    }
    WriteLine("<title>%s</title>", title);
    WriteLine("</head>");
    WriteLine("<body> \n");
}

void CHtmlPage::WriteTail()
{
    WriteLine("</body> \n");
    WriteLine("</html>");
}

void CHtmlPage::PageBreak()
{
    WriteLine(R"(<p style = "page-break-before: always">)");
}

void CHtmlPage::ContentsLink()
{
    WriteLine(R"(<BR><b><i><a HREF="#TOC">To the Table of Contents</a></i></b>)");
}

void CHtmlPage::OpenFrame(const char* literal)
{
    WriteLine(literal);
    WriteLine("<TR><TD NOWRAP>");
}

void CHtmlPage::CloseFrame()
{
    WriteLine("</td></tr></TABLE><BR>");
}

void CHtmlPage::CloseTableAndFrame()
{
    WriteLine("</TABLE>");
    CloseFrame();
}
