#include "tests/oe7/support/CInputText.h"

#include "oe7/input/InputFile.h"
#include "tests/support/CTestFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace oe7
{

CInputText::CInputText(const std::string& referenceCase)
{
    std::istringstream content(FileContent(SourceFile("tests/oe7/reference/" + referenceCase + ".inp")));
    for (std::string line; std::getline(content, line);)
    {
        m_lines.push_back(line);
    }
}

CInputText& CInputText::Set(int line, const std::string& text)
{
    m_lines.at(static_cast<std::size_t>(line - 1)) = text;
    return *this;
}

CInputText& CInputText::Insert(int line, const std::vector<std::string>& texts)
{
    m_lines.insert(m_lines.begin() + line - 1, texts.begin(), texts.end());
    return *this;
}

CInputText& CInputText::Erase(int first, int last)
{
    m_lines.erase(m_lines.begin() + first - 1, m_lines.begin() + last);
    return *this;
}

std::string CInputText::Text(const std::string& lineEnd) const
{
    std::string text;
    for (const std::string& line : m_lines)
    {
        text += line + lineEnd;
    }
    return text;
}

CInput CInputText::Read(const std::string& folder) const
{
    CRunLog log;
    return ParseInput(Text(), folder, log);
}

std::string CInputText::Error(const std::string& folder) const
{
    try
    {
        Read(folder);
    }
    catch (const CInputError& error)
    {
        return error.what();
    }
    ADD_FAILURE() << "no error";
    return {};
}

std::vector<std::string> CInputText::Warnings() const
{
    CRunLog log;
    ParseInput(Text(), "/nowhere", log);
    return log.Warnings();
}

} // namespace oe7
