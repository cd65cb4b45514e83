// Reads a project file, or one half of it over another project, and saves the outcome.
#pragma once

#include "cli/CCommand.h"

class CConvertCommand : public CCommand
{
public:
    CConvertCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_in;
    std::string m_out;
    std::string m_half = "both";
    std::string m_base;
};
