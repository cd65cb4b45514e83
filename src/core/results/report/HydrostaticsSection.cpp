// The ship as the engine understood it.
#include "core/results/report/HydrostaticsBlocks.h"

namespace
{
const char* SystemName(const CParamArray& system)
{
    return system.Integer() == 1 ? "METRIC" : "BRITISH";
}

void WriteTransverseGM(CReport& report)
{
    const CResults& results = report.Results;
    // 2 stands for a GM that the run computed.
    if (results.Input->GMFLAG.Integer() == 1)
    {
        report.Page.WriteLine("<TR> <TD>Input Transverse GM:</TD> <TD><B>%.2f</B> %s</TD> </TR>",
                              report.LengthOut(results.Calculated.InputGM), report.Length());
    }
    if (results.Trailer.CalculatedGM)
    {
        report.Page.WriteLine("<TR> <TD>Calculated Transverse GM:</TD> <TD><B>%.2f</B> %s</TD> </TR>",
                              *results.Trailer.CalculatedGM, report.Length());
    }
}

void WriteTrim(CReport& report)
{
    const CProjectData& input = *report.Results.Input;
    const int definition = input.TRIMDEF.Integer();
    if (definition == 0)
    {
        report.Page.WriteLine("<TR> <TD>Midship Draft:</TD> <TD><B>%.2f</B> %s</TD> <TD>Trim:</TD> "
                              "<TD><B>%.2f</B> %s</TD> </TR>",
                              report.LengthOut(input.DRAFTMID.Value()), report.Length(),
                              report.LengthOut(input.TRIMST.Value()), report.Length());
        return;
    }
    // A results file has the two values of this row for the definition 1 alone.
    const bool given = definition == 1;
    const float displacement = given ? input.DISPUSER.Value() : 0.0F;
    const float lcg = given ? input.LCGPUSER.Value() : 0.0F;
    report.Page.WriteLine("<TR> <TD>Displacement:</TD> <TD><B>%.2f</B> %s</TD> <TD>Distance to LCG:</TD> "
                          "<TD><B>%.2f</B> %s</TD> </TR>",
                          report.MassOut(displacement), report.Mass(), report.LengthOut(lcg),
                          report.Length());
}

void WriteInputParameters(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CProjectData& input = *report.Results.Input;
    page.OpenFrame();
    page.WriteLine("<U>Input Ship Parameters</U><BR>");
    page.WriteLine(kInnerTable);
    page.WriteLine("<TR> <TD>Input Units:</TD> <TD><B>%s</B></TD> <TD>Output Units:</TD> "
                   "<TD><B>%s</B></TD> <TD>Fluid:</TD> <TD><B>%s</B></TD> </TR>",
                   SystemName(input.INSYS), SystemName(input.OUTSYS),
                   input.WATERDEN.Integer() == 0 ? "Salt Water" : "Fresh Water");
    page.WriteLine("<TR> <TD>Length:</TD> <TD><B>%.2f</B> %s</TD> </TR>", report.Results.Head.Length,
                   report.Length());
    page.WriteLine("<TR> <TD>Vertical Centre of Gravity:</TD> <TD><B>%.2f</B> %s</TD> </TR>",
                   report.Results.Head.VerticalCentreOfGravity, report.Length());
    WriteTransverseGM(report);
    WriteTrim(report);
    page.CloseTableAndFrame();
}

void WriteCalculatedParameters(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CCalculatedHead& calculated = report.Results.Calculated;
    page.OpenFrame();
    page.WriteLine("<U>Calculated Ship Parameters</U><BR>");
    page.WriteLine(kInnerTable);
    page.WriteLine("<TR> <TD>Longitudinal Centre of Gravity (XCG):</TD> <TD><B>%.2f</B> %s</TD> </TR>",
                   calculated.XCG, report.Length());
    page.WriteLine("<TR> <TD>Block Coefficient, Cb:</TD> <TD><B>%.3f</B></TD> </TR>",
                   calculated.BlockCoefficient);
    page.WriteLine("<TR> <TD>Displacement:</TD> <TD><B>%.2f</B> %s</TD> <TD>Draft:</TD> <TD><B>%.2f</B> "
                   "%s</TD> </TR>",
                   calculated.Displacement, report.Mass(), calculated.Draft, report.Length());
    page.CloseTableAndFrame();
}

void WriteSectionalAreas(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CResults& results = report.Results;
    page.OpenFrame();
    page.WriteLine("<U>Sectional Area Data</U> - Calculated Values "
                   "&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp "
                   "Station %i = Fwd. Perpendicular<BR>",
                   report.StationLabel(0));
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD> Station </TD><TD> XCG (%s) </TD> <TD> Beam (%s) </TD> <TD> Draft (%s) </TD> "
                   "<TD> Area (%s) </TD><TD> Area Coefficient </TD> <TD> Hull Form </TD></TR>",
                   report.ShortLength(), report.ShortLength(), report.ShortLength(), report.Area());
    const char* hullForm = results.Input->HULLDEF.Integer() == 0 ? "OFFSETS" : "LEWIS";
    int index = 0;
    for (const CCalculatedHead::CStation& station : results.Calculated.Stations)
    {
        page.WriteLine("<TR><TD>%d</TD><TD>%.2f</TD><TD>%.2f</TD><TD>%.2f</TD><TD>%.2f</TD><TD>%.2f</TD>"
                       "<TD>%s</TD></TR>",
                       report.StationLabel(index++), station.XCG, station.Beam, station.Draft,
                       station.AreaCoefficient * station.Beam * station.Draft, station.AreaCoefficient,
                       hullForm);
    }
    page.CloseTableAndFrame();
}

void WriteAppendages(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CControlSection& control = report.Results.Control;
    const auto count = [](float value) { return Truncated(static_cast<double>(value)); };
    page.OpenFrame();
    page.WriteLine("<U>Appendages</U><BR>");
    if (count(control.BilgeKeelCount) > 0)
    {
        page.WriteLine("Number of bilge keel pairs:&nbsp&nbsp&nbsp <B>%i</B><BR>",
                       count(control.BilgeKeelCount));
    }
    else
    {
        page.WriteLine("<B>Bilge keels were not specified.</B>");
    }
    page.WriteLine("Number of fin stabilizer pairs:&nbsp&nbsp&nbsp <B>%i</B><BR>", count(control.FinCount));
    page.WriteLine("Number of shaft bracket pairs:&nbsp&nbsp&nbsp <B>%i</B>", count(control.FoilCount));
    page.CloseFrame();
}
} // namespace

void HydrostaticsSection(CReport& report)
{
    report.BeginSection("Hydro", kBannerHydrostatics);
    WriteInputParameters(report);
    WriteCalculatedParameters(report);
    WriteSectionalAreas(report);
    SeakeepingPositions(report);
    WriteAppendages(report);
    if (report.Results.Head.LoadStationCount > 0)
    {
        StillWaterLoads(report);
    }
    report.Page.ContentsLink();
}
