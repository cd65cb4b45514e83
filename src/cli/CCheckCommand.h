// ondara-cli check: looks at the hull's offsets for what would spoil the calculation.
#pragma once

#include "cli/CCommand.h"

#include <string>

class CCheckCommand : public CCommand
{
public:
    CCheckCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;
    int FailureCode() const override;

private:
    std::string m_file;
    int m_signal = 0; ///< that came meanwhile
};
