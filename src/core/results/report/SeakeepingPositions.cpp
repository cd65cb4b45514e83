#include "core/results/report/HydrostaticsBlocks.h"

#include <optional>

namespace
{
const char* Mark(bool applies)
{
    return applies ? "x" : "";
}

std::string TwoDecimals(std::optional<float> value)
{
    return value ? FixedText(static_cast<double>(*value), "%.2f") : std::string();
}

/// X of a position, which earlier files don't have.
std::string XText(const CReport& report, const CCalculatedHead::CPosition& position)
{
    return report.Results.Control.HasMagic ? TwoDecimals(position.X) : std::string();
}

void WriteDuration(CReport& report)
{
    const CCalculatedHead& calculated = report.Results.Calculated;
    if (!calculated.Duration)
    {
        return;
    }
    report.Page.WriteLine("Duration of Operation:&nbsp&nbsp&nbsp <B>%.2f</B> hours<BR>",
                          *calculated.Duration);
    report.Page.WriteLine("Slamming Exceedence Parameter:&nbsp&nbsp&nbsp <B>%.3f</B><BR><BR>",
                          calculated.Exceedence.value_or(0.0F));
}

/// What is computed at each position.
void WriteCalculations(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CResults& results = report.Results;
    page.OpenFrame();
    page.WriteLine("<U>Seakeeping Parameters</U><BR>");
    WriteDuration(report);
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD> Description </TD><TD> Station </TD><TD> X (%s) </TD><TD> Slamming </TD><TD> "
                   "Deck Wetness </TD> <TD> MII </TD> <TD> MSI </TD> </TR>",
                   report.ShortLength());
    std::size_t index = 0;
    for (const CCalculatedHead::CPosition& position : results.Calculated.Positions)
    {
        const int relativeMotion = results.Control.RelMotionKind[index];
        page.WriteLine("<TR><TD>%s</TD><TD>%.2f</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD>"
                       "</TR>",
                       report.PositionLabel(static_cast<int>(index)), report.StationLabel(position.Station),
                       XText(report, position), Mark(relativeMotion >= 1 && relativeMotion <= 3),
                       Mark(relativeMotion == 4), Mark(results.Control.MiiKind[index] != 0),
                       Mark(results.Control.MsiKind[index] != 0));
        ++index;
    }
    page.CloseTableAndFrame();
}

void WritePlaces(CReport& report)
{
    CHtmlPage& page = report.Page;
    const char* unit = report.ShortLength();
    page.OpenFrame();
    page.WriteLine(kDataTable);
    page.WriteLine(
        "<TR><TD> Description </TD><TD> Station </TD><TD> X (%s) </TD> <TD> Y (%s) </TD> <TD> Z "
        "wrt BL (%s) </TD> <TD> Z wrt CG (%s) </TD> <TD> Draft (%s) </TD><TD> Freeboard (%s) </TD> "
        "<TD> Form Factor </TD> <TD> Effective Width (%s) </TD> </TR>",
        unit, unit, unit, unit, unit, unit, unit);
    int index = 0;
    for (const CCalculatedHead::CPosition& position : report.Results.Calculated.Positions)
    {
        page.WriteLine("<TR><TD>%s</TD><TD>%.2f</TD><TD>%s</TD><TD>%.2f</TD><TD>%.2f</TD><TD>%.2f</TD>"
                       "<TD>%.2f</TD><TD>%.2f</TD><TD>%s</TD><TD>%s</TD></TR>",
                       report.PositionLabel(index++), report.StationLabel(position.Station),
                       XText(report, position), position.Y, position.ZFromBaseline, position.ZFromCG,
                       position.Draft, position.Freeboard, TwoDecimals(position.FormFactor),
                       TwoDecimals(position.EffectiveWidth));
    }
    page.CloseTableAndFrame();
}

void WriteSlamNotes(CHtmlPage& page)
{
    page.WriteLine("<BR>Note: <BR>");
    page.WriteLine("Slam Pressure at keel related to form factor by:<BR>");
    page.WriteLine("&nbsp&nbsp&nbsp Pressure = SLFORM x 1/2 x Water density x (Relative velocity)**2 <BR>");
    page.WriteLine("SLWIDTH is effective width for slam pressure Sectional slam force given by: <BR>");
    page.WriteLine("&nbsp&nbsp&nbsp Force/per unit length = SLWIDTH x Pressure <BR>");
}
} // namespace

void SeakeepingPositions(CReport& report)
{
    if (report.Results.Calculated.Positions.empty())
    {
        report.Page.WriteLine("<B>Seakeeping calculations were not specified.</B><BR>");
        return;
    }
    report.NextPage(kBannerHydrostatics);
    WriteCalculations(report);
    WritePlaces(report);
    WriteSlamNotes(report.Page);
}
