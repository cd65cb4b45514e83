// Prints how many pages the output report of a results file would have.
#pragma once

#include "cli/CCommand.h"
#include "cli/ReportSelection.h"

class CPagesCommand : public CCommand
{
public:
    CPagesCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_file;
    CSectionOption m_sections;
};
