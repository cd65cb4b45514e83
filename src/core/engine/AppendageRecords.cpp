#include "core/engine/EngineRecords.h"
#include "core/engine/FoilLines.h"
#include "core/engine/GainFiles.h"

#include <algorithm>

namespace
{
/// A part is in the calculation if the appended hull is, and the part itself.
bool Included(const CProjectData& p, int part)
{
    return p.AppendedHull == 1 && part == 1;
}

constexpr const char* kKeelIncomplete = "The bilge keel parameters is not complete.";

/// (p2): a keel's rows, one for each of its stations.
void KeelRows(CEngineInput& input, int pair)
{
    const CProjectData& p = input.Project;
    const long long last = p.ILASTBK.Integer(pair);
    const long long rows = std::min<long long>(last - p.IFIRSTBK.Integer(pair) + 1, kMaxBilgeKeelRows);
    for (int row = 0; row < rows && input.Ok(); ++row)
    {
        const int k = pair * kMaxBilgeKeelRows + row;
        input.Test(AllGiven({&p.YBK, &p.ZBKBL, &p.BBK}, k), kKeelIncomplete);
        input.Line()
            .Values({&p.XSTBKFORE, &p.XSTBKAFT}, kPlain2, k)
            .Values({&p.YBK, &p.ZBKBL, &p.BBK}, kLength3, k);
        input.End();
    }
}

/// (p) to (p2).
void BilgeKeelRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (!Included(p, p.IncludeBilgeKeels))
    {
        input.Lines({"0"});
        return;
    }
    input.Line().Count(p.NBKPAIR, kMaxBilgeKeelPairs);
    input.End();
    for (int pair = 0; pair < p.NBKPAIR.Count(kMaxBilgeKeelPairs); ++pair)
    {
        // It looks at the position of the same index, not at the keel's stations: an unset first or last
        // station passes.
        input.Test(IsGiven(p.MIIFLAG.Value(pair)), kKeelIncomplete);
        input.Line().Values({&p.IFIRSTBK, &p.ILASTBK}, kInteger, pair);
        input.End();
        KeelRows(input, pair);
    }
}

/// (q).
void SkegRecord(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (!Included(p, p.IncludeSkeg))
    {
        input.Lines({kNoSkeg});
        return;
    }
    constexpr const char* incomplete = "The skeg parameters is not complete.";
    // The station is asked for even if bilge keels were incomplete.
    input.Test(IsGiven(p.XSTAFTSKEG.Value()), incomplete);
    if (input.Ok())
    {
        input.Test(AllGiven({&p.BSKEG, &p.ELSKEG}), incomplete);
    }
    input.Line().Value(p.XSTAFTSKEG, kPlain2).Values({&p.BSKEG, &p.ELSKEG}, kLength3);
    input.End();
}

/// (r3).
void LateralGainRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    CEngineLine& line = input.Line();
    for (std::size_t i = 0; i < p.RudderLateralGains.size(); ++i)
    {
        line.Value(p.RudderLateralGains[i], p.RudderLateralGainUnits[i], kInverseLength3);
    }
    line.Word(p.LateralGainPoint == 0 ? "1" : "0");
    input.End();
    if (p.LateralGainPoint == 1)
    {
        // The height is converted like a gain, though it is a length: the engine's files have it so.
        input.Line()
            .Value(p.LateralPointX, kUnitMetric, kPlain4)
            .Instead("-1.0000", "0.00")
            .Value(p.LateralPointZ, p.LateralPointZUnit, kInverseLength3);
        input.End();
    }
}

/// (r1) to (r3).
void RudderGainRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    const bool stabilizes = p.RudderRollStabilization == 1;
    if (stabilizes)
    {
        input.Line().Values(
            {&p.RAGNRUD, &p.RVGNRUD, &p.RGNRUD, &p.FREQRUD, &p.DAMPRUD, &p.FREQLRUD, &p.FREQHRUD}, kPlain4);
        input.End();
    }
    else
    {
        input.Lines({kNoRollGains});
    }
    CEngineLine& yaw = input.Line();
    for (const CParamArray* gain : {&p.YAGNRUD, &p.YVGNRUD, &p.YGNRUD})
    {
        yaw.Value(*gain, kPlain4).Instead("-111111.0000", "0.00");
    }
    input.End();
    if (stabilizes)
    {
        LateralGainRecords(input);
    }
    else
    {
        input.Lines({kNoLateralGains});
    }
}

/// (r) to (r3).
void RudderRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (!Included(p, p.IncludeRudder))
    {
        input.Lines({kNoRudder, "0", kNoRollGains, kNoYawGains, kNoLateralGains});
        return;
    }
    input.Line()
        .Value(p.XSTRUD, kPlain2)
        .Values({&p.YRTRUD, &p.ZRTRUDBL, &p.SPANRUD, &p.RCRUD, &p.TCRUD}, kLength3)
        .Value(p.CLA0RUD, kPlain3)
        .Value(p.ISLIPRUD, kInteger)
        .Value(p.RudderDihedral, kUnitMetric, kPlain3);
    input.End();
    GainFileLine(input, RudderGains(p));
    RudderGainRecords(input);
}
} // namespace

void AppendageRecords(CEngineInput& input)
{
    BilgeKeelRecords(input);
    SkegRecord(input);
    if (input.Ok())
    {
        RudderRecords(input);
    }
}

void FoilRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (!Included(p, p.IncludeFoils))
    {
        input.Lines({"0"});
        return;
    }
    input.Line().Count(p.NFOILPAIR, kMaxFoilPairs);
    input.End();
    FoilLines(input, p.NFOILPAIR.Count(kMaxFoilPairs),
              {p.XSTFOIL, p.YRTFOIL, p.ZRTFOILBL, p.SPANFOIL, p.RCFOIL, p.TCFOIL, p.CLA0COMPUTE, p.CLA0FOIL,
               p.DIFOIL},
              "The stationary foil data is not complete.");
}
