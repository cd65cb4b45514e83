#include "cli/CCheckCommand.h"

#include "cli/CEngineWait.h"
#include "core/engine/COffsetChecks.h"
#include "core/engine/CRunController.h"

#include <csignal>

CCheckCommand::CCheckCommand()
    : CCommand(
          "check", "Check a hull's offsets",
          "Looks for points in succession on the centreline at the keel, for rows in the wrong order, for "
          "long segments, for stations of few points and for points below the baseline: the menu command "
          "Check Offsets. A ship that is loaded by displacement has her waterline calculated first, by "
          "the engine in the base folder as for the command run. The results of the last run stay in "
          "ondara7.bin, and are kept in Ondara7Orig.bin too; Ondara7.inp and the engine's listing and log "
          "are then those of this calculation. Nothing is mended in the file. The exit code is 0 for "
          "offsets that are satisfactory, 1 for others; 130 after Ctrl+C, 131 after Ctrl+\\, 143 after a "
          "request to terminate.")
{
}

void CCheckCommand::Declare(CArguments& arguments)
{
    arguments.File("FILE.od7", m_file, "Project file to read");
}

bool CCheckCommand::Run(CWorkbench& workbench)
{
    COndaraApp& app = workbench.App;
    if (!workbench.Load(m_file))
    {
        return false;
    }
    // From here on nothing ends the command before the results of the last run stand again in their place.
    std::signal(SIGPIPE, SIG_IGN);
    CEngineWait wait(workbench.Progress, kRunTimerPeriod);
    const auto waitForEngine = [&]
    {
        workbench.Progress.Begin("Waterline being calculated.  ");
        while (app.Platform.Programs.IsRunning() && wait.Signal() == 0)
        {
            wait.Sleep();
        }
        workbench.Progress.End();
        if (wait.Signal() != 0)
        {
            app.Platform.Programs.EndPrograms();
            workbench.PlainLine("interrupted; the engine was ended");
        }
        return wait.Signal() == 0;
    };
    const bool satisfactory = COffsetChecks(app.Project, app.BaseDir, app.Platform, waitForEngine).Run();
    m_signal = wait.Signal();
    return satisfactory && m_signal == 0;
}

int CCheckCommand::FailureCode() const
{
    return m_signal == 0 ? CCommand::FailureCode() : kSignalBase + m_signal;
}
