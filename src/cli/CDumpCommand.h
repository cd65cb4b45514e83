// Writes a project as JSON.
#pragma once

#include "cli/CCommand.h"

class CDumpCommand : public CCommand
{
public:
    CDumpCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::string m_file;
};
