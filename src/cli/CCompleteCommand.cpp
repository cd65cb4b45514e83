#include "cli/CCompleteCommand.h"

#include "core/engine/CRunController.h"
#include "core/platform/Files.h"
#include "core/results/CResultFile.h"

CCompleteCommand::CCompleteCommand()
    : CCommand("complete", "Complete the results that the engine has left in the base folder",
               "Turns ondara7.bin, as an engine leaves it at the end of a good run, into a results file: "
               "appends the input of FILE.od7 and the values that are taken from the listing ondara7.out. "
               "This can be done once; a file without the engine's end mark stays as it is. With --save, "
               "after a success, the project is saved as completion leaves it. Nothing is said on success.")
{
}

void CCompleteCommand::Declare(CArguments& arguments)
{
    arguments.File("FILE.od7", m_file, "Project file to read, that of the run");
    arguments.File("--save", "OUT.od7", m_out, "Project file to write; the extension becomes .od7");
}

bool CCompleteCommand::Run(CWorkbench& workbench)
{
    COndaraApp& app = workbench.App;
    if (!workbench.Load(m_file))
    {
        return false;
    }
    const std::string path = JoinPath(app.BaseDir, kResultsFileName);
    if (!CResultFile::EndsWithMarker(path))
    {
        ShowRunFailure(app.Platform.Messages);
        return false;
    }
    CResultFile(app.Project, app.BaseDir, app.Platform).Complete(path);
    return app.Project.ResultsLoaded == 1 && (m_out.empty() || workbench.SaveAs(m_out));
}
