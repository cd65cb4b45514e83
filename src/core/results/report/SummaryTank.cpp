#include "core/results/report/CInputSummary.h"

namespace
{
constexpr int kTank = 2; ///< value of FINTANKSTAB

void Line(CInputSummary& summary, const char* caption, const std::string& value)
{
    summary.Page.WriteLine("&nbsp&nbsp %s: &nbsp&nbsp&nbsp %s<BR>", caption, value);
}

void Line(CInputSummary& summary, const char* caption, const char* unit, const CParamArray& field)
{
    summary.Page.WriteLine("&nbsp&nbsp %s (%s): &nbsp&nbsp&nbsp %s<BR>", caption, unit,
                           Marked(field, "%.4f"));
}

void Length(CInputSummary& summary, const char* caption, const CParamArray& field)
{
    Line(summary, caption, LengthUnit(field), field);
}

void TankData(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    Length(summary, "Longitudinal Length", p.TANKLEN);
    Length(summary, "Width of Tank Connecting Duct", p.WDTANK);
    Length(summary, "Bottom Width of Tank Vertical Leg", p.W1TANK);
    Length(summary, "Average Fluid Depth", p.DPTANK);
    Line(summary, "Inclination of Outside Walls", "degrees", p.ALTANK);
    Length(summary, "Height of Tank Connecting Duct", p.HDTANK);
    Length(summary, "Height Above Baseline of Connecting Duct", p.ZTANKBL);
    Line(summary, "Station Number of Tank Centre", summary.Station(p.XSTTANK, "%.2f"));
    Line(summary, "Specific Gravity of Tank Fluid", Marked(p.SGTANK, "%.4f"));
    Line(summary, "Valve Resistance Coeff for Freq >= Break Freq", Marked(p.RESISTBTANK, "%.4f"));
    Line(summary, "Valve Resistance Coeff for Freq = 0", Marked(p.RESIST0TANK, "%.4f"));
    Line(summary, "Break Frequency", "rad/sec", p.BFREQTANK);
}
} // namespace

void AntiRollTank(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    page.OpenFrame();
    page.WriteLine("<U>Roll Stablization Tank Data</U><BR>");
    if (summary.Project.FINTANKSTAB.Integer() == kTank)
    {
        page.WriteLine("<U>Tank Type:</U> U-Tank<BR>");
        page.WriteLine("<U>Tank Data:</U><BR>");
        TankData(summary);
    }
    else
    {
        page.WriteLine("No Anti-roll Tank specified");
        page.WriteLine("<BR>");
    }
    page.CloseFrame();
}
