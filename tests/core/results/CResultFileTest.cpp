// Completion as a whole, the counts of the engine's part, and restoring a project from a file.
#include "core/project/InputFileText.h"
#include "tests/core/results/CEcho.h"
#include "tests/core/results/CHandMadeRun.h"
#include "tests/support/FullProject.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{
const std::string kNotOpened = "Error Saving File: The file could not be read.";
const std::string kDamaged = "Error reading file: The file could not be read";
const std::string kNotSaved = "Error Saving File: The file could not be saved.";
const std::string kCompletionFailed = "Error In Generating Output File: Error writing results file!";

/// The place that a word of the trailer names.
std::size_t Place(const std::string& bytes, std::size_t fromEnd)
{
    return static_cast<std::size_t>(ValueAt<int>(bytes, bytes.size() - fromEnd));
}

/// Another project, cleared as for a new file, and a results file to restore it from.
struct CRestoredProject : CTestProject
{
    CResultFile Results{Project, Session.BaseDir, Recorder.Platform};
};

/// A completed file of the largest project.
struct CCompleted : CCompletion
{
    CCompleted()
    {
        FillToMaximum(Project);
        Project.NSPEED.Set(1);
        Project.NSEAWAY.Set(1);
        Project.SPDKNOT.unit = 0;
        RunEngine();
        Complete();
        Bytes = FileContent(Path);
    }
    std::string Bytes;
};
} // namespace

TEST(Completion, TheControlSectionTakesThePlaceOfTheEndMark)
{
    CHandMadeRun run;
    CProjectData& p = run.P;
    p.StationOrigin = 1;
    p.NST.Set(0);
    p.NBKPAIR.Set(2);
    p.NFINPAIR.Set(1);
    p.NFOILPAIR.Set(-3);
    p.NPOS.Set(1);
    p.SPREADANG.Set(30);
    p.MSIFlag = {1, 0, 2, 1};
    p.NSPEED.Set(0);
    p.IncludeRudder = 1;
    p.IncludeSkeg = 2;
    for (int k = 0; k < 10; ++k)
    {
        p.RELMOCALC.Set(k, static_cast<float>(k % 6) + 0.5F);
        p.MIIFLAG.Set(k, static_cast<float>(k % 2));
    }
    run.Sections();
    run.Run(3, 5);
    const std::string engine = WithoutEndMark(EngineBinary(
        [&p]
        {
            CEngineRun again = EngineRunOf(p);
            again.Headings.assign(3, 0);
            again.FrequencyCount = 5;
            return again;
        }()));
    const std::string bytes = FileContent(run.Path);
    ASSERT_EQ(Place(bytes, 12), engine.size());
    EXPECT_EQ(bytes.substr(0, engine.size()), engine);
    const auto section = [](float keels)
    {
        return CEchoBytes()
            .Text("OD7b", 4)
            .Integers({1})
            .Floats({0, keels, 1, -3, 1, 30})
            .Floats({0.5F, 1.5F, 2.5F, 3.5F, 4.5F, 5.5F, 0.5F, 1.5F, 2.5F, 3.5F})
            .Floats({0, 1, 0, 1, 0, 1, 0, 1, 0, 1})
            .Integers({1, 0, 0, 1, 0, 0, 0, 0, 0, 0})
            .Floats({0})
            .Integers({1, 0})
            .Integers({2, -3, 1})
            .Bytes();
    };
    EXPECT_EQ(bytes.substr(engine.size(), section(0).size()), section(0)); // without IncludeBilgeKeels
    EXPECT_EQ(Place(bytes, 8), engine.size() + section(0).size() + 80);
    p.IncludeBilgeKeels = 1;
    run.Run(3, 5);
    EXPECT_EQ(FileContent(run.Path).substr(engine.size(), section(2).size()), section(2));
}

