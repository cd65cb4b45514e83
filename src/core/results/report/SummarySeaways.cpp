#include "core/results/report/CInputSummary.h"

#include <array>
#include <vector>

namespace
{
// Values of SPECTRUM.
constexpr int kRegular = 0;
constexpr int kQuadratic = 1;
constexpr int kBretschneider = 2;
constexpr int kJonswap = 3;
constexpr int kOchiHubble = 4;
constexpr int kMeasured = 5;
constexpr int kTenParameter = 6;
constexpr int kHindcast = 7;
constexpr int kMeasuredDirectional = 8;

constexpr std::array<const char*, 9> kNames = {"Regular Waves",
                                               "Quadratic Regression",
                                               "Bretschneider",
                                               "JONSWAP",
                                               "Ochi & Hubble",
                                               "Measured Uni-directional",
                                               "Ten parameter directional",
                                               "ODGP Hindcast",
                                               "Measured Directional"};

constexpr const char* kSeawayTable =
    R"(<TABLE cellspacing="0" ALIGN=CENTER CELLPADDING=8 border="0" bordercolor="#CBD3E1" HSPACE=5 width = "80%">)";

/// A value of each seaway.
struct CColumn
{
    CColumn(const CParamArray& field) : Slots(field.data.data()), Changed(field.changed) {}
    CColumn(const CTenFloats& values) : Slots(values.data()) {}

