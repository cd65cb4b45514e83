#include "cli/CDumpCommand.h"

#include "cli/ProjectJson.h"

CDumpCommand::CDumpCommand()
    : CCommand("dump", "Print a whole project as JSON",
               "The object \"keywords\" holds each keyword field with its unit flag (0 metric, 1 British), "
               "its half of the project (0 both, 1 environment, 2 geometry), its limits, its mark of change "
               "and its values; \"fields\" all other fields; \"complete\" the completeness flags of the "
               "sections. Numbers are the shortest that read back to the same 32-bit float; a value that is "
               "no finite number is null. Bytes over 127 of a text that isn't UTF-8 stand as U+0080 to "
               "U+00FF. Of a damaged file, what could be read is printed, and the exit code is 1.")
{
}

void CDumpCommand::Declare(CArguments& arguments)
{
    arguments.File("FILE.od7", m_file, "Project file to read");
}

bool CDumpCommand::Run(CWorkbench& workbench)
{
    const EOpened opened = workbench.Open(m_file);
    if (opened == EOpened::NotOpened)
    {
        return false;
    }
    return workbench.Print(ProjectJson(workbench.App.Project)) && opened == EOpened::Whole;
}
