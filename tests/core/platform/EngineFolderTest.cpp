#include "core/platform/EngineFolder.h"

#include "core/platform/Files.h"
#include "tests/support/CTestFolder.h"

#include <chrono>
#include <csignal>
#include <filesystem>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

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

TEST(EngineFolder, OfWhatTheEngineLeftTheLastWrittenSpellingIsTheFile)
{
    const CTestFolder folder;
    const auto now = fs::file_time_type::clock::now();
    fs::last_write_time(folder.Write("ondara7.out", "old"), now - std::chrono::hours(1));
    fs::last_write_time(folder.Write("Ondara7.out", "new"), now);
    fs::last_write_time(folder.Write("ONDARA7.OUT", "older"), now - std::chrono::hours(2));
    EXPECT_EQ(TakeEngineFile(folder.Path(), "ondara7.out"), folder.File("ondara7.out"));
    EXPECT_EQ(FileContent(folder.File("ondara7.out")), "new");
    EXPECT_FALSE(FileExists(folder.File("Ondara7.out")));
    EXPECT_FALSE(FileExists(folder.File("ONDARA7.OUT")));
}

TEST(EngineFolder, OfSpellingsOfOneTimeTheOwnIsTheFile)
{
    const CTestFolder folder;
    const auto now = fs::file_time_type::clock::now();
    fs::last_write_time(folder.Write("ondara7.out", "own"), now);
    fs::last_write_time(folder.Write("Ondara7.out", "other"), now);
    TakeEngineFile(folder.Path(), "ondara7.out");
    EXPECT_EQ(FileContent(folder.File("ondara7.out")), "own");
}

TEST(EngineFolder, AFileThatTheEngineDidNotLeaveIsNotMade)
{
    const CTestFolder folder;
    EXPECT_EQ(TakeEngineFile(folder.Path(), "ondara7.out"), folder.File("ondara7.out"));
    EXPECT_TRUE(fs::is_empty(folder.Path()));
    folder.Write("ONDARA7.OUT", "left");
    TakeEngineFile(folder.Path(), "ondara7.out");
    EXPECT_EQ(FileContent(folder.File("ondara7.out")), "left");
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

TEST(EngineFolder, ACopyKeepsWhoMayReadTheOlderOne)
{
    const CTestFolder folder;
    const std::string source = folder.Write("source", "new");
    const std::string target = folder.Write("target", "old");
    fs::permissions(source, fs::perms(0644));
    fs::permissions(target, fs::perms(0600));
    EXPECT_TRUE(CopyFileOver(source, target));
    EXPECT_EQ(FileContent(target), "new");
    EXPECT_EQ(fs::status(target).permissions(), fs::perms(0600));
    EXPECT_TRUE(CopyFileOver(source, folder.File("first")));
    EXPECT_EQ(fs::status(folder.File("first")).permissions(), fs::perms(0644));
}

TEST(EngineFolder, ACopyNeverTakesThePlaceOfADeviceOrAPipe)
{
    const CTestFolder folder;
    const std::string source = folder.Write("source", "new");
    ASSERT_EQ(::mkfifo(folder.File("pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/null", folder.File("device"));
    for (const char* name : {"pipe", "device"})
    {
        EXPECT_FALSE(CopyFileOver(source, folder.File(name)));
    }
    EXPECT_TRUE(fs::is_fifo(folder.File("pipe")));
    EXPECT_TRUE(fs::is_symlink(folder.File("device")));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 3);
}

TEST(EngineFolder, ACopyReplacesALinkAndLeavesTheFileBehindIt)
{
    const CTestFolder folder;
    const std::string source = folder.Write("source", "new");
    folder.Write("other", "old");
    fs::create_symlink("other", folder.File("link"));
    EXPECT_TRUE(CopyFileOver(source, folder.File("link")));
    EXPECT_FALSE(fs::is_symlink(folder.File("link")));
    EXPECT_EQ(FileContent(folder.File("link")), "new");
    EXPECT_EQ(FileContent(folder.File("other")), "old");
}

TEST(EngineFolder, OfACopyThatIsCutShortNothingIsLeft)
{
    const CTestFolder folder;
    const std::string source = folder.Write("source", std::string(100000, 'x'));
    const std::string target = folder.Write("target", "old");
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const struct rlimit small = {10000, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_FALSE(CopyFileOver(source, target));
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, before);
    EXPECT_EQ(FileContent(target), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 2);
}

TEST(EngineFolder, AFileOfTheEngineIsKnownInAnyCaseAndThroughLinks)
{
    const CTestFolder folder;
    fs::create_directory(folder.File("engine"));
    fs::create_directory_symlink("engine", folder.File("also"));
    fs::create_symlink("engine/ondara7.bin", folder.File("kept.tv7"));
    const std::string engine = folder.File("engine");
    for (const char* name : {"engine/ondara7.bin", "engine/ONDARA7.bin", "also/Ondara7.bin", "kept.tv7"})
    {
        EXPECT_TRUE(IsEngineFile(folder.File(name), engine, "ondara7.bin")) << name;
    }
    for (const char* name : {"engine/ondara7.bin2", "ondara7.bin", "engine/other"})
    {
        EXPECT_FALSE(IsEngineFile(folder.File(name), engine, "ondara7.bin")) << name;
    }
}
