#include "core/results/CResultsCommands.h"
#include "tests/cli/CEngineCliTest.h"

#include <cstdlib>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/wait.h>

namespace fs = std::filesystem;

namespace
{
/// A folder with what the engine has left.
class CCompleteTest : public CEngineCliTest
{
public:
    explicit CCompleteTest(const std::string& failure = {})
    {
        if (!failure.empty())
        {
            Engine.Fail(failure);
        }
        EXPECT_EQ(Run({"engine-input", "ship.od7"}), Done());
        EXPECT_EQ(WEXITSTATUS(std::system(("cd '" + Folder.Path() + "' && ./OE7").c_str())), 0);
    }
};
} // namespace

TEST(CliComplete, SaysNothingOnSuccess)
{
    CCompleteTest test;
    EXPECT_EQ(test.Run({"complete", "ship.od7"}), Done());
    EXPECT_EQ(test.Run({"restore", "ondara7.bin", "again.od7"}), Done());
    EXPECT_TRUE(test.Has("Ondara7_DimHyCo.csv")) << "the tables are the run's affair";
}

TEST(CliComplete, DoesWhatARunDoes)
{
    CCompleteTest test;
    EXPECT_EQ(test.Run({"complete", "ship.od7"}), Done());
    const std::string completed = test.Content("ondara7.bin");
    EXPECT_EQ(test.Run({"run", "ship.od7"}).ExitCode, kExitDone);
    EXPECT_EQ(test.Content("ondara7.bin"), completed);
}

TEST(CliComplete, TheResultsNameTheProjectAsItWasGiven)
{
    for (const std::string& given : {std::string("ship.od7"), std::string("./ship.od7")})
    {
        CCompleteTest test;
        EXPECT_EQ(test.Run({"complete", given}), Done());
        EXPECT_EQ(StoredInputFile(test.Folder.File("ondara7.bin")), given);
    }
}

TEST(CliComplete, SavesTheProjectAsCompletionLeavesIt)
{
    CCompleteTest test;
    EXPECT_EQ(test.Run({"complete", "ship.od7", "--save", "after.od7"}), Done());
    EXPECT_TRUE(test.Has("after.od7"));
}

TEST(CliComplete, ResultsWithoutTheEndMarkStayAsTheyAre)
{
    for (const char* how : {"short-file", "no-marker"})
    {
        CCompleteTest test(how);
        const std::string before = test.Content("ondara7.bin");
        EXPECT_EQ(test.Run({"complete", "ship.od7", "--save", "after.od7"}), Failed(kRunFailure));
        EXPECT_EQ(test.Content("ondara7.bin"), before);
        EXPECT_FALSE(test.Has("after.od7"));
    }
}

TEST(CliComplete, ASecondCompletionIsRefused)
{
    CCompleteTest test;
    EXPECT_EQ(test.Run({"complete", "ship.od7"}), Done());
    const std::string completed = test.Content("ondara7.bin");
    EXPECT_EQ(test.Run({"complete", "ship.od7"}), Failed(kRunFailure));
    EXPECT_EQ(test.Content("ondara7.bin"), completed);
}

TEST(CliComplete, MissingResultsAreNotMade)
{
    CCompleteTest test;
    fs::rename(test.Folder.File("ondara7.bin"), test.Folder.File("Ondara7.bin"));
    EXPECT_EQ(test.Run({"complete", "ship.od7"}), Failed(kRunFailure)) << "the name is written small";
    EXPECT_FALSE(test.Has("ondara7.bin"));
    EXPECT_TRUE(test.Has("Ondara7.bin"));
}

TEST(CliComplete, AFailedScanIsToldInOneLine)
{
    for (const char* how : {"no-listing", "missing-listing-marker GMFLAG"})
    {
        CCompleteTest test(how);
        EXPECT_EQ(test.Run({"complete", "ship.od7", "--save", "after.od7"}), Failed(kScanFailure));
        EXPECT_FALSE(test.Has("after.od7"));
    }
}

TEST(CliComplete, AProjectThatIsNotReadWholeLeavesTheResultsAsTheyAre)
{
    CCompleteTest test;
    const std::string before = test.Content("ondara7.bin");
    EXPECT_EQ(test.Run({"complete", "none.od7"}), Failed(kUnreadable));
    EXPECT_EQ(test.Content("ondara7.bin"), before);
}
