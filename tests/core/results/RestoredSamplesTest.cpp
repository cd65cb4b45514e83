// A project that a run was started from, and what its results file gives back.
#include "core/project/InputFileText.h"
#include "tests/core/results/CCompletion.h"

#include <gtest/gtest.h>

namespace
{
/// Runs and completes a sample, restores a project from it and compares that with a golden file.
void ExpectRestored(const std::string& sample)
{
    CCompletion completion;
    ASSERT_EQ(completion.File.OpenPath(ONDARA_SOURCE_DIR "/samples/" + sample + ".od7"), EOpened::Whole);
    completion.RunEngine();
    completion.Complete();
    EXPECT_EQ(completion.Recorder.Messages, std::vector<std::string>());
    EXPECT_EQ(completion.Project.ResultsLoaded, 1);
    CTestProject restored;
    EXPECT_TRUE(CResultFile(restored.Project, restored.Folder.Path(), restored.Recorder.Platform)
                    .RestoreProject(completion.Path));
    ExpectGolden(InputFileText(restored.Project), "results/" + sample + "-restored.od7");
}
} // namespace

TEST(RestoredSamples, Sample01)
{
    ExpectRestored("Sample01");
}

TEST(RestoredSamples, Sample02)
{
    ExpectRestored("Sample02");
}
