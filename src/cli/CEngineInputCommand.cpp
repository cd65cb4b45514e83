#include "cli/CEngineInputCommand.h"

#include "core/engine/CEngineInputWriter.h"
#include "core/engine/GainFiles.h"

CEngineInputCommand::CEngineInputCommand()
    : CCommand("engine-input", "Write the engine's input into the base folder",
               "Writes Ondara7.inp, and copies the gain files of rudder and fins that the project uses. "
               "Tells of each value that the engine needs and the project lacks; the exit code is then 1 and "
               "the file cut short. A missing gain file is told of before anything is written.")
{
}

void CEngineInputCommand::Declare(CArguments& arguments)
{
    arguments.File("FILE.od7", m_file, "Project file to read");
}

bool CEngineInputCommand::Run(CWorkbench& workbench)
{
    COndaraApp& app = workbench.App;
    return workbench.Load(m_file) && GainFilesExist(app.Project, app.BaseDir, app.Platform.Messages) &&
           CEngineInputWriter(app.Project, app.BaseDir, app.Platform).Write();
}
