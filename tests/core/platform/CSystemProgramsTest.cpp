#include "core/platform/CSystemPrograms.h"

#include "core/platform/Files.h"
#include "tests/support/CTestFolder.h"
#include "tests/support/CVariable.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::ElementsAre;

namespace
{
void WriteProgram(const CTestFolder& folder, const std::string& name, const std::string& script)
{
    fs::permissions(folder.Write(name, "#!/bin/sh\n" + script + "\n"), fs::perms::owner_all);
}

std::string WaitFor(const std::string& path)
{
    for (int k = 0; k < 2000 && !FileExists(path); ++k)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return FileContent(path);
}

void WaitForEnd(CPrograms& programs)
{
    for (int k = 0; k < 2000 && programs.IsRunning(); ++k)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    EXPECT_FALSE(programs.IsRunning());
}

/// A program that tells which one it is.
std::string Telling(const std::string& name)
{
    return "echo " + name + " >new; mv new said";
}
} // namespace

TEST(BundledPrograms, AreLookedForInTheEnginesFolderThenWithTheOthers)
{
    EXPECT_THAT(BundledProgramPlaces("OE7.exe", "/engine", "/programs"),
                ElementsAre("/engine/OE7.exe", "/engine/OE7", "/programs/OE7.exe", "/programs/OE7"));
    EXPECT_THAT(BundledProgramPlaces("viewer", "/engine", "/programs"),
                ElementsAre("/engine/viewer", "/programs/viewer"));
}

TEST(BundledPrograms, OneFolderIsNamedOnce)
{
    EXPECT_THAT(BundledProgramPlaces("OE7.exe", "/engine/", "/engine"),
                ElementsAre("/engine/OE7.exe", "/engine/OE7"));
}

TEST(BundledPrograms, TheirFolderIsNamedByTheEnvironmentElseThatOfTheRunningProgram)
{
    const CTestFolder folder;
    fs::current_path(folder.Path());
    {
        const CVariable variable("ONDARA_PROGRAMS", "programs");
        EXPECT_EQ(BundledProgramFolder(), folder.File("programs"));
    }
    const CVariable variable("ONDARA_PROGRAMS", "");
    EXPECT_EQ(BundledProgramFolder(), fs::canonical("/proc/self/exe").parent_path().string());
}

TEST(BundledPrograms, OnlyAFileThatMayBeExecutedIsOne)
{
    const CTestFolder folder;
    folder.Write("OE7.exe", "text");
    fs::create_directory(folder.File("OE7"));
    const std::vector<std::string> places = {folder.File("none"), folder.File("OE7.exe"), folder.File("OE7"),
                                             "/bin/true"};
    EXPECT_EQ(FirstProgram(places), "/bin/true");
    EXPECT_EQ(FirstProgram({folder.File("OE7")}), std::nullopt);
}

TEST(BundledPrograms, TheSystemsAreFoundOnItsPath)
{
    const CTestFolder folder;
    WriteProgram(folder, "viewer", ":");
    folder.Write("text", "");
    const CVariable variable("PATH", "/nowhere::" + folder.Path() + ":/bin");
    EXPECT_EQ(FindSystemProgram("viewer"), folder.File("viewer"));
    EXPECT_EQ(FindSystemProgram("sleep"), "/bin/sleep");
    EXPECT_EQ(FindSystemProgram("text"), std::nullopt);
}

TEST(SystemPrograms, TheNameAsItIsComesBeforeTheNameWithoutExe)
{
    const CTestFolder engine;
    fs::current_path(engine.Path());
    CSystemPrograms programs;
    WriteProgram(engine, "OE7", Telling("OE7"));
    EXPECT_EQ(programs.StartProgram("OE7.exe", engine.Path()), EStart::Started);
    WaitForEnd(programs);
    EXPECT_EQ(FileContent(engine.File("said")), "OE7\n");
    WriteProgram(engine, "OE7.exe", Telling("OE7.exe"));
    EXPECT_EQ(programs.StartProgram("OE7.exe", engine.Path()), EStart::Started);
    WaitForEnd(programs);
    EXPECT_EQ(FileContent(engine.File("said")), "OE7.exe\n");
}

