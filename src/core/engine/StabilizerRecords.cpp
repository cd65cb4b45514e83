#include "core/engine/EngineRecords.h"
#include "core/engine/EngineWords.h"
#include "core/engine/FoilLines.h"
#include "core/engine/GainFiles.h"

namespace
{
// Values of FINTANKSTAB. It alone decides: the switch that includes the stabilizer isn't looked at.
constexpr int kNoStabilizer = 0;
constexpr int kFins = 1;

/// (u), (u1).
void FinRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    GainFileLine(input, FinGains(p));
    if (!input.Ok())
    {
        return;
    }
    input.Line().Count(p.NFINPAIR, kMaxFinPairs);
    input.End();
    FoilLines(input, p.NFINPAIR.Count(kMaxFinPairs),
              {p.XSTFIN, p.YRTFIN, p.ZFINBL, p.SPANFIN, p.RCFIN, p.TCFIN, p.CLA0COMPUTE2, p.CLA0FIN, p.DIFIN},
              "The stabilization fin data is not complete.");
    if (p.NFINPAIR.Value() >= 1)
    {
        input.Line().Values({&p.RAGNFIN, &p.RVGNFIN, &p.RGNFIN, &p.FREQFIN, &p.DAMPFIN, &p.FREQHFIN},
                            kPlain4);
        input.End();
        input.Line().List(p.FinYawGains, kUnitMetric, kPlain4);
        input.End();
    }
}

/// (v).
void TankRecord(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    input.Test(AllGiven({&p.TANKLEN, &p.WDTANK, &p.W1TANK, &p.DPTANK, &p.ALTANK, &p.HDTANK, &p.ZTANKBL,
                         &p.XSTTANK, &p.SGTANK, &p.RESISTBTANK, &p.RESIST0TANK, &p.BFREQTANK}),
               "The U-Tube roll stabilization tank data is not complete.");
    input.Line()
        .Values({&p.TANKLEN, &p.WDTANK, &p.W1TANK, &p.DPTANK}, kLength4)
        .Value(p.ALTANK, kPlain4)
        .Values({&p.HDTANK, &p.ZTANKBL}, kLength4)
        .Value(p.XSTTANK, kPlain2)
        .Values({&p.SGTANK, &p.RESISTBTANK, &p.RESIST0TANK, &p.BFREQTANK}, kPlain4);
    input.End();
}
} // namespace

void StabilizerRecords(CEngineInput& input)
{
    const CParamArray& stabilizer = input.Project.FINTANKSTAB;
    input.Line().Word(kStabilizerWords.Of(stabilizer.Value()));
    input.End();
    if (Is(stabilizer, kFins))
    {
        FinRecords(input);
    }
    else if (!Is(stabilizer, kNoStabilizer))
    {
        TankRecord(input);
    }
}
