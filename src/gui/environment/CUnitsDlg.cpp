#include "gui/environment/CUnitsDlg.h"

#include "core/project/UnitConversion.h"
#include "gui/forms/HelpTopics.h"

CUnitsDlg::CUnitsDlg(CFormContext& context, QWidget* parent)
    : CFormDlg(context, "CUnitsDlg", tr("Units / Water Density"), kHelpUnits, parent)
{
    CProjectData& project = Project();
    m_input = &Options(tr("Input"), project.INSYS);
    m_input->Button(0, tr("British Units")).Button(1, tr("Metric Units"));
    EndGroup();
    m_output = &Options(tr("Output"), project.OUTSYS);
    m_output->Button(0, tr("British Units")).Button(1, tr("Metric Units"));
    EndGroup();
    m_water = &Options(tr("Water Density"), project.WATERDEN);
    m_water->Button(0, tr("Salt Water")).Button(1, tr("Fresh Water"));
    EndGroup();
    // At once and for good: Cancel doesn't take it back. Also on the choice that is on already, so that a
    // project of mixed units becomes uniform.
    m_input->Clicked([&project](int system)
                     { ConvertProject(project, system == 0 ? kUnitBritish : kUnitMetric); });
}

void CUnitsDlg::StoreFields()
{
    // Other than in any other form the project doesn't count as modified.
    StoreUnitChoices(Project(), m_input->Choice(), m_output->Choice(), m_water->Choice());
}
