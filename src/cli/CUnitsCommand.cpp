#include "cli/CUnitsCommand.h"

#include "core/project/UnitConversion.h"

namespace
{
// The choice of a system of units runs against the unit flag of a value.
constexpr int kBritishSystem = 0;
constexpr int kMetricSystem = 1;
} // namespace

CUnitsCommand::CUnitsCommand()
    : CCommand(
          "units", "Convert a project to one system of units",
          "What the form Units / Water Density does when the other input units are chosen: each length and "
          "mass that is held in the other system is converted. Units of output and water density stay.")
{
}

void CUnitsCommand::Declare(CArguments& arguments)
{
    arguments.File("FILE.od7", m_file, "Project file to read");
    arguments.File("OUT.od7", m_out, "Project file to write; the extension becomes .od7");
    arguments.Choice("--to", {"british", "metric"}, m_system, "System of units", EGiven::Always);
}

bool CUnitsCommand::Run(CWorkbench& workbench)
{
    if (!workbench.Load(m_file))
    {
        return false;
    }
    CProjectData& project = workbench.App.Project;
    const bool british = m_system == "british";
    ConvertProject(project, british ? kUnitBritish : kUnitMetric);
    StoreUnitChoices(project, british ? kBritishSystem : kMetricSystem, project.OUTSYS.Integer(),
                     project.WATERDEN.Integer());
    return workbench.SaveAs(m_out);
}
