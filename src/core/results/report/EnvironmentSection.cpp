// The sea as the engine used it.
#include "core/results/report/WaveInputTables.h"

namespace
{
constexpr int kHeadingsOnLine = 10;

void WriteFrequencies(CHtmlPage& page, float minimum, float maximum, float increment)
{
    page.WriteLine("&nbsp&nbsp&nbsp Minimum:&nbsp&nbsp&nbsp <B>%.2f</B><BR>", minimum);
    page.WriteLine("&nbsp&nbsp&nbsp Maximum:&nbsp&nbsp&nbsp <B>%.2f</B><BR>", maximum);
    page.WriteLine("&nbsp&nbsp&nbsp Increment:&nbsp&nbsp&nbsp <B>%.2f</B><BR><BR>", increment);
}

const char* FrequencyOrigin(bool isDefault)
{
    return isDefault ? "Default" : "User Specified";
}

void WriteWaveFrequencies(CReport& report)
{
    const CProjectData& input = *report.Results.Input;
    const float minimum = input.WVFREQMIN.Value();
    const float maximum = input.WVFREQMAX.Value();
    const float increment = input.DWVFREQ.Value();
    report.Page.WriteLine("%s Wave Frequencies (rad/sec):<BR>",
                          FrequencyOrigin(minimum == 0.2F && maximum == 2.0F && increment == 0.1F));
    WriteFrequencies(report.Page, minimum, maximum, increment);
}

void WriteEncounterFrequencies(CReport& report)
{
    const CCalculatedHead& calculated = report.Results.Calculated;
    const bool isDefault = calculated.EncounterMinimum == 0 && calculated.EncounterMaximum == 0 &&
                           calculated.EncounterIncrement == 0;
    report.Page.WriteLine("%s Encounter Frequencies (rad/sec):<BR>", FrequencyOrigin(isDefault));
    if (isDefault)
    {
        report.Page.WriteLine("(Based On Ship Length)<BR>");
    }
    WriteFrequencies(report.Page, calculated.EncounterMinimum, calculated.EncounterMaximum,
                     calculated.EncounterIncrement);
}

/// The file that a measured or hindcast spectrum was read from; nullptr for the other spectra.
const std::string* SpectrumFile(const CResults& results)
{
    switch (results.Head.SpectrumKind)
    {
    case kSpectrumMeasuredUnidirectional:
        return &results.Input->SpectrumFile;
    case kSpectrumHindcast:
        return &results.Input->HindcastFile;
    case kSpectrumMeasuredDirectional:
        return &results.Input->DirectionalFile;
    default:
        return nullptr;
    }
}

void WriteSpectrum(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CResults& results = report.Results;
    page.WriteLine("Seaway Spectrum:&nbsp&nbsp&nbsp <B>%s</B>", SpectrumName(results.Head.SpectrumKind));
    if (const std::string* file = SpectrumFile(results); file != nullptr)
    {
        page.WriteLine("<BR>");
        page.WriteLine("External File:&nbsp&nbsp&nbsp <I>%s</><BR>", *file);
    }
    if (results.Head.SpectrumKind == kSpectrumRegular)
    {
        page.WriteLine("<BR>");
        page.WriteLine("&nbsp&nbsp&nbsp Wave Steepness:&nbsp&nbsp&nbsp %.2f",
                       results.Input->WAVESTEEP.Value());
        page.WriteLine("<BR>");
    }
}

void WriteDirections(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CResults& results = report.Results;
    page.OpenFrame();
    page.WriteLine("Sea Directions: (degrees)<BR><BR>");
    int index = 0;
    for (const float heading : results.Body.Headings)
    {
        if (index > 0 && index % kHeadingsOnLine == 0)
        {
            page.WriteLine("<BR>");
        }
        page.WriteLine("<I>%3.1f</I> &nbsp&nbsp&nbsp", heading);
        ++index;
    }
    if (!IsDirectional(results.Head.SpectrumKind))
    {
        page.WriteLine("<BR><BR>");
        page.WriteLine(report.IsShortCrested() ? "Short-Crested Seas:" : "Uni-directional Seas:");
        page.WriteLine("&nbsp&nbsp&nbsp &nbsp&nbsp&nbsp Spreading angle:&nbsp&nbsp&nbsp <B>%.1f</B>",
                       results.Head.SpreadAngle);
    }
    page.CloseFrame();
}

void WriteSeawayRow(CReport& report, int seaway)
{
    const CResults& results = report.Results;
    const float height = results.Body.WaveHeights[static_cast<std::size_t>(seaway)];
    const float period = results.Body.WavePeriods[static_cast<std::size_t>(seaway)];
    const int seaState = report.SeaStateOf(seaway);
    if (results.Head.SpectrumKind == kSpectrumJonswap)
    {
        report.Page.WriteLine("<TR> <TD><I>%.2f</I></TD> <TD><I>%.2f</I></TD> <TD><I>%i</I></TD> "
                              "<TD><I>%.2f</I></TD> </TR>",
                              height, period, seaState, results.Input->PEAKENSW.Value(seaway));
        return;
    }
    report.Page.WriteLine("<TR><TD><I>%.2f</I></TD> <TD><I>%.2f</I></TD> <TD><I>%i</I></TD> </TR>", height,
                          period, seaState);
}

void WriteSeaways(CReport& report)
{
    CHtmlPage& page = report.Page;
    const int seaways = static_cast<int>(report.Results.Body.WaveHeights.size());
    if (seaways == 0 || report.Results.Head.SpectrumKind <= kSpectrumRegular)
    {
        return;
    }
    page.OpenFrame();
    page.WriteLine("<U>Calculated Values</U><BR>");
    page.WriteLine("Number of Seaways Considered:&nbsp&nbsp&nbsp <B>%i</B><BR><BR>", seaways);
    page.WriteLine(kDataTable);
    const char* peakHead =
        report.Results.Head.SpectrumKind == kSpectrumJonswap ? "<TD> Peak Enhancement Factor </TD> " : "";
    page.WriteLine("<TR><TD> Significant Wave Height (%s) </TD><TD> Characteristic Wave Period (sec) </TD> "
                   "<TD> Sea State </TD> %s</TR>",
                   report.ShortLength(), peakHead);
    for (int seaway = 0; seaway < seaways; ++seaway)
    {
        WriteSeawayRow(report, seaway);
    }
    page.CloseTableAndFrame();
}

const char* CorrectionName(const CParamArray& correction, const char* bow, const char* ship)
{
    const int choice = correction.Integer();
    return choice == 0 ? "" : choice == 1 ? bow : ship;
}

void WriteControlParameters(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CProjectData& input = *report.Results.Input;
    page.OpenFrame();
    page.WriteLine("<U>User Defined Control Parameters</U><BR>");
    page.WriteLine("<U>General Parameters:</U><BR>");
    page.WriteLine("&nbsp&nbsp&nbsp Motions Computed for:&nbsp&nbsp&nbsp <B>%s</B><BR>",
                   input.WATERDEN.Integer() == 0 ? "SALT WATER" : "FRESH WATER");
    page.WriteLine("&nbsp&nbsp&nbsp Method Used:&nbsp&nbsp&nbsp <B>%s</B><BR><BR>",
                   input.HYMETHOD.Integer() == 0 ? "BOUND2D" : "CONFORMAL MAPPING");
    page.WriteLine("<U>Correction Parameters:</U><BR>");
    page.WriteLine("&nbsp&nbsp&nbsp Speed Correction:&nbsp&nbsp&nbsp <B>%s</B><BR>",
                   CorrectionName(input.SPEEDCOR, "BOW SPEED CORRECTION", "ENTIRE SHIP SPEED CORRECTION"));
    page.WriteLine("&nbsp&nbsp&nbsp Swell Correction:&nbsp&nbsp&nbsp <B>%s</B><BR>",
                   CorrectionName(input.SWELLCOR, "BOW SWELL CORRECTION", "ENTIRE SHIP SWELL CORRECTION"));
    page.CloseFrame();
}
} // namespace

void EnvironmentSection(CReport& report)
{
    report.BeginSection("Env", kBannerEnvironment);
    report.Page.WriteLine("<U>Seaway Spectral Parameters</U><BR>");
    report.Page.OpenFrame();
    WriteWaveFrequencies(report);
    WriteEncounterFrequencies(report);
    WriteSpectrum(report);
    report.Page.CloseFrame();
    WriteDirections(report);
    WriteSeaways(report);
    WaveInputTables(report);
    WriteControlParameters(report);
    report.Page.ContentsLink();
}
