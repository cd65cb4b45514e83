// What the results of a whole calculation must be like, whatever their values.
#include "core/engine/CEngineInputWriter.h"
#include "oe7/input/InputFile.h"
#include "oe7/output/EngineFiles.h"
#include "tests/oe7/calculation/CReferenceRun.h"
#include "tests/support/CTestProject.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace oe7;
using testing::HasSubstr;
using testing::Not;

namespace
{
constexpr const char* kStamp = "Fri Nov 20 17:31:18 2026";
constexpr double kDegree = std::numbers::pi / 180;

/// A reference input at one speed in waves of some directions, without loads, on a grid coarse enough for a
/// fast test.
CInput ShortInput(const std::string& referenceCase, double knots, std::vector<double> directions)
{
    CInput input = ReferenceInput(referenceCase);
    input.Speeds = {knots};
    input.Directions = std::move(directions);
    input.SpreadingAngle = 0;
    input.Loads = false;
    input.LoadStations.clear();
    input.Grid = {0.2, 3, 0.2};
    return input;
}

/// One wave frequency (rad/s).
void SetWave(CInput& input, double w)
{
    input.LowestFrequency = w;
    input.FrequencyStep = 0.1;
    input.FrequencyCount = 1;
}

/// The Wigley hull's beams and areas on Lewis forms.
void SetLewisForms(CInput& input)
{
    input.Dimensions.clear();
    for (const COffsets& offsets : input.Offsets)
    {
        input.Dimensions.push_back({2 * offsets.Y.back(), input.Draft, 2.0 / 3});
    }
    input.Offsets.clear();
}

/// Of the first speed and seaway.
const CModeRms& FirstRms(const CReferenceRun& run)
{
    return run.Results.Speeds.at(0).Seaways.at(0).Rms.at(0);
}

/// A sample project with a section method, as the engine gets it, cut down to one speed and direction.
CInput InputOfSample(int method)
{
    CTestProject sample;
    sample.File.OpenPath(SourceFile("samples/Sample01.od7"));
    sample.Project.HYMETHOD.Set(static_cast<float>(method));
    EXPECT_TRUE(CEngineInputWriter(sample.Project, sample.Folder.Path(), sample.Recorder.Platform).Write());
    CRunLog log;
    CInput input = ReadInput(sample.Folder.Path(), log);
    input.Speeds.resize(1);
    input.Directions.resize(1);
    input.Grid = {0.2, 3, 0.4};
    return input;
}
} // namespace

TEST(WholeCalculation, MirrorsTheMotionsInWavesFromTheOtherSide)
{
    for (const char* referenceCase : {"wigley", "ship"})
    {
        const CReferenceRun run(ShortInput(referenceCase, 12, {60, 300, 150, 210}));
        const auto& directions = run.Results.Speeds.at(0).Directions;
        for (const std::size_t first : {0U, 2U})
        {
            for (std::size_t i = 0; i < run.Results.Frequencies.Output.size(); ++i)
            {
                for (std::size_t mode = 0; mode < kModes; ++mode)
                {
                    const double sign = mode == 0 || mode == 2 || mode == 4 ? 1 : -1;
                    const Complex one = directions.at(first).Motions.at(i).at(mode);
                    const Complex other = directions.at(first + 1).Motions.at(i).at(mode);
                    EXPECT_LE(std::abs(one - sign * other), 1e-6 * (1 + std::abs(one)))
                        << referenceCase << ", mode " << mode << ", frequency " << i;
                }
            }
        }
    }
}

TEST(WholeCalculation, GivesRollItsPeakAtItsNaturalFrequency)
{
    CInput input = ShortInput("barge", 0, {90});
    input.LowestFrequency = 0.6;
    input.FrequencyStep = 0.02;
    input.FrequencyCount = 25;
    input.Seaways.at(0).Height = 0.1;
    const CReferenceRun run(input);
    const auto& motions = run.Results.Speeds.at(0).Directions.at(0).Motions;
    const auto highest = std::max_element(motions.begin(), motions.end(),
                                          [](const CMotionVector& left, const CMotionVector& right)
                                          { return std::abs(left[3]) < std::abs(right[3]); });
    const auto place = static_cast<std::size_t>(highest - motions.begin());
    EXPECT_NEAR(run.Results.Frequencies.Output.at(place), run.Results.Inertia.RollFrequency, 0.04);
    EXPECT_GT(std::abs((*highest)[3]), 3) << "resonance";
}

TEST(WholeCalculation, FollowsLongWavesWithTheirHeightAndSlope)
{
    for (const double knots : {0.0, 13.34})
    {
        CInput input = ShortInput("wigley", knots, {180, 0, 90});
        SetWave(input, std::sqrt(2 * std::numbers::pi * kGravity / (10 * input.Length)));
        const CReferenceRun run(input);
        const auto& directions = run.Results.Speeds.at(0).Directions;
        const CMotionVector head = directions.at(0).Motions.at(0);
        const CMotionVector following = directions.at(1).Motions.at(0);
        const CMotionVector beam = directions.at(2).Motions.at(0);
        EXPECT_NEAR(std::abs(head[2]), 1, 0.03);
        EXPECT_NEAR(std::abs(head[4]), 1, 0.03);
        EXPECT_NEAR(std::arg(head[2]) / kDegree, 0, 5);
        EXPECT_NEAR(std::arg(head[4]) / kDegree, -90, 5);
        EXPECT_NEAR(std::abs(following[2]), 1, 0.03);
        EXPECT_NEAR(std::abs(following[4]), 1, 0.03);
        EXPECT_NEAR(std::arg(following[4]) / kDegree, 90, 5);
        EXPECT_NEAR(std::abs(beam[1]), 0.97, 0.03);
        EXPECT_NEAR(std::arg(beam[1]) / kDegree, -90, 5);
        EXPECT_NEAR(std::arg(beam[3]) / kDegree, -90, 10);
    }
}

