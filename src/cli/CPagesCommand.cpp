#include "cli/CPagesCommand.h"

#include "core/platform/NumberText.h"

CPagesCommand::CPagesCommand()
    : CCommand("pages", "Print the page estimate of an output report",
               "The estimate is the one that the desktop program shows when sections are chosen: a number. A "
               "section that the results file doesn't offer counts nothing.")
{
}

void CPagesCommand::Declare(CArguments& arguments)
{
    arguments.File("RESULTS.tv7", m_file, "Results file to read");
    m_sections.Declare(arguments);
}

bool CPagesCommand::Run(CWorkbench& workbench)
{
    const auto counts = LoadPageCounts(m_file, workbench.App.Platform.Messages);
    return counts && workbench.Print(IntegerText(EstimatePages(*counts, m_sections.Flags(*counts))) + "\n");
}
