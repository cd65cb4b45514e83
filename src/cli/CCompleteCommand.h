// Completes the results that an engine has left.
#pragma once

#include "cli/CCommand.h"

class CCompleteCommand : public CCommand
{
public:
    CCompleteCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    CGivenFile m_file;
    std::string m_out;
};
