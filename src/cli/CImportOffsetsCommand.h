// Imports hull offsets into a project.
#pragma once

#include "cli/CCommand.h"

class CImportOffsetsCommand : public CCommand
{
public:
    CImportOffsetsCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_offsets;
    std::string m_base;
    std::string m_out;
};
