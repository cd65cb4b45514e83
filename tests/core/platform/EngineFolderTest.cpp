#include "core/platform/EngineFolder.h"

#include "core/platform/Files.h"
#include "tests/support/CTestFolder.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

TEST(EngineFolder, AFileNameThatNobodyHasIsFree)
{
    const CTestFolder folder;
    EXPECT_EQ(ClaimEngineFile(folder.Path(), "Ondara7.inp"), folder.File("Ondara7.inp"));
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(EngineFolder, AnotherSpellingTakesTheName)
{
    const CTestFolder folder;
    folder.Write("oNDARA7.Inp", "content");
    ClaimEngineFile(folder.Path(), "Ondara7.inp");
    EXPECT_EQ(FileContent(folder.File("Ondara7.inp")), "content");
    EXPECT_FALSE(FileExists(folder.File("oNDARA7.Inp")));
}

TEST(EngineFolder, BesideTheNameOtherSpellingsGo)
{
    const CTestFolder folder;
    folder.Write("Ondara7.inp", "this");
    fs::create_hard_link(folder.File("Ondara7.inp"), folder.File("ONDARA7.INP"));
    folder.Write("ondara7.inp", "other");
    ClaimEngineFile(folder.Path(), "Ondara7.inp");
    EXPECT_EQ(FileContent(folder.File("Ondara7.inp")), "this");
    EXPECT_FALSE(FileExists(folder.File("ONDARA7.INP")));
    EXPECT_FALSE(FileExists(folder.File("ondara7.inp")));
}

TEST(EngineFolder, FoldersAndOtherNamesStay)
{
    const CTestFolder folder;
    folder.Write("Ondara7.inp~", "kept");
    folder.Write("Ondara7", "kept");
    fs::create_directory(folder.File("ONDARA7.INP"));
    ClaimEngineFile(folder.Path(), "Ondara7.inp");
    EXPECT_TRUE(FileExists(folder.File("Ondara7.inp~")));
    EXPECT_TRUE(FileExists(folder.File("Ondara7")));
    EXPECT_TRUE(fs::is_directory(folder.File("ONDARA7.INP")));
}

TEST(EngineFolder, ACopyReplacesAnOlderOne)
{
    const CTestFolder folder;
    const std::string source = folder.Write("source", std::string("a\0b", 3));
    const std::string target = folder.Write("target", "older and longer");
    EXPECT_TRUE(CopyFileOver(source, target));
    EXPECT_EQ(FileContent(target), std::string("a\0b", 3));
    EXPECT_EQ(FileContent(source), std::string("a\0b", 3));
}

TEST(EngineFolder, ACopyReplacesOneThatMayNotBeWritten)
{
    const CTestFolder folder;
    const std::string source = folder.Write("source", "new");
    const std::string target = folder.Write("target", "old");
    fs::permissions(source, fs::perms::owner_read);
    fs::permissions(target, fs::perms::owner_read);
    EXPECT_TRUE(CopyFileOver(source, target));
    EXPECT_EQ(FileContent(target), "new");
    EXPECT_NE(fs::status(target).permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST(EngineFolder, AFileCopiedOverItselfStays)
{
    const CTestFolder folder;
    const std::string file = folder.Write("file", "content");
    fs::create_hard_link(file, folder.File("hard"));
    fs::create_symlink(file, folder.File("soft"));
    const std::string same = folder.Path() + "/./file";
    for (const std::string& other : {file, same, folder.File("hard"), folder.File("soft")})
    {
        EXPECT_TRUE(CopyFileOver(file, other));
        EXPECT_TRUE(CopyFileOver(other, file));
        EXPECT_EQ(FileContent(file), "content");
        EXPECT_EQ(FileContent(other), "content");
    }
    EXPECT_TRUE(fs::is_symlink(folder.File("soft")));
    EXPECT_EQ(fs::hard_link_count(file), 2U);
}

TEST(EngineFolder, ACopyThatCanNotBeMadeLeavesTheOlderOne)
{
    const CTestFolder folder;
    const std::string target = folder.Write("target", "old");
    EXPECT_FALSE(CopyFileOver(folder.File("none"), target));
    fs::create_directory(folder.File("folder"));
    EXPECT_FALSE(CopyFileOver(folder.File("folder"), target));
    EXPECT_EQ(FileContent(target), "old");
    EXPECT_FALSE(CopyFileOver(target, folder.File("no/where")));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 2);
}
