#include "core/engine/EngineRecords.h"
#include "core/engine/EngineWords.h"

#include <algorithm>

namespace
{
/// (j). KG and PITCHRG have no test of their own: unset, they are written like any other value.
void ShipRecord(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (input.Test(IsGiven(p.SHIPLEN.Value()), "You have not specified a\nlength between perpendiculars."))
    {
        input.Line()
            .Value(p.SHIPLEN, kRoundedLength2)
            .Value(p.KG, kRoundedLength2)
            .Value(p.PITCHRG, kLength3);
        input.End();
    }
}

/// One of (k1) to (k4): a value that an option asks for.
struct CStabilityValue
{
    bool Wanted;
    const CParamArray& Field;
    CEngineFormat Format;
    bool EndsInBlank;
    const char* Missing;
};

/// (k) to (k4).
void StabilityRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    input.Line().Word(kMetacentreWords.Of(p.GMFLAG.Value())).Word(kRollRadiusWords.Of(p.ROLLRGDEF.Value()));
    input.End();
    for (const CStabilityValue& value :
         {CStabilityValue{!Is(p.GMFLAG, 0), p.GMUSER, kRoundedLength2, true,
                          "You have not specified a\n value for metacentric height."},
          CStabilityValue{Is(p.ROLLRGDEF, 0), p.ROLLNF, kPlain4, false,
                          "You have not specified a\n value for roll natural frequency."},
          CStabilityValue{Is(p.ROLLRGDEF, 1), p.ROLLRG, kRoundedLength2, true,
                          "You have not specified a\n value for dry roll radius of gyration."},
          CStabilityValue{Is(p.ROLLRGDEF, 2), p.WETROLLRG, kRoundedLength2, true,
                          "You have not specified a\n value for wet roll radius of gyration."}})
    {
        if (!value.Wanted)
        {
            continue;
        }
        if (!input.Test(IsGiven(value.Field.Value()), value.Missing))
        {
            return;
        }
        CEngineLine& line = input.Line().Value(value.Field, value.Format);
        if (value.EndsInBlank)
        {
            line.Blank();
        }
        input.End();
    }
}

/// (l), (l1).
void HullRecord(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    input.Line().Word(kHullWords.Of(p.HULLDEF.Value()));
    input.End();
    if (input.Test(IsGiven(p.NST.Value()), "You have not specified the number of stations."))
    {
        input.Line()
            .Count(p.NST, kMaxStations)
            .Integer(std::min(p.NST.Integer(), kMaxStations))
            .Value(p.BEAMSF, kPlain3)
            .Value(p.DRAFTSF, kPlain3);
        input.End();
    }
}

/// A station's offsets. The test is of the whole hull, but its message comes once for each station.
void StationOffsets(CEngineInput& input, int station)
{
    const CProjectData& p = input.Project;
    if (!input.Test(p.SectionAreaUnit != 0,
                    "You have not completed all of the y or z-offsets\nspecified in the hull geometry."))
    {
        return;
    }
    const int first = station * kMaxOffsets;
    const int offsets = p.NOFFUSER.Count(kMaxOffsets, station);
    input.Line().Count(p.NOFFUSER, kMaxOffsets, station).Blank();
    input.End();
    for (const CParamArray* axis : {&p.YAUSER, &p.ZAUSERBL})
    {
        // y and z were entered together: the unit flag of y is that of both.
        input.Line().List(Slice(*axis, first, offsets), p.YAUSER.unit, kRoundedLength3);
        input.End();
    }
}

/// (l4).
void StationSection(CEngineInput& input, int station)
{
    const CProjectData& p = input.Project;
    constexpr const char* incomplete =
        "You have not completed the sectional area\nparameters for all the stations specified.";
    input.Test(IsGiven(p.BEAM.Value(station)), incomplete);
    if (input.Ok())
    {
        input.Test(AllGiven({&p.DRAFT, &p.ACOEF}, station), incomplete);
    }
    input.Line()
        .Value(p.BEAM, kLength3, station)
        .Value(p.DRAFT, kLength3, station)
        .Value(p.ACOEF, kPlain4, station);
    input.End();
}

void StationRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    const auto stationRecord = Is(p.HULLDEF, 0) ? StationOffsets : StationSection;
    const int stations = p.NST.Count(kMaxStations);
    for (int i = 0; i < stations; ++i)
    {
        input.Line().Integer(i);
        input.End();
        stationRecord(input, i);
    }
}

/// (m) to (m2). A TRIMDEF of 2 has neither (m1) nor (m2).
void LoadingRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    input.Line().Word(kTrimWords.Of(p.TRIMDEF.Value()));
    input.End();
    if (Is(p.TRIMDEF, 0))
    {
        // The draft is asked for even if stations were incomplete.
        input.Test(IsGiven(p.DRAFTMID.Value()), "The draft at midships is not specified.");
        if (input.Ok())
        {
            input.Test(IsGiven(p.TRIMST.Value()), "The trim is not specified.");
        }
        input.Line().Values({&p.DRAFTMID, &p.TRIMST}, kLength3);
        input.End();
    }
    if (Is(p.TRIMDEF, 1))
    {
        input.Line().Value(p.DISPUSER, kMass3).Value(p.LCGPUSER, kLength3);
        input.End();
    }
}
} // namespace

void HullRecords(CEngineInput& input)
{
    for (const auto records : {ShipRecord, StabilityRecords, HullRecord})
    {
        records(input);
        if (!input.Ok())
        {
            return;
        }
    }
    StationRecords(input);
    LoadingRecords(input);
}
