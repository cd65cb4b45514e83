#include "core/engine/EngineRecords.h"
#include "core/engine/EngineWords.h"
#include "core/engine/SeawayRecords.h"

namespace
{
/// (a) to (c).
void ControlRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    input.Line().Word(p.ProjectTitle);
    input.End();
    input.Line()
        .Word(kUnitWords.Of(p.INSYS.Value()))
        .Word(kUnitWords.Of(p.OUTSYS.Value()))
        .Word(kWaterWords.Of(p.WATERDEN.Value()))
        .Word(kSpeedCorrectionWords.Of(p.SPEEDCOR.Value()))
        .Word(kSwellCorrectionWords.Of(p.SWELLCOR.Value()))
        .Word(kRaoWords.Of(p.OUTRAO.Value()))
        .Word("NOPPR");
    input.End();
    input.Lines({kResultsName});
    input.Line().Word(kLoadWords.Of(p.LOADFLAG.Value())).Word("RAW");
    input.End();
}

/// (d).
void WaveFrequencyRecord(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (p.WaveFreqUserInput == 0)
    {
        input.Lines({kDefaultWaveFrequencies});
    }
    else if (input.Test(IsGiven(p.WVFREQMIN.Value()), "You have not specified the minimum wave frequency.") &&
             input.Test(IsGiven(p.WVFREQMAX.Value()), "You have not specified the maximum wave frequency."))
    {
        input.Line().Values({&p.WVFREQMIN, &p.WVFREQMAX, &p.DWVFREQ}, kPlain4);
        input.End();
    }
}

/// (e).
void HydrodynamicsRecord(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    input.Line()
        .Word("NOSAVEHY")
        .Word(kHydroMethodWords.Of(p.HYMETHOD.Value()))
        .Word(kEndEffectWords.Of(p.HYEND.Value()))
        .Word(kLowFrequencyWords.Of(p.LOWHVCOR.Value()));
    input.End();
}

/// (f).
void EncounterFrequencyRecord(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (p.EncFreqUserInput == 0)
    {
        input.Lines({kDefaultEncounterFrequencies});
        return;
    }
    CEngineLine& line = input.Line();
    for (const CParamArray* frequency : {&p.ENFREQMIN, &p.ENFREQMAX, &p.DENFREQ})
    {
        line.Value(*frequency, kPlain4).Instead("-1.0000", "0.00");
    }
    input.End();
}

/// (g1), (g2): only the spectra that come without directions of their own have them.
void SeaDirectionRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    if (!(p.SPECTRUM.Value() < kFirstSpectrumWithDirections) ||
        !input.Test(IsGiven(p.NSEADIR.Value()), "You have not specified the sea directions."))
    {
        return;
    }
    CEngineLine& line = input.Line().Count(p.NSEADIR, kMaxSeaDirections);
    if (p.SpreadOption == 0 || Is(p.SPECTRUM, kRegularWaves))
    {
        line.Word("0.00");
    }
    else if (p.SpreadOption == 1)
    {
        line.Value(p.SPREADANG, kPlain2).Instead("-1.00", "0.00");
    }
    else
    {
        line.Blank();
    }
    input.End();
    input.Line().List(Slice(p.SEADIR, 0, p.NSEADIR.Count(kMaxSeaDirections)), kUnitMetric, kPlain2);
    input.End();
}

/// (i): without speeds the count and its blank.
void SpeedRecord(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    const int speeds = p.NSPEED.Count(kMaxSpeeds);
    CEngineLine& line = input.Line().Count(p.NSPEED, kMaxSpeeds).Instead("-1", "0");
    if (speeds == 0)
    {
        line.Blank();
    }
    line.List(Slice(p.SPDKNOT, 0, speeds), p.SPDKNOT.unit, kRoundedSpeed2);
    input.End();
}
} // namespace

void EnvironmentRecords(CEngineInput& input)
{
    const CProjectData& p = input.Project;
    ControlRecords(input);
    WaveFrequencyRecord(input);
    HydrodynamicsRecord(input);
    EncounterFrequencyRecord(input);
    if (!input.Ok() || !input.Test(IsGiven(p.SPECTRUM.Value()), "You have not specified the wave spectrum."))
    {
        return;
    }
    input.Line().Word(kSpectrumWords.Of(p.SPECTRUM.Value()));
    input.End();
    SeaDirectionRecords(input);
    if (!input.Ok())
    {
        return;
    }
    input.Line().Count(p.NSEAWAY, kMaxSeaways);
    input.End();
    SeawayRecords(input);
    SpeedRecord(input);
}
