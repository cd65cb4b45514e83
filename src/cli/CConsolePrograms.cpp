#include "cli/CConsolePrograms.h"

EStart CConsolePrograms::StartProgram(const std::string& program, const std::string& baseDir)
{
    const EStart start = CSystemPrograms::StartProgram(program, baseDir);
    if (start == EStart::Started)
    {
        return start;
    }
    std::string text = start == EStart::NotFound
                           ? "the engine was not found, or may not be executed; it was looked for as"
                           : "the engine can't be started; it was looked for as";
    const char* separator = " ";
    for (const std::string& place : Places(program, baseDir))
    {
        text += separator + place;
        separator = ", ";
    }
    m_messages.PlainLine(text);
    return start;
}

EStart CConsolePrograms::ShowText(const std::string& path)
{
    m_messages.PlainLine("a problem is reported in " + path);
    return EStart::Started;
}
