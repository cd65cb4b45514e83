#include "tests/oe7/output/CMadeRun.h"

#include <cstring>
#include <limits>

#include <gmock/gmock.h>

using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{
int IntegerAt(const std::string& bytes, std::size_t offset)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes.at(offset + i)); };
    return static_cast<int>(byte(0) | byte(1) << 8U | byte(2) << 16U | static_cast<unsigned>(byte(3)) << 24U);
}

float RealAt(const std::string& bytes, std::size_t offset)
{
    const int word = IntegerAt(bytes, offset);
    float value = 0;
    std::memcpy(&value, &word, sizeof value);
    return value;
}

std::string TextAt(const std::string& bytes, std::size_t offset, std::size_t width)
{
    const std::string text = bytes.substr(offset, width);
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// What the counts of the small run add up to: 5 stations, 2 cuts, 6 positions, 2 speeds, 3 headings, 2
/// seaways, 4 frequencies.
constexpr std::size_t kStillWater = 4 * (2 + 4 * 5);
constexpr std::size_t kTables = 4 * (1 + 3 * 6) + 4 * (1 + 2) + 4 * (1 + 3) + 4 * (1 + 2 * 2) + 4 * 3;
constexpr std::size_t kMotionRao = 80 + 8 * 8 * 3 * 4;
constexpr std::size_t kLoadRao = 38 + 8 * 5 * 2 * 3 * 4;
constexpr std::size_t kSeaway = 36 + 4 * 3 * 8 * 3 + 54 + 4 * 21 * 6 * 3 + 32 + 4 * 10 * 2 * 3;
} // namespace

TEST(BinaryFile, TheHeadStandsAtItsOffsets)
{
    oe7::CInput input = SmallInput();
    input.SpreadingAngle = 60;
    CMadeRun run(input);
    oe7::CHullCondition& hull = run.Results.Hull;
    hull.Mass = 4050000;
    hull.Draft = 4.4;
    hull.Trim = -0.15;
    hull.GmUsed = 1.05;
    hull.LargestBeam = 14;
    hull.BlockCoefficient = 0.53;
    const std::string bytes = run.Binary();
    EXPECT_EQ(TextAt(bytes, 0, 20), "OE7 1.0");
    EXPECT_EQ(TextAt(bytes, 20, 100), kStamp);
    EXPECT_EQ(TextAt(bytes, 120, 20), "METRIC");
    EXPECT_EQ(TextAt(bytes, 140, 20), "SALT");
    EXPECT_EQ(TextAt(bytes, 160, 20), "boundary element");
    EXPECT_EQ(TextAt(bytes, 180, 20), "BRETSCHNEIDER");
    EXPECT_EQ(RealAt(bytes, 200), 120.0F);
    EXPECT_EQ(IntegerAt(bytes, 204), 5);
    EXPECT_EQ(RealAt(bytes, 208), 4050.0F);
    EXPECT_EQ(RealAt(bytes, 212), 61.5F) << "of G aft of station 0";
    EXPECT_EQ(RealAt(bytes, 216), 4.4F);
    EXPECT_EQ(RealAt(bytes, 220), -0.15F);
    EXPECT_EQ(RealAt(bytes, 224), 5.6F);
    EXPECT_EQ(RealAt(bytes, 228), 1.05F);
    EXPECT_EQ(RealAt(bytes, 232), 60.0F);
    EXPECT_EQ(RealAt(bytes, 236), 14.0F);
    EXPECT_EQ(RealAt(bytes, 240), 0.53F);
    EXPECT_EQ(IntegerAt(bytes, 244), 2);
    EXPECT_EQ(RealAt(bytes, 248), 1.0F) << "the first load station";
}

TEST(BinaryFile, AllItsLengthsAreOfTheOutputSystem)
{
    oe7::CInput input = SmallInput();
    input.OutputUnits = oe7::EUnits::British;
    input.Water = oe7::EWater::Fresh;
    input.Method = oe7::ESectionMethod::ConformalMapping;
    CMadeRun run(input);
    run.Results.Hull.Mass = 1016046.9;
    const std::string bytes = run.Binary();
    EXPECT_EQ(TextAt(bytes, 120, 20), "BRITISH");
    EXPECT_EQ(TextAt(bytes, 140, 20), "FRESH");
    EXPECT_EQ(TextAt(bytes, 160, 20), "conformal mapping");
    EXPECT_FLOAT_EQ(RealAt(bytes, 200), 393.70079F);
    EXPECT_FLOAT_EQ(RealAt(bytes, 208), 1000);
    EXPECT_FLOAT_EQ(RealAt(bytes, 224), 18.372703F);
    const std::size_t heights = 248 + kStillWater + kTables - 12 - 16;
    EXPECT_FLOAT_EQ(RealAt(bytes, heights), 4.9212598F);
    EXPECT_FLOAT_EQ(RealAt(bytes, heights + 8), 8) << "a period";
}

