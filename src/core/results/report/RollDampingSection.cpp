// Roll damping in regular seas, by what causes it.
#include "core/results/report/RollDamping.h"

#include <array>

namespace
{
constexpr const char* kDampingTable =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING="3" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "98%">)";
constexpr float kKilo = 0.001F;

void WriteSummary(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CSelectionCounts counts(report);
    page.OpenFrame();
    page.WriteLine("<U>Input Summary</U><BR>");
    page.WriteLine(kInnerTable);
    page.WriteLine("<TR> <TD>Total Number of ship speeds:</TD> <TD><B>%i</B></TD> <TD>Number of ship speeds "
                   "selected:</TD> <TD><B>%i</B></TD> </TR>",
                   counts.Speeds, counts.SelectedSpeeds);
    page.WriteLine("<TR> <TD>Ship speeds selected:</TD> <TD>");
    for (const int speed : report.Speeds())
    {
        page.WriteLine("<B>%.2f</B> &nbsp&nbsp", Speed(report, speed));
    }
    page.WriteLine("</TD> </TR>");
    page.WriteLine("<TR> <TD>Total Number of sea directions:</TD> <TD><B>%i</B></TD> <TD>Number of sea "
                   "directions selected:</TD> <TD><B>%i</B></TD> </TR>",
                   counts.Headings, counts.SelectedHeadings);
    page.CloseTableAndFrame();
}

void WriteRollConstants(CReport& report, const CDampingData& data)
{
    CHtmlPage& page = report.Page;
    // Those of the first speed that is shown.
    const std::array<float, 3> constants =
        report.Speeds().empty() ? std::array<float, 3>{}
                                : data.Damping.Constants[static_cast<std::size_t>(report.Speeds().front())];
    const bool metric = report.MetricOutput();
    const float scale = metric ? kKilo : 1.0F;
    page.OpenFrame();
    page.WriteLine("<U>General Roll Input Data:</U><BR>");
    page.WriteLine(kInnerTable);
    page.WriteLine("<TR> <TD>Roll Natural Frequency:</TD> <TD>RNF = <B>%.2e</B>  %s</TD> </TR>", constants[0],
                   "rad/sec");
    page.WriteLine("<TR> <TD>Roll Stiffness:</TD> <TD>C44 = <B>%.2e</B>  %s</TD> </TR>", constants[1] * scale,
                   metric ? "kn-m" : "lb/ft");
    page.WriteLine("<TR> <TD>Roll Inertia (dry):</TD> <TD>I44 = <B>%.2e</B>  %s</TD> </TR>",
                   constants[2] * scale, metric ? "tonne-m**2" : "slug-ft**2");
    page.CloseTableAndFrame();
}

void WriteGlossary(CHtmlPage& page)
{
    struct CEntry
    {
        const char* Name;
        const char* Text;
    };
    constexpr std::array<CEntry, 7> entries = {
        {{"Total", "All roll damping components"},
         {"Wave", "Wave radiation damping"},
         {"Lift", "Lift forces on skeg, static foils, stabilizing fins, rudders and bilge keels"},
         {"Eddy", "Eddy-making forces on hull, including skeg"},
         {"Skin", "Skin friction force on hull"},
         {"Visc BK", "Viscous forces on bilge keel"},
         {"Visc Foils", "Viscous forces on static foils, stabilizing fins and rudders"}}};
    page.WriteLine(R"(<TR> <TD colspan="2"><U>Damping components from the following:</U></TD> </TR> )"
                   "<TR><TD>&nbsp&nbsp</TD></TR>");
    for (const CEntry& entry : entries)
    {
        page.WriteLine("<TR> <TD>%s:</TD> <TD>%s</TD> </TR>", entry.Name, entry.Text);
    }
}

void WriteDescriptions(CHtmlPage& page)
{
    page.OpenFrame();
    page.WriteLine(kInnerTable);
    page.WriteLine(R"(<TR> <TD colspan="2"><U>General Descriptions:</U></TD></TR> )"
                   "<TR> <TD>&nbsp&nbsp</TD></TR>");
    page.WriteLine("<TR> <TD>(1)</TD> <TD>Damping Coefficients are non-dimensionalized by multiplying by "
                   "RNF/(2*C44)</TD> </TR>");
    page.WriteLine("<TR> <TD></TD> <TD>ie. roll damping given as fraction of criteral damping</TD> </TR>");
    page.WriteLine("<TR> <TD>(2)</TD> <TD>Roll added mass given as fraction of dry roll inertia</TD> </TR>");
    page.WriteLine("<TR> <TD>(3)</TD> <TD>Roll Angle is the angle in degrees at which the Roll Damping was "
                   "computed</TD> </TR> <TR><TD> &nbsp&nbsp </TD></TR>");
    WriteGlossary(page);
    page.CloseTableAndFrame();
}

