#include "tests/cli/CCliTest.h"
#include "tests/support/CMadeResults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace
{
/// Two speeds, three headings up to 180 degrees, two seaways, three positions, two load stations.
std::string Results()
{
    return CMadeResults().Bytes();
}

constexpr int kSummary = 4;
constexpr int kMotionRao = 2 * 6 + 1;
constexpr int kLoadRao = 2 * 2 * 6 + 1;
constexpr int kRollDamping = 12 + 1 + 2 * 12;
constexpr int kRms = 4 * 2 * 2;
constexpr int kRmsLoads = 2 * 2 * 2;
constexpr int kPerPosition = 2 * 2;

std::string Line(int pages)
{
    return std::to_string(pages) + "\n";
}
} // namespace

TEST(CliPages, OfAllThatTheFileOffers)
{
    CCliTest test;
    test.Write("run.tv7", Results());
    // The lists are read one word out: the second and third position have slamming, the second interruption
    // and sickness.
    const int all = kSummary + kMotionRao + kLoadRao + kRollDamping + kRms + kRmsLoads + 2 * kPerPosition +
                    kPerPosition + kPerPosition;
    EXPECT_EQ(test.Run({"pages", "run.tv7"}), Printed(Line(all)));
    EXPECT_EQ(test.Run({"pages", "run.tv7", "--sections", "all"}), Printed(Line(all)));
    EXPECT_THAT(test.Files(), ElementsAre("run.tv7"));
}

TEST(CliPages, OfTheSectionsThatAreNamed)
{
    CCliTest test;
    test.Write("run.tv7", Results());
    const auto pages = [&](const std::string& list) {
        return test.Run({"pages", "run.tv7", "--sections", list});
    };
    EXPECT_EQ(pages("summary"), Printed(Line(kSummary)));
    EXPECT_EQ(pages("environment"), Printed(Line(kSummary)));
    EXPECT_EQ(pages("summary,environment"), Printed(Line(kSummary)));
    EXPECT_EQ(pages("motion-rao"), Printed(Line(kMotionRao)));
    EXPECT_EQ(pages("load-rao"), Printed(Line(kLoadRao)));
    EXPECT_EQ(pages("roll-damping"), Printed(Line(kRollDamping)));
    EXPECT_EQ(pages("rms"), Printed(Line(kRms)));
    EXPECT_EQ(pages("rms-loads"), Printed(Line(kRmsLoads)));
    EXPECT_EQ(pages("slamming"), Printed(Line(2 * kPerPosition)));
    EXPECT_EQ(pages("mii"), Printed(Line(kPerPosition)));
    EXPECT_EQ(pages("msi,rms,rms"), Printed(Line(kPerPosition + kRms)));
}

TEST(CliPages, ASectionThatIsNotOfferedCountsNothing)
{
    CCliTest test;
    test.Write("run.tv7", Results());
    EXPECT_EQ(test.Run({"pages", "run.tv7", "--sections", "rms-short"}), Printed("0\n"));
    EXPECT_EQ(test.Run({"pages", "run.tv7", "--sections", "rms-short,summary"}), Printed(Line(kSummary)));
}

TEST(CliPages, MoreThan499AreANumberLikeAnyOther)
{
    CCliTest test;
    CMadeResults made;
    made.Speeds.assign(10, 5);
    made.SeawayCount = 10;
    made.FreqCount = 1;
    test.Write("run.tv7", made.Bytes());
    EXPECT_EQ(test.Run({"pages", "run.tv7", "--sections", "roll-damping"}), Printed(Line(300 + 1 + 600)));
}

TEST(CliPages, AnUnknownSectionIsWrongUsage)
{
    CCliTest test;
    test.Write("run.tv7", Results());
    for (const std::string list : {"waves", "summary,waves", "waves,all"})
    {
        EXPECT_EQ(test.Run({"pages", "run.tv7", "--sections", list}),
                  (CCliRun{kExitUsage, "",
                           "ondara-cli: --sections: no section of the report: waves (ondara-cli --help tells "
                           "more)\n"}));
    }
    EXPECT_EQ(test.Run({"pages", "run.tv7", "--sections", "all,rms"}).ExitCode, kExitUsage);
    EXPECT_EQ(test.Run({"pages", "run.tv7", "--sections", ""}).ExitCode, kExitUsage);
    EXPECT_EQ(test.Run({"pages", "run.tv7", "--sections", "rms,"}).ExitCode, kExitUsage);
}

TEST(CliPages, AFileThatCannotBeOpenedIsTold)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"pages", "nothing.tv7"}),
              Failed("Error In Result File: The result file could not be read.\n"));
}

TEST(CliPages, CountsThatCannotBeReadAreTold)
{
    CCliTest test;
    const std::string results = Results();
    test.Write("empty.tv7", "");
    test.Write("text.tv7", "This is no results file, but a text of some length.");
    test.Write("cut.tv7", results.substr(0, results.size() / 2));
    for (const char* name : {"empty.tv7", "text.tv7", "cut.tv7"})
    {
        EXPECT_EQ(test.Run({"pages", name}),
                  Failed("Unable To Read File: There is a problem with the results file.\n"));
    }
}

TEST(CliPages, TheLastListOfSectionsCounts)
{
    CCliTest test;
    test.Write("run.tv7", Results());
    EXPECT_EQ(test.Run({"pages", "--sections", "rms", "--sections", "summary", "run.tv7"}),
              Printed(Line(kSummary)));
}