TEST(Completion, SpeedsStandInTheControlSectionAsStored)
{
    CHandMadeRun run;
    run.P.NSPEED.Set(2);
    run.P.SPDKNOT.Set(0, 10);
    run.P.SPDKNOT.Set(1, 11);
    run.P.SPDKNOT.unit = 1;
    run.P.NSEAWAY.Set(0);
    run.Sections();
    run.Run(1, 1);
    const std::string bytes = FileContent(run.Path);
    EXPECT_EQ(bytes.substr(Place(bytes, 12) + 152, 12), CEchoBytes().Floats({2, 10, 11}).Bytes());
}

TEST(Completion, TitleAndFileNamesAreFilledWithZerosAndCutBeforeTheLast)
{
    CHandMadeRun run;
    run.P.ProjectTitle = "Two words " + std::string(80, 't');
    run.P.ActiveGeometryFile = std::string(300, 'g');
    run.P.ActiveEnvironmentFile = "sea side.od7";
    run.Sections();
    run.Run(0, 0);
    const std::string bytes = FileContent(run.Path);
    EXPECT_EQ(bytes.substr(Place(bytes, 8) - 80, 80),
              CEchoBytes().Text("Two words " + std::string(69, 't'), 80).Bytes());
    EXPECT_EQ(bytes.substr(Place(bytes, 4) - 510, 510),
              CEchoBytes().Text(std::string(254, 'g')).Text("sea side.od7").Bytes());
}

TEST(Completion, AFileThatCannotBeOpenedIsNotMade)
{
    CHandMadeRun run;
    run.P.ResultsLoaded = 1;
    run.Complete();
    EXPECT_EQ(run.Recorder.Messages, std::vector{kNotSaved});
    EXPECT_EQ(run.Recorder.Beeps, 1);
    EXPECT_EQ(run.P.ResultsLoaded, 0);
    EXPECT_FALSE(std::filesystem::exists(run.Path));
}

TEST(Completion, WithoutAListingTheInputStandsInTheFileButNoTrailer)
{
    CHandMadeRun run;
    run.Sections();
    run.Run(0, 0);
    const std::string whole = FileContent(run.Path);
    CHandMadeRun without;
    without.Folder.Write(kResultsFileName, EngineBinary(
                                               [&without]
                                               {
                                                   CEngineRun again = EngineRunOf(without.P);
                                                   again.Headings.clear();
                                                   again.FrequencyCount = 0;
                                                   return again;
                                               }()));
    without.P.ResultsLoaded = 1;
    without.Complete();
    EXPECT_EQ(without.Recorder.Messages, std::vector{kCompletionFailed});
    EXPECT_EQ(without.Recorder.Beeps, 1);
    EXPECT_EQ(without.P.ResultsLoaded, 0);
    EXPECT_EQ(FileContent(without.Path), whole.substr(0, Place(whole, 4)));
}

TEST(Completion, OnlyAFileWithTheEndMarkIsTheEnginesWhole)
{
    EXPECT_FALSE(CResultFile::EndsWithMarker("missing"));
    CTestFolder folder;
    EXPECT_TRUE(CResultFile::EndsWithMarker(folder.Write("whole", "CBDW")));
    EXPECT_FALSE(CResultFile::EndsWithMarker(folder.Write("short", "BDW")));
    EXPECT_FALSE(CResultFile::EndsWithMarker(folder.Write("other", "CBDWx")));
}

TEST(Completion, OfAFileShorterThanTheMarkNothingIsLeft)
{
    CHandMadeRun run;
    run.Sections();
    run.Folder.Write(kResultsFileName, "abc");
    run.Folder.Write(kListingFileName, run.Listing);
    run.Complete();
    const std::string bytes = FileContent(run.Path);
    EXPECT_EQ(Place(bytes, 12), 0U);
    EXPECT_EQ(bytes.substr(0, 4), "OD7b");
}

TEST(Completion, TheFirstOffsetOfTheProjectIsZeroAfterwards)
{
    CHandMadeRun run;
    run.P.YAUSER.Set(5);
    run.Sections();
    run.Run(0, 0);
    EXPECT_EQ(run.P.YAUSER.Value(), 0);
}

