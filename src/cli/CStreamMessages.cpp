#include "cli/CStreamMessages.h"

#include <ostream>

void CStreamMessages::MessageBox(const std::string& text, const std::string& title, EIcon)
{
    Line(title + ": " + text);
}

bool CStreamMessages::AskYesNo(const std::string& text, const std::string& title, EIcon)
{
    Line(title + ": " + text + (m_answer ? " [yes]" : " [no]"));
    return m_answer;
}

void CStreamMessages::PlainLine(const std::string& text)
{
    Line("ondara-cli: " + text);
}

void CStreamMessages::Line(const std::string& text)
{
    std::string line;
    for (const char c : text)
    {
        line += c == '\n' ? std::string("\\n") : std::string(1, c);
    }
    BeforeLine();
    m_stream << line << '\n' << std::flush;
}

bool PrintText(const std::string& text, std::ostream& output, CStreamMessages& messages)
{
    output << text << std::flush;
    if (!output)
    {
        messages.PlainLine("the standard output can't be written");
    }
    return output.good();
}
