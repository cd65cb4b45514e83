#include "core/results/report/CInputSummary.h"

namespace
{
// Values of ROLLRGDEF.
constexpr int kRollFrequency = 0;
constexpr int kDryRollRadius = 1;
constexpr int kWetRollRadius = 2;

/// The metacentric height and its unit; a computed one has none.
void MetacentricHeight(CInputSummary& summary)
{
    const CParamArray& height = summary.Project.GMUSER;
    const CParamArray& option = summary.Project.GMFLAG;
    const bool given = option.Integer() == 1;
    const std::string text = given ? GivenText(height.Value(), "%.2f") : "Computed";
    summary.Page.WriteLine("&nbsp&nbsp Metacentric Height, GM: &nbsp&nbsp&nbsp %s %s<BR><BR>",
                           Marked(text, height.changed | option.changed), given ? LengthUnit(height) : "");
}

/// A quantity of the roll motion: only the one that is chosen has a value.
std::string RollValue(const CProjectData& p, const CParamArray& field, int option)
{
    if (p.ROLLRGDEF.Integer() != option)
    {
        return "<I>N/A</I>";
    }
    return Marked(GivenText(field.Value(), "%.2f"), field.changed | p.ROLLRGDEF.changed);
}

void DynamicResponse(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    page.WriteLine("<U>Dynamic Response Parameters:</U><BR>");
    page.WriteLine("&nbsp&nbsp Dry Pitch Radius of Gyration (%s): &nbsp&nbsp&nbsp %s<BR>",
                   LengthUnit(p.PITCHRG), Marked(p.PITCHRG, "%.3f"));
    page.WriteLine("&nbsp&nbsp Roll Natural Frequency (rad/s): &nbsp&nbsp&nbsp %s<BR>",
                   RollValue(p, p.ROLLNF, kRollFrequency));
    page.WriteLine("&nbsp&nbsp Dry Roll Radius of Gyration (%s): &nbsp&nbsp&nbsp %s<BR>",
                   LengthUnit(p.ROLLRG), RollValue(p, p.ROLLRG, kDryRollRadius));
    page.WriteLine("&nbsp&nbsp Wet Roll Radius of Gyration (%s): &nbsp&nbsp&nbsp %s<BR>",
                   LengthUnit(p.WETROLLRG), RollValue(p, p.WETROLLRG, kWetRollRadius));
}

void ShipParticulars(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    page.OpenFrame();
    page.WriteLine("<BR><U>Ship Particulars</U><BR>");
    page.WriteLine("<U>Ship Principal Particulars:</U><BR>");
    page.WriteLine("&nbsp&nbsp Length between Perpendiculars, LBP: &nbsp&nbsp&nbsp %s %s <BR>",
                   Marked(p.SHIPLEN, "%.2f"), LengthUnit(p.SHIPLEN));
    page.WriteLine("&nbsp&nbsp Height of Center of Gravity from Baseline, KG: &nbsp&nbsp&nbsp %s %s <BR>",
                   Marked(p.KG, "%.2f"), LengthUnit(p.KG));
    MetacentricHeight(summary);
    DynamicResponse(summary);
    page.CloseFrame();
}

void HullGeometry(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    page.OpenFrame();
    page.WriteLine("<U>Hull Geometry</U><BR>");
    if (p.TRIMDEF.Integer() == 0)
    {
        page.WriteLine("<U>Draft at Midships:</U> &nbsp&nbsp&nbsp %s %s<BR>", Marked(p.DRAFTMID, "%.3f"),
                       LengthUnit(p.DRAFTMID));
        page.WriteLine("<U>Trim by the stern relative to bow:</U> &nbsp&nbsp&nbsp %s %s<BR>",
                       Marked(p.TRIMST, "%.3f"), LengthUnit(p.TRIMST));
    }
    else
    {
        page.WriteLine("<U>Design Displacement:</U> &nbsp&nbsp&nbsp %s %s<BR>", Marked(p.DISPUSER, "%.3f"),
                       MassUnit(p.DISPUSER));
        page.WriteLine("<U>Longitudinal Center of Buoyancy:</U> &nbsp&nbsp&nbsp %s %s<BR>",
                       Marked(p.LCGPUSER, "%.3f"), LengthUnit(p.LCGPUSER));
        page.WriteLine("(LCB, from fwd stn)<BR>");
    }
    page.WriteLine("<U>Number of Stations:</U> &nbsp&nbsp&nbsp %s<BR>", Marked(p.NST, "%.0f"));
    page.CloseFrame();
}
} // namespace

void ShipHeading(CInputSummary& summary, std::string_view lineEnd)
{
    summary.Page.WriteLine(
        "<B><CENTER>SHIP DATA SPECIFICATION</B></CENTER><BR>  -  <I>%s</I>   -   <I>%s</I>%s",
        summary.Project.ActiveGeometryFile, summary.Project.ProjectTitle, lineEnd);
}

void ShipSpecification(CInputSummary& summary)
{
    summary.Page.WriteLine(R"(<a NAME="Geo"></a>)");
    ShipHeading(summary, "<BR>");
    ShipParticulars(summary);
    HullGeometry(summary);
    HullDefinition(summary);
    SeakeepingPositions(summary);
    MotionInputs(summary);
    Appendages(summary);
    ControlSystems(summary);
    AntiRollTank(summary);
    SeaLoads(summary);
    summary.Page.ContentsLink();
}
