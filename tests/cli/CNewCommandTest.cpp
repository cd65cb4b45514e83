#include "tests/cli/CCliTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CliNew, SavesAProjectAtItsDefaults)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new", "ship.od7"}), Done());
    EXPECT_EQ(test.Content("ship.od7"), InputFileText(test.Project));
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
}

TEST(CliNew, ForcesTheExtension)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new", "bare"}), Done());
    EXPECT_EQ(test.Run({"new", "other.txt"}), Done());
    EXPECT_THAT(test.Files(), ElementsAre("bare.od7", "other.od7"));
}

TEST(CliNew, AFileMayHaveTheNameOfACommand)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new", "dump"}), Done());
    EXPECT_THAT(test.Files(), ElementsAre("dump.od7"));
}

TEST(CliNew, OverwritesAFileAndLeavesNothingBesideIt)
{
    CCliTest test;
    test.Write("ship.od7", "something else");
    EXPECT_EQ(test.Run({"new", "ship.od7"}), Done());
    EXPECT_EQ(test.Content("ship.od7"), InputFileText(test.Project));
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
}

TEST(CliNew, AFolderThatIsNotThereFailsWithTheSaveMessage)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new", "nowhere/ship.od7"}),
              Failed("Error Saving File: The file could not be saved.\n"));
    EXPECT_THAT(test.Files(), IsEmpty());
}