TEST(Completion, CarriageReturnsInTheListingMakeNoDifference)
{
    CCompleted plain;
    CCompletion windows;
    FillToMaximum(windows.Project);
    windows.Project.NSPEED.Set(1);
    windows.Project.NSEAWAY.Set(1);
    const CEngineRun run = windows.RunEngine();
    windows.Folder.Write(kListingFileName, WithCarriageReturns(EngineListing(run)));
    windows.Complete();
    EXPECT_TRUE(FileContent(windows.Path) == plain.Bytes);
}

TEST(Completion, EachMissingMarkerGivesOneMessage)
{
    CCompleted whole;
    const std::string listing = FileContent(whole.Folder.File(kListingFileName));
    const std::string engine = EngineBinary(EngineRunOf(whole.Project));
    for (const char* marker :
         {"ENFREQMIN", "GMFLAG", "GENERAL HULL PARAMETERS", "Displacement", "Cb", "SECTIONAL PROPERTIES",
          "POSITIONS FOR SEAKEEPING CALCULATIONS", "Label", "SHIP MOTIONS AT CG IN REGULAR WAVES", "Enc",
          "Roll natural frequency", "LFE", "Sickness", "Draft", "RMS Sea Loads at Station"})
    {
        SCOPED_TRACE(marker);
        CCompletion broken;
        FillToMaximum(broken.Project);
        broken.Project.NSPEED.Set(1);
        broken.Project.NSEAWAY.Set(1);
        broken.Folder.Write(kResultsFileName, engine);
        broken.Folder.Write(kListingFileName, WithoutMarker(listing, marker));
        broken.Complete();
        EXPECT_EQ(broken.Recorder.Messages, std::vector{kCompletionFailed});
        EXPECT_EQ(broken.Project.ResultsLoaded, 0);
    }
}

TEST(Completion, AListingOfNoiseIsReadToItsEndAtMost)
{
    CHandMadeRun run;
    run.Listing = std::string(1 << 20, '\0') + std::string(1 << 20, 'x') + "ENFREQMIN";
    run.Run(0, 0);
    EXPECT_EQ(run.Recorder.Messages, std::vector{kCompletionFailed});
}

TEST(Counts, OfTheEnginesPart)
{
    CCompletion completion;
    FillToMaximum(completion.Project);
    completion.Project.NSEADIR.Set(7);
    completion.Project.NSEAWAY.Set(3);
    const CEngineRun run = completion.RunEngine();
    completion.Results.ScanCounts(completion.Path);
    EXPECT_EQ(completion.Results.HeadingCount, 7);
    EXPECT_EQ(completion.Results.SeawayCount, 3);
    EXPECT_EQ(completion.Results.FreqCount, run.FrequencyCount);
}

TEST(Counts, OfADamagedFileAreNone)
{
    CCompletion completion;
    FillToMaximum(completion.Project);
    completion.Project.NSPEED.Set(1);
    completion.Project.NSEAWAY.Set(1);
    CEngineRun run = EngineRunOf(completion.Project);
    const std::string good = EngineBinary(run);
    run.FrequencyCount = 61;
    for (const std::string& bytes :
         {EngineBinary(run), good.substr(0, 900), good.substr(0, 200), std::string()})
    {
        completion.Folder.Write(kResultsFileName, good);
        completion.Results.ScanCounts(completion.Path);
        EXPECT_EQ(completion.Results.FreqCount, 37);
        completion.Folder.Write(kResultsFileName, bytes);
        completion.Results.ScanCounts(completion.Path);
        EXPECT_EQ(completion.Results.HeadingCount, 0);
        EXPECT_EQ(completion.Results.SeawayCount, 0);
        EXPECT_EQ(completion.Results.FreqCount, 0);
    }
    completion.Results.ScanCounts("missing");
    EXPECT_EQ(completion.Results.FreqCount, 0);
}

TEST(RestoredProject, AFileThatCannotBeOpened)
{
    CRestoredProject restored;
    EXPECT_FALSE(restored.Results.RestoreProject(restored.Folder.File("missing.tv7")));
    EXPECT_EQ(restored.Recorder.Messages, std::vector{kNotOpened});
    EXPECT_EQ(restored.Recorder.Beeps, 1);
}

