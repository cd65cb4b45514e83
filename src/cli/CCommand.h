// A command of ondara-cli. What it declares makes its help, its section of the manual page and the parsing of
// its words.
#pragma once

#include "cli/CArguments.h"
#include "cli/CWorkbench.h"
#include "cli/CommandLine.h"

#include <string>

class CCommand
{
public:
    /// `summary` is one line; `description` tells what a user may want to know beyond it.
    CCommand(const char* name, const char* summary, const char* description)
        : m_name(name),
          m_summary(summary),
          m_description(description)
    {
    }
    virtual ~CCommand() = default;
    CCommand(const CCommand&) = delete;
    CCommand& operator=(const CCommand&) = delete;

    const std::string& Name() const { return m_name; }
    const std::string& Summary() const { return m_summary; }
    const std::string& Description() const { return m_description; }

    virtual void Declare(CArguments& arguments) = 0;
    /// False if the command could not do its job; the user has been told why.
    virtual bool Run(CWorkbench& workbench) = 0;
    /// The exit code after such a failure.
    virtual int FailureCode() const { return kExitFailed; }

private:
    std::string m_name;
    std::string m_summary;
    std::string m_description;
};
