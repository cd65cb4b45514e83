// The commands on the input file: resets, saving, opening whole and by half.
#include "core/project/CInputFile.h"
#include "tests/support/CTestProject.h"
#include "tests/support/RecordText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>
#include <utime.h>

using testing::ElementsAre;

namespace
{
constexpr const char* kUnreadable = "Error Reading File: The file could not be read.";
constexpr const char* kUnsaved = "Error Saving File: The file could not be saved.";

std::string TextOf(const std::string& title, const std::string& magic = "od7b")
{
    CTestProject other;
    other.Project.ProjectTitle = title;
    other.Project.INSYS.Set(0);
    other.Project.SHIPLEN.Set(120);
    other.Project.NSPEED.Set(2);
    std::string text = InputFileText(other.Project);
    if (magic == "od7")
    {
        return AsPreviousGeneration(text);
    }
    return text.replace(text.find("od7b"), 4, magic);
}

/// A project in which both halves hold something.
struct CFilledProject : CTestProject
{
    CFilledProject()
    {
        Project.ProjectTitle = "before";
        Project.KG.Set(4);
        Project.WAVESTEEP.Set(0.05F);
        Project.SpectrumFile = "sea.txt";
        Project.RudderGainFile = "gains.txt";
        Project.ActiveGeometryFile = "/old/geometry.od7";
        Project.ActiveEnvironmentFile = "/old/environment.od7";
    }
};
} // namespace

// --- saving

TEST(CInputFile, SaveWritesTheProjectOverItsFile)
{
    CTestProject test;
    test.Project.InputFilePath = test.Folder.Write("ship.od7", "old");
    EXPECT_EQ(test.File.Save(), ESaved::Whole);
    EXPECT_EQ(FileContent(test.Project.InputFilePath), InputFileText(test.Project));
    EXPECT_FALSE(std::filesystem::exists(test.Folder.File("ship.od7~")));
    EXPECT_THAT(test.Recorder.Messages, ElementsAre());
}

TEST(CInputFile, AFileThatCannotBeOpenedIsToldAndTheProjectStays)
{
    CTestProject test;
    test.Project.InputFilePath = test.Folder.File("no such folder/ship.od7");
    EXPECT_EQ(test.File.Save(), ESaved::NotOpened);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kUnsaved));
    EXPECT_EQ(test.Recorder.Beeps, 1);
    EXPECT_EQ(test.Project.InputFilePath, test.Folder.File("no such folder/ship.od7"));
}

TEST(CInputFile, AFullDiskIsNotTold)
{
    CTestProject test;
    test.Project.InputFilePath = test.Folder.File("full.od7");
    std::filesystem::create_symlink("/dev/full", test.Project.InputFilePath);
    EXPECT_EQ(test.File.Save(), ESaved::Short);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre());
}

TEST(CInputFile, SaveAsForcesTheExtensionAndNamesBothHalves)
{
    CTestProject test;
    const std::string folder = test.Folder.File("ships");
    std::filesystem::create_directory(folder);
    test.Recorder.Files = {folder + "/frigate.v2.txt"};
    EXPECT_EQ(test.File.SaveInputAs(), ESaved::Whole);
    EXPECT_EQ(test.Project.InputFilePath, folder + "/frigate.v2.od7");
    EXPECT_EQ(test.Project.InputFileName, "frigate.v2.od7");
    EXPECT_EQ(test.Project.ActiveGeometryFile, folder + "/frigate.v2.od7");
    EXPECT_EQ(test.Project.ActiveEnvironmentFile, folder + "/frigate.v2.od7");
    EXPECT_EQ(test.Session.WorkDir, folder);
    EXPECT_TRUE(std::filesystem::exists(folder + "/frigate.v2.od7"));
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(test.Recorder.Requests[0].Filter, "Ondara Files (*.od7)|*.od7|All Files (*.*)|*.*|");
    EXPECT_EQ(test.Recorder.Requests[0].DefaultExtension, "*.od7");
    EXPECT_EQ(test.Recorder.Requests[0].InitialName, "noname");
    EXPECT_TRUE(test.Recorder.Requests[0].OverwritePrompt);
}

TEST(CInputFile, SaveAsWithoutExtensionGetsOne)
{
    CTestProject test;
    test.Recorder.Files = {test.Folder.File("frigate")};
    test.File.SaveInputAs();
    EXPECT_TRUE(std::filesystem::exists(test.Folder.File("frigate.od7")));
}

TEST(CInputFile, ACancelledSaveAsChangesNoName)
{
    CTestProject test;
    test.Recorder.Files = {""};
    EXPECT_EQ(test.File.SaveInputAs(), std::nullopt);
    EXPECT_EQ(test.Project.InputFilePath, "noname");
    EXPECT_EQ(test.Project.ActiveGeometryFile, "");
}

