// Writes the output report of a results file.
#pragma once

#include "cli/CCommand.h"
#include "cli/ReportSelection.h"

#include <optional>

class CReportCommand : public CCommand
{
public:
    CReportCommand();

    void Declare(CArguments& arguments) override;
    bool Run(CWorkbench& workbench) override;

private:
    std::optional<CPageCounts> Counts(CMessages& messages) const;
    void Select(CProjectData& project, const CPageCounts& counts) const;

    std::string m_file;
    std::string m_project;
    std::string m_output;
    CSectionOption m_sections;
    CIndexOption m_speeds;
    CIndexOption m_headings;
    CIndexOption m_seaways;
    CIndexOption m_positions;
};
