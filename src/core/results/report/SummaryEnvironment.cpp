#include "core/results/report/CInputSummary.h"

namespace
{
const char* YesOrNo(bool yes)
{
    return yes ? "Yes" : "No";
}

const char* SwellCorrection(int option)
{
    return option == 0 ? "No" : option == 1 ? "Yes" : "Entire Ship";
}

void Corrections(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CParamArray& speed = summary.Project.SPEEDCOR;
    const CParamArray& swell = summary.Project.SWELLCOR;
    page.WriteLine("<U>Speed Corrections to Draft</U>:<BR>");
    page.WriteLine("&nbsp&nbsp&nbsp Bow Speed Correction: &nbsp&nbsp&nbsp %s <BR>",
                   Marked(YesOrNo(speed.Integer() == 1), speed.changed));
    page.WriteLine("&nbsp&nbsp&nbsp Entire Ship Correction:&nbsp&nbsp&nbsp %s <BR>",
                   Marked(YesOrNo(speed.Integer() == 2), speed.changed));
    page.WriteLine("<BR><U>Swell-up Correction</U>: <BR>");
    page.WriteLine("&nbsp&nbsp&nbsp Bow Swell-up Correction:&nbsp&nbsp&nbsp %s <BR>",
                   Marked(SwellCorrection(swell.Integer()), swell.changed));
}

void BaseSettings(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CParamArray& output = summary.Project.OUTRAO;
    const CMarks marks = MarkValue(output.changed);
    const bool stored = summary.Project.ADDMASS.Value() >= 4;
    page.OpenFrame();
    page.WriteLine("<BR><U>Base Settings</U><BR>");
    Corrections(summary);
    page.WriteLine("<BR><U>Output Display Parameters</U>: <BR>");
    page.WriteLine("&nbsp&nbsp&nbsp Regular Response Print-out:&nbsp&nbsp&nbsp %s &nbsp&nbsp %s%s <BR>",
                   marks.Open, YesOrNo(output.Integer() != 0), marks.Close);
    page.WriteLine("&nbsp&nbsp&nbsp Roll Damping Print-out:&nbsp&nbsp&nbsp %s &nbsp&nbsp %s%s <BR>",
                   marks.Open, YesOrNo(output.Integer() == 2), marks.Close);
    page.WriteLine("<BR><U>External File Specification</U>: <BR>");
    page.WriteLine(
        "&nbsp&nbsp&nbsp Added Mass and Damping Stored:&nbsp&nbsp&nbsp <I>%s</I> <BR> &nbsp&nbsp&nbsp "
        "Filename: <I>%s</I><BR>",
        YesOrNo(stored), stored ? "Ondara7_DimHyCo.csv" : kNotAvailable);
    page.CloseFrame();
}

void SeaDirections(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    summary.Page.WriteLine(
        "<U>Sea Directions</U> (degrees):&nbsp&nbsp&nbsp&nbsp&nbsp&nbsp <I>Head Seas = 180 "
        "degrees</I><BR>");
    for (int k = 0; k < p.NSEADIR.Count(kMaxSeaDirections); ++k)
    {
        if (k > 0 && k % 10 == 0)
        {
            summary.Page.WriteLine("<BR>");
        }
        summary.Page.WriteLine("&nbsp&nbsp <I>%s</I> &nbsp&nbsp", GivenText(p.SEADIR.Value(k), "%.1f"));
    }
    summary.Page.WriteLine("<BR><BR>");
}

void OperatingData(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    const CMarks marks = MarkValue(p.NSPEED.changed);
    page.OpenFrame();
    page.WriteLine("<U>Input Operating Data</U>:<BR>");
    page.WriteLine("<U>Vessel Speed</U> (%s): <BR>", p.SPDKNOT.unit == 0 ? "Knots" : "m/sec");
    page.WriteLine("&nbsp&nbsp&nbsp Number of Ship Speeds:&nbsp&nbsp&nbsp %s%s<BR>", marks.Open,
                   GivenText(p.NSPEED.Value(), "%.2f"));
    page.WriteLine(marks.Close);
    std::string speeds;
    for (int k = 0; k < p.NSPEED.Count(kMaxSpeeds); ++k)
    {
        speeds += (k == 0 ? "" : " &nbsp&nbsp") + GivenText(p.SPDKNOT.Value(k), "%.2f");
    }
    page.WriteLine("&nbsp&nbsp&nbsp Ship Speeds:&nbsp&nbsp <I>%s</I><BR><BR>", speeds);
    SeaDirections(summary);
    page.CloseFrame();
}

void WaveData(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    page.OpenFrame();
    page.WriteLine("<U>Input Wave Data</U>:<BR>");
    page.WriteLine("<U>Wave Frequency</U> (rad/sec):<BR>");
    page.WriteLine("&nbsp&nbsp&nbsp Minimum:&nbsp&nbsp %s <BR>", Marked(p.WVFREQMIN, "%.4f"));
    page.WriteLine("&nbsp&nbsp&nbsp Maximum:&nbsp&nbsp %s <BR>", Marked(p.WVFREQMAX, "%.4f"));
    page.WriteLine("&nbsp&nbsp&nbsp Increment:&nbsp&nbsp %s <BR><BR>", Marked(p.DWVFREQ, "%.4f"));
    page.WriteLine(
        "<U>RAO Caluclation Method</U>: &nbsp&nbsp&nbsp %s <BR><BR>",
        Marked(p.HYMETHOD.Integer() == 0 ? "Boundary Element" : "Conformal Mapping", p.HYMETHOD.changed));
    page.CloseFrame();
}

void ShortCrestedSeas(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    const bool shortCrested = p.SpreadOption == 1;
    const std::string angle = shortCrested ? Marked(p.SPREADANG, "%.0f") : Marked("0", p.SPREADANG.changed);
    summary.Page.OpenFrame();
    summary.Page.WriteLine("<U>Short Crested Sea Calculation</U>:&nbsp&nbsp&nbsp <I>%s</I> &nbsp&nbsp&nbsp "
                           "Spreading Angle:&nbsp&nbsp&nbsp %s degrees<BR>",
                           YesOrNo(shortCrested), angle);
    summary.Page.CloseFrame();
}
} // namespace

void EnvironmentSpecification(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    page.WriteLine(R"(<a NAME="Env"></a>)");
    page.WriteLine("<B><CENTER>ENVIRONMENT SPECIFICATION</CENTER></B><BR>");
    page.WriteLine("<I>%s</I> &nbsp&nbsp  - &nbsp&nbsp  <I>%s</I><BR>", summary.Project.ActiveEnvironmentFile,
                   summary.Project.ProjectTitle);
    BaseSettings(summary);
    OperatingData(summary);
    WaveData(summary);
    SeawaySpectrum(summary);
    ShortCrestedSeas(summary);
    page.ContentsLink();
}
