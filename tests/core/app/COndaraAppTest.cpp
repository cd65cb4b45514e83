// The application object: folders, first start, settings, the second instance.
#include "core/app/COndaraApp.h"
#include "core/platform/CInstanceLock.h"
#include "tests/support/CRecorder.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using testing::ElementsAre;

namespace
{
struct CTestApp
{
    CTestApp() { App.Start(Folder.Path()); }

    CTestFolder Folder;
    CRecorder Recorder;
    COndaraApp App{Recorder.Platform};
};
} // namespace

TEST(COndaraApp, TheEnginesFolderIsThatOfTheStart)
{
    CTestApp test;
    EXPECT_EQ(test.App.BaseDir, test.Folder.Path());
    EXPECT_EQ(test.App.WorkDir, test.Folder.Path());
    std::filesystem::current_path(test.Folder.Path());
    COndaraApp here(test.Recorder.Platform);
    here.Start(".");
    EXPECT_EQ(here.BaseDir, test.Folder.Path());
    here.Start(test.Folder.Path() + "/");
    EXPECT_EQ(here.WorkDir, test.Folder.Path());
    here.Start("/");
    EXPECT_EQ(here.BaseDir, "/");
}

TEST(COndaraApp, AStartFillsTheProjectWithItsDefaults)
{
    CTestApp test;
    EXPECT_EQ(test.App.Project.SHIPLEN.name, "SHIPLEN");
    EXPECT_EQ(test.App.Project.SLAMHOUR.Value(), 20);
    EXPECT_EQ(test.App.Project.InputFilePath, "noname");
    EXPECT_EQ(test.App.Modified, 0);
    EXPECT_GT(test.App.InputFileTime, 0);
}

TEST(COndaraApp, AnEmptyRecentListGetsTheTwoSamples)
{
    CTestApp test;
    test.App.OfferSamples();
    EXPECT_THAT(test.App.RecentFiles.Paths(), ElementsAre(test.Folder.File("Data/Sample01.od7"),
                                                          test.Folder.File("Data/Sample02.od7"), "", ""));
}

TEST(COndaraApp, ARecentFileThatCanNotBeReadWholeLeavesTheList)
{
    CTestApp test;
    const std::string good = test.Folder.Write("good.od7", FileContent(SourceFile("samples/Sample01.od7")));
    EXPECT_EQ(test.App.OpenRecentFile(good), EOpened::Whole);
    test.App.RecentFiles.Add(test.Folder.File("gone.od7"));
    EXPECT_EQ(test.App.OpenRecentFile(test.Folder.File("gone.od7")), EOpened::NotOpened);
    EXPECT_THAT(test.App.RecentFiles.Paths(), ElementsAre(good, "", "", ""));
}

TEST(COndaraApp, ARecentListWithOneNameKeepsItAndGetsNone)
{
    CTestApp test;
    test.App.RecentFiles.Add("/mine.od7");
    test.App.OfferSamples();
    EXPECT_THAT(test.App.RecentFiles.Paths(), ElementsAre("/mine.od7", "", "", ""));
}

TEST(COndaraApp, OnAFirstStartTheChecksAreOnAndStoredAsOff)
{
    CTestApp test;
    test.App.LoadSettings();
    EXPECT_EQ(test.App.Project.ChkSegLenInter, 1);
    EXPECT_EQ(test.App.Project.ChkSegLenPreRun, 1);
    EXPECT_EQ(test.App.Project.ChkNegZInter, 1);
    EXPECT_EQ(test.App.Project.ChkNegZPreRun, 1);
    for (const char* entry : {"ChkSegLenInter", "ChkSegLenPreRun", "ChkNegZInter", "ChkNegZPreRun"})
    {
        EXPECT_EQ(test.Recorder.Find("Settings", entry), "0") << entry;
    }
    test.App.LoadSettings();
    EXPECT_EQ(test.App.Project.ChkSegLenInter, 0);
}

TEST(COndaraApp, ASettingOfFiveIsOnAndWrittenBackAsZero)
{
    CTestApp test;
    test.Recorder.Entries[{"Settings", "ChkNegZInter"}] = "5";
    test.App.LoadSettings();
    EXPECT_EQ(test.App.Project.ChkNegZInter, 1);
    EXPECT_EQ(test.Recorder.Find("Settings", "ChkNegZInter"), "0");
}

TEST(COndaraApp, SettingsOfZeroAndOneAreNotRewritten)
{
    CTestApp test;
    for (const char* entry : {"ChkSegLenInter", "ChkSegLenPreRun", "ChkNegZInter", "ChkNegZPreRun"})
    {
        test.Recorder.Entries[{"Settings", entry}] = "0";
    }
    test.Recorder.Entries[{"Settings", "ChkNegZPreRun"}] = "1";
    test.App.LoadSettings();
    EXPECT_EQ(test.App.Project.ChkSegLenInter, 0);
    EXPECT_EQ(test.App.Project.ChkNegZPreRun, 1);
    EXPECT_EQ(test.Recorder.ProfileWrites, 0);
}

TEST(COndaraApp, TheScreenIsKeptAsText)
{
    CTestApp test;
    test.App.SetScreen(1920, 1080, 75);
    EXPECT_EQ(test.App.ScreenSize, "1920 x 1080");
    EXPECT_EQ(test.App.IconSpacing, 75);
}

TEST(COndaraApp, TheUsersFolderHasTheUsersName)
{
    CTestApp test;
    EXPECT_EQ(test.App.UserDir, "C:\\Documents and Settings\\" + UserName());
    EXPECT_FALSE(UserName().empty());
}
