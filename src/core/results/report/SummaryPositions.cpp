#include "core/results/report/CInputSummary.h"

namespace
{
// Values of RELMOCALC.
constexpr int kFormFactor = 1;
constexpr int kOffsets = 2;
constexpr int kWedge = 3;

const char* SlammingMethod(int kind)
{
    switch (kind)
    {
    case kFormFactor:
        return "Form Factor";
    case kOffsets:
        return "1/10 Offsets";
    case kWedge:
        return "Wedge";
    default:
        return kNotAvailable;
    }
}

void PositionTable(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    page.OpenFrame();
    page.WriteLine("Duration of Operation/Observation:&nbsp&nbsp&nbsp %s hours<BR>",
                   Marked(p.SLAMHOUR, "%.2f"));
    page.WriteLine("Slamming Exceedance Parameter:&nbsp&nbsp&nbsp %s<BR>", Marked(p.SLAMEX, "%.4f"));
    page.WriteLine("<U>Seakeeping Calculation Positions:</U><BR>");
    page.WriteLine(kDataTable);
    page.WriteLine(
        "<TR><TD> Description </TD><TD> Station </TD><TD> Y (%s) </TD><TD> Z wrt BL (%s) </TD><TD> "
        "Deck Height (%s) </TD></TR>",
        LengthUnit(p.YPOS), LengthUnit(p.ZPOSBL), LengthUnit(p.DECKHBL));
    for (int k = 0; k < p.NPOS.Count(kMaxPositions); ++k)
    {
        summary.Row(p.PositionLabel[static_cast<std::size_t>(k)],
                    {summary.Station(p.XSTPOS, "%.4f", k), Marked(p.YPOS, "%.4f", k),
                     Marked(p.ZPOSBL, "%.4f", k), Marked(p.DECKHBL, "%.4f", k)});
    }
    page.CloseTableAndFrame();
}

void SlammingOffsets(CInputSummary& summary, int position)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    const int first = position * kMaxSlamOffsets;
    const int count = p.NSLOFF.Count(kMaxSlamOffsets, position);
    page.WriteLine("Number of offsets: &nbsp&nbsp&nbsp %s<BR>", Marked(p.NSLOFF, "%.0f", position));
    page.WriteLine("y-offset : &nbsp&nbsp&nbsp");
    summary.List(p.YSLOFFBL, first, count, "%.4f");
    page.WriteLine("z-offset : &nbsp&nbsp&nbsp");
    summary.List(p.ZSLOFFBL, first, count, "%.4f");
}

void SlammingData(CInputSummary& summary, int position)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    const int kind = p.RELMOCALC.Integer(position);
    const CMarks marks = MarkValue(p.XSTPOS.changed);
    page.WriteLine("Station Number:%s %s%s", marks.Open,
                   summary.StationText(p.XSTPOS.Value(position), "%.4f"), marks.Close);
    page.WriteLine("&nbsp&nbsp&nbsp Method:&nbsp&nbsp&nbsp <I>%s</I><BR>", SlammingMethod(kind));
    if (kind == kFormFactor)
    {
        page.WriteLine("&nbsp&nbsp&nbsp Slamming Form Factor:&nbsp&nbsp&nbsp %s<BR>",
                       Marked(p.SLFORM, "%.4f", position));
        page.WriteLine("&nbsp&nbsp&nbsp Slamming Force Width (%s):&nbsp&nbsp&nbsp %s<BR>",
                       LengthUnit(p.SLWIDTH), Marked(p.SLWIDTH, "%.4f", position));
    }
    else if (kind == kOffsets)
    {
        SlammingOffsets(summary, position);
    }
    else if (kind == kWedge)
    {
        page.WriteLine("&nbsp&nbsp&nbsp Deadrise (degrees): &nbsp&nbsp&nbsp %s<BR>",
                       Marked(p.DEADR, "%.4f", position));
        page.WriteLine("&nbsp&nbsp&nbsp Slamming Pressure Height: &nbsp&nbsp&nbsp %s<BR>",
                       Marked(p.SLHEIGHT, "%.4f", position));
    }
}
} // namespace

void SeakeepingPositions(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const int positions = summary.Project.NPOS.Count(kMaxPositions);
    page.WriteLine("<B>Local Seakeeping Parameters: </B><BR>");
    if (positions == 0)
    {
        page.WriteLine("&nbsp&nbsp&nbsp No seakeeping positions specified.<BR>");
        return;
    }
    PositionTable(summary);
    page.OpenFrame();
    page.WriteLine("<U>Slamming Calculation Input Data:</U><BR>");
    for (int position = 0; position < positions; ++position)
    {
        SlammingData(summary, position);
    }
    page.CloseFrame();
}