TEST(SystemPrograms, ABundledProgramWorksInTheCurrentFolderNotInItsOwn)
{
    const CTestFolder engine;
    const CTestFolder bundled;
    WriteProgram(bundled, "OE7", Telling("bundled"));
    const CVariable variable("ONDARA_PROGRAMS", bundled.Path());
    CSystemPrograms programs;
    fs::current_path(engine.Path());
    EXPECT_EQ(programs.StartProgram("OE7.exe", engine.Path()), EStart::Started);
    WaitForEnd(programs);
    EXPECT_EQ(FileContent(engine.File("said")), "bundled\n");
}

TEST(SystemPrograms, AMissingProgramIsNotFoundAndNothingRuns)
{
    const CTestFolder engine;
    const CVariable variable("ONDARA_PROGRAMS", engine.Path());
    CSystemPrograms programs;
    EXPECT_EQ(programs.StartProgram("OE7.exe", engine.Path()), EStart::NotFound);
    EXPECT_EQ(programs.ShowProgram("Tervis200.exe", engine.Path(), {}), EStart::NotFound);
    EXPECT_FALSE(programs.IsRunning());
}

TEST(SystemPrograms, AFileThatTheSystemDoesNotStartIsRefused)
{
    const CTestFolder engine;
    fs::permissions(engine.Write("OE7.exe", "MZ"), fs::perms::owner_all);
    CSystemPrograms programs;
    EXPECT_EQ(programs.StartProgram("OE7.exe", engine.Path()), EStart::Refused);
    EXPECT_FALSE(programs.IsRunning());
}

TEST(SystemPrograms, RunAsLongAsOneOfThemDoes)
{
    const CTestFolder engine;
    fs::current_path(engine.Path());
    CSystemPrograms programs;
    WriteProgram(engine, "OE7", "exec sleep 100");
    EXPECT_EQ(programs.StartProgram("OE7.exe", engine.Path()), EStart::Started);
    WriteProgram(engine, "OE7.exe", Telling("second"));
    EXPECT_EQ(programs.StartProgram("OE7.exe", engine.Path()), EStart::Started);
    WaitFor(engine.File("said"));
    EXPECT_TRUE(programs.IsRunning());
    programs.EndPrograms();
    EXPECT_FALSE(programs.IsRunning());
}

TEST(SystemPrograms, AShownProgramGetsItsArgumentsAndNobodyWaitsForIt)
{
    const CTestFolder engine;
    fs::current_path(engine.Path());
    WriteProgram(engine, "Tervis200", "echo \"$1\" >new; mv new said");
    CSystemPrograms programs;
    EXPECT_EQ(programs.ShowProgram("Tervis200.exe", engine.Path(), {"/a folder/x.tv7"}), EStart::Started);
    EXPECT_FALSE(programs.IsRunning());
    EXPECT_EQ(WaitFor(engine.File("said")), "/a folder/x.tv7\n");
}

TEST(SystemPrograms, DocumentsAndTextsAreOpenedByTheDesktopsOpener)
{
    const CTestFolder folder;
    fs::current_path(folder.Path());
    WriteProgram(folder, "xdg-open", "echo \"$1\" >\"$1.new\"; mv \"$1.new\" \"$1.said\"");
    const CVariable variable("PATH", folder.Path() + ":/usr/bin:/bin");
    CSystemPrograms programs;
    EXPECT_EQ(programs.ShellOpen(folder.File("page")), EStart::Started);
    EXPECT_EQ(programs.ShowText(folder.File("log")), EStart::Started);
    EXPECT_EQ(WaitFor(folder.File("page.said")), folder.File("page") + "\n");
    EXPECT_EQ(WaitFor(folder.File("log.said")), folder.File("log") + "\n");
}

TEST(SystemPrograms, WithoutAnOpenerNothingIsFound)
{
    const CVariable variable("PATH", "/nowhere");
    CSystemPrograms programs;
    EXPECT_EQ(programs.ShellOpen("/page"), EStart::NotFound);
    EXPECT_EQ(programs.ShowText("/log"), EStart::NotFound);
}
