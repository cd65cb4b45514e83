#include "core/engine/CEngineInputWriter.h"
#include "tests/cli/CCliTest.h"
#include "tests/support/RecordText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace
{
/// A ship that is loaded by displacement.
void LoadByDisplacement(CProjectData& project)
{
    project.TRIMDEF.Set(1);
    project.DISPUSER.Set(5000);
    project.LCGPUSER.Set(50);
}
} // namespace

TEST(CliWaterlineInput, WritesTheReducedInputOfAShipLoadedByDisplacement)
{
    CCliTest test;
    test.Complete();
    LoadByDisplacement(test.Project);
    test.Write("ship.od7");
    CTestFolder engine;
    EXPECT_EQ(test.Run({"--base-dir", engine.Path(), "waterline-input", "ship.od7"}), Done());
    ASSERT_TRUE(CEngineInputWriter(test.Project, test.Folder.Path(), test.Recorder.Platform).WriteReduced());
    EXPECT_EQ(FileContent(engine.File("Ondara7.inp")), test.Content("Ondara7.inp"));
}

TEST(CliWaterlineInput, AShipOfGivenDraftWritesNothingAndIsDone)
{
    for (const float definition : {0.0F, 2.0F})
    {
        CCliTest test;
        test.Complete();
        test.Project.TRIMDEF.Set(definition);
        test.Write("ship.od7");
        EXPECT_EQ(test.Run({"waterline-input", "ship.od7"}), Done());
        EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
    }
}

TEST(CliWaterlineInput, AMissingValueIsToldAndTheCommandFails)
{
    CCliTest test;
    test.Complete();
    LoadByDisplacement(test.Project);
    test.Project.NST.Set(-1);
    test.Write("ship.od7");
    EXPECT_EQ(test.Run({"waterline-input", "ship.od7"}),
              Failed("Execution Cannot Continue: You have not specified the number of stations.\n"));
}

TEST(CliWaterlineInput, AFileThatIsNotReadWholeWritesNothing)
{
    CCliTest test;
    test.Complete();
    LoadByDisplacement(test.Project);
    test.Write("ship.od7", WithLineBehind(InputFileText(test.Project), "Record (t)", "junk"));
    EXPECT_EQ(test.Run({"waterline-input", "ship.od7"}), Failed(kUnreadable));
    EXPECT_EQ(test.Run({"waterline-input", "nothing.od7"}), Failed(kUnreadable));
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
}
