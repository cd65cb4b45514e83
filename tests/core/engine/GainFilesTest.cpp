#include "core/engine/GainFiles.h"

#include "tests/core/engine/CEngineProject.h"

#include <filesystem>

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

namespace
{
struct CGainProject : CEngineProject
{
    CGainProject()
    {
        CProjectData& p = Project;
        p.AppendedHull = p.IncludeRudder = 1;
        p.FINTANKSTAB.Set(1);
    }
    void UseRudder(const std::string& path)
    {
        Project.RudderGainFileUsed = 1;
        Project.RudderGainFile = path;
    }
    void UseFins(const std::string& path)
    {
        Project.FinGainFileUsed = 1;
        Project.FinGainFile = path;
    }
    bool Exist() { return GainFilesExist(Project, Session.BaseDir, Recorder); }
    std::string Missing(const std::string& path) const
    {
        return "Select a file: " + path +
               " does not exist.  Please make sure the file is created prior to calculations.";
    }
};
} // namespace

TEST(GainFiles, ARelativePathBeginsInTheEnginesFolder)
{
    EXPECT_EQ(GainFilePath("gains.txt", "/base"), "/base/gains.txt");
    EXPECT_EQ(GainFilePath("/home/gains.txt", "/base"), "/home/gains.txt");
    EXPECT_EQ(GainFilePath("sub/my gains.txt", "/base"), "/base/sub/my gains.txt");
    EXPECT_EQ(GainFilePath("C:\\gains.txt", "/base"), "C:\\gains.txt");
}

TEST(GainFiles, FilesThatAreNotUsedAreNotAskedFor)
{
    CGainProject project;
    project.Project.RudderGainFile = project.Project.FinGainFile = "none.txt";
    EXPECT_TRUE(project.Exist());
    project.Project.RudderGainFileUsed = 2;
    EXPECT_TRUE(project.Exist());
    EXPECT_THAT(project.Recorder.Messages, IsEmpty());
}

TEST(GainFiles, FilesThatAreThereAreNotMentioned)
{
    CGainProject project;
    project.Folder.Write("r.txt", "r");
    project.UseRudder("r.txt");
    project.UseFins(project.Folder.Write("f.txt", "f"));
    EXPECT_TRUE(project.Exist());
    EXPECT_THAT(project.Recorder.Messages, IsEmpty());
}

TEST(GainFiles, WithBothMissingTheUserHearsOfTheRudderOnly)
{
    CGainProject project;
    project.UseRudder("r.txt");
    project.UseFins("f.txt");
    EXPECT_FALSE(project.Exist());
    EXPECT_THAT(project.Recorder.Messages, ElementsAre(project.Missing(project.Folder.File("r.txt"))));
    EXPECT_THAT(project.Recorder.Icons, ElementsAre(EIcon::Stop));
    EXPECT_EQ(project.Recorder.Beeps, 0);
}

TEST(GainFiles, AMissingFinFileIsToldByItsOwnPath)
{
    CGainProject project;
    project.UseFins("/nowhere/f.txt");
    EXPECT_FALSE(project.Exist());
    EXPECT_THAT(project.Recorder.Messages, ElementsAre(project.Missing("/nowhere/f.txt")));
}

TEST(GainFiles, AFolderIsNoGainFile)
{
    CGainProject project;
    project.UseRudder("");
    EXPECT_FALSE(project.Exist());
    EXPECT_THAT(project.Recorder.Messages, ElementsAre(project.Missing(project.Folder.File(""))));
}

TEST(GainFiles, FilesInUseAreCopiedForTheEngine)
{
    CGainProject project;
    project.Folder.Write("r.txt", "rudder");
    project.Folder.Write("f.txt", "fins");
    project.Folder.Write("RudderGain.inp", "an older and longer copy");
    project.UseRudder("r.txt");
    project.UseFins("f.txt");
    EXPECT_THAT(project.LinesBehind("0 0 0", 3)[1], "1 ");
    EXPECT_EQ(project.LineBehind("FIN"), "1 ");
    EXPECT_EQ(FileContent(project.Folder.File("RudderGain.inp")), "rudder");
    EXPECT_EQ(FileContent(project.Folder.File("FinGain.inp")), "fins");
}

