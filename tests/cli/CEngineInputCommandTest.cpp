#include "core/engine/CEngineInputWriter.h"
#include "tests/cli/CCliTest.h"
#include "tests/support/RecordText.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
/// A rudder whose gains come from a file.
void UseRudderGains(CProjectData& project, const std::string& file)
{
    project.AppendedHull = 1;
    project.IncludeRudder = 1;
    project.RudderGainFileUsed = 1;
    project.RudderGainFile = file;
    for (auto* field : {&project.XSTRUD, &project.YRTRUD, &project.ZRTRUDBL, &project.SPANRUD, &project.RCRUD,
                        &project.TCRUD, &project.ISLIPRUD})
    {
        field->Set(1);
    }
}
} // namespace

TEST(CliEngineInput, WritesTheInputIntoTheBaseFolder)
{
    CCliTest test;
    test.Complete();
    test.Project.EXCITE.Set(2);
    test.Project.ADDMASS.Set(3);
    test.Write("ship.od7");
    CTestFolder engine;
    EXPECT_EQ(test.Run({"--base-dir", engine.Path(), "engine-input", "ship.od7"}), Done());
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
    ASSERT_TRUE(CEngineInputWriter(test.Project, test.Folder.Path(), test.Recorder.Platform).Write());
    EXPECT_EQ(FileContent(engine.File("Ondara7.inp")), test.Content("Ondara7.inp"));
}

TEST(CliEngineInput, TheBaseFolderIsTheCurrentOneByDefault)
{
    CCliTest test;
    test.Complete();
    test.Write("ship.od7");
    EXPECT_EQ(test.Run({"engine-input", "ship.od7"}), Done());
    EXPECT_THAT(test.Files(), ElementsAre("Ondara7.inp", "ship.od7"));
}

TEST(CliEngineInput, AMissingValueIsToldAndTheCommandFails)
{
    CCliTest test;
    test.Complete();
    test.Project.SHIPLEN.Set(-1);
    test.Write("ship.od7");
    EXPECT_EQ(
        test.Run({"engine-input", "ship.od7"}),
        Failed("Execution Cannot Continue: You have not specified a\\nlength between perpendiculars.\n"));
    EXPECT_THAT(test.Files(), ElementsAre("Ondara7.inp", "ship.od7"));
}

TEST(CliEngineInput, AMissingGainFileIsToldBeforeAnythingIsWritten)
{
    CCliTest test;
    test.Complete();
    UseRudderGains(test.Project, "gains.txt");
    test.Write("ship.od7");
    EXPECT_EQ(test.Run({"engine-input", "ship.od7"}),
              Failed("Select a file: " + test.Folder.File("gains.txt") +
                     " does not exist.  Please make sure the file is created prior to calculations.\n"));
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
}

TEST(CliEngineInput, AGainFileIsCopiedForTheEngine)
{
    CCliTest test;
    test.Complete();
    UseRudderGains(test.Project, "gains.txt");
    test.Write("ship.od7");
    test.Write("gains.txt", "0 1 2\n");
    EXPECT_EQ(test.Run({"engine-input", "ship.od7"}), Done());
    EXPECT_EQ(test.Content("RudderGain.inp"), "0 1 2\n");
}

TEST(CliEngineInput, AFileThatIsNotReadWholeWritesNothing)
{
    CCliTest test;
    test.Complete();
    test.Write("ship.od7", WithLineBehind(InputFileText(test.Project), "Record (t)", "junk"));
    EXPECT_EQ(test.Run({"engine-input", "ship.od7"}), Failed(kUnreadable));
    EXPECT_EQ(test.Run({"engine-input", "nothing.od7"}), Failed(kUnreadable));
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
}

TEST(CliEngineInput, AnInputThatCanNotBeWrittenFails)
{
    CCliTest test;
    test.Complete();
    test.Write("ship.od7");
    std::filesystem::create_directory(test.Folder.File("Ondara7.inp"));
    EXPECT_EQ(test.Run({"engine-input", "ship.od7"}),
              Failed("Error Saving File: The file could not be saved.\n"));
}

TEST(CliEngineInput, ABaseFolderThatIsNoneFailsBeforeAnythingIsDone)
{
    CCliTest test;
    test.Complete();
    test.Write("ship.od7");
    EXPECT_EQ(test.Run({"--base-dir", "nowhere", "engine-input", "ship.od7"}),
              Failed("ondara-cli: nowhere is no folder\n"));
    EXPECT_EQ(test.Run({"--base-dir", "ship.od7", "engine-input", "ship.od7"}),
              Failed("ondara-cli: ship.od7 is no folder\n"));
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
    EXPECT_THAT(test.RecentFiles(), IsEmpty());
}
