// Programs for a command line: the engine is started, and nothing that opens a window.
#pragma once

#include "cli/CStreamMessages.h"
#include "core/platform/CSystemPrograms.h"

#include <string>

class CConsolePrograms : public CSystemPrograms
{
public:
    explicit CConsolePrograms(CStreamMessages& messages) : m_messages(messages) {}

    /// A program that doesn't start is told of, with the places where it was looked for.
    EStart StartProgram(const std::string& program, const std::string& baseDir) override;
    /// Names the file in place of showing it.
    EStart ShowText(const std::string& path) override;
    EStart ShellOpen(const std::string&) override { return EStart::Started; }

private:
    CStreamMessages& m_messages;
};