    const float* Slots;
    int Changed = 0;
};
using CColumns = std::vector<CColumn>;

std::vector<std::string> Cells(const CColumns& columns, int seaway)
{
    std::vector<std::string> cells;
    for (const CColumn& column : columns)
    {
        cells.push_back(Marked(GivenText(column.Slots[seaway], "%.2f"), column.Changed));
    }
    return cells;
}

int SeawayCount(const CInputSummary& summary)
{
    return summary.Project.NSEAWAY.Count(kMaxSeaways);
}

void HeightsAndPeriods(CInputSummary& summary, int unit, const CColumns& columns)
{
    summary.Page.WriteLine(
        "<TR><TD>Seaway</TD><TD>Significant Wave Height (%s)</TD><TD>Wave Period (sec)</TD></TR>",
        LengthUnit(unit));
    for (int k = 0; k < SeawayCount(summary); ++k)
    {
        const auto cells = Cells(columns, k);
        summary.Page.WriteLine("<TR><TD>%d</TD><TD>%s</TD><TD>%s</TD></TR>", k + 1, cells[0], cells[1]);
    }
}

void Jonswap(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    // The third tag opens a row in the middle of one; readers of these documents know it so.
    summary.Page.WriteLine("<TR><TD>Seaway</TD><TD>Significant Wave Height (%s)</TD><TD>Wave Period "
                           "(sec)</TD><TR>Peak Enhancement Factor</TD></TR>",
                           LengthUnit(p.JonswapUnit));
    for (int k = 0; k < SeawayCount(summary); ++k)
    {
        const auto cells = Cells({p.JonswapHs, p.JonswapTp, p.PEAKENSW}, k);
        summary.Page.WriteLine("<TR><TD>%d</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD></TR>", k + 1, cells[0],
                               cells[1], cells[2]);
    }
}

void OchiHubble(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    summary.Page.WriteLine("<TR><TD> Seaway </TD><TD> Significant Wave Height (%s) </TD> <TD> Peak Frequency "
                           "(rad/s) </TD> <TD> Spectral Shape Parameter</TD></TR>",
                           LengthUnit(p.OchiUnit));
    summary.Page.WriteLine(R"(<TR><TD colspan="4"> <B>Wave Input Data:</B></TD></TR>)");
    for (int k = 0; k < SeawayCount(summary); ++k)
    {
        const auto cells = Cells({p.OchiHs2, p.OchiTp2, p.OchiLam2}, k);
        summary.Page.WriteLine("<TR><TD>%2.0d </TD><TD> %s </TD><TD> %s </TD><TD> %s</TD></TR>", k + 1,
                               cells[0], cells[1], cells[2]);
    }
    summary.Page.WriteLine(R"(<TR><TD colspan="4"> <B>Swell Input Data:</B></TD></TR>)");
    for (int k = 0; k < SeawayCount(summary); ++k)
    {
        const auto cells = Cells({p.OchiHs1, p.OchiTp1, p.OchiLam1}, k);
        summary.Page.WriteLine("<TR><TD> %2.0d </TD><TD> %s </TD><TD> %s </TD><TD> %s </TD></TR>", k + 1,
                               cells[0], cells[1], cells[2]);
    }
}

void TenParameterRows(CInputSummary& summary, const CColumns& columns)
{
    for (int k = 0; k < SeawayCount(summary); ++k)
    {
        const auto cells = Cells(columns, k);
        summary.Page.WriteLine(
            "<TR><TD>%2.0d</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD></TR>", k + 1, cells[0],
            cells[1], cells[2], cells[3], cells[4]);
    }
}

void TenParameters(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    summary.Page.WriteLine(
        "<TR><TD> Seaway </TD><TD> Significant Wave Height (%s) </TD> <TD> Peak Frequency "
        "(rad/s) </TD> <TD> Spectral Shape Parameter</TD> <TD> Mean Compass Direction (deg) "
        "</TD> <TD> Spreading Parameter</TD></TR>",
        LengthUnit(p.ZETA1));
    summary.Page.WriteLine(R"(<TR><TD colspan="6"> <B>Wave Input Data:</B></TD></TR>)");
    TenParameterRows(summary, {p.ZETA2, p.OMEGA2, p.LAMB2, p.KAPA2, p.EXPP2});
    summary.Page.WriteLine(R"(<TR><TD colspan="6"> <B>Swell Input Data:</B></TD></TR>)");
    TenParameterRows(summary, {p.ZETA1, p.OMEGA1, p.LAMB1, p.KAPA1, p.EXPP1});
}

void SeawayTable(CInputSummary& summary, int spectrum)
{
    const CProjectData& p = summary.Project;
    summary.Page.WriteLine(kSeawayTable);
    switch (spectrum)
    {
    case kQuadratic:
        HeightsAndPeriods(summary, p.HSW.unit, {p.HSW, p.TSW});
        break;
    case kBretschneider:
        HeightsAndPeriods(summary, p.BretUnit, {p.BretHs, p.BretTp});
        break;
    case kJonswap:
        Jonswap(summary);
        break;
    case kOchiHubble:
        OchiHubble(summary);
        break;
    case kTenParameter:
        TenParameters(summary);
        break;
    default:
        break;
    }
    summary.Page.CloseTableAndFrame();
}

void RegularWaves(CInputSummary& summary)
{
    summary.Page.WriteLine("<U>Seaway Spectrum</U>: &nbsp&nbsp&nbsp <I>%s</I>", kNames[kRegular]);
    summary.Page.WriteLine("&nbsp&nbsp&nbsp Wave Slope:  %s <BR>", Marked(summary.Project.WAVESTEEP, "%.4f"));
    summary.Page.WriteLine("<B>Swell Input Data: N/A </B><BR>");
    summary.Page.CloseFrame();
}

/// Each kind of file closes its last line in a way of its own.
void SpectrumFile(CInputSummary& summary, int spectrum)
{
    const CProjectData& p = summary.Project;
    const std::string& file = spectrum == kMeasured   ? p.SpectrumFile
                              : spectrum == kHindcast ? p.HindcastFile
                                                      : p.DirectionalFile;
    summary.Page.WriteLine("External File Name: %s<BR>", MarkedFile(file));
    if (spectrum == kMeasured)
    {
        summary.Page.WriteLine("<B>Wave Input Data:</B> <I>%s</B><BR><BR>", kNotAvailable);
    }
    else if (spectrum == kHindcast)
    {
        summary.Page.WriteLine("<B>Wave Input Data:</B> <I>%s</B><BR><BR>}", kNotAvailable);
    }
    else
    {
        summary.Page.WriteLine("<B>Wave Input Data:</B> <I>%s</I><BR><BR>", kNotAvailable);
    }
    summary.Page.CloseFrame();
}
} // namespace

void SeawaySpectrum(CInputSummary& summary)
{
    const int spectrum = summary.Project.SPECTRUM.Integer();
    summary.Page.OpenFrame();
    if (spectrum == kRegular)
    {
        RegularWaves(summary);
        return;
    }
    const bool known = spectrum > kRegular && spectrum <= kMeasuredDirectional;
    summary.Page.WriteLine("<U>Seaway Spectrum</U>:&nbsp&nbsp&nbsp <I>%s</I><BR>",
                           known ? kNames[static_cast<std::size_t>(spectrum)] : "");
    if (!known)
    {
        summary.Page.CloseFrame();
    }
    else if (spectrum == kMeasured || spectrum == kHindcast || spectrum == kMeasuredDirectional)
    {
        SpectrumFile(summary, spectrum);
    }
    else
    {
        SeawayTable(summary, spectrum);
    }
}
