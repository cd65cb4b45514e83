#include "core/results/report/RmsPage.h"

#include <algorithm>
#include <numeric>

namespace
{
// With more headings than these the tables of a page don't fit on one.
constexpr int kHeadingsOfTwoTables = 10; ///< with the frame of a speed's first seaway
constexpr int kHeadingsOfOneTable = 16;

constexpr int kDisplacement = 0; ///< kinds of RMS values
constexpr int kVelocity = 1;
constexpr int kAcceleration = 2;
constexpr int kRigidModes = 6; ///< without rudder and fin or tank

constexpr const char* kModeRow =
    R"(<TR> <TD>Heading</TD> <TD>Surge</TD><TD>Sway</TD> <TD>Heave</TD> <TD>Roll</TD> <TD>Pitch</TD> <TD>Yaw</TD> </TR>)";

/// Calls `value` for each mode of each heading and makes the rows of it.
template <class Value>
void Rows(CReport& report, int modes, CLineFormat<float> cell, Value value)
{
    const CResultsBody& body = report.Results.Body;
    const int headings = std::min(body.HeadingCount, body.RmsCg.Size(4));
    std::array<float, kMotionModes> values = {};
    for (int heading = 0; heading < headings; ++heading)
    {
        for (int mode = 0; mode < modes; ++mode)
        {
            values[static_cast<std::size_t>(mode)] = value(mode, heading);
        }
        RowInPieces(report, body.Headings[static_cast<std::size_t>(heading)],
                    std::span<const float>(values).first(static_cast<std::size_t>(modes)), cell);
    }
    report.Page.CloseTableAndFrame();
}

void Displacements(CReport& report, const CSeasPage& page)
{
    const char* unit = report.ShortLength();
    report.Page.WriteLine("<B>Displacements</B><BR>");
    OpenSeasTable(
        report, kDataTable,
        {R"(<TR> <TD>Heading</TD> <TD>Surge</TD><TD>Sway</TD> <TD>Heave</TD> <TD>Roll</TD> <TD>Pitch</TD> <TD>Yaw</TD> <TD>Rudder</TD> <TD>Fin/Tank</TD> </TR>)"});
    report.Page.WriteLine(
        R"(<TR> <TD>(Deg.)</TD> <TD>(%s)</TD><TD>(%s)</TD> <TD>(%s)</TD> <TD>(Deg.)</TD> <TD>(Deg.)</TD> <TD>(Deg.)</TD> <TD>(Deg.)</TD> <TD>(Deg.)</TD> </TR>)",
        unit, unit, unit);
    const auto& rms = report.Results.Body.RmsCg;
    Rows(report, kMotionModes, "<TD>%.3f</TD>",
         [&](int mode, int heading) { return rms(page.Speed, page.Seaway, kDisplacement, mode, heading); });
}

void Periods(CReport& report, const CSeasPage& page)
{
    report.Page.WriteLine("<B>Zero Crossing Periods, To</B><BR>");
    OpenSeasTable(
        report, kDataTable,
        {kModeRow,
         R"(<TR> <TD>(Deg.)</TD> <TD>(sec)</TD><TD>(sec)</TD> <TD>(sec)</TD> <TD>(sec)</TD> <TD>(sec)</TD> <TD>(sec)</TD> </TR>)"});
    const auto& rms = report.Results.Body.RmsCg;
    Rows(report, kRigidModes, "<TD>%.1f</TD>",
         [&](int mode, int heading)
         {
             return CReport::ZeroCrossingPeriod(rms(page.Speed, page.Seaway, kDisplacement, mode, heading),
                                                rms(page.Speed, page.Seaway, kVelocity, mode, heading));
         });
}

void Accelerations(CReport& report, const CSeasPage& page)
{
    report.Page.WriteLine("<B>Acceleration</B><BR>");
    OpenSeasTable(
        report, kDataTable,
        {kModeRow,
         R"(<TR> <TD>(Deg.)</TD> <TD>(g)</TD><TD>(g)</TD> <TD>(g)</TD> <TD>(deg/s^2)</TD> <TD>(deg/s^2)</TD> <TD>(deg/s^2)</TD></TR>)"});
    const auto& rms = report.Results.Body.RmsCg;
    Rows(report, kRigidModes, "<TD>%.3f</TD>",
         [&](int mode, int heading) { return rms(page.Speed, page.Seaway, kAcceleration, mode, heading); });
}

void CentreOfGravityTables(CReport& report, const CSeasPage& page)
{
    report.Page.WriteLine("<B>RMS Data: Centre of Gravity - %s</B><BR>", report.SeasName());
    Displacements(report, page);
    BreakBehindFirstTable(report, page);
    Periods(report, page);
    BreakBehindSecondTable(report, page);
    Accelerations(report, page);
}

void PositionRows(CReport& report, int position)
{
    const CResultsBody& body = report.Results.Body;
    const auto index = static_cast<std::size_t>(position);
    report.Page.WriteLine(
        R"(<TR> <TD>Station:</TD>  <TD><B>%.2f</B></TD> <TD>Lateral Position, Y:</TD> <TD><B>%.2f</B> %s</TD> <TD>Vertical Position, Z:</TD> <TD><B>%.2f</B> %s</TD> </TR>)",
        PositionStationOf(report, position), body.PositionY[index], report.Length(), body.PositionZ[index],
        report.Length());
    report.Page.WriteLine(R"(<TR> <TD>Label:</TD> <TD><B>%s</B></TD> </TR>)", report.PositionLabel(position));
}

void BreakIf(CReport& report, const CSeasPage& page, bool needed)
{
    if (needed)
    {
        report.NextPage(kBannerRms);
        RmsFrame(report, page);
    }
}
} // namespace

void RmsFrame(CReport& report, const CSeasPage& page)
{
    OpenSeasTable(report, kSeasTable);
    report.Page.WriteLine(
        R"(<TR> <TD>Speed:</TD> <TD><B>%.0f</B> knots</TD> <TD>Spectrum Name:</TD> <TD><B>%s</B></TD> </TR>)",
        SpeedOf(report, page.Speed), SpectrumName(report.Results.Head.SpectrumKind));
    SeaLine(report, kSeaLineRms, page.Seaway);
    if (page.Place != kCentreOfGravity)
    {
        PositionRows(report, page.Place);
    }
    report.Page.CloseTableAndFrame();
}

void BreakBehindFirstTable(CReport& report, const CSeasPage& page)
{
    BreakIf(report, page, report.Results.Body.HeadingCount > kHeadingsOfOneTable);
}

void BreakBehindSecondTable(CReport& report, const CSeasPage& page)
{
    const int headings = report.Results.Body.HeadingCount;
    BreakIf(report, page,
            headings > kHeadingsOfOneTable || (headings > kHeadingsOfTwoTables && page.FirstSeaway));
}

void RmsSection(CReport& report)
{
    report.BeginSection("Rms", kBannerRms);
    // The centre of gravity comes first, then the positions.
    std::vector<int> places(static_cast<std::size_t>(report.Results.Body.PositionCount) + 1);
    std::iota(places.begin(), places.end(), kCentreOfGravity);
    WritePages(
        report, "RmsSpeed", [&] { report.Banner(kBannerRms); }, places,
        [&](const CSeasPage& page)
        {
            RmsFrame(report, page);
            if (page.Place == kCentreOfGravity)
            {
                CentreOfGravityTables(report, page);
            }
            else
            {
                RmsLocalTables(report, page);
            }
        });
    report.Page.ContentsLink();
}
