// The names under which a run keeps its results, and what it says when it can't.
#include "tests/cli/CEngineCliTest.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{
CCliRun Misused(const std::string& fault)
{
    return {kExitUsage, "", "ondara-cli: --results: " + fault + " (ondara-cli --help tells more)\n"};
}

/// Wrong usage, told before anything is written.
void ExpectMisused(const CEngineCliTest& test, const std::string& results, const std::string& fault,
                   const std::string& project = "ship.od7")
{
    const std::vector<std::string> files = test.Files();
    const std::string before = test.Content(project);
    EXPECT_EQ(test.Run({"run", project, "--results", results}), Misused(test.Folder.File(fault)));
    EXPECT_EQ(test.Files(), files);
    EXPECT_EQ(test.Content(project), before);
}
} // namespace

TEST(CliRunResults, TheProjectIsNoNameForThem)
{
    CEngineCliTest test;
    fs::create_symlink("ship.od7", test.Folder.File("link.tv7"));
    fs::create_directory(test.Folder.File("folder"));
    ExpectMisused(test, "ship.od7", "ship.od7 is the project");
    ExpectMisused(test, "folder/../ship.od7", "ship.od7 is the project");
    ExpectMisused(test, "link.tv7", "link.tv7 is the project");
    ExpectMisused(test, "link", "link.tv7 is the project");
    ExpectMisused(test, "ship.od7", "ship.od7 is the project", "link.tv7");
}

TEST(CliRunResults, NorIsANameWhoseListingWouldBeTheProject)
{
    CEngineCliTest test;
    fs::rename(test.Folder.File("ship.od7"), test.Folder.File("ship.out"));
    ExpectMisused(test, "ship.tv7", "ship.out is the project", "ship.out");
}

TEST(CliRunResults, TheListingsExtensionIsNoneForThem)
{
    CEngineCliTest test;
    fs::create_symlink("both.out", test.Folder.File("both.tv7"));
    for (const std::string name : {"x.out", "ondara7.out", "both.tv7"})
    {
        const std::string listing = name == "both.tv7" ? "both.out" : name;
        EXPECT_EQ(test.Run({"run", "ship.od7", "--results", name}),
                  Misused("the listing is kept as " + test.Folder.File(listing)));
        EXPECT_FALSE(test.Has("Ondara7.inp"));
    }
}

TEST(CliRunResults, AFileOfTheEngineIsNoNameForThem)
{
    CEngineCliTest test;
    for (const std::string name :
         {"ondara7.bin", "Ondara7.BIN", "Ondara7Orig.bin", "Ondara7.inp", "ondara7.log",
          "Ondara7_DimHyCo.csv", "Ondara7_WaveForce.csv", "RudderGain.inp", "FinGain.inp", "OE7.exe"})
    {
        ExpectMisused(test, name, name + " is a file of the engine");
    }
    fs::create_directory(test.Folder.File("kept"));
    EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "kept/ondara7.bin"}).ExitCode, kExitDone);
    EXPECT_EQ(test.Content("kept/ondara7.bin"), test.Content("ondara7.bin"));
    EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "ondara7.tv7"}).ExitCode, kExitDone);
    EXPECT_EQ(test.Content("ondara7.tv7"), test.Content("ondara7.bin"));
}

TEST(CliRunResults, APointInAFoldersNameIsNoExtension)
{
    CEngineCliTest test;
    fs::create_directory(test.Folder.File("kept.d"));
    EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "kept.d/out"}).ExitCode, kExitDone);
    EXPECT_EQ(test.Content("kept.d/out.tv7"), test.Content("ondara7.bin"));
}

TEST(CliRunResults, WhichOfThemCanNotBeKeptIsTold)
{
    CEngineCliTest test;
    const std::string place = " in " + test.Folder.Path() + "\n";
    const auto results = [&](const std::string& name) {
        return "ondara-cli: the results can't be copied to " + test.Folder.File(name) + "; they stand" +
               place;
    };
    const auto listing = [&](const std::string& name) {
        return "ondara-cli: the listing can't be copied to " + test.Folder.File(name) + "; it stands" + place;
    };
    fs::permissions(test.Folder.Write("one.out", "protected"), fs::perms::owner_read);
    fs::permissions(test.Folder.Write("two.tv7", "protected"), fs::perms::owner_read);
    EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "one.tv7"}),
              Failed(kRunSuccess + listing("one.out")));
    EXPECT_TRUE(test.Has("one.tv7"));
    EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "two.tv7"}),
              Failed(kRunSuccess + results("two.tv7")));
    EXPECT_TRUE(test.Has("two.out"));
    EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "none/out.tv7"}),
              Failed(kRunSuccess + results("none/out.tv7") + listing("none/out.out")));
}

TEST(CliRunResults, ATableThatIsDroppedForWantOfANameIsTold)
{
    CEngineCliTest test;
    test.Complete();
    test.Project.ADDMASS.Set(4);
    test.Write("ship.od7");
    const std::string table = test.Folder.Write("ship_Hyd.csv", "protected");
    fs::permissions(table, fs::perms::owner_read);
    const CCliRun run = test.Run({"--yes", "run", "ship.od7"});
    EXPECT_EQ(run.ExitCode, kExitDone);
    EXPECT_THAT(run.Errors, testing::EndsWith(" [yes]\nondara-cli: another name than " + table +
                                              " can't be asked for here; what was to be saved is dropped\n"));
    EXPECT_EQ(test.Content("ship_Hyd.csv"), "protected");
}
