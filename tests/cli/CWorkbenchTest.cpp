// What all commands share: recent files, settings, saves that a full disk cuts short.
#include "cli/CWorkbench.h"

#include "core/platform/CIniProfile.h"
#include "tests/cli/CCliTest.h"
#include "tests/support/CFullDisk.h"
#include "tests/support/RecordText.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
CCliRun RunOnFullDisk(const CCliTest& test, const std::vector<std::string>& words)
{
    const CFullDisk disk(100);
    return test.Run(words);
}
} // namespace

TEST(CliWorkbench, AFileThatWasReadWholeStandsInTheRecentFiles)
{
    CCliTest test;
    test.Write("a.od7");
    test.Write("b.od7");
    test.Run({"dump", "a.od7"});
    test.Run({"convert", "b.od7", "out.od7"});
    EXPECT_THAT(test.RecentFiles(), ElementsAre(test.Folder.File("b.od7"), test.Folder.File("a.od7")));
}

TEST(CliWorkbench, AFileThatWasNotReadWholeLeavesTheRecentFiles)
{
    CCliTest test;
    test.Write("a.od7");
    test.Write("b.od7");
    test.Run({"dump", "a.od7"});
    test.Run({"dump", "b.od7"});
    test.Write("b.od7", WithLineBehind(InputFileText(test.Project), "Record (j)", "junk"));
    test.Run({"dump", "b.od7"});
    EXPECT_THAT(test.RecentFiles(), ElementsAre(test.Folder.File("a.od7")));
    std::filesystem::remove(test.Folder.File("a.od7"));
    test.Run({"dump", "a.od7"});
    EXPECT_THAT(test.RecentFiles(), IsEmpty());
}

TEST(CliWorkbench, TheSamplesAreNotOfferedAndTheCheckOptionsNotTouched)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new", "ship.od7"}), Done());
    EXPECT_THAT(test.RecentFiles(), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(test.Profile));
}

TEST(CliWorkbench, PathsAreTakenFromTheFolderOfTheStart)
{
    CCliTest test;
    CTestFolder engine;
    std::filesystem::create_directories(test.Folder.File("in"));
    std::filesystem::create_directories(test.Folder.File("out"));
    const std::string saved = test.Write("in/ship.od7");
    test.Write("in/base.od7");
    test.Profile = "out/settings.ini";
    EXPECT_EQ(test.Run({"--base-dir", engine.Path(), "convert", "in/ship.od7", "out/ship.od7", "--onto",
                        "in/base.od7"}),
              Done());
    EXPECT_EQ(test.Run({"dump", "out/ship.od7"}).ExitCode, 0);
    EXPECT_TRUE(std::filesystem::exists(test.Folder.File("out/settings.ini")));
    EXPECT_TRUE(std::filesystem::exists(test.Folder.File("out/ship.od7")));
}

TEST(CliWorkbench, ASettingsStoreThatCanNotBeWrittenHindersNothing)
{
    CCliTest test;
    test.Write("in.od7");
    test.Profile = "/proc/none/settings.ini";
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7"}), Done());
}

TEST(CliWorkbench, AFileThatIsCutShortIsToldWithTheNameOfItsLastContent)
{
    CCliTest test;
    test.Project.ProjectTitle = "good";
    const std::string good = test.Write("ship.od7");
    const std::string file = test.Folder.File("ship.od7");
    EXPECT_EQ(RunOnFullDisk(test, {"convert", "ship.od7", "ship.od7"}),
              Failed("ondara-cli: " + file +
                     " is cut short, its disk has no room for all of it; last content in " + file + "~\n"));
    EXPECT_EQ(test.Content("ship.od7").size(), 100U);
    EXPECT_EQ(test.Content("ship.od7~"), good);
}

TEST(CliWorkbench, ANewFileThatIsCutShortHasNoLastContent)
{
    CCliTest test;
    EXPECT_EQ(RunOnFullDisk(test, {"new", "ship.od7"}),
              Failed("ondara-cli: " + test.Folder.File("ship.od7") +
                     " is cut short, its disk has no room for all of it\n"));
}

TEST(CliWorkbench, ASecondCutNamesBothContents)
{
    CCliTest test;
    test.Write("ship.od7");
    const std::string file = test.Folder.File("ship.od7");
    RunOnFullDisk(test, {"new", "ship.od7"});
    EXPECT_EQ(RunOnFullDisk(test, {"new", "ship.od7"}),
              Failed("ondara-cli: " + file +
                     " is cut short, its disk has no room for all of it; last content in " + file +
                     "~; last content in " + file + "~~\n"));
    EXPECT_EQ(test.Content("ship.od7~"), InputFileText(test.Project));
}

TEST(CliWorkbench, AnOutputThatCanNotBeWrittenIsAFailure)
{
    CTestFolder folder;
    std::ofstream full("/dev/full");
    std::ostringstream errors;
    CWorkbench workbench({folder.Path(), folder.File("settings.ini"), false}, full, errors);
    EXPECT_FALSE(workbench.Print("text"));
    EXPECT_EQ(errors.str(), "ondara-cli: the standard output can't be written\n");
}

TEST(CliWorkbench, QuestionsAreAnsweredAsTheOptionsSay)
{
    CTestFolder folder;
    for (const bool yes : {false, true})
    {
        std::ostringstream output;
        std::ostringstream errors;
        CWorkbench workbench({folder.Path(), folder.File("settings.ini"), yes}, output, errors);
        EXPECT_EQ(workbench.App.Platform.Messages.AskYesNo("Sure?", "Title", EIcon::Question), yes);
        EXPECT_EQ(errors.str(), yes ? "Title: Sure? [yes]\n" : "Title: Sure? [no]\n");
        EXPECT_EQ(output.str(), "");
    }
}
