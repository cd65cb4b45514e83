// Writes the engine's reduced input of a waterline pre-run.
#pragma once

#include "cli/CCommand.h"

class CWaterlineInputCommand : public CCommand
{
public:
    CWaterlineInputCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_file;
};
