#include "core/results/report/CInputSummary.h"

#include <vector>

namespace
{
/// The positions for which a calculation is asked.
template <class Asked>
std::vector<int> Positions(const CProjectData& p, Asked&& asked)
{
    std::vector<int> positions;
    for (int k = 0; k < p.NPOS.Count(kMaxPositions); ++k)
    {
        if (asked(k))
        {
            positions.push_back(k);
        }
    }
    return positions;
}

/// A tipping coefficient: the default reads "0.25" or "0.17", and so does one that isn't given.
std::string TippingCoefficient(const CParamArray& field, int position, float standard, const char* text)
{
    const std::string shown = GivenText(field.Value(position), "%.4f");
    const bool isStandard = shown == kNotAvailable || shown == GivenText(standard, "%.4f");
    return Marked(isStandard ? text : shown, field.changed);
}

void MotionInterruption(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    const auto positions = Positions(p, [&p](int k) { return p.MIIFLAG.Integer(k) == 1; });
    if (positions.empty())
    {
        page.WriteLine("<BR><B>No Calculation of Motion Induced Interruption Specified</B><BR>");
        return;
    }
    page.OpenFrame();
    page.WriteLine("<U>Motion Induced Interruption (MII) Input Data:</U><BR>");
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD>Station</TD><TD>Duration (sec)</TD><TD>Lateral Tipping "
                   "Coefficient</TD><TD>Longitudinal Tipping Coefficient</TD></TR>");
    for (const int k : positions)
    {
        page.WriteLine("<TR><TD>%s</TD><TD>%s</TD><TD>%s</TD><TD>%s</TD></TR>",
                       summary.Station(p.XSTPOS, "%.4f", k), Marked(p.TIMEOP, "%.4f", k),
                       TippingCoefficient(p.TCLAT, k, 0.25F, "0.25"),
                       TippingCoefficient(p.TCLONG, k, 0.17F, "0.17"));
    }
    page.CloseTableAndFrame();
}

void MotionSickness(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    const CProjectData& p = summary.Project;
    const auto positions = Positions(p, [&p](int k) { return p.MSIFlag[static_cast<std::size_t>(k)] == 1; });
    if (positions.empty())
    {
        page.WriteLine("<BR><B>No Calculation of Motion Sickness Incidence Specified</B><BR>");
        return;
    }
    page.OpenFrame();
    page.WriteLine("<U>Motion Sickness Incidence (MSI) Input Data:</U><BR>");
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD>Station</TD><TD>Calculation Method</TD> <TD>Exposure Time (hrs)</TD> <TD>Maximum "
                   "MSI</TD></TR>");
    for (const int k : positions)
    {
        const auto slot = static_cast<std::size_t>(k);
        const bool maximum = p.MSIExposureOption[slot] == 1;
        page.WriteLine(
            "<TR><TD>%s</TD><TD>%s</TD> <TD>%s</TD> <TD>%s</TD></TR>", summary.Station(p.XSTPOS, "%.4f", k),
            Marked(p.MSIMethod[slot] == 0 ? "Colwell" : "Bureau Veritas"),
            maximum ? Marked("0.00") : Marked(p.MSIExposure[slot], "%.2f"), Marked(maximum ? "Yes" : "No"));
    }
    page.CloseTableAndFrame();
}
} // namespace

void MotionInputs(CInputSummary& summary)
{
    MotionInterruption(summary);
    MotionSickness(summary);
}
