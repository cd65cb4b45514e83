// Runs ondara-cli in a folder of the test's own, which is the base folder too, with settings of the test's
// own.
#pragma once

#include "cli/CommandLine.h"
#include "tests/support/CTestProject.h"

#include <iosfwd>
#include <string>
#include <vector>

/// All that a run says and gives.
struct CCliRun
{
    int ExitCode = 0;
    std::string Output;
    std::string Errors;

    bool operator==(const CCliRun&) const = default;
};

void PrintTo(const CCliRun& run, std::ostream* stream);

/// A run that does its job and says nothing; one that prints a text; one that tells of a failure.
inline CCliRun Done()
{
    return {kExitDone, "", ""};
}
inline CCliRun Printed(const std::string& output)
{
    return {kExitDone, output, ""};
}
inline CCliRun Failed(const std::string& errors)
{
    return {kExitFailed, "", errors};
}

/// What the user hears of a file that can't be read.
constexpr const char* kUnreadable = "Error Reading File: The file could not be read.\n";

class CCliTest : public CTestProject
{
public:
    CCliTest();

    CCliRun Run(const std::vector<std::string>& words) const;

    /// Writes the test's project into the folder under a name; gives the text.
    std::string Write(const std::string& name) const;
    std::string Write(const std::string& name, const std::string& content) const;
    std::string Content(const std::string& name) const { return FileContent(Folder.File(name)); }

    /// The names of the files in the folder, sorted.
    std::vector<std::string> Files() const;
    /// The recent files in the settings.
    std::vector<std::string> RecentFiles() const;

    /// Gives every part of the project its greatest size.
    void Fill();
    /// The least project that the engine can work on.
    void Complete();

    CTestFolder Settings;
    std::string Profile = Settings.File("settings.ini");
};