TEST(WholeCalculation, MakesHeaveAndPitchGrowAsTheWavesAndRollLess)
{
    CInput input = ShortInput("barge", 8, {135});
    const CReferenceRun low(input);
    input.Seaways.at(0).Height *= 2;
    const CReferenceRun high(input);
    for (std::size_t kind = 0; kind < 3; ++kind)
    {
        for (const std::size_t mode : {0U, 2U, 4U})
        {
            const double expected = 2 * FirstRms(low)[kind][mode];
            EXPECT_NEAR(FirstRms(high)[kind][mode], expected, 1e-12 * expected) << kind << ", mode " << mode;
        }
    }
    const double growth = FirstRms(high)[0][3] / FirstRms(low)[0][3];
    EXPECT_GT(growth, 1.2);
    EXPECT_LT(growth, 1.9) << "the damping of roll grows with its amplitude";
}

TEST(WholeCalculation, GivesTheSameFilesWithAnyNumberOfThreads)
{
    CInput input = ReferenceInput("ship");
    input.Grid = {0.2, 3, 0.2};
    CReferenceRun one(input, 1);
    CReferenceRun three(input, 3);
    EXPECT_TRUE(BinaryFile(input, one.Results, kStamp, one.Log) ==
                BinaryFile(input, three.Results, kStamp, three.Log));
    EXPECT_TRUE(Listing(input, one.Results, kStamp, one.Log) ==
                Listing(input, three.Results, kStamp, three.Log));
    EXPECT_TRUE(CoefficientTable(one.Results, one.Log) == CoefficientTable(three.Results, three.Log));
    EXPECT_TRUE(WaveForceTable(one.Results, one.Log) == WaveForceTable(three.Results, three.Log));
}

TEST(WholeCalculation, HasNearlyTheSameHeaveByBothSectionMethods)
{
    // At speed on Lewis forms, which both methods know exactly; at rest also on the Wigley hull's own
    // sections.
    for (const double knots : {0.0, 13.34})
    {
        CInput input = ShortInput("wigley", knots, {180});
        if (knots > 0)
        {
            SetLewisForms(input);
        }
        const CReferenceRun elements(input);
        input.Method = ESectionMethod::ConformalMapping;
        const CReferenceRun mapping(input);
        const auto& left = elements.Results.Speeds.at(0).Directions.at(0).Motions;
        const auto& right = mapping.Results.Speeds.at(0).Directions.at(0).Motions;
        EXPECT_NE(left.at(5)[2], right.at(5)[2]) << "two methods";
        double largest = 0;
        for (const CMotionVector& motion : left)
        {
            largest = std::max(largest, std::abs(motion[2]));
        }
        for (std::size_t i = 0; i < left.size(); ++i)
        {
            EXPECT_LE(std::abs(left[i][2] - right[i][2]), 0.01 * largest)
                << knots << " knots, frequency " << i;
        }
    }
}

TEST(WholeCalculation, UsesTheSectionMethodThatTheProjectHasChosen)
{
    const std::array<std::string, 2> names = {"boundary element", "conformal mapping"};
    std::array<double, 2> damping{};
    for (const int method : {0, 1})
    {
        const auto index = static_cast<std::size_t>(method);
        const CReferenceRun run(InputOfSample(method));
        CRunLog log;
        const std::string listing = Listing(run.Input, run.Results, kStamp, log);
        EXPECT_THAT(listing, HasSubstr(names.at(index)));
        EXPECT_THAT(listing, Not(HasSubstr(names.at(1 - index))));
        EXPECT_THAT(BinaryFile(run.Input, run.Results, kStamp, log).substr(160, 20),
                    HasSubstr(names.at(index)));
        damping.at(index) = run.Results.Speeds.at(0).Radiation.at(2)(1, 1).imag();
    }
    EXPECT_NE(damping[0], damping[1]);
    EXPECT_NEAR(damping[0], damping[1], 0.05 * damping[0]);
}

TEST(WholeCalculation, LeavesNoLoadBeyondTheEndsOfTheShip)
{
    CInput input = ReferenceInput("ship");
    input.Directions = {135};
    input.SpreadingAngle = 0;
    input.LoadStations = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    const CReferenceRun run(input);
    const auto& loads = run.Results.Speeds.at(0).Directions.at(0).Loads;
    for (Eigen::Index component = 0; component < kLoadComponents; ++component)
    {
        const auto largest = [&](const std::vector<CLoadVector>& cut)
        {
            double value = 0;
            for (const CLoadVector& load : cut)
            {
                value = std::max(value, std::abs(load(component)));
            }
            return value;
        };
        double most = 0;
        for (const auto& cut : loads)
        {
            most = std::max(most, largest(cut));
        }
        EXPECT_LE(largest(loads.front()), 1e-9 * most) << "component " << component;
        EXPECT_LE(largest(loads.back()), 0.005 * most) << "component " << component;
    }
}
