// Roll damping by appendage.
#include "core/results/report/RollDamping.h"

namespace
{
constexpr int kFirstAppendageColumn = 2; ///< behind encounter frequency and roll angle
constexpr int kFrequencyColumns = 3;     ///< WF, WE and roll angle of a printed table
constexpr int kTwoPassColumns = 14;

/// One printed table: values, their columns in it and the names above them.
struct CBreakdown
{
    const char* Title;
    const CHeldArray<4>& Values;
    std::vector<const CAppendage*> Appendages;
    int CAppendage::*Column;
};

void WriteSea(CReport& report, int seaway)
{
    const CResults& results = report.Results;
    if (results.Head.SpectrumKind == kSpectrumRegular)
    {
        report.Page.WriteLine("<TR><TD>Wave Steepness (H/Wavelength):<B>%.2f</B> </TD><TD>Wave Slope (ka): "
                              "<B>%.3f</B></TD> </TR>",
                              results.Input->WAVESTEEP.Value(), report.WaveSlope());
        return;
    }
    const auto place = static_cast<std::size_t>(seaway);
    report.Page.WriteLine("<TR> <TD>Significant Wave Height: <B>%.2f</B>%s</TD><TD>Wave Period: "
                          "<B>%.2f</B>sec</TD><TD>Sea State: <B>%i</B></TD> </TR>",
                          results.Body.WaveHeights[place], report.Length(), results.Body.WavePeriods[place],
                          report.SeaStateOf(seaway));
}

void WriteConditions(CReport& report, const CDampingData& data, const CDampingPage& at)
{
    CHtmlPage& page = report.Page;
    page.WriteLine("<B>Roll Damping Data:</B>&nbsp&nbsp Seaway %i", at.Seaway + 1);
    page.OpenFrame();
    page.WriteLine(kInnerTable);
    page.WriteLine("<TR> <TD>Sea Direction:<B>%.1f</B></TD><TD> Ship Speed:<B>%.2f</B> knots</TD> <TD> "
                   "Froude Number: <B>%.3f</B> </TD> </TR>",
                   Heading(report, at.Heading), Speed(report, at.Speed), data.Froude(at.Speed));
    WriteSea(report, at.Seaway);
    page.WriteLine("<TR><TD>WF = Wave Frequency (rad/sec)</TD><TD> WE = Encounter Frequency (rad/sec)</TD>"
                   "</TR>");
    page.CloseTableAndFrame();
}

void OpenTable(CReport& report, const CDampingData& data, const CDampingPage& at, const CBreakdown& breakdown)
{
    CHtmlPage& page = report.Page;
    WriteConditions(report, data, at);
    page.WriteLine(breakdown.Title);
    page.WriteLine(R"(<a NAME="RollDamp"></a>)");
    page.OpenFrame();
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD>WF</TD><TD>WE</TD><TD>Roll Angle</TD>");
    for (const CAppendage* appendage : breakdown.Appendages)
    {
        page.WriteLine("<TD>");
        page.WriteLine(appendage->Name);
        page.WriteLine("</TD>");
    }
    page.WriteLine("</TR>");
}

void WriteTable(CReport& report, const CDampingData& data, const CDampingPage& at,
                const CBreakdown& breakdown)
{
    CHtmlPage& page = report.Page;
    const auto value = [&](int frequency, int column)
    { return breakdown.Values(at.Speed, at.Heading, frequency, column); };
    const auto writeRow = [&](int frequency)
    {
        page.WriteLine("<TR><TD>%.3f</TD><TD>%.3f</TD><TD>%.3f</TD>",
                       WaveFrequency(report.Results.Body, frequency), value(frequency, 0),
                       value(frequency, 1));
        for (const CAppendage* appendage : breakdown.Appendages)
        {
            page.WriteLine("<TD>%.4f</TD>", value(frequency, appendage->*breakdown.Column));
        }
        page.WriteLine("</TR>");
    };
    const auto close = [&page]
    {
        page.WriteLine("</TABLE>");
        page.WriteLine("</tr></td></TABLE><BR>");
    };
    report.NextPage(kBannerRollDamping);
    WriteFrequencyTable(
        report, kBannerRollDamping, kDampingRowsOnPage, [&] { OpenTable(report, data, at, breakdown); },
        writeRow, close);
}

/// Writes a breakdown in one table, or in two when the appendages are too many for one.
void WriteBreakdown(CReport& report, const CDampingData& data, const CDampingPage& at, CBreakdown breakdown)
{
    const bool twoPasses = static_cast<int>(data.Appendages.size()) + kFrequencyColumns >= kTwoPassColumns;
    const auto writePass = [&](auto&& belongs)
    {
        breakdown.Appendages.clear();
        for (const CAppendage& appendage : data.Appendages)
        {
            if (appendage.*breakdown.Column >= 0 && belongs(appendage))
            {
                breakdown.Appendages.push_back(&appendage);
            }
        }
        WriteTable(report, data, at, breakdown);
    };
    writePass([twoPasses](const CAppendage& appendage) { return !twoPasses || !appendage.IsFoilOrFin(); });
    if (twoPasses)
    {
        writePass([](const CAppendage& appendage) { return appendage.IsFoilOrFin(); });
    }
}
std::vector<CAppendage> AppendageColumns(const CControlSection& control)
{
    std::vector<CAppendage> appendages;
    int lift = kFirstAppendageColumn;
    int viscous = kFirstAppendageColumn;
    const auto add = [&](std::string name) { appendages.push_back({std::move(name), lift++, viscous++}); };
    const auto addNumbered = [&add](const char* name, int count)
    {
        for (int number = 1; number <= count; ++number)
        {
            add(FormatText("%s %i", name, number));
        }
    };
    if (control.HasRudderColumn != 0)
    {
        add("Rudder");
    }
    if (control.HasSkegColumn != 0)
    {
        appendages.push_back({"Skeg", lift++, -1});
    }
    addNumbered("BK", control.KeelColumns);
    addNumbered("Foil", control.FoilColumns);
    addNumbered("Fin", control.FinColumns);
    return appendages;
}

} // namespace

CDampingData::CDampingData(const CResults& results)
    : Frequencies(results),
      Damping(results),
      Appendages(AppendageColumns(results.Control)),
      m_hasColumns(results.Control.HasAppendageBreakdown != 0)
{
    WalkCalculated(results, Frequencies);
    WalkCalculated(results, Damping);
}

void DampingBreakdown(CReport& report, const CDampingData& data, const CDampingPage& at)
{
    WriteBreakdown(report, data, at,
                   {"<B>Damping Components - Detailed breakdown of appendage lift roll damping</B>",
                    data.Damping.LiftTable,
                    {},
                    &CAppendage::LiftColumn});
    WriteBreakdown(report, data, at,
                   {"<B>Damping Components - Detailed breakdown of appendage viscous roll damping</B>",
                    data.Damping.ViscousTable,
                    {},
                    &CAppendage::ViscousColumn});
}
