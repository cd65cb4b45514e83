#include "core/results/CalculatedArrays.h"
#include "core/results/report/IrregularSeas.h"

namespace
{
/// What a position asks for of its relative motion.
enum ERelativeMotion
{
    kSlamForm = 1,
    kSlamOffset,
    kSlamWedge,
    kDeckWetness,
    kEmergence
};

/// The section while it is written.
struct CSlammingReport
{
    CReport& Report;
    CHtmlPage& Page;
    const CSlammingArrays& Arrays;
    const std::vector<float>& Froude;

    float Level(const CSeasPage& page, int level) const
    {
        return Arrays.Levels(page.Speed, page.Seaway, page.Place, level);
    }
    /// Calls `row` for each row that the file has, with a function that gives the value of a column.
    template <class Row>
    void Rows(const CSeasPage& page, Row row) const
    {
        const int count = static_cast<int>(Arrays.Rows(page.Speed, page.Seaway, page.Place));
        for (int heading = 0; heading < count; ++heading)
        {
            row([&](int column)
                { return Arrays.Values(page.Speed, page.Seaway, page.Place, heading, column); });
        }
        Page.CloseTableAndFrame();
    }
};

void SpeedRows(const CSlammingReport& slamming, const CSeasPage& page)
{
    slamming.Page.WriteLine(R"(<TR><TD> &nbsp&nbsp&nbsp </TD></TR>)");
    FroudeRow(slamming.Report, page.Speed, slamming.Froude[static_cast<std::size_t>(page.Speed)]);
    SeaLine(slamming.Report, kSeaLineSlamming, page.Seaway);
    slamming.Page.CloseTableAndFrame();
}

void SlammingFrame(const CSlammingReport& slamming, const CSeasPage& page, int kind)
{
    CReport& report = slamming.Report;
    const char* unit = report.Length();
    const char* method = kind == kSlamForm ? "SlamForm" : kind == kSlamOffset ? "SlamOffset" : "SlamWedge";
    OpenSeasTable(report, kSeasTable);
    slamming.Page.WriteLine(R"(<TR> <TD colspan="3">Position Label: <B>%s</B><TD> </TR>)",
                            report.PositionLabel(page.Place));
    slamming.Page.WriteLine(
        R"(<TR> <TD>Station: <B>%.2f</B></TD> <TD>Freeboard: <B>%.2f</B> %s (at zero speed)</TD> <TD>Draft: <B>%.2f</B> %s (at zero speed)</TD> </TR>)",
        PositionStationOf(report, page.Place), slamming.Level(page, 0), unit, slamming.Level(page, 2), unit);
    slamming.Page.WriteLine(
        R"(<TR> <TD> </TD> <TD>Freeboard: <B>%.2f</B> %s (at speed)</TD> <TD>Draft: <B>%.2f</B> %s (at speed)</TD> </TR>)",
        slamming.Level(page, 1), unit, slamming.Level(page, 3), unit);
    slamming.Page.WriteLine(
        R"(<TR> <TD>Time Period: <B>%.2f</B></TD> <TD>Exceedence Parameter: <B>%.2f</B></TD> <TD>Calc Method: <B>%s</B></TD> </TR>)",
        report.Results.Calculated.Duration.value_or(0.0F),
        report.Results.Calculated.Exceedence.value_or(0.0F), method);
    SpeedRows(slamming, page);
}

void SlammingTable(const CSlammingReport& slamming, const CSeasPage& page)
{
    CReport& report = slamming.Report;
    const char* unit = report.ShortLength();
    const char* pressure = report.MetricOutput() ? "kPa" : "psi";
    const char* force = report.MetricOutput() ? "N/m" : "lb/ft";
    OpenSeasTable(
        report, kSeasTable,
        {R"(<TR> <TD>Heading</TD> <TD colspan="2">Vert. Response</TD> <TD colspan="2">Deck Wetness</TD> <TD colspan="2">Keel Emergence</TD> <TD colspan="2">Max. Slam Pres</TD> <TD colspan="2">Max. Slam Force</TD> </TR>)",
         R"(<TR> <TD> </TD> <TD>Rel.Disp.</TD> <TD>Rel.Velo</TD> <TD>Prob.</TD> <TD>Rate/hr</TD> <TD>Prob.</TD> <TD>Rate/hr</TD> <TD>Expect</TD> <TD>Extreme</TD> <TD>Expect</TD> <TD>Extreme</TD> </TR>)"});
    slamming.Page.WriteLine(
        R"(<TR> <TD>(Deg.)</TD> <TD>(%s)</TD> <TD>(%s/s)</TD> <TD colspan= "4"> &nbsp </TD> <TD>(%s)</TD> <TD>(%s)</TD> <TD>(%s)</TD> <TD>(%s)</TD> </TR>)",
        unit, unit, pressure, pressure, force, force);
    slamming.Rows(
        page,
        [&](auto value)
        {
            slamming.Page.WriteLine(
                R"(<TR> <TD>%.1f</TD> <TD>%.3f</TD> <TD>%.3f</TD> <TD>%.4f</TD> <TD>%.1f</TD> <TD>%.4f</TD> <TD>%.1f</TD> <TD>%.2f</TD> <TD>%.2f</TD> <TD>%.0f</TD> <TD>%.0f</TD> </TR>)",
                value(0), value(1), value(2), value(3), value(4), value(5), value(6), value(7), value(8),
                value(9), value(10));
        });
}

/// Deck wetness and emergence have the same table but for the name of its last columns.
void ProbabilityTable(const CSlammingReport& slamming, const CSeasPage& page, const char* headRow)
{
    const char* unit = slamming.Report.ShortLength();
    OpenSeasTable(
        slamming.Report, kSeasTable,
        {headRow,
         R"(<TR> <TD> </TD> <TD>Rel.Disp.</TD> <TD>Rel.Velo</TD> <TD>Prob.</TD> <TD>Rate/hr</TD> </TR>)"});
    slamming.Page.WriteLine(R"(<TR> <TD>(Deg.)</TD> <TD>(%s)</TD> <TD>(%s/s)</TD> </TR>)", unit, unit);
    slamming.Rows(
        page,
        [&](auto value)
        {
            slamming.Page.WriteLine(
                R"(<TR> <TD>%.1f</TD> <TD>%.3f</TD> <TD>%.3f</TD> <TD>%.4f</TD> <TD>%.1f</TD> </TR>)",
                value(0), value(1), value(2), value(3), value(4));
        });
}

void LabelRow(const CSlammingReport& slamming, const CSeasPage& page)
{
    slamming.Page.WriteLine(R"(<TR> <TD colspan="3">Position Label: <B>%s</B></TD> </TR>)",
                            slamming.Report.PositionLabel(page.Place));
}

void DeckWetnessFrame(const CSlammingReport& slamming, const CSeasPage& page)
{
    const char* unit = slamming.Report.Length();
    OpenSeasTable(slamming.Report, kSeasTable);
    LabelRow(slamming, page);
    slamming.Page.WriteLine(
        R"(<TR> <TD>Station: <B>%.2f</B></TD> <TD>Freeboard: <B>%.2f</B> %s (at zero speed)</TD> </TR>)",
        PositionStationOf(slamming.Report, page.Place), slamming.Level(page, 0), unit);
    slamming.Page.WriteLine(R"(<TR> <TD> </TD> <TD>Freeboard: <B>%.2f</B> %s (at speed)</TD> </TR>)",
                            slamming.Level(page, 1), unit);
    SpeedRows(slamming, page);
}

void EmergenceFrame(const CSlammingReport& slamming, const CSeasPage& page)
{
    const char* unit = slamming.Report.Length();
    const auto& positions = slamming.Report.Results.Calculated.Positions;
    const auto index = static_cast<std::size_t>(page.Place);
    const float draft = index < positions.size() ? positions[index].Draft : 0.0F;
    OpenSeasTable(slamming.Report, kSeasTable);
    LabelRow(slamming, page);
    slamming.Page.WriteLine(
        R"(<TR> <TD>Station: <B>%.2f</B></TD> <TD>Depth: <B>%.2f</B> %s (at zero speed)</TD> </TR>)",
        PositionStationOf(slamming.Report, page.Place), slamming.Level(page, 0), unit);
    slamming.Page.WriteLine(
        R"(<TR> <TD>Depth: <B>%.2f</B> %s (at speed)</TD> <TD>Draft: <B>%.2f</B> %s (at speed)</TD> </TR>)",
        slamming.Level(page, 1), unit, draft, unit);
    SpeedRows(slamming, page);
}

void PositionPage(const CSlammingReport& slamming, const CSeasPage& page)
{
    const char* seas = TitleSeas(slamming.Report);
    const int kind = slamming.Report.Results.Control.RelMotionKind[static_cast<std::size_t>(page.Place)];
    switch (kind)
    {
    case kDeckWetness:
        slamming.Page.WriteLine("<B>Deck Wetness - %s</B><BR>", seas);
        DeckWetnessFrame(slamming, page);
        ProbabilityTable(
            slamming, page,
            R"(<TR> <TD>Heading</TD> <TD colspan="2">Vert. Response</TD> <TD colspan="2">Deck Wetness</TD> </TR>)");
        break;
    case kEmergence:
        slamming.Page.WriteLine("<B>Emergence - %s</B><BR>", seas);
        EmergenceFrame(slamming, page);
        ProbabilityTable(
            slamming, page,
            R"(<TR> <TD>Heading</TD> <TD colspan="2">Vert. Response</TD> <TD colspan="2">Emergence</TD> </TR>)");
        break;
    default:
        slamming.Page.WriteLine("<B>Slamming And Deck Wetness - %s</B><BR>", seas);
        SlammingFrame(slamming, page, kind);
        SlammingTable(slamming, page);
        break;
    }
}
} // namespace

void SlammingSection(CReport& report)
{
    CSlammingArrays arrays(report.Results);
    WalkCalculated(report.Results, arrays);
    CFrequencyArrays frequencies(report.Results);
    WalkCalculated(report.Results, frequencies);
    const CSlammingReport slamming{report, report.Page, arrays, frequencies.Froude};

    report.BeginSection("Deck", kBannerSlamming);
    WritePages(
        report, "DeckSpeed", [&] { report.Banner(kBannerSlamming); },
        PositionsOfKind(report, report.Results.Control.RelMotionKind, kSlamForm, kEmergence),
        [&](const CSeasPage& page) { PositionPage(slamming, page); });
    report.Page.ContentsLink();
}
