#include "cli/CReportCommand.h"

#include "core/platform/Files.h"
#include "core/results/CResultsCursor.h"
#include "core/results/ResultsErrors.h"
#include "core/results/ResultsFile.h"

CReportCommand::CReportCommand()
    : CCommand("report", "Write the output report of a results file",
               "The report is oview.html in the base folder, or the file that --output names. The project at "
               "hand tells from which end stations are numbered: FILE.od7, or without it a project at its "
               "defaults that numbers them as the run did. A section that the results file doesn't offer is "
               "left out. An index that it doesn't have is wrong usage.")
{
}

void CReportCommand::Declare(CArguments& arguments)
{
    arguments.File("RESULTS.tv7", m_file, "Results file to read");
    arguments.File("--project", "FILE.od7", m_project, "Project at hand");
    m_sections.Declare(arguments);
    m_speeds.Declare(arguments, "--speeds", "ship speeds");
    m_headings.Declare(arguments, "--headings", "headings");
    m_seaways.Declare(arguments, "--seaways", "seaways");
    m_positions.Declare(arguments, "--positions", "load positions");
    arguments.File("--output", "FILE", m_output, "Document to write; default oview.html in the base folder");
}

bool CReportCommand::Run(CWorkbench& workbench)
{
    COndaraApp& app = workbench.App;
    if (!m_project.empty() && !workbench.Load(m_project))
    {
        return false;
    }
    const auto counts = Counts(app.Platform.Messages);
    if (!counts)
    {
        return false;
    }
    Select(app.Project, *counts);
    const std::string output = m_output.empty() ? JoinPath(app.BaseDir, kOutputReportName) : m_output;
    return CReportWriter(app.Project, app.Platform, output).Write(m_sections.Flags(*counts));
}

/// Nothing, and a message, for a file that can't be read.
std::optional<CPageCounts> CReportCommand::Counts(CMessages& messages) const
{
    const auto bytes = ReadResultsFile(m_file);
    if (!bytes)
    {
        ShowResultsNotOpened(messages);
        return std::nullopt;
    }
    try
    {
        return ReadReportCounts(*bytes);
    }
    catch (const CResultsError&)
    {
        ShowResultsDamaged(messages);
        return std::nullopt;
    }
}

void CReportCommand::Select(CProjectData& project, const CPageCounts& counts) const
{
    project.ResultsFilePath = m_file;
    if (m_project.empty())
    {
        project.StationOrigin = counts.StationNumbering;
    }
    project.SelectedSpeeds = m_speeds.Selection(counts.SpeedCount);
    project.SelectedHeadings = m_headings.Selection(static_cast<int>(counts.Headings.size()));
    project.SelectedSeaways = m_seaways.Selection(counts.SeawayCount);
    project.SelectedPositions = m_positions.Selection(counts.LoadStationCount);
}