TEST(GainFiles, AFileThatIsNotUsedIsNotCopied)
{
    CGainProject project;
    project.Folder.Write("r.txt", "rudder");
    project.Project.RudderGainFile = "r.txt";
    EXPECT_THAT(project.LinesBehind("0 0 0", 3)[1], "0 ");
    EXPECT_EQ(project.LineBehind("FIN"), "0 ");
    EXPECT_FALSE(fs::exists(project.Folder.File("RudderGain.inp")));
}

TEST(GainFiles, ARudderThatIsNotIncludedCopiesNothing)
{
    CGainProject project;
    project.Folder.Write("r.txt", "rudder");
    project.UseRudder("r.txt");
    project.Project.IncludeRudder = 0;
    EXPECT_TRUE(project.Write());
    EXPECT_FALSE(fs::exists(project.Folder.File("RudderGain.inp")));
}

TEST(GainFiles, AReadOnlyCopyIsReplaced)
{
    CGainProject project;
    project.Folder.Write("r.txt", "new");
    fs::permissions(project.Folder.File("r.txt"), fs::perms::owner_read);
    fs::permissions(project.Folder.Write("RudderGain.inp", "old"), fs::perms::owner_read);
    project.UseRudder("r.txt");
    EXPECT_TRUE(project.Write());
    EXPECT_EQ(FileContent(project.Folder.File("RudderGain.inp")), "new");
}

TEST(GainFiles, TheUsersFileMayBeTheEnginesFileItself)
{
    CGainProject project;
    project.UseRudder(project.Folder.Write("RudderGain.inp", "mine"));
    EXPECT_THAT(project.LinesBehind("0 0 0", 3)[1], "1 ");
    EXPECT_EQ(FileContent(project.Folder.File("RudderGain.inp")), "mine");
    project.UseRudder("RudderGain.inp");
    EXPECT_TRUE(project.Write());
    EXPECT_EQ(FileContent(project.Folder.File("RudderGain.inp")), "mine");
}

TEST(GainFiles, AMissingRudderFileEndsTheFileBehindTheRudderWithoutAWord)
{
    CGainProject project;
    project.UseRudder("r.txt");
    project.Project.XSTRUD.Set(19);
    EXPECT_FALSE(project.Write());
    EXPECT_EQ(project.LastLine(), "19.00 -1.000 -1.000 -1.000 -1.000 -1.000 0.000 -1 -90.000");
    EXPECT_THAT(project.Recorder.Messages, IsEmpty());
}

TEST(GainFiles, AMissingFinFileEndsTheFileBehindTheStabilizerWithoutAWord)
{
    CGainProject project;
    project.UseFins("f.txt");
    project.Project.NFINPAIR.Set(1);
    EXPECT_FALSE(project.Write());
    EXPECT_EQ(project.LastLine(), "FIN");
    EXPECT_THAT(project.Recorder.Messages, IsEmpty());
}

TEST(GainFiles, ACopyThatCanNotBeMadeIsTold)
{
    CGainProject project;
    project.Folder.Write("r.txt", "rudder");
    fs::create_directories(project.Folder.File("RudderGain.inp") + "/full");
    project.UseRudder("r.txt");
    EXPECT_FALSE(project.Write());
    EXPECT_THAT(project.Recorder.Messages, ElementsAre("Error Saving File: The file could not be saved."));
    EXPECT_EQ(project.Recorder.Beeps, 1);
}

TEST(GainFiles, OnlyAOneUsesTheFinsFile)
{
    CGainProject project;
    project.UseFins(project.Folder.Write("gains.txt", "gains"));
    project.Project.FinGainFileUsed = 2;
    project.Write();
    EXPECT_FALSE(fs::exists(project.Folder.File("FinGain.inp")));
}

TEST(GainFiles, ACopyNeverGoesThroughALinkIntoAnotherFile)
{
    CGainProject project;
    project.UseRudder(project.Folder.Write("gains.txt", "gains"));
    fs::create_symlink(project.Folder.Write("other.txt", "other"), project.Folder.File("RudderGain.inp"));
    project.Write();
    EXPECT_EQ(FileContent(project.Folder.File("RudderGain.inp")), "gains");
    EXPECT_EQ(FileContent(project.Folder.File("other.txt")), "other");
}
