#include "cli/CConvertCommand.h"

CConvertCommand::CConvertCommand()
    : CCommand(
          "convert", "Open a project file, or one half of it, and save it",
          "BASE.od7, if given, is opened whole first; then IN.od7 as the menu command Open Both, Open "
          "Geometry or Open Environment does; then the project is saved as OUT.od7. Files of the previous "
          "generation come out in the current one. Open Environment knows the previous generation only. If "
          "IN.od7 is damaged or no project file, what could be read of it is saved all the same, and the "
          "exit code is 1. If it can't be opened, or BASE.od7 can't be read whole, nothing is saved.")
{
}

void CConvertCommand::Declare(CArguments& arguments)
{
    arguments.File("IN.od7", m_in, "Project file to read");
    arguments.File("OUT.od7", m_out, "Project file to write; the extension becomes .od7");
    arguments.Choice("--half", {"both", "geometry", "environment"}, m_half,
                     "What to read of IN.od7; default both");
    arguments.File("--onto", "BASE.od7", m_base, "Project that takes what is read; default a new one");
}

bool CConvertCommand::Run(CWorkbench& workbench)
{
    if (!m_base.empty() && !workbench.Load(m_base))
    {
        return false;
    }
    workbench.Dialogs.Answer(m_in);
    CInputFile file = workbench.App.InputFile();
    const EOpened opened = m_half == "geometry"      ? file.OpenGeometry()
                           : m_half == "environment" ? file.OpenEnvironment()
                                                     : file.OpenBoth();
    if (opened == EOpened::NotOpened)
    {
        return false;
    }
    return workbench.SaveAs(m_out) && opened == EOpened::Whole;
}
