#include "tests/support/CEngineRun.h"

#include "core/engine/EngineUnits.h"
#include "core/engine/EngineWords.h"
#include "tests/support/FullProject.h"

#include <algorithm>

namespace
{
constexpr int kCourses = 24;
constexpr int kCoursesUpTo180 = 13;
constexpr float kCourseStep = 15;

/// A number as the engine reads it: in its input stands a text of few decimals.
float AsText(double value, int decimals)
{
    std::string text;
    AppendDecimals(text, value, decimals);
    return Narrowed(NumberAtStart(text));
}

float AsText(float value, int decimals)
{
    return AsText(static_cast<double>(value), decimals);
}

bool IsMetric(const CParamArray& system)
{
    return std::string(kUnitWords.Of(system.Value())) == "METRIC";
}

/// Lengths of a project as the engine reads them, and then prints them in its output system.
class CLengths
{
public:
    explicit CLengths(const CProjectData& p)
        : m_input(p.INSYS.Value()),
          m_output(p.OUTSYS.Value()),
          m_system(IsMetric(p.INSYS) ? kUnitMetric : kUnitBritish)
    {
    }

    float Read(float value, int unit, int decimals) const
    {
        return AsText(m_input.ConvertLength(value, unit), decimals);
    }
    float Printed(float value, int unit, int decimals) const
    {
        return static_cast<float>(m_output.ConvertLength(Read(value, unit, decimals), m_system));
    }

private:
    CEngineUnits m_input;
    CEngineUnits m_output;
    int m_system; ///< unit flag of the input's lengths
};

void SetDefaultHeadings(CEngineRun& run)
{
    const int count = run.PositionCount() > 0 && !run.Loads ? kCoursesUpTo180 : kCourses;
    for (int i = 0; i < count; ++i)
    {
        run.Headings.push_back(kCourseStep * static_cast<float>(i));
    }
}

void SetFrequencies(CEngineRun& run, const CProjectData& p)
{
    if (p.WaveFreqUserInput != 0)
    {
        run.FirstFrequency = AsText(p.WVFREQMIN.Value(), 4);
        run.FrequencyStep = AsText(p.DWVFREQ.Value(), 4);
        const double range =
            static_cast<double>(AsText(p.WVFREQMAX.Value(), 4)) - static_cast<double>(run.FirstFrequency);
        const double steps =
            run.FrequencyStep > 0 ? range / static_cast<double>(run.FrequencyStep) + 1e-6 : 0;
        run.FrequencyCount = std::clamp(Truncated(steps), 0, kMaxFrequencies - 1) + 1;
    }
    if (p.EncFreqUserInput != 0)
    {
        run.EncounterFrequencies = {p.ENFREQMIN.Value(), p.ENFREQMAX.Value(), p.DENFREQ.Value()};
        for (float& frequency : run.EncounterFrequencies)
        {
            frequency = AsText(std::max(frequency, 0.0F), 4);
        }
    }
}

CEngineSeaway SeawayOf(const CProjectData& p, int index, const CLengths& lengths)
{
    const auto slot = static_cast<std::size_t>(index);
    const auto seaway = [&lengths](float height, int unit, float period) {
        return CEngineSeaway{lengths.Printed(height, unit, 2), AsText(period, 2)};
    };
    switch (p.SPECTRUM.Integer())
    {
    case kSpectrumRegular:
        return {};
    case kSpectrumQuadratic:
        return seaway(p.HSW.Value(index), p.HSW.unit, p.TSW.Value(index));
    case kSpectrumBretschneider:
        return seaway(p.BretHs[slot], p.BretUnit, p.BretTp[slot]);
    case kSpectrumJonswap:
        return seaway(p.JonswapHs[slot], p.JonswapUnit, p.JonswapTp[slot]);
    case kSpectrumOchiHubble:
        return seaway(p.OchiHs1[slot], p.OchiUnit, p.OchiTp1[slot]);
    default: // read from a file, or of two systems
        return {1.5F + 0.25F * static_cast<float>(index), 7.5F + static_cast<float>(index)};
    }
}

void SetSea(CEngineRun& run, const CProjectData& p, const CLengths& lengths)
{
    run.Spectrum = p.SPECTRUM.Integer();
    run.SpreadAngle =
        p.SpreadOption == 1 && !run.Regular() ? AsText(std::max(p.SPREADANG.Value(), 0.0F), 2) : 0;
    for (int i = 0; i < p.NSEAWAY.Count(kMaxSeaways); ++i)
    {
        run.Seaways.push_back(SeawayOf(p, i, lengths));
    }
    for (int i = 0; i < p.NSPEED.Count(kMaxSpeeds); ++i)
    {
        const double knots = CEngineUnits(p.INSYS.Value()).Factor(EQuantity::Speed, p.SPDKNOT.unit);
        run.Speeds.push_back(AsText(static_cast<double>(p.SPDKNOT.Value(i)) * knots, 2));
    }
    for (int i = 0; i < p.NSEADIR.Count(kMaxHeadings) && !run.Directional(); ++i)
    {
        run.Headings.push_back(AsText(p.SEADIR.Value(i), 2));
    }
    if (run.Directional())
    {
        SetDefaultHeadings(run);
    }
}

void SetShip(CEngineRun& run, const CProjectData& p, const CLengths& lengths)
{
    run.Length = lengths.Printed(p.SHIPLEN.Value(), p.SHIPLEN.unit, 2);
    run.KeelToGravity = lengths.Printed(p.KG.Value(), p.KG.unit, 2);
    run.StationCount = p.NST.Count(kMaxStations);
    run.MetacentreGiven = FixedText(p.GMFLAG.Value(), "%.0f") != "0";
    if (run.MetacentreGiven)
    {
        run.GivenMetacentre =
            static_cast<float>(CEngineUnits(p.INSYS.Value()).ConvertLength(p.GMUSER.Value(), p.GMUSER.unit));
    }
    run.Loads = p.LOADFLAG.Integer() == 0;
    for (int i = 0; i < p.NSTLOAD.Count(kMaxLoadStations) && run.Loads; ++i)
    {
        run.LoadStations.push_back(p.LoadStationsUserInput == 0 ? static_cast<float>(i)
                                                                : AsText(p.XSTLOAD.Value(i), 2));
    }
}

void SetAppendages(CEngineRun& run, const CProjectData& p)
{
    const bool appended = p.AppendedHull == 1;
    run.Rudder = appended && p.IncludeRudder == 1;
    run.Skeg = appended && p.IncludeSkeg == 1;
    run.KeelPairs = appended && p.IncludeBilgeKeels == 1 ? p.NBKPAIR.Count(kMaxBilgeKeelPairs) : 0;
    run.FoilPairs = appended && p.IncludeFoils == 1 ? p.NFOILPAIR.Count(kMaxFoilPairs) : 0;
    run.FinPairs = p.FINTANKSTAB.Integer() == 1 ? p.NFINPAIR.Count(kMaxFinPairs) : 0;
}

CEnginePosition PositionOf(const CProjectData& p, int index, const CLengths& lengths)
{
    const auto slot = static_cast<std::size_t>(index);
    CEnginePosition position;
    const std::string& label = p.PositionLabel[slot];
    position.Label = label.empty() ? "Position" + IntegerText(index + 1) : label;
    position.Station = AsText(p.XSTPOS.Value(index), 2);
    position.Y = lengths.Printed(p.YPOS.Value(index), p.YPOS.unit, 3);
    position.Z = lengths.Printed(p.ZPOSBL.Value(index), p.ZPOSBL.unit, 3);
    position.MotionKind = std::clamp(p.RELMOCALC.Integer(index), 0, 5);
    position.Interruptions = p.MIIFLAG.Integer(index) == 1;
    position.Sickness = p.MSIFlag[slot] == 1;
    position.BureauVeritas = p.MSIMethod[slot] == 1;
    position.LongestExposure = !position.BureauVeritas && p.MSIExposureOption[slot] == 1;
    position.Exposure = AsText(p.MSIExposure[slot], 2);
    return position;
}
} // namespace

CEngineRun EngineRunOf(const CProjectData& project)
{
    CEngineRun run;
    const CLengths lengths(project);
    run.Title = project.ProjectTitle;
    run.MetricInput = IsMetric(project.INSYS);
    run.Metric = IsMetric(project.OUTSYS);
    run.OutputLevel = std::clamp(project.OUTRAO.Integer(), 0, 2);
    run.Hours = AsText(std::max(project.SLAMHOUR.Value(), 0.0F), 2);
    run.Exceedence = AsText(std::max(project.SLAMEX.Value(), 0.0F), 4);
    // The position entered last isn't calculated.
    for (int i = 0; i < std::min(project.NPOS.Integer() - 1, kMaxPositions); ++i)
    {
        run.Positions.push_back(PositionOf(project, i, lengths));
    }
    SetShip(run, project, lengths);
    SetSea(run, project, lengths);
    SetFrequencies(run, project);
    SetAppendages(run, project);
    return run;
}

CEngineRun LargestEngineRun()
{
    CProjectData project;
    FillToLargestRun(project);
    return EngineRunOf(project);
}
