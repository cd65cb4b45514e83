// The program that stands for the engine: what it leaves in its folder.
#include "tests/core/results/CListingWalk.h"
#include "tests/support/CScriptedEngine.h"
#include "tests/support/CTestProject.h"
#include "tests/support/FullProject.h"

#include <csignal>
#include <cstdlib>

#include <sys/wait.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::StartsWith;

/// A folder with an input, an old result and a project file.
struct CEngineFolder : CTestProject
{
    CEngineFolder()
    {
        FillToMaximum(Project);
        Project.NSPEED.Set(1);
        Project.NSEAWAY.Set(1);
        Project.InputFilePath = Folder.File("ship.od7");
        EXPECT_EQ(File.Save(), ESaved::Whole);
        Folder.Write("Ondara7.inp", "");
        Folder.Write("ondara7.bin", "old");
    }

    /// The status that the shell's child ended with.
    int Start() const
    {
        return std::system(("cd '" + Folder.Path() + "' && exec ./OE7 2>/dev/null").c_str());
    }
    bool Has(const std::string& name) const { return FileExists(Folder.File(name)); }
    std::string Content(const std::string& name) const { return FileContent(Folder.File(name)); }
    bool HasMarkedResult() const
    {
        const std::string binary = Has("ondara7.bin") ? Content("ondara7.bin") : "";
        return binary.size() > 4 && binary.substr(binary.size() - 4) == "CBDW";
    }
    int StartFailing(const std::string& how)
    {
        CScriptedEngine(Folder.Path()).Project(Project.InputFilePath).Fail(how);
        return Start();
    }
};
} // namespace

TEST(ScriptedEngine, WritesTheFilesOfAProjectsRun)
{
    CEngineFolder folder;
    CScriptedEngine(folder.Folder.Path()).Project(folder.Project.InputFilePath).Sleep(10);
    ASSERT_EQ(folder.Start(), 0);
    // The file's project, since a text holds fewer decimals.
    CTestProject read;
    ASSERT_EQ(read.File.OpenPath(folder.Project.InputFilePath), EOpened::Whole);
    const CEngineRun run = EngineRunOf(read.Project);
    EXPECT_EQ(folder.Content("ondara7.bin"), EngineBinary(run));
    EXPECT_EQ(folder.Content("ondara7.out"), EngineListing(run));
    EXPECT_THAT(folder.Content("ondara7.log"), StartsWith("0 completed without problems\n"));
    EXPECT_EQ(folder.Content("Ondara7_DimHyCo.csv"), EngineCoefficientTable(run));
    EXPECT_EQ(folder.Content("Ondara7_WaveForce.csv"), EngineWaveForceTable(run));
}

TEST(ScriptedEngine, EndsWithAnErrorWithoutADescription)
{
    CEngineFolder folder;
    const CScriptedEngine engine(folder.Folder.Path());
    EXPECT_EQ(WEXITSTATUS(folder.Start()), 1);
    EXPECT_FALSE(folder.Has("ondara7.bin"));
    EXPECT_THAT(folder.Content("ondara7.log"), StartsWith("-1 error: there is no project"));
}

TEST(ScriptedEngine, EndsWithAnErrorWithoutAnInput)
{
    CEngineFolder folder;
    CScriptedEngine(folder.Folder.Path()).Project(folder.Project.InputFilePath);
    std::remove(folder.Folder.File("Ondara7.inp").c_str());
    EXPECT_EQ(WEXITSTATUS(folder.Start()), 1);
    EXPECT_THAT(folder.Content("ondara7.log"), StartsWith("-1 error: there is no input"));
}

TEST(ScriptedEngine, FailsByItsBinaryFile)
{
    CEngineFolder folder;
    EXPECT_EQ(WEXITSTATUS(folder.StartFailing("no-file")), 1);
    EXPECT_FALSE(folder.Has("ondara7.bin"));
    EXPECT_THAT(folder.Content("ondara7.log"), StartsWith("-1 "));
    EXPECT_EQ(folder.StartFailing("short-file"), 0);
    EXPECT_EQ(folder.Content("ondara7.bin"), "CBD");
    EXPECT_EQ(folder.StartFailing("no-marker"), 0);
    EXPECT_GT(folder.Content("ondara7.bin").size(), 1000U);
    EXPECT_FALSE(folder.HasMarkedResult());
}

TEST(ScriptedEngine, FailsByItsListing)
{
    CEngineFolder folder;
    EXPECT_EQ(folder.StartFailing("missing-listing-marker SECTIONAL PROPERTIES"), 0);
    EXPECT_TRUE(folder.HasMarkedResult());
    EXPECT_EQ(folder.Content("ondara7.out").find("SECTIONAL PROPERTIES"), std::string::npos);
    EXPECT_NE(folder.Content("ondara7.out").find("GENERAL HULL"), std::string::npos);
    EXPECT_EQ(folder.StartFailing("no-listing"), 0);
    EXPECT_TRUE(folder.HasMarkedResult());
    EXPECT_FALSE(folder.Has("ondara7.out"));
}

TEST(ScriptedEngine, TellsOfErrorsAndWarningsInItsLog)
{
    CEngineFolder folder;
    EXPECT_EQ(WEXITSTATUS(folder.StartFailing("log-error")), 1);
    EXPECT_TRUE(folder.HasMarkedResult());
    EXPECT_THAT(folder.Content("ondara7.log"), StartsWith("-1 error: "));
    EXPECT_EQ(folder.StartFailing("log-warning"), 0);
    EXPECT_THAT(folder.Content("ondara7.log"), StartsWith("1 completed with 1 warning(s)\n"));
    EXPECT_EQ(folder.StartFailing("no-log"), 0);
    EXPECT_TRUE(folder.HasMarkedResult());
    EXPECT_FALSE(folder.Has("ondara7.log"));
}

TEST(ScriptedEngine, CrashesBeforeItsBinaryFileIsWritten)
{
    CEngineFolder folder;
    const int status = folder.StartFailing("crash");
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 128 + SIGKILL);
    EXPECT_FALSE(folder.Has("ondara7.bin"));
    EXPECT_EQ(folder.Content("ondara7.log"), "-1 the calculation did not come to its end\n");
}

TEST(ScriptedEngine, StaysWhenItIsToldTo)
{
    CEngineFolder folder;
    CScriptedEngine(folder.Folder.Path()).Project(folder.Project.InputFilePath).Fail("never-ends");
    const int status = std::system(("cd '" + folder.Folder.Path() + "' && exec timeout 0.3 ./OE7").c_str());
    EXPECT_EQ(WEXITSTATUS(status), 124); // of `timeout`, which had to end it
    EXPECT_FALSE(folder.Has("ondara7.bin"));
}
