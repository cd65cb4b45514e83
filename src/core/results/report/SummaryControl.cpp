#include "core/results/report/CInputSummary.h"

#include <array>

namespace
{
/// Units of the gains of acceleration, velocity and motion, metric and British.
constexpr std::array<std::array<const char*, 2>, 3> kLateralUnits = {
    {{" rad-sec^2/m", " rad-sec^2/ft"}, {" rad-sec/m", " rad-sec/ft"}, {" rad/m", " rad/ft"}}};

std::string Gain(const CParamArray& field)
{
    return Marked(field, "%.4f", 0, kGainNotGiven);
}

std::string Gain(float value)
{
    return Marked(value, "%.4f", kGainNotGiven);
}

std::string LateralGain(const CProjectData& p, std::size_t k)
{
    const std::size_t system = p.RudderLateralGainUnits[k] == kUnitMetric ? 0 : 1;
    return Gain(p.RudderLateralGains[k]) + kLateralUnits[k][system];
}

void FileRow(CInputSummary& summary, const char* system, const std::string& path)
{
    summary.Page.WriteLine("<TR><TD>%s</TD>", system);
    summary.Page.WriteLine(R"(<TD colspan="7">%s</TD>)", MarkedFile(path));
    summary.Page.WriteLine("</TR>");
}

void LateralPointRow(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    constexpr const char* system = "Rudder - Position for Lateral Motion Gains";
    if (p.LateralGainPoint == 0)
    {
        summary.Row(system, {Marked("CG")});
        return;
    }
    summary.Row(system, {"X = " + Marked(summary.StationText(p.LateralPointX, "%.4f")),
                         "Z = " + Marked(p.LateralPointZ, "%.4f") + " " + LengthUnit(p.LateralPointZUnit)});
}

void RudderRows(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    LateralPointRow(summary);
    if (p.RudderGainFileUsed == 1)
    {
        FileRow(summary, "Rudder - Speed and / or heading dependent File", p.RudderGainFile);
    }
    summary.Row("Rudder - Roll",
                {Gain(p.RAGNRUD), Gain(p.RVGNRUD), Gain(p.RGNRUD), Marked(p.FREQRUD, "%.4f"),
                 Marked(p.DAMPRUD, "%.4f"), Marked(p.FREQLRUD, "%.4f"), Marked(p.FREQHRUD, "%.4f")});
    summary.Row("Rudder - Yaw", {Gain(p.YAGNRUD), Gain(p.YVGNRUD), Gain(p.YGNRUD)});
    summary.Row("Rudder - Lateral", {LateralGain(p, 0), LateralGain(p, 1), LateralGain(p, 2)});
}

void FinRows(CInputSummary& summary)
{
    const CProjectData& p = summary.Project;
    if (p.FinGainFileUsed == 1)
    {
        FileRow(summary, "Fin - Speed and / or heading dependent File", p.FinGainFile);
    }
    // Fins have no low cutoff.
    summary.Row("Fin - Roll", {Gain(p.RAGNFIN), Gain(p.RVGNFIN), Gain(p.RGNFIN), Marked(p.FREQFIN, "%.4f"),
                               Marked(p.DAMPFIN, "%.4f"), Marked(kNotAvailable), Marked(p.FREQHFIN, "%.4f")});
    summary.Row("Fin - Yaw", {Gain(p.FinYawGains[0]), Gain(p.FinYawGains[1]), Gain(p.FinYawGains[2])});
}
} // namespace

void ControlSystems(CInputSummary& summary)
{
    CHtmlPage& page = summary.Page;
    page.OpenFrame();
    page.WriteLine("<U>Control System Parameters - Active Stabilization of Rudders and Roll Fins</U><BR>");
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD>System</TD><TD>Acceleration Gain</TD><TD>Velocity Gain</TD><TD>Motion "
                   "Gain</TD><TD>Natural Frequency</TD><TD>Damping Ratio</TD><TD>Low Cutoff</TD><TD>High "
                   "Cutoff</TD></TR>");
    if (summary.HasRudder() && summary.Project.RudderRollStabilization == 1)
    {
        RudderRows(summary);
    }
    if (summary.HasFins())
    {
        FinRows(summary);
    }
    page.CloseTableAndFrame();
}