TEST(CInputFile, SaveDoesNotTouchTheRecentFilesNorTheModifiedFlag)
{
    CTestProject test;
    test.Session.Modified = 1;
    test.Recorder.Files = {test.Folder.File("ship.od7")};
    test.File.SaveInputAs();
    EXPECT_TRUE(test.Session.RecentFiles.IsEmpty());
    EXPECT_EQ(test.Session.Modified, 1);
}

TEST(CInputFile, SaveInputForcesTheExtensionOfTheNamesInHand)
{
    CTestProject test;
    test.Project.InputFilePath = test.Folder.File("ship.od6");
    test.Project.InputFileName = "ship.od6";
    EXPECT_EQ(test.File.SaveInput(), ESaved::Whole);
    EXPECT_EQ(test.Project.InputFilePath, test.Folder.File("ship.od7"));
    EXPECT_EQ(test.Project.InputFileName, "ship.od7");
    EXPECT_EQ(test.Project.ActiveGeometryFile, test.Folder.File("ship.od7"));
    EXPECT_EQ(test.Project.ActiveEnvironmentFile, test.Folder.File("ship.od7"));
    EXPECT_TRUE(std::filesystem::exists(test.Folder.File("ship.od7")));
    EXPECT_TRUE(test.Recorder.Requests.empty());
}

TEST(CInputFile, SaveAsCanLeaveTheActiveNames)
{
    CTestProject test;
    test.Project.ActiveGeometryFile = "hull.od7";
    test.Recorder.Files = {test.Folder.File("ship.od7")};
    EXPECT_EQ(test.File.SaveInputAs(EActiveNames::Stay), ESaved::Whole);
    EXPECT_EQ(test.Project.InputFileName, "ship.od7");
    EXPECT_EQ(test.Project.ActiveGeometryFile, "hull.od7");
    EXPECT_EQ(test.Project.ActiveEnvironmentFile, "");
}

// --- opening

TEST(CInputFile, OpenBothAsksWithItsFilterAndTheLastName)
{
    CTestProject test;
    test.Project.InputFilePath = "/last/one.od7";
    EXPECT_EQ(test.File.OpenBoth(), EOpened::Cancelled);
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(test.Recorder.Requests[0].Filter,
              "Ondara Files (*.od7; *.od6)|*.od7; *.od6|All Files (*.*)|*.*|");
    EXPECT_EQ(test.Recorder.Requests[0].DefaultExtension, "*.od7");
    EXPECT_EQ(test.Recorder.Requests[0].InitialName, "/last/one.od7");
    EXPECT_EQ(test.Project.InputFilePath, "/last/one.od7");
}

TEST(CInputFile, OpenBothTakesTheWholeProject)
{
    CFilledProject test;
    const std::string path = test.Folder.Write("ship.od7", TextOf("a new ship"));
    struct utimbuf times = {1000000000, 1000000000};
    ::utime(path.c_str(), &times);
    int repaints = 0;
    test.Session.RepaintView = [&repaints] { ++repaints; };
    test.Recorder.Files = {path};
    EXPECT_EQ(test.File.OpenBoth(), EOpened::Whole);
    const CProjectData& p = test.Project;
    EXPECT_EQ(p.ProjectTitle, "a new ship");
    EXPECT_EQ(p.FileMagic, "od7b");
    EXPECT_EQ(p.SHIPLEN.Value(), 120);
    EXPECT_EQ(p.InputFilePath, path);
    EXPECT_EQ(p.ActiveGeometryFile, path);
    EXPECT_EQ(p.ActiveEnvironmentFile, path);
    EXPECT_EQ(p.SpeedsComplete, 1);
    EXPECT_EQ(test.Session.InputFileTime, 1000000000);
    EXPECT_EQ(test.Session.RecentFiles.Paths()[0], path);
    EXPECT_EQ(repaints, 1);
}

TEST(CInputFile, NoValueOfTheProjectBeforeSurvivesOpenBoth)
{
    CFilledProject test;
    test.Project.SummaryOption = 3;
    test.Project.StationOrigin = 1;
    test.Project.RudderDihedral = 0;
    const std::string text = TextOf("new", "od7");
    test.Recorder.Files = {test.Folder.Write("ship.od7", WithLineBehind(text, "Record (c)", "junk"))};
    EXPECT_EQ(test.File.OpenBoth(), EOpened::Damaged);
    EXPECT_EQ(test.Project.KG.Value(), -1);
    EXPECT_EQ(test.Project.WAVESTEEP.Value(), -1);
    EXPECT_EQ(test.Project.SpectrumFile, "");
    EXPECT_EQ(test.Project.RudderGainFile, "");
    EXPECT_EQ(test.Project.RudderDihedral, -90);
    EXPECT_EQ(test.Project.SummaryOption, -1);
}

