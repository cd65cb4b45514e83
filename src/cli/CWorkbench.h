// What a command of ondara-cli works on: the application behind edges that stand in for a screen.
#pragma once

#include "cli/CArguments.h"
#include "cli/CConsolePrograms.h"
#include "cli/CProgressLine.h"
#include "cli/CScriptedDialogs.h"
#include "cli/CStreamMessages.h"
#include "core/app/COndaraApp.h"
#include "core/platform/CIniProfile.h"

#include <iosfwd>
#include <string>

struct CProgramOptions
{
    std::string BaseDir;
    std::string Profile;
    bool Yes; ///< the answer to every question
};

class CWorkbench
{
private:
    // In front of the application, which is built on them.
    std::ostream& m_output;
    CStreamMessages m_messages;
    CIniProfile m_profile;
    CConsolePrograms m_programs;

public:
    CWorkbench(const CProgramOptions& options, std::ostream& output, std::ostream& errors);
    CWorkbench(const CWorkbench&) = delete;
    CWorkbench& operator=(const CWorkbench&) = delete;

    /// Opens a project file whole, as a choice in the list of recent files does.
    EOpened Open(const std::string& path);
    /// The same; true if all of the file could be read.
    bool Load(const std::string& path) { return Open(path) == EOpened::Whole; }
    /// The same, but the names of the active files, which go into results, are the path as it was given.
    bool Load(const CGivenFile& file);
    /// Saves the project under a name, whose extension becomes .od7. True if all of it reached the file.
    bool SaveAs(const std::string& path);
    /// What the command is asked for. False if it can't be written.
    bool Print(const std::string& text);
    /// A line of the program's own on the stream of the messages.
    void PlainLine(const std::string& text) { m_messages.PlainLine(text); }

    CScriptedDialogs Dialogs;
    CProgressLine Progress;
    COndaraApp App;
};
