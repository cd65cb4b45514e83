// The commands of the menu Output that ask for a results file.
#include "core/results/LastLoadName.h"
#include "tests/gui/app/CFrameTest.h"
#include "tests/support/CMadeResults.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{
constexpr const char* kOverwrite =
    "Overwrite Inputs: Would you like to overwrite the input parameters with the "
    "ones associated with this result file?";

/// Chooses a good results file, and answers the question that comes then.
struct CLoadedTest : CFrameTest
{
    explicit CLoadedTest(bool answer)
    {
        OpenSample();
        Recorder.Requests.clear();
        Recorder.Files = {File};
        Recorder.Answer = answer;
        Give("Output.LoadResults");
    }

    const std::string File = Folder.Write("frigate.tv7", CMadeResults().Bytes());
};
} // namespace

TEST(LoadResultsCommand, YesTakesTheResultsAndTheirInputAndEnablesTheirCommands)
{
    CLoadedTest test(true);
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(test.Recorder.Requests[0].Filter, "Results Files (*.tv7)|*.tv7|All Files (*.*)|*.*|");
    EXPECT_FALSE(test.Recorder.Requests[0].OverwritePrompt);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kOverwrite));
    EXPECT_EQ(test.App.Project.NST.Integer(), 3);
    EXPECT_EQ(test.App.Project.ResultsFilePath, test.File);
    EXPECT_TRUE(test.Action("Output.Display").isEnabled());
    EXPECT_TRUE(test.Action("Output.Graph").isEnabled());
    EXPECT_TRUE(test.Action("Output.SaveAs").isEnabled());
    test.GiveForm("Output.Display", "CDisplayResultsDlg");
}

TEST(LoadResultsCommand, NoLeavesTheCommandsOfResultsDisabled)
{
    CLoadedTest test(false);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kOverwrite));
    EXPECT_GT(test.App.Project.NST.Integer(), 3);
    EXPECT_FALSE(test.Action("Output.Display").isEnabled());
    EXPECT_FALSE(test.Action("Output.Graph").isEnabled());
    EXPECT_FALSE(test.Action("Output.SaveAs").isEnabled());
}

TEST(SaveResultsCommand, KeepsResultsAndListingUnderTheNameAskedFor)
{
    CFrameTest test;
    test.Folder.Write("ondara7.bin", "results");
    test.Folder.Write("ondara7.out", "listing");
    SetLastLoadName(test.Recorder, "ship.tv7");
    test.Give("Output.LoadLast");
    const std::string kept = test.Folder.File("kept.tv7");
    test.Recorder.Files = {kept};
    test.Give("Output.SaveAs");
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(test.Recorder.Requests[0].Filter, "Result Files (*.tv7)|*.tv7|All Files(*.*)|*.*|");
    EXPECT_TRUE(test.Recorder.Requests[0].OverwritePrompt);
    EXPECT_EQ(FileContent(kept), "results");
    EXPECT_EQ(FileContent(test.Folder.File("kept.out")), "listing");
    EXPECT_EQ(test.App.Project.ResultsFilePath, kept);
    EXPECT_TRUE(test.Action("Output.Graph").isEnabled());
}
