#include "cli/CWaterlineInputCommand.h"

#include "core/engine/CEngineInputWriter.h"

CWaterlineInputCommand::CWaterlineInputCommand()
    : CCommand("waterline-input", "Write the engine's input of a waterline pre-run into the base folder",
               "Writes the reduced Ondara7.inp from which the engine finds draft and trim of a ship that is "
               "loaded by displacement. A project whose draft is given needs no such run: nothing is "
               "written, and the exit code is 0.")
{
}

void CWaterlineInputCommand::Declare(CArguments& arguments)
{
    arguments.File("FILE.od7", m_file, "Project file to read");
}

bool CWaterlineInputCommand::Run(CWorkbench& workbench)
{
    COndaraApp& app = workbench.App;
    if (!workbench.Load(m_file))
    {
        return false;
    }
    return !NeedsWaterlinePreRun(app.Project) ||
           CEngineInputWriter(app.Project, app.BaseDir, app.Platform).WriteReduced();
}
