// Saves a project at its defaults.
#pragma once

#include "cli/CCommand.h"

class CNewCommand : public CCommand
{
public:
    CNewCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_out;
};
