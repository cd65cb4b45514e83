// Loads in regular seas, frequency by frequency.
#include "core/results/CalculatedArrays.h"
#include "core/results/report/RegularSeas.h"

namespace
{
constexpr const char* kSummaryTable =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING="0" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "98%">)";

enum class EPart
{
    Amplitude,
    Phase
};

class CLoadRaoTables
{
public:
    explicit CLoadRaoTables(CReport& report) : m_report(report), m_arrays(report.Results)
    {
        WalkCalculated(report.Results, m_arrays);
    }

    void WriteSpeed(int speed)
    {
        bool first = true;
        for (const int heading : m_report.HeadingsTo180())
        {
            for (const int station : m_report.Positions())
            {
                for (const EPart part : {EPart::Amplitude, EPart::Phase})
                {
                    if (!first)
                    {
                        m_report.Page.PageBreak();
                    }
                    first = false;
                    m_report.Banner(kBannerLoadRao);
                    WriteTable({speed, heading, station, part});
                }
            }
        }
    }

private:
    struct CTable
    {
        int Speed;
        int Heading;
        int Station;
        EPart Part;
    };

    void WriteTable(const CTable& table)
    {
        WriteFrequencyTable(
            m_report, kBannerLoadRao, kRaoRowsOnPage, [&] { Open(table); },
            [&](int frequency) { WriteRow(table, frequency); }, [&] { m_report.Page.CloseTableAndFrame(); });
    }

    void Open(const CTable& table)
    {
        CHtmlPage& page = m_report.Page;
        const bool amplitude = table.Part == EPart::Amplitude;
        page.WriteLine(amplitude ? "<B>Load RAO Data - Horz and Vert Shear, Torsion Moment, Vert and Horz "
                                   "Bending: Amplitude</B><BR>"
                                 : "<B>Load RAO Data - Horz and Vert Shear, Torsion Moment, Vert and Horz "
                                   "Bending: Phase</B><BR>");
        WriteConditions(table);
        page.OpenFrame();
        page.WriteLine(kDataTable);
        page.WriteLine("<TR> <TD> WF </TD> <TD> WE </TD><TD>HorzShear</TD> <TD>VertShear</TD> "
                       "<TD>Torsion</TD> <TD>VertBend</TD> <TD>HorzBend</TD> <TD>WL/L</TD> </TR>");
        page.WriteLine(amplitude ? "<TR> <TD></TD> <TD></TD><TD>Amp</TD> <TD>Amp</TD> <TD>Amp</TD> "
                                   "<TD>Amp</TD> <TD>Amp</TD> </TR>"
                                 : "<TR> <TD></TD> <TD></TD><TD>Phase</TD> <TD>Phase</TD> <TD>Phase</TD> "
                                   "<TD>Phase</TD> <TD>Phase</TD> </TR>");
    }

    void WriteConditions(const CTable& table)
    {
        CHtmlPage& page = m_report.Page;
        const float station = m_report.Results.Body.LoadStations[static_cast<std::size_t>(table.Station)];
        page.OpenFrame();
        page.WriteLine(kInnerTable);
        page.WriteLine("<TR> <TD>Sea Direction:</TD> <TD><B>%.1f</B></TD> <TD>Ship Speed:</TD> "
                       "<TD><B>%.2f</B> knots</TD> </TR>",
                       Heading(m_report, table.Heading), Speed(m_report, table.Speed));
        page.WriteLine("<TR> <TD>Froude Number:</TD> <TD><B>%.3f</B></TD> <TD>Load Station:</TD> "
                       "<TD><B>%.2f</B></TD> </TR>",
                       m_arrays.Froude[static_cast<std::size_t>(table.Speed)],
                       m_report.StationLabel(station));
        page.CloseTableAndFrame();
    }

    void WriteRow(const CTable& table, int frequency)
    {
        CHtmlPage& page = m_report.Page;
        const CResultsBody& body = m_report.Results.Body;
        page.WriteLine("<TR> <TD>%.3f</TD> <TD>%.3f</TD>", WaveFrequency(body, frequency),
                       m_arrays.EncounterFreq(table.Speed, table.Heading, frequency));
        for (int component = 0; component < kLoadComponents; ++component)
        {
            if (table.Part == EPart::Amplitude)
            {
                page.WriteLine("<TD>%.3f</TD>", body.LoadRaoAmplitude(table.Speed, component, table.Station,
                                                                      table.Heading, frequency));
            }
            else
            {
                page.WriteLine("<TD>%.0f</TD>", body.LoadRaoPhase(table.Speed, component, table.Station,
                                                                  table.Heading, frequency));
            }
        }
        page.WriteLine("<TD>%.3f</TD> </TR>",
                       m_arrays.WavelengthRatio(table.Speed, table.Heading, frequency));
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
    page.WriteLine(kSummaryTable);
    page.WriteLine("<TR> <TD>Total Number of ship speeds:</TD> <TD><B>%i</B></TD> </TR>", counts.Speeds);
    page.WriteLine("<TR><TD>Number of ship speeds selected:</TD> <TD><B>%i</B></TD> </TR>",
                   counts.SelectedSpeeds);
    page.WriteLine("<TR> <TD>Ship speeds selected:</TD> <TD>");
    for (const int speed : report.Speeds())
    {
        page.WriteLine("<B>%.2f</B> &nbsp&nbsp&nbsp", Speed(report, speed));
    }
    page.WriteLine("</TD> </TR>");
    page.WriteLine("<TR> <TD>Total Number of sea directions:</TD> <TD><B>%i</B></TD></TR> <TR><TD>Number of "
                   "sea directions selected:</TD> <TD><B>%i</B></TD></TR>",
                   counts.Headings, counts.SelectedHeadings);
    page.WriteLine("<TR> <TD>Total Number of loads:</TD> <TD><B>%i</B></TD></TR> <TR><TD>Number of load "
                   "locations selected:</TD> <TD><B>%i</B></TD><TR>",
                   counts.LoadStations, counts.SelectedLoadStations);
    page.CloseTableAndFrame();
}

void WriteNonDimensionalization(CHtmlPage& page)
{
    page.OpenFrame();
    page.WriteLine("<U>Non-dimensionalization</U><BR>");
    page.WriteLine(
        "Horizontal and vertical shear amplitudes non-dimensionalized by 0.001*RHO*G*B*L*A<BR><BR>");
    page.WriteLine(
        "Torsion, vertical and horizontal moments non-dimensionalized by 0.001*RHO*G*B*L*L*A<BR><BR>");
    page.WriteLine("RHO = Water Density&nbsp&nbsp&nbsp <BR>G = Gravitional Acceleration <BR>B = Ship Beam"
                   "<BR>");
    page.WriteLine("L = Ship Length<BR>A = Wave amplitude<BR><BR>");
    page.WriteLine("WF = Wave Frequency (rad/sec)<BR>WE = Encounter Frequency (rad/sec)<BR>WL/L = "
                   "Wavelength/Ship Length");
    page.CloseFrame();
}
} // namespace

void LoadRaoSection(CReport& report)
{
    report.BeginSection("LoadRao", kBannerLoadRao);
    WriteSummary(report);
    WriteNonDimensionalization(report.Page);
    CLoadRaoTables tables(report);
    const bool hasTables = !report.HeadingsTo180().empty() && !report.Positions().empty();
    EachSpeed(report, "LdRaoSpeed", hasTables, [&tables](int speed) { tables.WriteSpeed(speed); });
    report.Page.ContentsLink();
}
