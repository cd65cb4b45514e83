#include "core/results/report/RmsPage.h"

#include <algorithm>

namespace
{
/// The first of a component's three quantities, which are displacement, velocity and acceleration.
enum EComponent
{
    kVertical = 0,
    kLateral = 3,
    kLongitudinal = 6
};

struct CLocalValues
{
    float Heading;
    float Displacement;
    float Period;
    float Velocity;
    float Acceleration;
};

/// Calls `row` with the values of each heading and closes the table.
template <class Row>
void Rows(CReport& report, const CSeasPage& page, EComponent component, Row row)
{
    const CResultsBody& body = report.Results.Body;
    const int headings = std::min(body.HeadingCount, body.RmsLocal.Size(4));
    for (int heading = 0; heading < headings; ++heading)
    {
        const auto value = [&](int quantity)
        { return body.RmsLocal(page.Speed, page.Seaway, component + quantity, page.Place, heading); };
        const float displacement = value(0);
        const float velocity = value(1);
        row(CLocalValues{body.Headings[static_cast<std::size_t>(heading)], displacement,
                         CReport::ZeroCrossingPeriod(displacement, velocity), velocity, value(2)});
    }
    report.Page.CloseTableAndFrame();
}

void VerticalTable(CReport& report, const CSeasPage& page)
{
    const char* unit = report.ShortLength();
    report.Page.WriteLine("<B>Vertical Components</B><BR>");
    OpenSeasTable(
        report, kDataTable,
        {R"(<TR> <TD>Heading</TD> <TD>Displacement</TD><TD>Zero Crossing Period</TD> <TD>Velocity</TD> <TD>Acceleration</TD> </TR>)"});
    report.Page.WriteLine(
        R"(<TR> <TD>(Deg.)</TD> <TD>(%s)</TD><TD>(sec)</TD> <TD>(%s/s)</TD> <TD>(g)</TD> </TR>)", unit, unit);
    Rows(report, page, kVertical,
         [&](const CLocalValues& values)
         {
             report.Page.WriteLine(
                 R"(<TR> <TD>%.1f</TD> <TD>%.3f</TD> <TD>%.1f</TD> <TD>%.3f</TD> <TD>%.3f</TD> </TR>)",
                 values.Heading, values.Displacement, values.Period, values.Velocity, values.Acceleration);
         });
}

/// Lateral and longitudinal components differ in title and in a blank of the row of units.
void HorizontalTable(CReport& report, const CSeasPage& page, EComponent component, const char* title,
                     CLineFormat<const char*> units)
{
    report.Page.WriteLine(title);
    OpenSeasTable(
        report, kDataTable,
        {R"(<TR> <TD>Heading</TD> <TD>Displacement</TD><TD>Zero Crossing Period</TD> <TD>Acceleration</TD> </TR>)"});
    report.Page.WriteLine(units, report.ShortLength());
    Rows(report, page, component,
         [&](const CLocalValues& values)
         {
             report.Page.WriteLine(R"(<TR> <TD>%.1f</TD> <TD>%.3f</TD> <TD>%.1f</TD> <TD>%.3f</TD> </TR>)",
                                   values.Heading, values.Displacement, values.Period, values.Acceleration);
         });
}
} // namespace

void RmsLocalTables(CReport& report, const CSeasPage& page)
{
    report.Page.WriteLine("<B>RMS Data: Local Output - %s</B><BR>", report.SeasName());
    VerticalTable(report, page);
    BreakBehindFirstTable(report, page);
    HorizontalTable(report, page, kLateral, "<B>Lateral Components</B><BR>",
                    R"(<TR> <TD>(Deg.)</TD> <TD>(%s)</TD><TD>(sec)</TD> <TD>(g)</TD> </TR>)");
    BreakBehindSecondTable(report, page);
    HorizontalTable(report, page, kLongitudinal, "<B>Longitudinal Components</B><BR>",
                    R"(<TR> <TD>(Deg.)</TD> <TD>(%s)</TD> <TD>(sec)</TD> <TD>(g)</TD> </TR>)");
}