TEST(BinaryFile, ItsTablesFollowEachOther)
{
    CMadeRun run;
    const std::string bytes = run.Binary();
    std::size_t at = 248 + kStillWater;
    EXPECT_EQ(IntegerAt(bytes, at), 6);
    EXPECT_EQ(RealAt(bytes, at + 4 + 4), 1.0F) << "station of the second position";
    at += 4 + 4 * 18;
    EXPECT_EQ(IntegerAt(bytes, at), 2);
    EXPECT_EQ(RealAt(bytes, at + 8), 12.5F);
    EXPECT_EQ(IntegerAt(bytes, at + 12), 3);
    EXPECT_EQ(RealAt(bytes, at + 24), 195.0F);
    EXPECT_EQ(IntegerAt(bytes, at + 28), 2);
    EXPECT_EQ(RealAt(bytes, at + 36), 4.25F);
    EXPECT_EQ(RealAt(bytes, at + 44), 10.5F);
    EXPECT_EQ(IntegerAt(bytes, at + 48), 4);
    EXPECT_EQ(RealAt(bytes, at + 52), 0.2F);
    EXPECT_EQ(RealAt(bytes, at + 56), 0.3F);
    EXPECT_EQ(TextAt(bytes, at + 60, 80), " SPEED 0.00 KNOTS");
}

TEST(BinaryFile, ItIsAsLongAsItsCountsSayAndEndsInItsMark)
{
    const std::string bytes = CMadeRun().Binary();
    EXPECT_EQ(bytes.size(), 248 + kStillWater + kTables + 2 * (kMotionRao + kLoadRao + 2 * kSeaway) + 4);
    EXPECT_EQ(bytes.substr(bytes.size() - 4), "CBDW");
}

TEST(BinaryFile, LoadsInIrregularSeasAreInThousandsAndFollowedByTheirPeriods)
{
    CMadeRun run;
    auto& load = run.Results.Speeds[0].Seaways[0].Loads[1][2][3];
    load = {3.5e6, 7.25};
    const std::string bytes = run.Binary();
    const std::size_t loads = 248 + kStillWater + kTables + kMotionRao + kLoadRao + kSeaway - 4 * 10 * 2 * 3;
    EXPECT_EQ(TextAt(bytes, loads - 32, 32), " RMS LOADS");
    EXPECT_EQ(RealAt(bytes, loads + 4 * (6 * 6 + 3 + 2)), 3500.0F);
    EXPECT_EQ(RealAt(bytes, loads + 4 * (7 * 6 + 3 + 2)), 7.25F);
}

TEST(BinaryFile, SpreadingIsToldForSeasThatHaveOneOnly)
{
    for (const oe7::ESpectrum spectrum : {oe7::ESpectrum::Regular, oe7::ESpectrum::TenParameter})
    {
        oe7::CInput input = SmallInput();
        input.Spectrum = spectrum;
        input.SpreadingAngle = 60;
        EXPECT_EQ(RealAt(CMadeRun(input).Binary(), 232), 0.0F);
    }
}

TEST(BinaryFile, RegularWavesHaveSeawaysOfNoHeightAndNoBlocksForThem)
{
    oe7::CInput input = SmallInput();
    input.Spectrum = oe7::ESpectrum::Regular;
    const std::string bytes = CMadeRun(input).Binary();
    const std::size_t seaways = 248 + kStillWater + kTables - 12 - 20;
    EXPECT_EQ(IntegerAt(bytes, seaways), 2);
    EXPECT_EQ(RealAt(bytes, seaways + 4), 0.0F);
    EXPECT_EQ(RealAt(bytes, seaways + 16), 0.0F);
    EXPECT_EQ(bytes.size(), 248 + kStillWater + kTables + 2 * (kMotionRao + kLoadRao) + 4);
}

TEST(BinaryFile, WithoutSpeedsTheSeawaysAreStillTold)
{
    oe7::CInput input = SmallInput();
    input.Speeds.clear();
    const std::string bytes = CMadeRun(input).Binary();
    const std::size_t seaways = 248 + kStillWater + kTables - 8 - 12 - 20;
    EXPECT_EQ(RealAt(bytes, seaways + 8), 4.25F);
    EXPECT_EQ(bytes.size(), 248 + kStillWater + kTables - 8 + 4);
}

TEST(BinaryFile, WithoutLoadsPositionsAndHeadingsThereAreOnlyCounts)
{
    oe7::CInput input = SmallInput();
    input.Loads = false;
    input.LoadStations.clear();
    input.Positions.clear();
    input.Directions.clear();
    const std::string bytes = CMadeRun(input).Binary();
    EXPECT_EQ(IntegerAt(bytes, 244), 0);
    EXPECT_EQ(IntegerAt(bytes, 248), 0);
    EXPECT_EQ(bytes.size(), 248 + 4 + 12 + 4 + 20 + 12 + 2 * (80 + 2 * 36) + 4U);
}

TEST(BinaryFile, WhatIsNoNumberBecomesZeroAndAWarning)
{
    CMadeRun run;
    EXPECT_THAT((run.Binary(), run.Log.Warnings()), IsEmpty());
    run.Results.Hull.Mass = std::numeric_limits<double>::quiet_NaN();
    run.Results.Hull.Draft = -std::numeric_limits<double>::infinity();
    run.Results.Hull.Trim = 1e39;
    const std::string bytes = run.Binary();
    EXPECT_EQ(RealAt(bytes, 208), 0.0F);
    EXPECT_EQ(RealAt(bytes, 216), 0.0F);
    EXPECT_EQ(RealAt(bytes, 220), 0.0F) << "more than a float holds";
    EXPECT_THAT(run.Log.Warnings(), SizeIs(1));
}
