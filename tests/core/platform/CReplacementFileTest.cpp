#include "core/platform/CReplacementFile.h"

#include "tests/support/CTestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

namespace
{
std::size_t FileCount(const std::string& folder)
{
    const std::filesystem::directory_iterator files(folder);
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}
} // namespace

TEST(CReplacementFile, TheOldFileStandsUntilTheNewOneIsFinished)
{
    const CTestFolder folder;
    const std::string path = folder.Write("report.html", "old");
    CReplacementFile file(path);
    EXPECT_TRUE(file.Append("new, "));
    EXPECT_TRUE(file.Append("in two parts"));
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_TRUE(file.Finish());
    EXPECT_EQ(FileContent(path), "new, in two parts");
}

TEST(CReplacementFile, AnUnfinishedFileGoesAndLeavesTheOldOne)
{
    const CTestFolder folder;
    const std::string path = folder.Write("report.html", "old");
    {
        CReplacementFile file(path);
        file.Append("half");
        EXPECT_EQ(FileCount(folder.Path()), 2U);
    }
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_EQ(FileCount(folder.Path()), 1U);
}

TEST(CReplacementFile, AFolderThatIsNotThereFailsAtTheFirstPart)
{
    const CTestFolder folder;
    CReplacementFile file(folder.File("none/report.html"));
    EXPECT_FALSE(file.Append("new"));
    EXPECT_FALSE(file.Finish());
}

TEST(CReplacementFile, ATargetThatIsAFolderStandsAndNothingIsLeftBesideIt)
{
    const CTestFolder folder;
    std::filesystem::create_directories(folder.File("report.html/inside"));
    {
        CReplacementFile file(folder.File("report.html"));
        EXPECT_TRUE(file.Append("new"));
        EXPECT_FALSE(file.FinishOnDisk());
    }
    EXPECT_EQ(FileCount(folder.Path()), 1U);
}
