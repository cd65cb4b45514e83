#include "gui/vessel/CSkegDlg.h"

#include "gui/forms/HelpTopics.h"

CSkegDlg::CSkegDlg(CFormContext& context, QWidget* parent)
    : CFormDlg(context, "CSkegDlg", tr("Skeg Geometry"), kHelpSkeg, parent)
{
    CProjectData& project = Project();
    CCheckField& include =
        Check(tr("Include Skeg Information in Calculations"), {"IncludeSkeg", project.IncludeSkeg});
    const auto isIncluded = [&include] { return include.Choice() == 1; };
    const auto lastStation = [&project] { return static_cast<float>(project.NST.Integer() - 1); };

    CNumberField& station =
        Number(tr("Station number of aftmost point where skeg meets hull"), project.XSTAFTSKEG, "%.2f")
            .MirroredByStationOrigin(project)
            .Limits([] { return 0.0F; }, lastStation)
            .RangeTitle("Station number out of Range")
            .Required(EBlankText::IsEmpty, isIncluded);
    CNumberField& breadth = Length(tr("Skeg Breadth"), project.BSKEG, "%.3f")
                                .RangeTitle("Skeg breadth out of Range")
                                .Required(EBlankText::IsEmpty, isIncluded);
    CNumberField& length = Length(tr("Skeg Length"), project.ELSKEG, "%.3f")
                               .RangeTitle("Skeg length out of Range")
                               .Required(EBlankText::IsEmpty, isIncluded);
    include.Enables(1, {&station, &breadth, &length});
    CompletenessFlag(project.SkegComplete);
    m_include = &include;
}

void CSkegDlg::StoreFields()
{
    CFormDlg::StoreFields();
    if (m_include->Choice() == 1)
    {
        Project().AppendedHull = 1; // stays when the box is cleared again
    }
}
