// Saving the input: the name in hand, the dialog, and what the user is told of a save that fails.
#include "core/platform/Files.h"
#include "tests/gui/app/CFrameTest.h"
#include "tests/support/CFullDisk.h"

#include <filesystem>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr const char* kSaveError = "Error Saving File: The file could not be saved.";
}

TEST(SaveInput, OfANewProjectWritesNonameWithoutAsking)
{
    CFrameTest test;
    ChangeFolder(test.Folder.Path());
    test.App.Modified = 1;
    test.Give("File.SaveInput");
    EXPECT_TRUE(FileExists(test.Folder.File("noname.od7")));
    EXPECT_EQ(test.App.Project.InputFilePath, "noname.od7");
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, "noname.od7");
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, "noname.od7");
    EXPECT_THAT(test.Recorder.Requests, IsEmpty());
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_EQ(test.App.Modified, 1) << "a save doesn't clear it";
}

TEST(SaveInput, ForcesTheExtension)
{
    CFrameTest test;
    test.App.Project.InputFilePath = test.Folder.File("ship.od6");
    test.App.Project.InputFileName = "ship.od6";
    test.Give("File.SaveInput");
    EXPECT_EQ(test.App.Project.InputFilePath, test.Folder.File("ship.od7"));
    EXPECT_EQ(test.App.Project.InputFileName, "ship.od7");
    EXPECT_TRUE(FileExists(test.Folder.File("ship.od7")));
    EXPECT_FALSE(FileExists(test.Folder.File("ship.od6")));
}

TEST(SaveInput, LeavesTheRecentFilesAlone)
{
    CFrameTest test;
    const auto before = test.App.RecentFiles.Paths();
    test.App.Project.InputFilePath = test.Folder.File("ship");
    test.Give("File.SaveInput");
    EXPECT_EQ(test.App.RecentFiles.Paths(), before);
}

TEST(SaveInput, AsksWhereAFailedOpenHasLeftNoName)
{
    CFrameTest test;
    test.Recorder.Files = {test.Folder.Write("letter.txt", "Dear all,\n")};
    test.Give("File.OpenBoth");
    EXPECT_EQ(test.App.Project.InputFilePath, "");
    test.Recorder.Requests.clear();
    test.Recorder.Files.clear();
    test.App.Project.ActiveGeometryFile = "hull.od7";
    test.Give("File.SaveInput");
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_TRUE(test.Recorder.Requests[0].OverwritePrompt);
    EXPECT_EQ(test.App.Project.InputFilePath, "") << "after Cancel";
    EXPECT_EQ(test.App.Project.InputFileName, "");
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, "hull.od7");

    test.Recorder.Files = {test.Folder.File("ship")};
    test.Give("File.SaveInput");
    EXPECT_TRUE(FileExists(test.Folder.File("ship.od7")));
    EXPECT_EQ(test.App.Project.InputFilePath, test.Folder.File("ship.od7"));
    EXPECT_EQ(test.App.Project.InputFileName, "ship.od7");
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, "hull.od7") << "the active names stay";
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, "");
}

TEST(SaveInput, OfImportedOffsetsStandsBesideTheirFile)
{
    CFrameTest test;
    test.App.Project.InputFilePath = test.Folder.Write("offsets.csv", "1,2\n");
    test.Give("File.SaveInput");
    EXPECT_TRUE(FileExists(test.Folder.File("offsets.od7")));
    EXPECT_EQ(FileContent(test.Folder.File("offsets.csv")), "1,2\n");
}

TEST(SaveInputAs, GivesANameWithoutExtensionOne)
{
    CFrameTest test;
    test.Recorder.Files = {test.Folder.File("ship")};
    test.Give("File.SaveInputAs");
    ASSERT_EQ(test.Recorder.Requests.size(), 1U);
    EXPECT_EQ(test.Recorder.Requests[0].DefaultExtension, "*.od7");
    EXPECT_EQ(test.Recorder.Requests[0].InitialName, "noname");
    EXPECT_EQ(test.Recorder.Requests[0].Filter, "Ondara Files (*.od7)|*.od7|All Files (*.*)|*.*|");
    EXPECT_TRUE(test.Recorder.Requests[0].OverwritePrompt);
    EXPECT_TRUE(FileExists(test.Folder.File("ship.od7")));
    EXPECT_EQ(test.App.Project.InputFileName, "ship.od7");
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, test.Folder.File("ship.od7"));
    EXPECT_EQ(test.App.Project.ActiveEnvironmentFile, test.Folder.File("ship.od7"));
}

TEST(SaveInputAs, DoesNothingAfterCancel)
{
    CFrameTest test;
    test.Give("File.SaveInputAs");
    EXPECT_EQ(test.App.Project.InputFilePath, "noname");
    EXPECT_EQ(test.App.Project.ActiveGeometryFile, "");
    EXPECT_TRUE(std::filesystem::is_empty(test.Folder.Path()));
}

TEST(SaveInputAs, TellsOfAFileThatCanNotBeWritten)
{
    CFrameTest test;
    test.Recorder.Files = {test.Folder.File("nowhere/ship.od7")};
    test.Give("File.SaveInputAs");
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kSaveError));
    EXPECT_EQ(test.Recorder.Beeps, 1);
}

TEST(SaveInput, TellsOfADiskWithoutRoomAndWhereTheLastContentStands)
{
    CFrameTest test;
    test.OpenSample();
    const std::string path = test.App.Project.InputFilePath;
    const std::string before = FileContent(path);
    {
        const CFullDisk disk(100);
        test.Give("File.SaveInput");
    }
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("Error Saving File: " + path +
                                                    " is cut short, its disk has no room for all of it; last "
                                                    "content in " +
                                                    path + "~"));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Stop));
    EXPECT_EQ(FileContent(path + "~"), before);
}
