#include "core/results/report/CInputSummary.h"

#include <algorithm>

namespace
{
/// The segments of a pair: one for each of its stations, as the engine counts them.
int SegmentCount(const CProjectData& p, int pair)
{
    const long long last = p.ILASTBK.Integer(pair);
    return static_cast<int>(std::clamp<long long>(last - p.IFIRSTBK.Integer(pair) + 1, 0, kMaxBilgeKeelRows));
}

void BilgeKeels(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    const int pairs = p.NBKPAIR.Count(kMaxBilgeKeelPairs);
    if (!summary.Included(p.IncludeBilgeKeels) || pairs == 0)
    {
        page.WriteLine("<B>No Bilge Keels Specified</B><BR>");
        return;
    }
    page.OpenFrame();
    page.WriteLine("<U>Bilge Keel Definition</U><BR>");
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD> Pair </TD><TD> Station Fore </TD><TD> Station Aft </TD><TD> Transverse (%s) "
                   "</TD><TD> Vertical (%s) </TD><TD> Breadth (%s) </TD></TR>",
                   LengthUnit(p.YBK), LengthUnit(p.ZBKBL), LengthUnit(p.BBK));
    for (int pair = 0; pair < pairs; ++pair)
    {
        for (int row = 0; row < SegmentCount(p, pair); ++row)
        {
            const int k = pair * kMaxBilgeKeelRows + row;
            summary.Row(IntegerText(pair + 1),
                        {summary.Station(p.XSTBKFORE, "%.2f", k), summary.Station(p.XSTBKAFT, "%.2f", k),
                         Marked(p.YBK, "%.3f", k), Marked(p.ZBKBL, "%.3f", k), Marked(p.BBK, "%.3f", k)});
        }
    }
    page.CloseTableAndFrame();
}

void Skeg(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    if (!summary.Included(p.IncludeSkeg))
    {
        page.WriteLine("<B>No Skeg Specified</B><BR>");
        return;
    }
    page.OpenFrame();
    page.WriteLine("<U>Skeg Data</U><BR>");
    page.WriteLine("&nbsp&nbsp Station Number of Aftmost Point : &nbsp&nbsp&nbsp %s<BR>",
                   summary.Station(p.XSTAFTSKEG, "%.2f"));
    page.WriteLine("&nbsp&nbsp Skeg Breadth (%s) : &nbsp&nbsp&nbsp %s<BR>", LengthUnit(p.BSKEG),
                   Marked(p.BSKEG, "%.3f"));
    page.WriteLine("&nbsp&nbsp Skeg Length (%s) : &nbsp&nbsp&nbsp %s<BR>", LengthUnit(p.ELSKEG),
                   Marked(p.ELSKEG, "%.3f"));
    page.CloseFrame();
}

/// The lifting surfaces of one kind.
struct CSurfaces
{
    const CParamArray& Station;
    const CParamArray& Y;
    const CParamArray& Z;
    const CParamArray& Span;
    const CParamArray& RootChord;
    const CParamArray& TipChord;
    const CParamArray& LiftSlope;
};

void SurfaceRow(CInputSummary& summary, const CSurfaces& surfaces, int k, const std::string& dihedral)
{
    summary.Page.WriteLine("<TR><TD>%s</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD>"
                           "<TD>%s</TD></TR>",
                           summary.Station(surfaces.Station, "%.3f", k), Marked(surfaces.Y, "%.3f", k),
                           Marked(surfaces.Z, "%.3f", k), Marked(surfaces.Span, "%.3f", k),
                           Marked(surfaces.RootChord, "%.3f", k), Marked(surfaces.TipChord, "%.3f", k),
                           Marked(surfaces.LiftSlope, "%.3f", k), dihedral);
}

void SurfaceRows(CInputSummary& summary, const CSurfaces& surfaces, int count, const CParamArray& dihedral)
{
    for (int k = 0; k < count; ++k)
    {
        SurfaceRow(summary, surfaces, k, Marked(dihedral, "%.3f", k, kAngleNotGiven));
    }
}

void Rudder(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    if (!summary.HasRudder())
    {
        summary.Page.WriteLine(R"(<TR><TD colspan="8"> <I>No Rudder Data Specified</I></TD></TR>)");
        return;
    }
    summary.Page.WriteLine(R"(<TR><TD colspan="8"> <B>System:</B> Rudder</TD></TR>)");
    SurfaceRow(summary, {p.XSTRUD, p.YRTRUD, p.ZRTRUDBL, p.SPANRUD, p.RCRUD, p.TCRUD, p.CLA0RUD}, 0,
               Marked(p.RudderDihedral, "%.3f", kAngleNotGiven));
}

void RollFins(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    if (!summary.HasFins())
    {
        summary.Page.WriteLine(
            R"(<TR><TD colspan="8"> <I> &nbsp&nbsp&nbsp No Roll Fin Data Specified</I></TD></TR>)");
        return;
    }
    summary.Page.WriteLine(R"(<TR><TD colspan="8"> <B>System:</B> Roll Fin</TD></TR>)");
    SurfaceRows(summary, {p.XSTFIN, p.YRTFIN, p.ZFINBL, p.SPANFIN, p.RCFIN, p.TCFIN, p.CLA0FIN},
                p.NFINPAIR.Count(kMaxFinPairs), p.DIFIN);
}

void ShaftBrackets(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    const int pairs = p.NFOILPAIR.Count(kMaxFoilPairs);
    if (!summary.Included(p.IncludeFoils) || pairs == 0)
    {
        summary.Page.WriteLine(R"(<TR><TD colspan="8"> <I>No Shaft Bracket Data Specified</I></TD></TR>)");
        return;
    }
    summary.Page.WriteLine(R"(<TR><TD colspan="8"> <B>System:</B> Shaft Bracket</TD></TR>)");
    SurfaceRows(summary, {p.XSTFOIL, p.YRTFOIL, p.ZRTFOILBL, p.SPANFOIL, p.RCFOIL, p.TCFOIL, p.CLA0FOIL},
                pairs, p.DIFOIL);
}
} // namespace

void Appendages(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    page.WriteLine("<B>Appendage and Auxiliary System Definition:</B><BR><BR>");
    BilgeKeels(summary);
    Skeg(summary);
    page.OpenFrame();
    page.WriteLine("<U>Control Surface Definition - Rudders/Roll Fins/Shaft Brackets</U><BR>");
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD>X</TD><TD>Y</TD><TD>Z</TD><TD>Span</TD><TD>Root Chord</TD><TD>Tip "
                   "Chord</TD><TD>CLA0</TD><TD>Dihedral</TD></TR>");
    Rudder(summary);
    RollFins(summary);
    ShaftBrackets(summary);
    page.CloseTableAndFrame();
}
