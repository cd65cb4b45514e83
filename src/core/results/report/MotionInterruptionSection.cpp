#include "core/results/CalculatedArrays.h"
#include "core/results/report/IrregularSeas.h"

namespace
{
void Frame(CReport& report, const CSeasPage& page, float froudeNumber)
{
    const CResultsBody& body = report.Results.Body;
    const CProjectData& input = *report.Results.Input;
    const auto index = static_cast<std::size_t>(page.Place);
    OpenSeasTable(report, kInnerTable);
    FroudeRow(report, page.Speed, froudeNumber);
    SeaLine(report, kSeaLineInterruption, page.Seaway);
    report.Page.WriteLine(
        R"(<TR> <TD>Station: <B>%.2f</B></TD> <TD>Lateral Position: <B>%.2f</B> %s</TD> <TD>Vertical Position: <B>%.2f</B> %s</TD> </TR>)",
        PositionStationOf(report, page.Place), body.PositionY[index], report.Length(), body.PositionZ[index],
        report.Length());
    report.Page.WriteLine(R"(<TR><TD colspan="2">Position Label:   <B>%s</B></TD> </TR>)",
                          report.PositionLabel(page.Place));
    report.Page.WriteLine(R"(<TR> <TD><B>Tipping Coefficients:</B></TD>)");
    report.Page.WriteLine(
        R"(<TD>Lateral: <B>%.2f</B></TD> <TD>Longitudinal: <B>%.2f</B></TD> <TD>Time of Operation: <B>%.0f</B> sec</TD> </TR>)",
        input.TCLAT.Value(page.Place), input.TCLONG.Value(page.Place), input.TIMEOP.Value(page.Place));
    report.Page.CloseTableAndFrame();
}

void Table(CReport& report, const CSeasPage& page, const CInterruptionArrays& arrays)
{
    OpenSeasTable(
        report, kDataTable,
        {R"(<TR> <TD>Heading</TD> <TD colspan="2">Lateral</TD> <TD colspan="2">Longitudinal</TD> <TD>Total</TD> </TR>)",
         R"(<TR> <TD>(Deg.)</TD> <TD>LFE (g)</TD> <TD>MII</TD> <TD>LFE (g)</TD> <TD>MII</TD> <TD>MII</TD> </TR>)"});
    const int count = static_cast<int>(arrays.Rows(page.Speed, page.Seaway, page.Place));
    for (int row = 0; row < count; ++row)
    {
        const auto value = [&](int column)
        { return arrays.Values(page.Speed, page.Seaway, page.Place, row, column); };
        report.Page.WriteLine(
            R"(<TR> <TD>%.1f</TD> <TD>%.3f</TD> <TD>%.3f</TD> <TD>%.3f</TD> <TD>%.3f</TD> <TD>%.3f</TD> </TR>)",
            value(0), value(1), value(2), value(3), value(4), value(5));
    }
    report.Page.CloseTableAndFrame();
}
} // namespace

void MotionInterruptionSection(CReport& report)
{
    CInterruptionArrays arrays(report.Results);
    WalkCalculated(report.Results, arrays);
    CFrequencyArrays frequencies(report.Results);
    WalkCalculated(report.Results, frequencies);

    report.BeginSection("Interrupt", kBannerMotionInterruption);
    WritePages(
        report, "MiiSpeed", [&] { report.Banner(kBannerMotionInterruption); },
        PositionsOfKind(report, report.Results.Control.MiiKind, 1, 1),
        [&](const CSeasPage& page)
        {
            report.Page.WriteLine("<B>Motion Interruption Index - %s</B><BR>", TitleSeas(report));
            Frame(report, page, frequencies.Froude[static_cast<std::size_t>(page.Speed)]);
            Table(report, page, arrays);
        });
    report.Page.ContentsLink();
}
