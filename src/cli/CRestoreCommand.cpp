#include "cli/CRestoreCommand.h"

#include "core/results/CResultFile.h"

CRestoreCommand::CRestoreCommand()
    : CCommand("restore", "Save the project that a results file carries",
               "Results files of earlier versions are read too. Texts come back up to their first blank. A "
               "file that can't be read saves nothing.")
{
}

void CRestoreCommand::Declare(CArguments& arguments)
{
    arguments.File("RESULTS.tv7", m_results, "Results file to read");
    arguments.File("OUT.od7", m_out, "Project file to write; the extension becomes .od7");
}

bool CRestoreCommand::Run(CWorkbench& workbench)
{
    COndaraApp& app = workbench.App;
    return CResultFile(app.Project, app.BaseDir, app.Platform).RestoreProject(m_results) &&
           workbench.SaveAs(m_out);
}
