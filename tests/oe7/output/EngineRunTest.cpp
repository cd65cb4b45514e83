#include "oe7/output/EngineRun.h"

#include "oe7/output/CProgressLine.h"
#include "tests/oe7/support/CInputText.h"
#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace oe7
{
namespace
{
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using testing::UnorderedElementsAre;

/// The barge at one speed in one wave from ahead, on a coarse grid: soon calculated.
CInputText SmallInput()
{
    return CInputText()
        .Set(5, "0.5 0.6 0.1")
        .Set(7, "0.3 1.5 0.4")
        .Set(9, "1 0")
        .Set(10, "180")
        .Set(13, "1 8");
}

class EngineRun : public testing::Test
{
protected:
    int Run() { return RunEngine(Folder.Path(), {.Threads = 1, .Progress = {}}, Errors); }
    std::string Log() const { return FileContent(Folder.File("ondara7.log")); }
    std::vector<std::string> Files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(Folder.Path()))
        {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    CTestFolder Folder;
    std::ostringstream Errors;
};

TEST_F(EngineRun, LeavesResultsTablesAndLog)
{
    Folder.Write("Ondara7.inp", SmallInput().Text());
    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(Errors.str(), "");
    EXPECT_THAT(Log(), StartsWith("0 completed without problems\n"));
    EXPECT_THAT(Files(), UnorderedElementsAre("Ondara7.inp", "ondara7.bin", "ondara7.out", "ondara7.log",
                                              "Ondara7_DimHyCo.csv", "Ondara7_WaveForce.csv"));
    EXPECT_THAT(FileContent(Folder.File("ondara7.bin")), EndsWith("CBDW"));
    EXPECT_THAT(FileContent(Folder.File("ondara7.out")), HasSubstr("GENERAL HULL PARAMETERS"));
}

TEST_F(EngineRun, TellsWarningsInItsLog)
{
    Folder.Write("Ondara7.inp", SmallInput().Set(14, "100 4 0").Text());
    EXPECT_EQ(Run(), 0);
    EXPECT_THAT(Log(),
                StartsWith("1 completed with 1 warning\nNote: the pitch radius of gyration is not given"));
}

TEST_F(EngineRun, ReplacesTheBinaryFileThatTheInputNames)
{
    Folder.Write("Ondara7.inp", SmallInput().Set(3, "other.bin").Text());
    Folder.Write("other.bin", "old");
    EXPECT_EQ(Run(), 0);
    EXPECT_THAT(FileContent(Folder.File("other.bin")), StartsWith("OE7 1.0"));
}

TEST_F(EngineRun, ThatFailsTellsWhyAndLeavesNoBinaryFile)
{
    Folder.Write("Ondara7.inp", SmallInput().Set(3, "other.bin").Set(40, "5").Text());
    Folder.Write("other.bin", "old");
    Folder.Write("ondara7.bin", "old");
    EXPECT_EQ(Run(), 1);
    EXPECT_EQ(Errors.str(), "OE7: line 40: draft and trim are missing\n");
    EXPECT_THAT(Log(), StartsWith("-1 error: line 40: draft and trim are missing\n"));
    EXPECT_THAT(Files(), UnorderedElementsAre("Ondara7.inp", "ondara7.log"));
}

TEST_F(EngineRun, OfAShipThatCannotFloatIsToldInTheLog)
{
    Folder.Write("Ondara7.inp", SmallInput().Set(40, "-5 0").Text());
    EXPECT_EQ(Run(), 1);
    EXPECT_THAT(Log(), StartsWith("-1 error: "));
    EXPECT_THAT(Files(), UnorderedElementsAre("Ondara7.inp", "ondara7.log"));
}

TEST_F(EngineRun, WithoutInputTakesTheOldResultsAway)
{
    Folder.Write("ondara7.bin", "old");
    EXPECT_EQ(Run(), 1);
    EXPECT_THAT(Log(), StartsWith("-1 error: the file Ondara7.inp is not there\n"));
    EXPECT_THAT(Files(), UnorderedElementsAre("ondara7.log"));
}

TEST_F(EngineRun, NeverTouchesAFileElsewhere)
{
    const CTestFolder elsewhere;
    const std::string path = elsewhere.Write("precious", "content");
    Folder.Write("Ondara7.inp", SmallInput().Set(3, path).Text());
    EXPECT_EQ(Run(), 1);
    EXPECT_EQ(FileContent(path), "content");
}

TEST_F(EngineRun, ThatCannotWriteAFileFailsAndLeavesNoBinaryFile)
{
    Folder.Write("Ondara7.inp", SmallInput().Text());
    fs::create_directories(Folder.File("ondara7.out/full"));
    EXPECT_EQ(Run(), 1);
    EXPECT_EQ(Errors.str(), "OE7: the file ondara7.out can't be written\n");
    EXPECT_THAT(Log(), StartsWith("-1 error: the file ondara7.out can't be written\n"));
    EXPECT_THAT(Files(), UnorderedElementsAre("Ondara7.inp", "ondara7.log", "ondara7.out"));
}

TEST_F(EngineRun, ThatCannotWriteItsLogSaysSo)
{
    std::ostringstream errors;
    EXPECT_EQ(RunEngine(Folder.File("nowhere"), {}, errors), 1);
    EXPECT_THAT(errors.str(), StartsWith("OE7: the file ondara7.log can't be written\n"));
}

TEST_F(EngineRun, NeverWritesThroughALinkOrPipeBesideItsFiles)
{
    const CTestFolder elsewhere;
    const std::string precious = elsewhere.Write("precious", "content");
    Folder.Write("Ondara7.inp", SmallInput().Text());
    fs::create_symlink(precious, Folder.File("ondara7.log.part"));
    ASSERT_EQ(::mkfifo(Folder.File("ondara7.bin.part").c_str(), 0600), 0);
    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(FileContent(precious), "content");
    EXPECT_THAT(Files(), UnorderedElementsAre("Ondara7.inp", "ondara7.bin", "ondara7.out", "ondara7.log",
                                              "Ondara7_DimHyCo.csv", "Ondara7_WaveForce.csv"));
}

TEST_F(EngineRun, WritesOverItsOldLogWhereNothingCanBeMadeBesideIt)
{
    Folder.Write("ondara7.log", "0 completed without problems\n");
    fs::create_directories(Folder.File("ondara7.log.part/full"));
    EXPECT_EQ(Run(), 1);
    EXPECT_THAT(Log(), StartsWith("-1 error: the file Ondara7.inp is not there\n"));
}

TEST_F(EngineRun, NeverTakesASpectrumsFileForOldResults)
{
    Folder.Write("sea.bin", "0.5 1\n1.0 2\n");
    Folder.Write("Ondara7.inp", SmallInput()
                                    .Set(3, "sea.bin")
                                    .Set(8, "INPUTUNI")
                                    .Erase(12, 12)
                                    .Insert(12, {"sea.bin", "METRIC", "2"})
                                    .Text());
    EXPECT_EQ(Run(), 1);
    EXPECT_THAT(Log(), HasSubstr("line 12: the spectrum's file has the name of the binary file"));
    EXPECT_EQ(FileContent(Folder.File("sea.bin")), "0.5 1\n1.0 2\n");
}

TEST_F(EngineRun, TellsHowFarItHasCome)
{
    Folder.Write("Ondara7.inp", SmallInput().Text());
    double last = 0;
    const auto tell = [&last](std::string_view, double part)
    {
        EXPECT_GE(part, last);
        last = part;
    };
    EXPECT_EQ(RunEngine(Folder.Path(), {.Threads = 1, .Progress = tell}, Errors), 0);
    EXPECT_GT(last, 0.5);
    EXPECT_LE(last, 1);
}

TEST(ProgressLine, IsRewrittenAndTakenAway)
{
    std::ostringstream stream;
    {
        CProgressLine line(stream);
        line.Show("long text", 0.25);
        line.Show("long text", 0.251);
        line.Show("text", 2);
    }
    EXPECT_EQ(stream.str(), "\r 25 % long text\r100 % text     \r          \r");
}

TEST(ProgressLine, ThatWasNeverShownLeavesNothing)
{
    std::ostringstream stream;
    {
        const CProgressLine line(stream);
    }
    EXPECT_EQ(stream.str(), "");
}

} // namespace
} // namespace oe7
