// Writes the input summary.
#pragma once

#include "cli/CCommand.h"

class CSummaryCommand : public CCommand
{
public:
    CSummaryCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_file;
    std::string m_scope = "BOTH";
};
