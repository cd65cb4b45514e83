#include "oe7/output/EngineFiles.h"
#include "tests/oe7/output/CMadeRun.h"

#include <cmath>

#include <gmock/gmock.h>

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

namespace
{
oe7::CInput WithOneSpeed()
{
    oe7::CInput input = SmallInput();
    input.Speeds = {12.5};
    return input;
}
} // namespace

TEST(CoefficientTable, NamesTheElementsOfASymmetricHull)
{
    CMadeRun run;
    EXPECT_EQ(LinesOf(oe7::CoefficientTable(run.Results, run.Log)).at(1),
              "Speed_kn,EncFreq_rad_s,A22,A24,A26,A33,A35,A42,A44,A46,A53,A55,A62,A64,A66,"
              "B22,B24,B26,B33,B35,B42,B44,B46,B53,B55,B62,B64,B66");
}

TEST(CoefficientTable, HasALineForEachSpeedAndFrequencyOfTheGrid)
{
    CMadeRun run;
    EXPECT_THAT(LinesOf(oe7::CoefficientTable(run.Results, run.Log)), SizeIs(2 + 2 * 3));
}

TEST(CoefficientTable, SplitsTheRadiationMatrixIntoAddedMassAndDamping)
{
    CMadeRun run(WithOneSpeed());
    for (std::size_t i = 0; i < 3; ++i)
    {
        run.Results.Speeds[0].Radiation[i].setZero();
    }
    run.Results.Grid[1] = 2;
    // -w^2 A + iwB with A = 3e6, B = -5e5; A = -7, B = 0.5.
    run.Results.Speeds[0].Radiation[1](1, 1) = {-12e6, -1e6};
    run.Results.Speeds[0].Radiation[1](5, 5) = {28, 1};
    const std::string line = LinesOf(oe7::CoefficientTable(run.Results, run.Log)).at(3);
    std::string zeros;
    for (int i = 0; i < 11; ++i)
    {
        zeros += ",0.000000e+00";
    }
    std::string expected =
        "12.500,2.00000,3.000000e+06" + zeros + ",-7.000000e+00,-5.000000e+05" + zeros + ",5.000000e-01";
    // A zero may have a sign.
    std::string found = line;
    for (std::size_t at = found.find(",-0.000000e+00"); at != std::string::npos;
         at = found.find(",-0.000000e+00"))
    {
        found.erase(at + 1, 1);
    }
    EXPECT_EQ(found, expected);
}

TEST(WaveForceTable, HasALineForEachSpeedHeadingAndFrequency)
{
    CMadeRun run;
    const std::vector<std::string> lines = LinesOf(oe7::WaveForceTable(run.Results, run.Log));
    EXPECT_THAT(lines, SizeIs(2 + 2 * 3 * 4));
    EXPECT_EQ(lines.at(1),
              "Speed_kn,Heading_deg,WaveFreq_rad_s,EncFreq_rad_s,F1_amp,F1_phase,F2_amp,F2_phase,F3_amp,"
              "F3_phase,F4_amp,F4_phase,F5_amp,F5_phase,F6_amp,F6_phase");
}

TEST(WaveForceTable, GivesAmplitudesAndPhases)
{
    CMadeRun run(WithOneSpeed());
    oe7::CDirectionResults& direction = run.Results.Speeds[0].Directions[2];
    direction.Encounter[1] = -0.25;
    direction.Forces[1] << oe7::Complex(3, 4), oe7::Complex(0, -1e6), 0, 1, -2, oe7::Complex(0, 0.5);
    const std::vector<std::string> lines = LinesOf(oe7::WaveForceTable(run.Results, run.Log));
    EXPECT_EQ(lines.at(2 + 2 * 4 + 1), "12.500,195.00,0.5000,-0.25000,5.000000e+00,53.13,1.000000e+06,-90.00,"
                                       "0.000000e+00,0.00,1.000000e+00,0.00,"
                                       "2.000000e+00,180.00,5.000000e-01,90.00");
}

TEST(WaveForceTable, WhatIsNoNumberBecomesZeroAndAWarning)
{
    CMadeRun run;
    run.Results.Speeds[0].Directions[0].Forces[0](0) = std::nan("");
    run.Results.Speeds[0].Radiation[0](1, 1) = std::nan("");
    const std::string text =
        oe7::WaveForceTable(run.Results, run.Log) + oe7::CoefficientTable(run.Results, run.Log);
    EXPECT_THAT(text, Not(HasSubstr("nan")));
    EXPECT_THAT(run.Log.Warnings(), SizeIs(1));
}
