#include "core/results/report/CInputSummary.h"

namespace
{
/// The stations of the sea loads: those that were typed, else all.
std::string LoadStations(const CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    const bool typed = p.LoadStationsUserInput != 0;
    const int count = typed ? p.NSTLOAD.Count(kMaxStations) : p.NST.Count(kMaxStations);
    std::string stations;
    for (int k = 0; k < count; ++k)
    {
        const float station = typed ? p.XSTLOAD.Value(k) : static_cast<float>(k);
        stations += (k == 0 ? "" : " &nbsp&nbsp") + summary.StationText(station, "%.2f");
    }
    return stations;
}

void MassRow(CInputSummary& summary, const std::string& place, const CParamArray& mass,
             const CParamArray& centre, const CParamArray& radius, int k = 0)
{
    summary.Page.WriteLine("<TR> <TD>%s</TD> <TD>%s</TD> <TD>%s</TD> <TD>%s</TD> </TR>", place,
                           Marked(mass, "%.2f", k), Marked(centre, "%.2f", k), Marked(radius, "%.2f", k));
}

void MassDistribution(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    page.OpenFrame();
    page.WriteLine("<U>Vessel Weight/Mass Distribution:</U><BR>");
    page.WriteLine("<I>%s</I><BR>", p.KgUserInput == 0 && p.KxxiUserInput == 0 ? "Default" : "User Input");
    page.WriteLine(kDataTable);
    page.WriteLine(
        "<TR> <TD>Station</TD> <TD>Section Weight (%s)</TD> <TD>Section CG (%s)</TD> <TD>Section RRG "
        "(%s) (%s)</TD></TR>",
        MassUnit(p.SECTTN), LengthUnit(p.SECTKG), LengthUnit(p.SECTRRG), "Kxxi");
    for (int k = 0; k < p.NST.Count(kMaxStations); ++k)
    {
        MassRow(summary, Marked(IntegerText(summary.StationNumber(k))), p.SECTTN, p.SECTKG, p.SECTRRG, k);
    }
    MassRow(summary, "Bow Overhang", p.BOWTN, p.BOWKG, p.BOWRRG);
    MassRow(summary, "Stern Overhang", p.STERNTN, p.STERNKG, p.STERNRRG);
    page.CloseTableAndFrame();
}
} // namespace

void SeaLoads(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    const bool loads = p.LOADFLAG.Integer() != 1;
    page.OpenFrame();
    page.WriteLine("<U>Sea Loads Calculation Positions:</U><BR>");
    page.WriteLine("<U>Number of Load Calculation positions:</U> &nbsp&nbsp&nbsp <I>%s</I><BR>",
                   loads ? GivenText(p.NSTLOAD.Value(), "%.0f") : "0");
    if (loads)
    {
        page.WriteLine("&nbsp&nbsp&nbsp <I>%s</I><BR>", LoadStations(summary));
    }
    page.CloseFrame();
    if (loads)
    {
        MassDistribution(summary);
    }
}
