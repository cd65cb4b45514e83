// Writes the engine's input.
#pragma once

#include "cli/CCommand.h"

class CEngineInputCommand : public CCommand
{
public:
    CEngineInputCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_file;
};
