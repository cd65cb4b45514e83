// Saves the project that a results file carries.
#pragma once

#include "cli/CCommand.h"

class CRestoreCommand : public CCommand
{
public:
    CRestoreCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_results;
    std::string m_out;
};
