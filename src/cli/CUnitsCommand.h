// Converts a project to one system of units.
#pragma once

#include "cli/CCommand.h"

class CUnitsCommand : public CCommand
{
public:
    CUnitsCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_file;
    std::string m_system;
    std::string m_out;
};
