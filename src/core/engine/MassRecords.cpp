#include "core/engine/EngineRecords.h"

#include <algorithm>

namespace
{
constexpr int kValuesPerLine = 7;

/// One value per station, seven to a line; `given` false writes zeros. Each continuation line begins with two
/// blanks.
void StationValues(CEngineInput& input, const CParamArray& field, const CEngineFormat& format, bool given)
{
    const int stations = input.Project.NST.Count(kMaxStations);
    for (int first = 0; first < stations; first += kValuesPerLine)
    {
        CEngineLine& line = input.Line();
        if (first > 0)
        {
            line.Word(" ");
        }
        for (int i = first; i < std::min(first + kValuesPerLine, stations); ++i)
        {
            line.ValueOr("0.00", given, field, format, i);
        }
        input.End();
    }
}

/// (n1). False if there are no stations to calculate loads at.
bool LoadStations(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (p.LoadStationsUserInput == 0)
    {
        CEngineLine& line = input.Line();
        for (int i = 0; i < p.NST.Count(kMaxStations); ++i)
        {
            line.Integer(i);
        }
        input.End();
        return true;
    }
    if (!input.Test(!(p.NSTLOAD.Value() < 1), "Stations for load calculations are not specified."))
    {
        return false;
    }
    input.Line().List(Slice(p.XSTLOAD, 0, p.NSTLOAD.Count(kMaxStations)), p.XSTLOAD.unit, kPlain2);
    input.End();
    return true;
}

/// The masses beyond one end of the hull.
struct COverhang
{
    const CParamArray& Mass;
    const CParamArray& CentreHeight;
    const CParamArray& RollRadius;
    const CParamArray& Centre;
    const CParamArray& PitchRadius;
};

/// (n5), (n6).
void OverhangRecord(CEngineInput& input, const COverhang& overhang)
{
    const CProjectData& p = input.Project;
    input.Line()
        .Value(overhang.Mass, kMass2)
        .ValueOr("0.00", p.KgUserInput == 1, overhang.CentreHeight, kLength2)
        .ValueOr("0.00", p.KxxiUserInput == 1, overhang.RollRadius, kLength2)
        .Values({&overhang.Centre, &overhang.PitchRadius}, kLength2);
    input.End();
}
} // namespace

void MassRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (!Is(p.LOADFLAG, 0))
    {
        return;
    }
    input.Line().Count(p.NSTLOAD, kMaxStations);
    input.End();
    if (!LoadStations(input))
    {
        return;
    }
    StationValues(input, p.SECTTN, kMass2, true);
    StationValues(input, p.SECTKG, kLength2, p.KgUserInput != 0);
    StationValues(input, p.SECTRRG, kLength2, p.KxxiUserInput != 0);
    OverhangRecord(input, {p.BOWTN, p.BOWKG, p.BOWRRG, p.BOWCGFP, p.BOWPRG});
    OverhangRecord(input, {p.STERNTN, p.STERNKG, p.STERNRRG, p.STERNCGAP, p.STERNPRG});
}
