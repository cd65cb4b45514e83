// Runs the whole calculation of a project.
#pragma once

#include "cli/CCommand.h"

class CRunCommand : public CCommand
{
public:
    CRunCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;
    /// 128 and the signal's number after an interruption, as a shell gives it.
    int FailureCode() const override;

private:
    bool Calculate(CWorkbench& workbench);
    bool Keep(CWorkbench& workbench) const;
    /// A usage error for a name under which the results would cost another file of the run, or be lost.
    void CheckResultsName(const CWorkbench& workbench) const;
    /// Where the results are kept, with their extension.
    std::string ResultsName() const;

    CGivenFile m_file;
    std::string m_results;
    int m_signal = 0; ///< that interrupted the run
};