TEST(RestoredProject, ADamagedFile)
{
    CCompleted completed;
    const std::string& bytes = completed.Bytes;
    const std::string beyond = CEchoBytes().Integers({2147483647}).Bytes();
    const std::string before = CEchoBytes().Integers({-1}).Bytes();
    for (const std::string& damaged :
         {std::string(), std::string("OD7b"), bytes.substr(0, bytes.size() - 12),
          std::string(bytes).replace(bytes.size() - 12, 4, beyond),
          std::string(bytes).replace(bytes.size() - 12, 4, before),
          std::string(bytes).replace(bytes.size() - 8, 4, beyond),
          std::string(bytes).replace(bytes.size() - 8, 4, CEchoBytes().Integers({79}).Bytes())})
    {
        CRestoredProject restored;
        EXPECT_FALSE(restored.Results.RestoreProject(restored.Folder.Write("damaged.tv7", damaged)));
        EXPECT_EQ(restored.Recorder.Messages, std::vector{kDamaged});
        EXPECT_EQ(restored.Recorder.Beeps, 0);
    }
}

TEST(RestoredProject, ATitleOfTwoWordsComesBackAsItsFirst)
{
    CCompleted completed;
    CRestoredProject restored;
    EXPECT_TRUE(restored.Results.RestoreProject(completed.Path));
    EXPECT_EQ(restored.Recorder.Messages, std::vector<std::string>());
    EXPECT_EQ(restored.Project.ProjectTitle, "Parabolic");
}

TEST(RestoredProject, TheOriginOfStationsIsTheMagicOfACurrentFile)
{
    CCompleted completed;
    CRestoredProject restored;
    restored.Results.RestoreProject(completed.Path);
    EXPECT_EQ(restored.Project.StationOrigin, 1647789135);
}

TEST(RestoredProject, TheOriginOfStationsOfAnEarlierFileIsItsWord)
{
    const std::string echo = CEcho().WithoutMagic();
    const int sectionB = 200;
    const std::string bytes = CEchoBytes()
                                  .Integers({1})
                                  .Text("", 116)
                                  .Text("Old title", 80, ' ')
                                  .Text(echo, echo.size())
                                  .Floats({-99.99F})
                                  .Integers({0, sectionB, 0})
                                  .Bytes();
    CRestoredProject restored;
    EXPECT_TRUE(restored.Results.RestoreProject(restored.Folder.Write("old.tv7", bytes)));
    EXPECT_EQ(restored.Project.StationOrigin, 1);
    EXPECT_EQ(restored.Project.ProjectTitle, "Old");
    EXPECT_EQ(restored.Project.EXCITE.Value(), 2);
}

TEST(RestoredProject, CompletenessIsToldFromTheRestoredData)
{
    CCompleted completed;
    CRestoredProject restored;
    restored.Project.TankComplete = 1;
    restored.Results.RestoreProject(completed.Path);
    std::string incomplete;
    restored.Project.EachCompletenessFlag([&incomplete](const char* name, int flag)
                                          { incomplete += flag == 0 ? std::string(name) + " " : ""; });
    // What a file doesn't have: the tank of a ship with fins, the fins' incidence, the position entered last,
    // and section areas beside offsets.
    EXPECT_EQ(incomplete, "TankComplete FinComplete PositionsComplete SectionAreasComplete ");
}

TEST(RestoredProject, AComputedMetacentreComesBackAsTheSecondChoice)
{
    CCompletion completion;
    FillToMaximum(completion.Project);
    completion.Project.GMFLAG.Set(0);
    completion.Project.NSPEED.Set(0);
    completion.RunEngine();
    completion.Complete();
    CRestoredProject restored;
    EXPECT_TRUE(restored.Results.RestoreProject(completion.Path));
    EXPECT_EQ(restored.Project.GMFLAG.Value(), 2);
    EXPECT_EQ(restored.Project.GMUSER.Value(), -1);
}
