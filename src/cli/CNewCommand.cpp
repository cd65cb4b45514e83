#include "cli/CNewCommand.h"

CNewCommand::CNewCommand()
    : CCommand("new", "Save a project at its defaults",
               "The project is the one with which the desktop program starts: no value is given that has no "
               "default. A file OUT.od7 that is there already is overwritten.")
{
}

void CNewCommand::Declare(CArguments& arguments)
{
    arguments.File("OUT.od7", m_out, "Project file to write; the extension becomes .od7");
}

bool CNewCommand::Run(CWorkbench& workbench)
{
    return workbench.SaveAs(m_out);
}
