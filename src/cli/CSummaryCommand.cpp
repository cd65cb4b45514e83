#include "cli/CSummaryCommand.h"

#include "core/platform/LocalTime.h"
#include "core/results/report/InputSummary.h"

CSummaryCommand::CSummaryCommand()
    : CCommand(
          "summary", "Write the input summary into the base folder",
          "Writes iview.html, an HTML document of the project: both halves, the environment alone or the "
          "ship alone. Company, client and contract are those of odview.ini in the folder of the "
          "settings. The document isn't opened.")
{
}

void CSummaryCommand::Declare(CArguments& arguments)
{
    arguments.File("FILE.od7", m_file, "Project file to read");
    arguments.Choice("--scope", {"BOTH", "ENV", "GEO"}, m_scope, "Half of the project to show; default BOTH");
}

bool CSummaryCommand::Run(CWorkbench& workbench)
{
    if (!workbench.Load(m_file))
    {
        return false;
    }
    const ESummaryScope scope = m_scope == "ENV"   ? ESummaryScope::Environment
                                : m_scope == "GEO" ? ESummaryScope::Geometry
                                                   : ESummaryScope::Both;
    COndaraApp& app = workbench.App;
    return ShowInputSummary(app.Project, scope, app.BaseDir, LocalTime(std::time(nullptr)), app.Platform,
                            [](const std::string&) {});
}
