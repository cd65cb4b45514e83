// Motion responses in regular seas, frequency by frequency.
#include "core/results/CalculatedArrays.h"
#include "core/results/report/RegularSeas.h"

#include <array>

namespace
{
constexpr const char* kRaoTable =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING="0" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "99%">)";

/// Three modes that share a table.
struct CModeGroup
{
    std::array<int, 3> Modes; ///< by their place in the results
    const char* Title;
    const char* Head;
};

constexpr std::array<CModeGroup, 2> kModeGroups = {{
    {{2, 4, 3},
     "<B>RAO Data - Heave, Pitch, Roll:</B><BR>",
     R"(<TR> <TD> WF </TD> <TD> WE </TD><TD colspan="2">Heave</TD> <TD colspan="2">Pitch</TD> <TD colspan="2">Roll</TD> <TD> WL / L </TD> </TR>)"},
    {{0, 1, 5},
     "<B>RAO Data - Surge, Sway, Yaw:</B><BR>",
     R"(<TR> <TD> WF </TD> <TD> WE </TD><TD colspan="2">Surge</TD> <TD colspan="2">Sway</TD> <TD colspan="2">YAW</TD> <TD> WL / L </TD> </TR>)"},
}};

class CMotionRaoTables
{
public:
    explicit CMotionRaoTables(CReport& report) : m_report(report), m_arrays(report.Results)
    {
        WalkCalculated(report.Results, m_arrays);
    }

    void WriteSpeed(int speed)
    {
        bool first = true;
        for (const int heading : m_report.HeadingsTo180())
        {
            for (const CModeGroup& group : kModeGroups)
            {
                if (!first)
                {
                    m_report.Page.PageBreak();
                }
                first = false;
                m_report.Banner(kBannerMotionRao);
                WriteTable(speed, heading, group);
            }
        }
    }

private:
    void WriteTable(int speed, int heading, const CModeGroup& group)
    {
        WriteFrequencyTable(
            m_report, kBannerMotionRao, kRaoRowsOnPage, [&] { Open(speed, heading, group); },
            [&](int frequency) { WriteRow(speed, heading, group, frequency); },
            [&] { m_report.Page.CloseTableAndFrame(); });
    }

    void Open(int speed, int heading, const CModeGroup& group)
    {
        CHtmlPage& page = m_report.Page;
        page.WriteLine(group.Title);
        page.OpenFrame();
        page.WriteLine("Sea Direction:&nbsp&nbsp&nbsp <B>%.1f</B> "
                       "&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp Ship Speed:&nbsp&nbsp&nbsp <B>%.2f</B> "
                       "knots &nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp Froude Number: "
                       "&nbsp&nbsp&nbsp<B>%.3f</B><BR>",
                       Heading(m_report, heading), Speed(m_report, speed),
                       m_arrays.Froude[static_cast<std::size_t>(speed)]);
        page.WriteLine("<U>Note:</U> &nbsp&nbsp&nbsp Translation (Surge, Sway, Heave) amplitudes "
                       "non-dimensionalized by wave amplitude, A.<BR>");
        page.WriteLine("&nbsp&nbsp&nbsp Angular (Pitch, Roll, Yaw) amplitudes non-dimensionalized by wave "
                       "slope, KA.<BR>");
        page.WriteLine("WF = Wave Frequency (rad/sec) &nbsp&nbsp&nbsp WE = Encounter Frequency "
                       "(rad/sec)<BR>");
        page.WriteLine("WL/L = Wavelength / Ship Length &nbsp&nbsp&nbsp K = Wave Number");
        page.CloseFrame();
        page.OpenFrame();
        page.WriteLine(kRaoTable);
        page.WriteLine(group.Head);
        page.WriteLine("<TR> <TD></TD> <TD></TD><TD>Amp</TD><TD>Phase</TD><TD>Amp</TD><TD>Phase</TD>"
                       "<TD>Amp</TD><TD>Phase</TD> </TR>");
    }

    void WriteRow(int speed, int heading, const CModeGroup& group, int frequency)
    {
        CHtmlPage& page = m_report.Page;
        const CResultsBody& body = m_report.Results.Body;
        page.WriteLine("<TR> <TD>%.3f</TD> <TD>%.3f</TD>", WaveFrequency(body, frequency),
                       m_arrays.EncounterFreq(speed, heading, frequency));
        for (const int mode : group.Modes)
        {
            page.WriteLine("<TD>%.3f</TD>", body.RaoAmplitude(speed, heading, mode, frequency));
            page.WriteLine("<TD>%.0f</TD>", body.RaoPhase(speed, heading, mode, frequency));
        }
        page.WriteLine("<TD>%.3f</TD></TR>", m_arrays.WavelengthRatio(speed, heading, frequency));
    }

    CReport& m_report;
    CFrequencyArrays m_arrays;
};

void WriteSummary(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CSelectionCounts counts(report);
    page.OpenFrame();
    page.WriteLine("<U>Input Summary</U><BR>");
    page.WriteLine("Total Number of ship speeds: &nbsp&nbsp&nbsp <B>%i</B> <BR> Number of ship speeds "
                   "selected: &nbsp&nbsp&nbsp <B>%i</B><BR>",
                   counts.Speeds, counts.SelectedSpeeds);
    if (counts.SelectedSpeeds > 2)
    {
        page.WriteLine("<BR>");
    }
    page.WriteLine("Ship speeds selected: &nbsp&nbsp&nbsp");
    for (const int speed : report.Speeds())
    {
        page.WriteLine("<B>%.2f</B>&nbsp&nbsp&nbsp", Speed(report, speed));
    }
    page.WriteLine("<BR>");
    page.WriteLine("Total Number of sea directions:&nbsp&nbsp&nbsp <B>%i</B><BR> Number of sea directions "
                   "selected: &nbsp&nbsp&nbsp <B>%i</B>",
                   counts.Headings, counts.SelectedHeadings);
    page.CloseFrame();
}
} // namespace

void MotionRaoSection(CReport& report)
{
    report.BeginSection("Rao", kBannerMotionRao);
    WriteSummary(report);
    CMotionRaoTables tables(report);
    EachSpeed(report, "RaoSpeed", !report.HeadingsTo180().empty(),
              [&tables](int speed) { tables.WriteSpeed(speed); });
    report.Page.ContentsLink();
}