TEST(CInputFile, OpeningKeepsResultsAndCheckOptions)
{
    CFilledProject test;
    test.Project.ResultsFilePath = "/results.tv7";
    test.Project.ResultsLoaded = 1;
    test.Project.ChkNegZInter = 1;
    test.File.OpenPath(test.Folder.Write("ship.od7", TextOf("new")));
    EXPECT_EQ(test.Project.ResultsFilePath, "/results.tv7");
    EXPECT_EQ(test.Project.ResultsLoaded, 1);
    EXPECT_EQ(test.Project.ChkNegZInter, 1);
}

TEST(CInputFile, ADamagedFileStillGoesToTheRecentFilesAndTheActiveNames)
{
    CFilledProject test;
    const std::string path =
        test.Folder.Write("ship.od7", WithLineBehind(TextOf("new"), "Record (k)", "junk"));
    test.Recorder.Files = {path};
    EXPECT_EQ(test.File.OpenBoth(), EOpened::Damaged);
    EXPECT_EQ(test.Project.ActiveGeometryFile, path);
    EXPECT_EQ(test.Session.RecentFiles.Paths()[0], path);
    EXPECT_EQ(test.Project.SHIPLEN.Value(), 120);
    EXPECT_EQ(test.Project.SpeedsComplete, 1);
}

TEST(CInputFile, AnUnknownMagicLeavesTheProjectButForgetsThePath)
{
    for (const char* magic : {"O6", "od8", "OD7B", "od7bx", ""})
    {
        CFilledProject test;
        test.Recorder.Files = {test.Folder.Write("ship.od7", TextOf("new", magic))};
        EXPECT_EQ(test.File.OpenBoth(), EOpened::NotRecognised) << magic;
        EXPECT_THAT(test.Recorder.Messages, ElementsAre(kUnreadable));
        EXPECT_EQ(test.Recorder.Beeps, 1);
        EXPECT_EQ(test.Project.InputFilePath, "");
        EXPECT_EQ(test.Project.ProjectTitle, "before");
        EXPECT_EQ(test.Project.KG.Value(), 4);
        EXPECT_EQ(test.Project.ActiveGeometryFile, "/old/geometry.od7");
        EXPECT_TRUE(test.Session.RecentFiles.IsEmpty());
    }
}

TEST(CInputFile, AFileThatIsNotThereKeepsThePathAndTheProject)
{
    CFilledProject test;
    test.Recorder.Files = {test.Folder.File("gone.od7")};
    EXPECT_EQ(test.File.OpenBoth(), EOpened::NotOpened);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kUnreadable));
    EXPECT_EQ(test.Project.InputFilePath, test.Folder.File("gone.od7"));
    EXPECT_EQ(test.Project.KG.Value(), 4);
    EXPECT_TRUE(test.Session.RecentFiles.IsEmpty());
}

TEST(CInputFile, AFolderIsNoFile)
{
    CFilledProject test;
    EXPECT_EQ(test.File.OpenPath(test.Folder.Path()), EOpened::NotOpened);
}

TEST(CInputFile, TheWorkingFolderFollowsTheChosenFile)
{
    CTestProject test;
    const std::string folder = test.Folder.File("ships");
    std::filesystem::create_directory(folder);
    test.Recorder.Files = {test.Folder.Write("ships/ship.od7", TextOf("x"))};
    test.File.OpenBoth();
    EXPECT_EQ(test.Session.WorkDir, folder);
}

TEST(CInputFile, OpenPathReadsWithoutADialog)
{
    CFilledProject test;
    const std::string path = test.Folder.Write("ship.od7", TextOf("direct"));
    EXPECT_EQ(test.File.OpenPath(path), EOpened::Whole);
    EXPECT_TRUE(test.Recorder.Requests.empty());
    EXPECT_EQ(test.Project.InputFilePath, path);
    EXPECT_EQ(test.Project.ActiveEnvironmentFile, path);
    EXPECT_EQ(test.Session.RecentFiles.Paths()[0], path);
}

// --- halves

