#include "core/results/report/CInputSummary.h"

namespace
{
constexpr int kStationsPerPage = 5;

void StationOffsets(CInputSummary& summary, int station)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    const int first = station * kMaxOffsets;
    const int count = p.NOFFUSER.Count(kMaxOffsets, station);
    const char* unit = LengthUnit(p.YAUSER);
    page.WriteLine("<B>Station Number:</B> %s<BR>", Marked(IntegerText(summary.StationNumber(station))));
    page.WriteLine("&nbsp&nbsp y-offset(%s): &nbsp&nbsp&nbsp", unit);
    summary.List(p.YAUSER, first, count, "%.3f");
    page.WriteLine("&nbsp&nbsp z-elevation(%s):&nbsp&nbsp&nbsp", unit);
    summary.List(p.ZAUSERBL, first, count, "%.3f");
}

void Offsets(CInputSummary& summary)
{
    summary.Page.WriteLine("<BR><U>Hull Geometry Definition Method:</U> &nbsp&nbsp&nbsp <I>Offsets</I><BR>");
    const int stations = summary.Project.NST.Count(kMaxStations);
    for (int station = 0; station < stations; ++station)
    {
        if (station > 0 && station % kStationsPerPage == 0)
        {
            summary.Page.PageBreak();
            ShipHeading(summary, "<BR><BR>");
        }
        StationOffsets(summary, station);
    }
    summary.Page.CloseFrame();
}

void SectionAreas(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    page.WriteLine("<BR><U>Hull Geometry Definition Method</U>: &nbsp&nbsp&nbsp <I>Section Area</I><BR>");
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD> Station </TD><TD> Beam (%s) </TD> <TD> Draft (%s) </TD> <TD> Area "
                   "Coefficient</TD></TR>",
                   LengthUnit(p.BEAM), LengthUnit(p.DRAFT));
    for (int station = 0; station < p.NST.Count(kMaxStations); ++station)
    {
        page.WriteLine("<TR><TD>%s</TD> <TD>%s</TD> <TD>%s</TD> <TD>%s</TD></TR>",
                       Marked(IntegerText(summary.StationNumber(station))), Marked(p.BEAM, "%.3f", station),
                       Marked(p.DRAFT, "%.3f", station), Marked(p.ACOEF, "%.4f", station));
    }
    page.CloseTableAndFrame();
}
} // namespace

void HullDefinition(CInputSummary& summary)
{
    summary.Page.OpenFrame();
    if (summary.Project.HULLDEF.Integer() == 0)
    {
        Offsets(summary);
    }
    else
    {
        SectionAreas(summary);
    }
}
