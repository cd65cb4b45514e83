#include "cli/CRunCommand.h"

#include "cli/CEngineWait.h"
#include "cli/CUsageError.h"
#include "core/engine/CEngineInputWriter.h"
#include "core/engine/CRunController.h"
#include "core/engine/EngineLog.h"
#include "core/engine/GainFiles.h"
#include "core/engine/Waterline.h"
#include "core/platform/BundledPrograms.h"
#include "core/platform/EngineFolder.h"
#include "core/platform/Files.h"
#include "core/results/CResultFile.h"
#include "core/results/CResultsCommands.h"
#include "core/results/CsvExport.h"

#include <csignal>
#include <vector>

namespace
{
/// A loop in place of a timer, a progress line in place of a window.
class CConsoleRun : public CRunOwner
{
public:
    explicit CConsoleRun(CProgressLine& progress) : m_progress(progress) {}

    bool SetTimer(int, int) override { return true; }
    bool KillTimer(int) override { return true; }
    void ShowRunningWindow() override { m_progress.Begin("Calculations being performed.  "); }
    void DestroyRunningWindow() override { m_progress.End(); }

private:
    CProgressLine& m_progress;
};

/// What the engine's folder is for: names that nothing else can be kept under there.
std::vector<std::string> EngineFileNames(const CProjectData& project)
{
    std::vector<std::string> names = {kEngineInputName,
                                      kResultsFileName,
                                      kKeptResultsName,
                                      kListingFileName,
                                      kLogFileName,
                                      kCoefficientTableName,
                                      kWaveForceTableName,
                                      RudderGains(project).EngineName,
                                      FinGains(project).EngineName};
    for (const std::string& place : BundledProgramPlaces(kEngineProgram, "", ""))
    {
        names.push_back(FileName(place));
    }
    return names;
}
} // namespace

CRunCommand::CRunCommand()
    : CCommand(
          "run", "Run the whole calculation of a project",
          "Writes the engine's input into the base folder, starts the engine there, waits for it, and "
          "completes its results: the menu command Run. The engine is OE7.exe or OE7 in the base folder, "
          "else "
          "in the folder that the environment variable ONDARA_PROGRAMS names, else in that of this program. "
          "On a terminal a line tells how long the engine has been at work. The base folder then holds "
          "Ondara7.inp, the results in ondara7.bin, the engine's listing ondara7.out and its log "
          "ondara7.log, and copies of gain files; tables that the project wants as files stand beside "
          "FILE.od7, under its name with _Hyd.csv and _Wav.csv behind. With --results the results are kept "
          "as OUT.tv7 too, and the listing beside it as OUT.out; OUT.tv7 may be neither the project nor a "
          "file of the engine. If the log reports a problem, a line names "
          "it. Ctrl+C ends the engine; what it has written until then stays in the base folder, ondara7.bin "
          "not being a results file then, and nothing is kept as OUT.tv7. The exit code is 0 for complete "
          "results only, 130 after Ctrl+C, 131 after Ctrl+\\, 143 after a request to terminate.")
{
}

void CRunCommand::Declare(CArguments& arguments)
{
    arguments.File("FILE.od7", m_file, "Project file to read");
    arguments.File("--results", "OUT.tv7", m_results, "Results file to write; .tv7 if it has no extension");
}

bool CRunCommand::Run(CWorkbench& workbench)
{
    if (!m_results.empty())
    {
        CheckResultsName(workbench);
    }
    // Who reads the messages may go away: that doesn't end a run before its results are kept.
    std::signal(SIGPIPE, SIG_IGN);
    return workbench.Load(m_file) && Calculate(workbench) && (m_results.empty() || Keep(workbench));
}

int CRunCommand::FailureCode() const
{
    return m_signal == 0 ? CCommand::FailureCode() : kSignalBase + m_signal;
}

bool CRunCommand::Calculate(CWorkbench& workbench)
{
    COndaraApp& app = workbench.App;
    CConsoleRun owner(workbench.Progress);
    CRunController controller(app.Project, app.BaseDir, app.Platform, owner);
    CEngineWait wait(workbench.Progress, kRunTimerPeriod);
    controller.Run();
    while (controller.IsRunning())
    {
        m_signal = wait.Signal();
        if (m_signal != 0)
        {
            controller.Stop();
            workbench.PlainLine("interrupted; the engine was ended");
            return false;
        }
        wait.Sleep();
        controller.Tick(kRunTimer);
    }
    return app.Project.ResultsLoaded == 1;
}

void CRunCommand::CheckResultsName(const CWorkbench& workbench) const
{
    const std::string results = ResultsName();
    const std::string listing = WithExtension(results, "out");
    const COndaraApp& app = workbench.App;
    if (ResolvedPath(results) == ResolvedPath(listing))
    {
        throw CUsageError("--results: the listing is kept as " + listing);
    }
    for (const std::string& file : {results, listing})
    {
        if (ResolvedPath(file) == ResolvedPath(m_file.Path))
        {
            throw CUsageError("--results: " + file + " is the project");
        }
    }
    for (const std::string& name : EngineFileNames(app.Project))
    {
        if (IsEngineFile(results, app.BaseDir, name))
        {
            throw CUsageError("--results: " + results + " is a file of the engine");
        }
    }
}

std::string CRunCommand::ResultsName() const
{
    const bool hasExtension = FileName(m_results).find('.') != std::string::npos;
    return hasExtension ? m_results : WithExtension(m_results, "tv7");
}

bool CRunCommand::Keep(CWorkbench& workbench) const
{
    COndaraApp& app = workbench.App;
    const std::string path = ResultsName();
    workbench.Dialogs.Answer(path);
    const EKept kept = CResultsCommands(app.Project, app, app.Platform).SaveAs();
    if (kept != EKept::Saved && kept != EKept::ListingNotCopied)
    {
        workbench.PlainLine("the results can't be copied to " + path + "; they stand in " + app.BaseDir);
    }
    if (kept == EKept::ListingNotCopied || kept == EKept::NothingCopied)
    {
        workbench.PlainLine("the listing can't be copied to " + WithExtension(path, "out") +
                            "; it stands in " + app.BaseDir);
    }
    return kept == EKept::Saved;
}
