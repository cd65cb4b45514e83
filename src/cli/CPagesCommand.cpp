#include "cli/CPagesCommand.h"

#include "core/platform/NumberText.h"
#include "core/results/CResultsCursor.h"
#include "core/results/ResultsFile.h"

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
    CMessages& messages = workbench.App.Platform.Messages;
    const auto bytes = ReadResultsFile(m_file);
    if (!bytes)
    {
        messages.MessageBox("The result file could not be read.", "Error In Result File", EIcon::Stop);
        return false;
    }
    try
    {
        const CPageCounts counts = ReadPageCounts(*bytes);
        return workbench.Print(IntegerText(EstimatePages(counts, m_sections.Flags(counts))) + "\n");
    }
    catch (const CResultsError&)
    {
        messages.MessageBox("There is a problem with the results file.", "Unable To Read File", EIcon::Stop);
        return false;
    }
}