TEST(CInputFile, OpenGeometryKeepsTheEnvironmentAndTheTitle)
{
    CFilledProject test;
    const std::string path = test.Folder.Write("ship.od7", TextOf("other"));
    test.Recorder.Files = {path};
    EXPECT_EQ(test.File.OpenGeometry(), EOpened::Whole);
    const CProjectData& p = test.Project;
    EXPECT_EQ(p.ProjectTitle, "before");
    EXPECT_EQ(p.WAVESTEEP.Value(), 0.05F);
    EXPECT_EQ(p.SpectrumFile, "sea.txt");
    EXPECT_EQ(p.SHIPLEN.Value(), 120);
    EXPECT_EQ(p.KG.Value(), -1);
    EXPECT_EQ(p.INSYS.Value(), 0);
    EXPECT_EQ(p.NSPEED.Value(), -1);
    EXPECT_EQ(p.ActiveGeometryFile, path);
    EXPECT_EQ(p.ActiveEnvironmentFile, "/old/environment.od7");
}

TEST(CInputFile, OpenGeometryOfThePreviousGenerationLeavesTheClearedRudderAsItIs)
{
    CTestProject test;
    test.Recorder.Files = {test.Folder.Write("ship.od7", TextOf("x", "od7"))};
    EXPECT_EQ(test.File.OpenGeometry(), EOpened::Whole);
    EXPECT_EQ(test.Project.RudderDihedral, 0);
    EXPECT_THAT(test.Project.RudderLateralGains, ElementsAre(-1, -1, -1));
    EXPECT_THAT(test.Project.FinYawGains, ElementsAre(-1, -1, -1));
}

TEST(CInputFile, TheHalfIsClearedEvenIfItsFileCannotBeOpened)
{
    CFilledProject test;
    test.Recorder.Files = {test.Folder.File("gone.od7")};
    test.Project.ParticularsComplete = 1;
    EXPECT_EQ(test.File.OpenGeometry(), EOpened::NotOpened);
    EXPECT_EQ(test.Project.ParticularsComplete, 0);
    EXPECT_EQ(test.Project.KG.Value(), -1);
    EXPECT_EQ(test.Project.RudderGainFile, "");
    EXPECT_EQ(test.Project.ActiveGeometryFile, "");
    EXPECT_EQ(test.Project.WAVESTEEP.Value(), 0.05F);
    EXPECT_EQ(test.Project.InputFilePath, test.Folder.File("gone.od7"));
}

TEST(CInputFile, OpenEnvironmentRefusesTheCurrentGenerationAfterClearingItsHalf)
{
    CFilledProject test;
    test.Recorder.Files = {test.Folder.Write("sea.od7", TextOf("sea"))};
    EXPECT_EQ(test.File.OpenEnvironment(), EOpened::NotRecognised);
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kUnreadable));
    EXPECT_EQ(test.Project.WAVESTEEP.Value(), -1);
    EXPECT_EQ(test.Project.SpectrumFile, "");
    EXPECT_EQ(test.Project.ActiveEnvironmentFile, "");
    EXPECT_EQ(test.Project.KG.Value(), 4);
    EXPECT_EQ(test.Project.InputFilePath, "");
    EXPECT_EQ(test.Project.ProjectTitle, "before");
}

TEST(CInputFile, OpenEnvironmentTakesThePreviousGenerationWithItsTitle)
{
    CFilledProject test;
    const std::string path = test.Folder.Write("sea.od7", TextOf("sea", "od7"));
    test.Session.InputFileTime = 5;
    test.Recorder.Files = {path};
    EXPECT_EQ(test.File.OpenEnvironment(), EOpened::Whole);
    EXPECT_EQ(test.Project.ProjectTitle, "sea");
    EXPECT_EQ(test.Project.NSPEED.Value(), 2);
    EXPECT_EQ(test.Project.KG.Value(), 4);
    EXPECT_EQ(test.Project.ActiveEnvironmentFile, path);
    EXPECT_EQ(test.Project.ActiveGeometryFile, "/old/geometry.od7");
    EXPECT_EQ(test.Session.InputFileTime, 5);
}

TEST(CInputFile, OpenEnvironmentWithoutAGeometryFileSetsTheFileTimeToNow)
{
    CTestProject test;
    test.Session.InputFileTime = 5;
    const std::string path = test.Folder.Write("sea.od7", TextOf("sea", "od7"));
    struct utimbuf times = {1000000000, 1000000000};
    ::utime(path.c_str(), &times);
    test.Recorder.Files = {path};
    const std::time_t before = std::time(nullptr);
    test.File.OpenEnvironment();
    EXPECT_GE(test.Session.InputFileTime, before);
}

// --- resets