void WriteSea(CReport& report, int seaway)
{
    const CResults& results = report.Results;
    if (results.Head.SpectrumKind == kSpectrumRegular)
    {
        report.Page.WriteLine("<TR> <TD>Wave Steepness (H/Wavelength):</TD> <TD><B>%.2f</B></TD> <TD>Wave "
                              "Slope (ka):</TD> <TD><B>%.3f</B></TD> </TR>",
                              results.Input->WAVESTEEP.Value(), report.WaveSlope());
        return;
    }
    const auto place = static_cast<std::size_t>(seaway);
    report.Page.WriteLine("<TR> <TD>Significant Wave Height:</TD> <TD><B>%.2f</B> %s</TD> <TD>Wave "
                          "Period:</TD> <TD><B>%.2f</B> sec</TD> <TD>Sea State:</TD> <TD><B>%i</B></TD> "
                          "</TR>",
                          results.Body.WaveHeights[place], report.Length(), results.Body.WavePeriods[place],
                          report.SeaStateOf(seaway));
}

void OpenComponents(CReport& report, const CDampingData& data, const CDampingPage& at)
{
    CHtmlPage& page = report.Page;
    page.WriteLine("<B>Roll Damping Data:</B>&nbsp&nbsp&nbsp Seaway %i<BR>", at.Seaway + 1);
    page.OpenFrame();
    page.WriteLine(kInnerTable);
    page.WriteLine("<TR> <TD>Sea Direction:</TD> <TD><B>%.1f</B></TD> <TD>Ship Speed:</TD> <TD><B>%.2f</B> "
                   "knots</TD> <TD>Froude Number:</TD> <TD><B>%.3f</B></TD> </TR>",
                   Heading(report, at.Heading), Speed(report, at.Speed), data.Froude(at.Speed));
    WriteSea(report, at.Seaway);
    page.WriteLine(R"(<TR> <TD>WF =</TD> <TD colspan="2">Wave Frequency (rad/sec)</TD> )"
                   R"(<TD>WE =</TD> <TD colspan="2">Encounter Frequency (rad/sec)</TD> </TR>)");
    page.CloseTableAndFrame();
    page.WriteLine("<B>Damping Components</B><BR>");
    page.OpenFrame();
    page.WriteLine(kDampingTable);
    page.WriteLine("<TR> <TD> WF </TD> <TD> WE </TD><TD>Roll Angle</TD> <TD>Total Damping</TD> "
                   "<TD>Lift</TD> <TD>Wave</TD> <TD>Visc BK</TD> <TD>Eddy</TD> <TD>Skin</TD> <TD>Visc "
                   "Foils</TD> <TD>Added Mass</TD> </TR>");
}

void WriteComponents(CReport& report, const CDampingData& data, const CDampingPage& at)
{
    const auto writeRow = [&](int frequency)
    {
        const auto value = [&](CDampingArrays::EColumn column)
        { return data.Damping.Components(at.Speed, at.Heading, frequency, column); };
        report.Page.WriteLine(
            "<TR><TD>%.3f</TD><TD>%.3f</TD><TD>%.3f</TD><TD>%.3f</TD><TD>%.3f</TD><TD>%.3f</TD>"
            "<TD>%.3f</TD><TD>%.3f</TD><TD>%.3f</TD><TD>%.3f</TD><TD>%.3f</TD></TR>",
            WaveFrequency(report.Results.Body, frequency), value(CDampingArrays::EncounterFrequency),
            value(CDampingArrays::RollAngle), value(CDampingArrays::Total), value(CDampingArrays::Lift),
            value(CDampingArrays::Wave), value(CDampingArrays::BilgeKeelViscous), value(CDampingArrays::Eddy),
            value(CDampingArrays::Skin), value(CDampingArrays::FoilViscous),
            value(CDampingArrays::AddedMass));
    };
    report.NextPage(kBannerRollDamping);
    WriteFrequencyTable(
        report, kBannerRollDamping, kDampingRowsOnPage, [&] { OpenComponents(report, data, at); }, writeRow,
        [&report] { report.Page.CloseTableAndFrame(); });
}

void WriteSpeed(CReport& report, const CDampingData& data, int speed)
{
    for (const int heading : report.HeadingsTo180())
    {
        for (const int seaway : report.Seaways())
        {
            const CDampingPage at = {speed, heading, seaway};
            WriteComponents(report, data, at);
            if (data.HasBreakdown())
            {
                DampingBreakdown(report, data, at);
            }
        }
    }
}
} // namespace

void RollDampingSection(CReport& report)
{
    report.BeginSection("Roll", kBannerRollDamping);
    const CDampingData data(report.Results);
    WriteSummary(report);
    WriteRollConstants(report, data);
    WriteDescriptions(report.Page);
    // Each table begins a page of its own, so that none is needed between two speeds.
    EachSpeed(report, "RollSpeed", false, [&](int speed) { WriteSpeed(report, data, speed); });
    report.Page.ContentsLink();
}
