#include "core/results/report/HydrostaticsBlocks.h"

namespace
{
constexpr float kKilo = 0.001F;
constexpr float kWeightOfTonne = 9.81F;   ///< kN
constexpr float kPoundsInLongTon = 2.24F; ///< thousands

/// Masses of the run's input, in its input system: stations, bow and stern together.
struct CMass
{
    float Total = 0;
    float Moment = 0; ///< about the base line

    void Add(float mass, float height)
    {
        Total += mass;
        Moment += mass * height;
    }
    float KG() const { return Total == 0 ? 0.0F : Moment / Total; }
};

/// A results file has masses only for a run with loads.
bool HasMasses(const CProjectData& input)
{
    return input.LOADFLAG.Integer() == 0;
}

CMass ShipMass(const CProjectData& input)
{
    CMass mass;
    if (!HasMasses(input))
    {
        return mass;
    }
    const int stations = input.NST.Count(kMaxStations);
    for (int station = 0; station < stations; ++station)
    {
        mass.Add(input.SECTTN.Value(station), input.SECTKG.Value(station));
    }
    mass.Add(input.BOWTN.Value(), input.BOWKG.Value());
    mass.Add(input.STERNTN.Value(), input.STERNKG.Value());
    return mass;
}

void WriteDisplacement(CReport& report)
{
    const CProjectData& input = *report.Results.Input;
    const float displacement = input.TRIMDEF.Integer() == 1 ? input.DISPUSER.Value() : 0.0F;
    if (displacement == 0)
    {
        report.Page.WriteLine("<TR> <TD>Displacement:</TD> <TD><B>%s</B></TD> </TR>", "N/A");
        return;
    }
    report.Page.WriteLine("<TR> <TD>Displacement:</TD> <TD><B>%.2f</B> %s</TD> </TR>",
                          report.MassOut(displacement), report.Mass());
}

void WriteMass(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CProjectData& input = *report.Results.Input;
    const CMass mass = ShipMass(input);
    page.OpenFrame();
    page.WriteLine("<U>User Input Parameters</U><BR>");
    page.WriteLine(kInnerTable);
    page.WriteLine("<TR> <TD>Total Mass:</TD> <TD><B>%.2f</B> %s</TD> </TR>", report.MassOut(mass.Total),
                   report.Mass());
    WriteDisplacement(report);
    page.WriteLine("<TR> <TD>Input KG:</TD> <TD><B>%.2f</B> %s</TD> </TR>",
                   report.LengthOut(input.KG.Value()), report.Length());
    page.WriteLine("<TR> <TD>Calculated KG:</TD> <TD><B>%.2f</B> %s</TD> </TR>", report.LengthOut(mass.KG()),
                   report.Length());
    page.CloseTableAndFrame();
}

/// The weight of a mass of the input: kN, or thousands of pounds.
float Weight(const CReport& report, float mass)
{
    return report.MassOut(mass) * (report.MetricOutput() ? kWeightOfTonne : kPoundsInLongTon);
}

void WriteStations(CReport& report)
{
    const CResultsBody& body = report.Results.Body;
    for (std::size_t station = 0; station < body.StillWaterWeight.size(); ++station)
    {
        report.Page.WriteLine("<TR> <TD>%i</TD> <TD>%.2f</TD> <TD>%.2f</TD> <TD>%.2f</TD> </TR>",
                              report.StationLabel(static_cast<int>(station)), body.StillWaterWeight[station],
                              body.StillWaterShear[station] * kKilo, body.StillWaterMoment[station] * kKilo);
    }
}

void WriteStillWater(CReport& report)
{
    CHtmlPage& page = report.Page;
    const CProjectData& input = *report.Results.Input;
    const bool metric = report.MetricOutput();
    const char* force = metric ? "kN" : "10^3lb";
    page.OpenFrame();
    page.WriteLine("<U>Still Water Loading</U><BR>");
    page.WriteLine(kDataTable);
    page.WriteLine("<TR><TD> Station </TD><TD> %s %s </TD> <TD> Shear %s </TD> <TD> Bending Moment %s </TD> "
                   "</TR>",
                   metric ? "Weight" : "Mass", force, force, metric ? "kN-m" : "10^3ft-lb");
    const bool hasMasses = HasMasses(input);
    page.WriteLine("<TR> <TD>Bow Overhang</TD> <TD>%.2f</TD> </TR>",
                   hasMasses ? Weight(report, input.BOWTN.Value()) : 0.0F);
    WriteStations(report);
    page.WriteLine("<TR> <TD>Stern Overhang</TD> <TD>%.2f</TD> </TR>",
                   hasMasses ? Weight(report, input.STERNTN.Value()) : 0.0F);
    page.CloseTableAndFrame();
}
} // namespace

void StillWaterLoads(CReport& report)
{
    report.NextPage(kBannerHydrostatics);
    WriteMass(report);
    WriteStillWater(report);
}
