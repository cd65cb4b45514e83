// Sample ships calculated by the bundled engine, from the project file to the report.
#include "core/platform/NumberText.h"
#include "core/results/CResults.h"
#include "tests/cli/CCliTest.h"
#include "tests/cli/CEngineCliTest.h"
#include "tests/support/CVariable.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace
{
enum EMode
{
    kSurge,
    kSway,
    kHeave,
    kRoll,
    kPitch,
    kYaw
};

/// A sample in a folder without any engine of its own, calculated.
class CCalculatedSample : public CCliTest
{
public:
    explicit CCalculatedSample(const std::string& name)
    {
        Write("ship.od7", FileContent(SourceFile("samples/" + name)));
        EXPECT_EQ(Run({"run", "ship.od7", "--results", "ship.tv7"}), (CCliRun{kExitDone, "", kRunSuccess}));
        Results = ReadResults(Content("ship.tv7"));
    }

    float Amplitude(int speed, int heading, int mode, int frequency) const
    {
        return Results.Body.RaoAmplitude(speed, heading, mode, frequency);
    }
    /// The index of a heading, degrees.
    int Heading(float degrees) const
    {
        const std::vector<float>& headings = Results.Body.Headings;
        return static_cast<int>(std::find(headings.begin(), headings.end(), degrees) - headings.begin());
    }
    double Frequency(int index) const
    {
        return static_cast<double>(Results.Body.FirstFrequency) +
               index * static_cast<double>(Results.Body.FrequencyStep);
    }
    double RollNaturalFrequency() const
    {
        const std::string listing = Content("ondara7.out");
        const std::size_t at = listing.find("Roll natural frequency");
        return at == std::string::npos ? 0 : NumberAtStart(listing.substr(listing.find(':', at) + 1));
    }

    CResults Results;
};

template <std::size_t Dimensions>
void ExpectFinite(CHeldArray<Dimensions> array)
{
    std::size_t count = 1;
    for (std::size_t dimension = 0; dimension < Dimensions; ++dimension)
    {
        count *= static_cast<std::size_t>(array.Size(dimension));
    }
    EXPECT_TRUE(std::all_of(array.Values(), array.Values() + count,
                            [](float value) { return std::isfinite(value); }));
}
} // namespace

class BundledEngine : public testing::TestWithParam<const char*>
{
};

TEST_P(BundledEngine, CalculatesASampleUpToItsReport)
{
    const CCalculatedSample sample(GetParam());
    EXPECT_THAT(sample.Content("ondara7.log"), testing::StartsWith("0 completed without problems"));
    const CResultsBody& body = sample.Results.Body;
    EXPECT_GT(body.SpeedCount, 0);
    EXPECT_GT(body.HeadingCount, 0);
    ExpectFinite(body.RaoAmplitude);
    ExpectFinite(body.RmsCg);
    ExpectFinite(body.RmsLocal);
    ExpectFinite(body.LoadRaoAmplitude);
    EXPECT_EQ(sample.Run({"report", "ship.tv7"}), Done());
    EXPECT_THAT(sample.Content("oview.html"), HasSubstr("</html>"));
    EXPECT_EQ(sample.Run({"restore", "ship.tv7", "again.od7"}).ExitCode, kExitDone);
}

TEST_P(BundledEngine, HeaveIsThatOfTheWaterInLongBeamWavesAndPitchItsSlopeInLongHeadWaves)
{
    const CCalculatedSample sample(GetParam());
    EXPECT_NEAR(sample.Amplitude(0, sample.Heading(90), kHeave, 0), 1, 0.01);
    EXPECT_NEAR(sample.Amplitude(0, sample.Heading(180), kHeave, 0), 1, 0.05);
    EXPECT_NEAR(sample.Amplitude(0, sample.Heading(180), kPitch, 0), 1, 0.05);
}

TEST_P(BundledEngine, HeadSeasMakeNoRollSwayOrYaw)
{
    const CCalculatedSample sample(GetParam());
    const int heading = sample.Heading(180);
    for (int frequency = 0; frequency < sample.Results.Body.FreqCount; ++frequency)
    {
        for (const int mode : {kSway, kRoll, kYaw})
        {
            EXPECT_EQ(sample.Amplitude(0, heading, mode, frequency), 0);
        }
    }
}

TEST_P(BundledEngine, BeamSeasMakeRollThatPeaksAtItsNaturalFrequency)
{
    const CCalculatedSample sample(GetParam());
    const int heading = sample.Heading(90);
    int highest = 0;
    for (int frequency = 1; frequency < sample.Results.Body.FreqCount; ++frequency)
    {
        if (sample.Amplitude(0, heading, kRoll, frequency) > sample.Amplitude(0, heading, kRoll, highest))
        {
            highest = frequency;
        }
    }
    EXPECT_NEAR(sample.Frequency(highest), sample.RollNaturalFrequency(),
                1.5 * static_cast<double>(sample.Results.Body.FrequencyStep));
}

TEST_P(BundledEngine, AHigherSeawayMovesTheShipMore)
{
    const CCalculatedSample sample(GetParam());
    const CResultsBody& body = sample.Results.Body;
    ASSERT_GE(body.SeawayCount, 2);
    ASSERT_GT(body.WaveHeights[1], body.WaveHeights[0]);
    for (int heading = 0; heading < body.HeadingCount; ++heading)
    {
        EXPECT_GT(body.RmsCg(0, 1, 0, kHeave, heading), body.RmsCg(0, 0, 0, kHeave, heading));
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, BundledEngine, testing::Values("Sample01.od7", "Sample02.od7"),
                         [](const testing::TestParamInfo<const char*>& sample)
                         { return std::string(sample.param).substr(0, 8); });

TEST(BundledEngine, IsPassedOverForTheEngineInTheBaseFolder)
{
    const CEngineCliTest test;
    EXPECT_EQ(test.Run({"run", "ship.od7"}), (CCliRun{kExitDone, "", kRunSuccess}));
    const bool isBundled = test.Content("ondara7.out").find("Not modelled") != std::string::npos;
    EXPECT_FALSE(isBundled);
}
