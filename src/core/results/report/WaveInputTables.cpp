#include "core/results/report/WaveInputTables.h"

namespace
{
constexpr const char* kTenParameterTable =
    R"(<TABLE cellspacing="1" ALIGN=CENTER CELLPADDING="5" border="0" bordercolor="#CBD3E1" HSPACE=5 width = "90%">)";

using CRowWriter = void (*)(CReport& report, int seaway, bool swell);

void WriteOchiHubbleRow(CReport& report, int seaway, bool swell)
{
    // The second system is the wind sea, the first the swell.
    const CProjectData& input = *report.Results.Input;
    const auto slot = static_cast<std::size_t>(seaway);
    const float height = (swell ? input.OchiHs1 : input.OchiHs2)[slot];
    report.Page.WriteLine("<TR> <TD>%2.0d</TD> <TD><I>%.2f</I></TD> <TD><I>%.2f</I></TD> "
                          "<TD><I>%.2f</I></TD> </TR>",
                          seaway + 1, report.LengthOut(height), (swell ? input.OchiTp1 : input.OchiTp2)[slot],
                          (swell ? input.OchiLam1 : input.OchiLam2)[slot]);
}

void WriteTenParameterRow(CReport& report, int seaway, bool swell)
{
    const CProjectData& input = *report.Results.Input;
    report.Page.WriteLine("<TR> <TD>%2.0d</TD> <TD><I>%.2f</I></TD> <TD><I>%.2f</I></TD> "
                          "<TD><I>%.2f</I></TD> <TD><I>%.2f</I></TD> <TD><I>%.2f</I></TD> </TR>",
                          seaway + 1, report.LengthOut((swell ? input.ZETA1 : input.ZETA2).Value(seaway)),
                          (swell ? input.OMEGA1 : input.OMEGA2).Value(seaway),
                          (swell ? input.LAMB1 : input.LAMB2).Value(seaway),
                          (swell ? input.KAPA1 : input.KAPA2).Value(seaway),
                          (swell ? input.EXPP1 : input.EXPP2).Value(seaway));
}

void WriteSystems(CReport& report, CRowWriter writeRow)
{
    const int seaways = report.Results.Input->NSEAWAY.Count(kMaxSeaways);
    for (const bool swell : {false, true})
    {
        report.Page.WriteLine(swell ? R"(<TR><TD colspan="4"><B> Swell Input Data:</B></TD></TR>)"
                                    : R"(<TR><TD colspan="4"><B> Wave Input Data:</B></TD></TR>)");
        for (int seaway = 0; seaway < seaways; ++seaway)
        {
            writeRow(report, seaway, swell);
        }
    }
}

void OpenUserInput(CReport& report, const char* table)
{
    report.NextPage(kBannerEnvironment);
    report.Page.OpenFrame();
    report.Page.WriteLine("<U>User Input</U><BR>");
    report.Page.WriteLine(table);
}
} // namespace

void WaveInputTables(CReport& report)
{
    if (report.Results.Head.SpectrumKind == kSpectrumOchiHubble)
    {
        OpenUserInput(report, kDataTable);
        report.Page.WriteLine("<TR> <TD> Seaway </TD> <TD> Significant Wave Height (%s) </TD><TD> Peak "
                              "Frequency (rad/s) </TD> <TD> Spectral Shape Parameter </TD> </TR>",
                              report.ShortLength());
        WriteSystems(report, WriteOchiHubbleRow);
        report.Page.CloseTableAndFrame();
    }
    else if (report.Results.Head.SpectrumKind == kSpectrumTenParameter)
    {
        OpenUserInput(report, kTenParameterTable);
        report.Page.WriteLine("<TR> <TD> Seaway </TD> <TD> Significant Wave Height (%s) </TD><TD> Peak "
                              "Frequency (rad/s) </TD> <TD> Spectral Shape Parameter </TD> <TD> Mean Compass "
                              "Direction (deg) </TD> <TD> Spreading Parameter</TD> </TR>",
                              report.ShortLength());
        WriteSystems(report, WriteTenParameterRow);
        report.Page.CloseTableAndFrame();
    }
}
