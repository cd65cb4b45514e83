#include "core/results/report/IrregularSeas.h"

#include <cstddef>

namespace
{
/// Knows what stands before the content of a page.
class CPageStart
{
public:
    CPageStart(CReport& report, const char* speedAnchor, const std::function<void()>& banner)
        : m_report(report),
          m_speedAnchor(speedAnchor),
          m_banner(banner)
    {
    }

    void BeginSpeed(std::size_t place)
    {
        m_place = place;
        m_anchorDue = true;
    }

    void BeginPage()
    {
        // The first page follows the banner of the section.
        const bool first = m_firstPage;
        m_firstPage = false;
        if (!first)
        {
            m_report.Page.PageBreak();
        }
        WriteAnchor();
        if (!first)
        {
            m_banner();
        }
    }

    void WriteAnchor()
    {
        if (m_anchorDue)
        {
            m_report.SpeedAnchor(m_speedAnchor, m_place);
            m_anchorDue = false;
        }
    }

private:
    CReport& m_report;
    const char* m_speedAnchor;
    const std::function<void()>& m_banner;
    std::size_t m_place = 0;
    bool m_anchorDue = false;
    bool m_firstPage = true;
};

void SteepnessLine(CReport& report, ESeaLine form)
{
    CHtmlPage& page = report.Page;
    const float steepness = report.Results.Input->WAVESTEEP.Value();
    const float slope = report.WaveSlope();
    switch (form)
    {
    case kSeaLineRms:
    case kSeaLineLoads:
        page.WriteLine(
            R"(<TR> <TD>Wave Steepness (H/Wavelength):</TD> <TD><B>%.2f</B></TD> <TD>Wave Slope (ka):</TD> <TD><B>%.3f</B></TD> </TR>)",
            steepness, slope);
        break;
    case kSeaLineSlamming:
        page.WriteLine(
            R"(<TR> <TD>Wave Steepness (H/Wavelength): <B>%.2f</B></TD> <TD>Wave Slope (ka): <B>%.3f</B></TD> </TR>)",
            steepness, slope);
        break;
    case kSeaLineInterruption:
        page.WriteLine(
            R"(<TR> Wave Steepness (H/Wavelength): <B>%.2f</B></TD> <TD>Wave Slope (ka): <B>%.3f</B></TD> </TR>)",
            steepness, slope);
        break;
    case kSeaLineSickness:
        page.WriteLine(
            R"(<TR> <TD>Wave Steepness (H/Wavelength): <B>%.2f</B></TD> <TD>Wave Slope (ka): <B>%.3f</B></TD></TR>)",
            steepness, slope);
        break;
    }
}

void SpectrumLine(CReport& report, ESeaLine form, int seaway)
{
    CHtmlPage& page = report.Page;
    const auto index = static_cast<std::size_t>(seaway);
    const float height = report.Results.Body.WaveHeights[index];
    const float period = report.Results.Body.WavePeriods[index];
    const int state = report.SeaStateOf(seaway);
    const char* unit = report.Length();
    switch (form)
    {
    case kSeaLineRms:
        page.WriteLine(
            R"(<TR> <TD>Sea State:</TD> <TD><B>%i</B></TD> <TD>Significant Wave Height:</TD> <TD><B>%.2f</B> %s</TD> <TD>Wave Period:</TD> <TD><B>%.2f</B> sec</TD> </TR>)",
            state, height, unit, period);
        break;
    case kSeaLineLoads:
        page.WriteLine(
            R"(<TR> <TD>Significant Wave Height:</TD> <TD><B>%.2f</B> %s</TD> <TD>Wave Period:</TD> <TD><B>%.2f</B> sec</TD> <TD>Sea State:</TD> <TD><B>%i</B></TD> </TR>)",
            height, unit, period, state);
        break;
    case kSeaLineSlamming:
    case kSeaLineInterruption:
        page.WriteLine(
            R"(<TR> <TD>Sea State: <B>%i</B></TD> <TD>Significant Wave Height: <B>%.2f</B> %s</TD> <TD>Wave Period: <B>%.2f</B> sec</TD> </TR>)",
            state, height, unit, period);
        break;
    case kSeaLineSickness:
        page.WriteLine(
            R"(<TR> <TD>Sea State: <B>%i</B></TD> <TD>Significant Wave Height: <B>%.2f</B> %s </TD> <TD>Wave Period: <B>%.2f</B> sec </TD></TR>)",
            state, height, unit, period);
        break;
    }
}
} // namespace

void WritePages(CReport& report, const char* speedAnchor, const std::function<void()>& banner,
                const std::vector<int>& places, const std::function<void(const CSeasPage&)>& content)
{
    CPageStart start(report, speedAnchor, banner);
    for (std::size_t k = 0; k < report.Speeds().size(); ++k)
    {
        start.BeginSpeed(k);
        bool firstSeaway = true;
        for (const int seaway : report.Seaways())
        {
            for (const int place : places)
            {
                start.BeginPage();
                content({report.Speeds()[k], seaway, place, firstSeaway});
            }
            firstSeaway = false;
        }
        start.WriteAnchor();
    }
}

std::vector<int> PositionsOfKind(const CReport& report, const std::array<int, kMaxPositions>& kinds,
                                 int least, int greatest)
{
    std::vector<int> positions;
    for (int position = 0; position < report.Results.Body.PositionCount; ++position)
    {
        const int kind = kinds[static_cast<std::size_t>(position)];
        if (kind >= least && kind <= greatest)
        {
            positions.push_back(position);
        }
    }
    return positions;
}

void SeaLine(CReport& report, ESeaLine form, int seaway)
{
    const int kind = report.Results.Head.SpectrumKind;
    if (kind == kSpectrumRegular)
    {
        SteepnessLine(report, form);
    }
    else if (kind >= kSpectrumQuadratic && kind <= kSpectrumOchiHubble)
    {
        SpectrumLine(report, form, seaway);
    }
}

const char* TitleSeas(const CReport& report)
{
    return report.IsShortCrested() ? "Short-Crested Seas" : "Unidirectional Seas";
}

float SpeedOf(const CReport& report, int speed)
{
    return report.Results.Control.Speeds[static_cast<std::size_t>(speed)];
}

float PositionStationOf(const CReport& report, int position)
{
    return report.StationLabel(report.Results.Body.PositionStation[static_cast<std::size_t>(position)]);
}

void OpenSeasTable(CReport& report, const char* table)
{
    report.Page.OpenFrame(kSeasFrame);
    report.Page.WriteLine(table);
}

void OpenSeasTable(CReport& report, const char* table, std::initializer_list<const char*> headRows)
{
    OpenSeasTable(report, table);
    for (const char* row : headRows)
    {
        report.Page.WriteLine(row);
    }
}

void RowInPieces(CReport& report, float heading, std::span<const float> values, CLineFormat<float> cell)
{
    report.Page.WriteLine("<TR> <TD>%.0f</TD>", heading);
    for (const float value : values)
    {
        report.Page.WriteLine(cell, value);
    }
    report.Page.WriteLine("</TR>");
}

void FroudeRow(CReport& report, int speed, float froudeNumber)
{
    report.Page.WriteLine(
        R"(<TR> <TD>Speed: <B>%.0f</B> knots</TD> <TD>Froude Number: <B>%.3f</B></TD> <TD>Spectrum Name: <B>%s</B></TD> </TR>)",
        SpeedOf(report, speed), froudeNumber, SpectrumName(report.Results.Head.SpectrumKind));
}
