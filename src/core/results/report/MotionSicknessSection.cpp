#include "core/results/CalculatedArrays.h"
#include "core/results/report/IrregularSeas.h"

namespace
{
void SicknessBanner(CReport& report)
{
    report.Page.WriteLine(
        "<CENTER><B>IRREGULAR SEAS RESPONSE  -  Motion Sickness Incidence</CENTER></B><BR>");
    report.CompanyLines();
    report.FileNameLines("&nbsp&nbsp&nbsp&nbsp");
}

/// The page's first lines, up to how its exposure is given.
void HeadRows(CReport& report, const CSeasPage& page, float froudeNumber, bool isColwell)
{
    const CResultsBody& body = report.Results.Body;
    const auto index = static_cast<std::size_t>(page.Place);
    report.Page.WriteLine(
        R"(<TR> <TD>Speed: <B>%.0f</B> knots</TD> <TD>Froude Number: <B>%.3f</B></TD> <TD>Spectrum Name: <B>%s</B></TD></TR>)",
        SpeedOf(report, page.Speed), froudeNumber, SpectrumName(report.Results.Head.SpectrumKind));
    SeaLine(report, kSeaLineSickness, page.Seaway);
    report.Page.WriteLine(
        R"(<TR> <TD>Station: <B>%.2f</B></TD> <TD>Lateral Position: <B>%.2f</B> %s </TD> <TD>Vertical Position: <B>%.2f</B> %s</TD></TR>)",
        PositionStationOf(report, page.Place), body.PositionY[index], report.Length(), body.PositionZ[index],
        report.Length());
    report.Page.WriteLine(R"(<TR><TD>Position Label:   <B>%s</B></TD></TR>)",
                          report.PositionLabel(page.Place));
    report.Page.WriteLine(R"(<TR><TD>MSI Formulation: <B>%s</B> </TD></TR>)",
                          isColwell ? "Colwell" : "Bureau Veritas");
}

/// The exposure that yields the most sickness: it differs from row to row.
void TableOfExposures(CReport& report, const CSeasPage& page, const CSicknessArrays& arrays, int rows)
{
    report.Page.WriteLine(
        R"(<TR><TD>Exposure time selected to yield maximum MSI prior to habituation</TD></TR>)");
    report.Page.CloseTableAndFrame();
    OpenSeasTable(report, kDataTable,
                  {R"(<TR><TD>Heading (Deg.)</TD><TD>MSI (%)</TD><TD>Exposure Time (hours)</TD></TR>)"});
    for (int row = 0; row < rows; ++row)
    {
        const auto value = [&](int column)
        { return arrays.Values(page.Speed, page.Seaway, page.Place, row, column); };
        report.Page.WriteLine(R"(<TR><TD>%.1f</TD><TD>%.2f</TD><TD>%.2f</TD></TR>)", value(0), value(1),
                              value(2));
    }
    report.Page.CloseTableAndFrame();
}

void TableOfOneExposure(CReport& report, const CSeasPage& page, const CSicknessArrays& arrays, int rows)
{
    report.Page.WriteLine(R"(<TR><TD>Exposure Time: <B>%.2f</B> hours</TD></TR>)",
                          arrays.Exposure(page.Speed, page.Seaway, page.Place));
    report.Page.CloseTableAndFrame();
    OpenSeasTable(report, kDataTable, {R"(<TR><TD>Heading (Deg.)</TD><TD>MSI (%)</TD></TR>)"});
    for (int row = 0; row < rows; ++row)
    {
        const auto value = [&](int column)
        { return arrays.Values(page.Speed, page.Seaway, page.Place, row, column); };
        report.Page.WriteLine(R"(<TR><TD>%.1f</TD><TD>%.2f</TD></TR>)", value(0), value(1));
    }
    report.Page.CloseTableAndFrame();
}

void PositionPage(CReport& report, const CSeasPage& page, const CSicknessArrays& arrays, float froudeNumber)
{
    const auto word = [&](const CHeldArray<3>& words) { return words(page.Speed, page.Seaway, page.Place); };
    const int rows = static_cast<int>(word(arrays.Rows));
    report.Page.WriteLine("<B>Motion Sickness Incidence - %s</B><BR>", TitleSeas(report));
    OpenSeasTable(report, kInnerTable);
    HeadRows(report, page, froudeNumber, word(arrays.Formulation) == 0);
    if (word(arrays.ExposureFlag) == 0)
    {
        TableOfExposures(report, page, arrays, rows);
    }
    else
    {
        TableOfOneExposure(report, page, arrays, rows);
    }
}
} // namespace

void MotionSicknessSection(CReport& report)
{
    CSicknessArrays arrays(report.Results);
    WalkCalculated(report.Results, arrays);
    CFrequencyArrays frequencies(report.Results);
    WalkCalculated(report.Results, frequencies);

    report.Anchor("MSI");
    report.Page.WriteLine("");
    report.Page.WriteLine("");
    SicknessBanner(report);
    WritePages(
        report, "MsiSpeed", [&] { SicknessBanner(report); },
        PositionsOfKind(report, report.Results.Control.MsiKind, 1, 1),
        [&](const CSeasPage& page)
        { PositionPage(report, page, arrays, frequencies.Froude[static_cast<std::size_t>(page.Speed)]); });
    report.Page.ContentsLink();
}