TEST(CInputFile, ANewProjectForgetsFileAndTitleButNotResultsAndOptions)
{
    CFilledProject test;
    CProjectData& p = test.Project;
    p.InputFilePath = "/old/ship.od7";
    p.InputFileName = "ship.od7";
    p.HullComplete = 1;
    p.ResultsFilePath = "/results.tv7";
    p.EngineRunning = 1;
    p.ChkSegLenInter = 1;
    test.Session.Modified = 1;
    test.Session.InputFileTime = 5;
    test.File.NewProject();
    EXPECT_EQ(p.ProjectTitle, "");
    EXPECT_EQ(p.InputFilePath, "noname");
    EXPECT_EQ(p.InputFileName, "");
    EXPECT_EQ(p.ActiveGeometryFile, "");
    EXPECT_EQ(p.ActiveEnvironmentFile, "");
    EXPECT_EQ(p.SpectrumFile, "");
    EXPECT_EQ(p.HullComplete, 0);
    EXPECT_EQ(p.KG.Value(), -1);
    EXPECT_EQ(p.ResultsFilePath, "/results.tv7");
    EXPECT_EQ(p.EngineRunning, 1);
    EXPECT_EQ(p.ChkSegLenInter, 1);
    EXPECT_EQ(test.Session.Modified, 0);
    EXPECT_GT(test.Session.InputFileTime, 5);
}

TEST(CInputFile, AResetOfOneHalfRenewsTheFileTimeOnlyWithoutAFileOfTheOther)
{
    CTestProject test;
    test.Session.InputFileTime = 5;
    test.Project.ActiveEnvironmentFile = "/sea.od7";
    test.File.ResetGeometry();
    EXPECT_EQ(test.Session.InputFileTime, 5);
    test.File.ResetEnvironment();
    EXPECT_GT(test.Session.InputFileTime, 5);
}

// --- details of the commands

TEST(CInputFile, HalvesOfAFileThatIsNotRecognisedForgetThePath)
{
    for (const char* magic : {"O6", "od8"})
    {
        CFilledProject test;
        const std::string path = test.Folder.Write("ship.od7", TextOf("new", magic));
        test.Recorder.Files = {path, path};
        EXPECT_EQ(test.File.OpenGeometry(), EOpened::NotRecognised);
        EXPECT_EQ(test.Project.InputFilePath, "");
        EXPECT_EQ(test.File.OpenEnvironment(), EOpened::NotRecognised);
        EXPECT_EQ(test.Project.InputFilePath, "");
        EXPECT_THAT(test.Recorder.Messages, ElementsAre(kUnreadable, kUnreadable));
    }
}

TEST(CInputFile, OpeningAHalfGoesToTheRecentFiles)
{
    CTestProject test;
    const std::string geometry = test.Folder.Write("ship.od7", TextOf("x", "od7"));
    const std::string environment = test.Folder.Write("sea.od7", TextOf("x", "od7"));
    test.Recorder.Files = {geometry, environment};
    test.File.OpenGeometry();
    test.File.OpenEnvironment();
    EXPECT_EQ(test.Session.RecentFiles.Paths()[0], environment);
    EXPECT_EQ(test.Session.RecentFiles.Paths()[1], geometry);
}

TEST(CInputFile, OpenGeometryTakesTheFilesTime)
{
    CTestProject test;
    const std::string path = test.Folder.Write("ship.od7", TextOf("x"));
    struct utimbuf times = {1000000000, 1000000000};
    ::utime(path.c_str(), &times);
    test.Recorder.Files = {path};
    test.File.OpenGeometry();
    EXPECT_EQ(test.Session.InputFileTime, 1000000000);
}

TEST(CInputFile, OpeningWholeClearsTheModifiedFlag)
{
    CTestProject test;
    test.Session.Modified = 1;
    test.File.OpenPath(test.Folder.Write("ship.od7", TextOf("x")));
    EXPECT_EQ(test.Session.Modified, 0);
}

TEST(CInputFile, ACancelledDialogStillSetsTheWorkingFolder)
{
    CTestProject test;
    test.Session.WorkDir = test.Folder.File("gone");
    std::filesystem::current_path(test.Folder.Path());
    EXPECT_EQ(test.File.OpenBoth(), EOpened::Cancelled);
    EXPECT_EQ(test.Session.WorkDir, test.Folder.Path());
}

TEST(CInputFile, DialogsBeginInTheWorkingFolder)
{
    CTestProject test;
    std::filesystem::current_path("/");
    test.File.SaveInputAs();
    EXPECT_EQ(std::filesystem::current_path(), test.Folder.Path());
}

TEST(CInputFile, ANewProjectRepaintsTheFrontPage)
{
    CTestProject test;
    int repaints = 0;
    test.Session.RepaintView = [&repaints] { ++repaints; };
    test.File.NewProject();
    EXPECT_EQ(repaints, 1);
}
