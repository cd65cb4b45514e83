#include "core/results/CalculatedArrays.h"
#include "core/results/report/IrregularSeas.h"

#include <algorithm>

namespace
{
/// Columns of a load's RMS value, in the order of the file; its zero-crossing period stands behind it.
enum ELoadColumn
{
    kHorizontalShear = 0,
    kVerticalShear = 2,
    kTorsion = 4,
    kVerticalBending = 6,
    kHorizontalBending = 8
};

constexpr std::array kMoments = {kVerticalBending, kHorizontalBending, kTorsion};
constexpr std::array kShears = {kVerticalShear, kHorizontalShear};

void Frame(CReport& report, const CSeasPage& page)
{
    OpenSeasTable(report, kLoadsTable);
    SeaLine(report, kSeaLineLoads, page.Seaway);
    const float station = report.Results.Body.LoadStations[static_cast<std::size_t>(page.Place)];
    report.Page.WriteLine(
        R"(<TR> <TD>RMS Load at station:</TD> <TD><B>%.2f</B></TD> <TD>Speed:</TD> <TD><B>%.1f</B> knots</TD> <TD>Spectrum Name:</TD> <TD><B>%s</B></TD> </TR>)",
        report.StationLabel(station), SpeedOf(report, page.Speed),
        SpectrumName(report.Results.Head.SpectrumKind));
    report.Page.CloseTableAndFrame();
}

/// The rows of some loads: of each its RMS value and its period.
void Rows(CReport& report, const CSeasPage& page, const CLoadRmsArrays& arrays,
          std::span<const ELoadColumn> loads)
{
    const CResultsBody& body = report.Results.Body;
    const int rows = static_cast<int>(arrays.Rows(page.Speed, page.Seaway, page.Place));
    const int headings = std::min(body.HeadingCount, rows);
    for (int heading = 0; heading < headings; ++heading)
    {
        std::vector<float> values;
        for (const ELoadColumn column : loads)
        {
            values.push_back(arrays.Values(page.Speed, page.Seaway, page.Place, heading, column));
            values.push_back(arrays.Values(page.Speed, page.Seaway, page.Place, heading, column + 1));
        }
        RowInPieces(report, body.Headings[static_cast<std::size_t>(heading)], values, "<TD>%.1f</TD>");
    }
    report.Page.CloseTableAndFrame();
}

void Moments(CReport& report, const CSeasPage& page, const CLoadRmsArrays& arrays)
{
    const char* unit = report.MetricOutput() ? "kN-m" : "10^3 ft-lb";
    report.Page.WriteLine("<B>RMS Load: Moments</B><BR>");
    OpenSeasTable(
        report, kDataTable,
        {R"(<TR> <TD></TD> <TD colspan="2">Vertical Bending</TD> <TD colspan="2">Horizontal Bending</TD> <TD colspan="2">Torsion </TD> </TR>)",
         R"(<TR> <TD>Heading</TD> <TD>RMS</TD> <TD>Tz</TD> <TD>RMS</TD> <TD>Tz</TD> <TD>RMS</TD> <TD>Tz</TD> </TR>)"});
    report.Page.WriteLine(
        R"(<TR> <TD>(Deg.)</TD> <TD>(%s)</TD> <TD>(sec)</TD> <TD>(%s)</TD> <TD>(sec)</TD> <TD>(%s)</TD> <TD>(sec)</TD> </TR>)",
        unit, unit, unit);
    Rows(report, page, arrays, kMoments);
}

void Shears(CReport& report, const CSeasPage& page, const CLoadRmsArrays& arrays)
{
    const char* unit = report.MetricOutput() ? "kN" : "10^3 lb";
    report.Page.WriteLine("<B>RMS Load: Shears</B><BR>");
    OpenSeasTable(
        report, kDataTable,
        {R"(<TR> <TD></TD> <TD colspan="2">Vertical Bending</TD> <TD colspan="2">Horizontal Bending</TD> </TR>)",
         R"(<TR> <TD>Heading</TD> <TD>RMS</TD> <TD>Tz</TD> <TD>RMS</TD> <TD>Tz</TD> </TR>)"});
    report.Page.WriteLine(
        R"(<TR> <TD>(Deg.)</TD> <TD>(%s)</TD> <TD>(sec)</TD> <TD>(%s)</TD> <TD>(sec)</TD> </TR>)", unit,
        unit);
    Rows(report, page, arrays, kShears);
}
} // namespace

void RmsLoadsSection(CReport& report)
{
    CLoadRmsArrays arrays(report.Results);
    WalkCalculated(report.Results, arrays);
    report.BeginSection("RmsLd", kBannerRmsLoads);
    WritePages(
        report, "RmsLdSpeed", [&] { report.Banner(kBannerRmsLoads); }, report.Positions(),
        [&](const CSeasPage& page)
        {
            Frame(report, page);
            Moments(report, page, arrays);
            report.NextPage(kBannerRmsLoads);
            Frame(report, page);
            Shears(report, page, arrays);
        });
    report.Page.ContentsLink();
}
