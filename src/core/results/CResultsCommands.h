// The commands that handle a results file after a run: keep it under a name, load one for display.
#pragma once

#include "core/platform/CPlatform.h"
#include "core/project/CProjectData.h"
#include "core/project/CProjectSession.h"

#include <functional>
#include <string>

/// How Save As ended.
enum class EKept
{
    Cancelled,
    NothingToSave, ///< no run has completed yet: the name is taken over and nothing copied
    Saved,
    // What could not be copied, which the command itself doesn't tell:
    ResultsNotCopied,
    ListingNotCopied,
    NothingCopied
};

class CResultsCommands
{
public:
    CResultsCommands(CProjectData& project, CProjectSession& session, CPlatform& platform);

    /// Takes the results of the last run that stand in the engine's folder, and the input with them if the
    /// user wants that.
    void LoadLastCalculated();
    /// Asks for a results file and takes it, with its input. Without the input only the names of the active
    /// files change.
    void LoadResults();
    /// Asks for a name and copies the results of the last run, and its listing, under that.
    EKept SaveAs();

    /// Restores the project from the results file at a path, over what it holds; CResultFile does it.
    std::function<void(const std::string& path)> RestoreProject;
    /// Writes the title of the main window anew.
    std::function<void()> UpdateTitle = [] {};

private:
    void LoadFile(const std::string& path);
    EKept Keep(const std::string& path);
    bool CopyResults(const char* name, const std::string& target) const;
    bool AskToOverwriteInputs();
    void RestoreFrom(const std::string& path);
    void SetActiveNames(const std::string& name);
    void ShowNotFound();

    CProjectData& m_project;
    CProjectSession& m_session;
    CPlatform& m_platform;
};

/// The name of the input file that a results file holds, up to its first blank; empty if the file has none.
std::string StoredInputFile(const std::string& path);
