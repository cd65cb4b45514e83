#include "cli/CImportOffsetsCommand.h"

CImportOffsetsCommand::CImportOffsetsCommand()
    : CCommand("import-offsets", "Import hull offsets into a project",
               "The stations and offsets of a comma-separated text file take the place of those of the "
               "project. A file with a fault is not imported, and nothing is saved.")
{
}

void CImportOffsetsCommand::Declare(CArguments& arguments)
{
    arguments.File("FILE.csv", m_offsets, "Offset file to read");
    arguments.File("OUT.od7", m_out, "Project file to write; the extension becomes .od7");
    arguments.File("--onto", "BASE.od7", m_base, "Project that takes the offsets", EGiven::Always);
}

bool CImportOffsetsCommand::Run(CWorkbench& workbench)
{
    if (!workbench.Load(m_base))
    {
        return false;
    }
    workbench.Dialogs.Answer(m_offsets);
    return workbench.App.InputFile().ImportOffsets() == 1 && workbench.SaveAs(m_out);
}
