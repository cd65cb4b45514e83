#include "core/engine/Waterline.h"

#include "core/platform/Files.h"
#include "tests/core/engine/CEngineProject.h"
#include "tests/support/CClosedFolder.h"

#include <cmath>
#include <cstring>
#include <filesystem>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr const char* kCannotKeep = "Offset Checks: The results of the last run can't be kept, so the "
                                    "waterline was not calculated.";

/// The head of an engine's results.
std::string EngineResults(const std::string& units, float draft, float trim)
{
    std::string bytes(216, '.');
    bytes.replace(120, 20, units + std::string(20 - units.size(), ' '));
    for (const float value : {draft, trim})
    {
        std::string word(sizeof value, '\0');
        std::memcpy(word.data(), &value, sizeof value);
        bytes += word;
    }
    return bytes + "the rest CBDW";
}

/// A ship that is loaded by displacement, and an engine that is scripted.
struct CWaterlineTest : CEngineProject
{
    CWaterlineTest()
    {
        SetStations(5);
        Project.TRIMDEF.Set(1);
        Project.DISPUSER.Set(5000);
        Project.LCGPUSER.Set(50);
        Recorder.AtStart = [this] { Folder.Write("ondara7.bin", EngineResults("METRIC", 6.5F, 0.25F)); };
    }

    std::optional<CWaterline> Find()
    {
        return CWaterlineRun(Project, Folder.Path(), Recorder.Platform,
                             [this]
                             {
                                 Recorder.Events.emplace_back("wait for the engine");
                                 Recorder.Running = false;
                                 return Patient;
                             })
            .Find();
    }
    /// Draft and trim that are found.
    std::pair<float, float> DraftAndTrim()
    {
        const auto waterline = Find();
        return waterline ? std::pair(waterline->Draft, waterline->Trim) : std::pair(kNoNumber, kNoNumber);
    }
    std::string File(const std::string& name) const { return FileContent(Folder.File(name)); }
    bool Has(const std::string& name) const { return fs::exists(fs::symlink_status(Folder.File(name))); }

    bool Patient = true;
    const std::string StartEvent = "start OE7.exe in " + Folder.Path();
};

/// A ship of a length of 100 and 21 stations, metric, at a draft and a trim.
CWaterline Afloat(float draft, float trim)
{
    return {100, 5, draft, trim};
}
} // namespace

TEST(Waterline, OfAShipWithoutTrimIsAtHerDraftEverywhere)
{
    for (const int station : {0, 10, 20})
    {
        EXPECT_EQ(Afloat(6.25F, 0).Height(station, 21, 1), 6.25F);
    }
}

TEST(Waterline, TrimByTheSternIsLessWaterForwardAndMoreAft)
{
    const CWaterline waterline = Afloat(6, 1);
    EXPECT_EQ(waterline.Height(0, 21, 1), 5.5F);
    EXPECT_EQ(waterline.Height(10, 21, 1), 6);
    EXPECT_EQ(waterline.Height(20, 21, 1), 6.5F);
    EXPECT_EQ(Afloat(6, -1).Height(0, 21, 1), 6.5F);
}

TEST(Waterline, OfAnEvenNumberOfStationsTheForwardMiddleOneHasTheDraft)
{
    const CWaterline waterline = {100, 20, 6, 1};
    EXPECT_EQ(waterline.Height(2, 6, 1), 6);
    EXPECT_FLOAT_EQ(waterline.Height(0, 6, 1), 5.6F);
    EXPECT_FLOAT_EQ(waterline.Height(5, 6, 1), 6.6F);
}

TEST(Waterline, IsInFeetUnlessTheInputSystemIsMetric)
{
    for (const int system : {0, 2, -1})
    {
        EXPECT_EQ(Afloat(6, 0).Height(0, 21, system), 6 * 3.28084F);
        EXPECT_EQ(Afloat(6, 1).Height(0, 21, system), 5.5F * 3.28084F);
    }
}

TEST(Waterline, GivenInMetresIsTakenAsItIs)
{
    CEngineProject test;
    test.SetStations(5);
    test.Project.TRIMST.Set(0.5F);
    const CWaterline waterline = GivenWaterline(test.Project);
    EXPECT_EQ(waterline.Length, 100);
    EXPECT_EQ(waterline.Spacing, 25);
    EXPECT_EQ(waterline.Draft, 6.25F);
    EXPECT_EQ(waterline.Trim, 0.5F);
}

TEST(Waterline, GivenInFeetEachValueIsConvertedByItsOwnFlag)
{
    CEngineProject test;
    CProjectData& p = test.Project;
    test.SetStations(5);
    p.TRIMST.Set(0.5F);
    p.SHIPLEN.unit = 1;
    EXPECT_EQ(GivenWaterline(p).Length, static_cast<float>(100 * 0.3047999902464003));
    EXPECT_EQ(GivenWaterline(p).Spacing, static_cast<float>(100 * 0.3047999902464003) / 4);
    EXPECT_EQ(GivenWaterline(p).Draft, 6.25F);
    p.DRAFTMID.unit = 1;
    EXPECT_EQ(GivenWaterline(p).Draft, static_cast<float>(6.25 * 0.3048780487804878));
    EXPECT_EQ(GivenWaterline(p).Trim, 0.5F);
    p.TRIMST.unit = 1;
    EXPECT_EQ(GivenWaterline(p).Trim, static_cast<float>(0.5 * 0.3048780487804878));
    p.SHIPLEN.unit = 2;
    EXPECT_EQ(GivenWaterline(p).Length, 100);
}

TEST(Waterline, ADraftThatIsNotGivenIsNegative)
{
    for (const int unit : {0, 1})
    {
        CEngineProject test;
        test.SetStations(5);
        test.Project.DRAFTMID.Set(-1);
        test.Project.DRAFTMID.unit = unit;
        test.Project.TRIMST.Set(0);
        EXPECT_LT(GivenWaterline(test.Project).Height(0, 5, 1), 0);
    }
}

TEST(Waterline, FewerThanTwoStationsHaveNone)
{
    for (const float stations : {1.0F, 0.0F, -1.0F, -1e30F, kNoNumber})
    {
        CEngineProject test;
        test.Project.NST.Set(stations);
        EXPECT_EQ(GivenWaterline(test.Project).Draft, 0);
        EXPECT_EQ(GivenWaterline(test.Project).Length, 0);
    }
}

TEST(Waterline, OfMoreStationsThanFitTheSpacingIsThatOfThoseThatAreThere)
{
    CEngineProject test;
    test.Project.NST.Set(1e30F);
    EXPECT_EQ(GivenWaterline(test.Project).Spacing, 5);
}

TEST(WaterlineRun, AShipOfGivenDraftNeedsNoEngine)
{
    for (const float definition : {0.0F, 2.0F, -1.0F})
    {
        CWaterlineTest test;
        test.Project.TRIMDEF.Set(definition);
        EXPECT_EQ(test.DraftAndTrim(), std::pair(6.25F, test.Project.TRIMST.Value()));
        EXPECT_THAT(test.Recorder.Events, IsEmpty());
        EXPECT_TRUE(fs::is_empty(test.Folder.Path()));
    }
}

TEST(WaterlineRun, TheOffsetEditorGetsTheDraftInMetres)
{
    CWaterlineTest test;
    test.Project.TRIMDEF.Set(0);
    test.Project.TRIMST.Set(0.5F);
    test.Project.DRAFTMID.unit = 1;
    test.Project.WorkingDraftUnit = 1;
    test.Find();
    EXPECT_EQ(test.Project.WorkingDraft, static_cast<float>(6.25 * 0.3048780487804878));
    EXPECT_EQ(test.Project.WorkingTrim, 0.5F);
    EXPECT_EQ(test.Project.WorkingDraftUnit, 0);
}

TEST(WaterlineRun, TheEngineIsStartedOnTheReducedInputAndWaitedFor)
{
    CWaterlineTest test;
    const auto atStart = test.Recorder.AtStart;
    std::string folder;
    std::string input;
    std::string listing = "none";
    std::string results = "none";
    test.Folder.Write("ondara7.out", "listing of before");
    test.Recorder.AtStart = [&]
    {
        folder = fs::current_path();
        input = test.Text();
        listing = test.File("ondara7.out");
        results = test.File("ondara7.bin");
        atStart();
    };
    fs::current_path("/");
    ASSERT_TRUE(test.Find());
    EXPECT_THAT(test.Recorder.Events, ElementsAre(test.StartEvent, "wait", "wait for the engine", "arrow"));
    EXPECT_EQ(folder, test.Folder.Path());
    EXPECT_EQ(listing, "");
    EXPECT_EQ(results, "");
    ASSERT_TRUE(test.WriteReduced());
    EXPECT_EQ(input, test.Text());
}

TEST(WaterlineRun, TheEnginesDraftAndTrimAreFoundAndHandedToTheOffsetEditor)
{
    CWaterlineTest test;
    test.Project.WorkingDraftUnit = 1;
    const auto waterline = test.Find();
    ASSERT_TRUE(waterline);
    EXPECT_EQ(waterline->Length, 100);
    EXPECT_EQ(waterline->Spacing, 25);
    EXPECT_EQ(waterline->Draft, 6.5F);
    EXPECT_EQ(waterline->Trim, 0.25F);
    EXPECT_EQ(test.Project.WorkingDraft, 6.5F);
    EXPECT_EQ(test.Project.WorkingTrim, 0.25F);
    EXPECT_EQ(test.Project.WorkingDraftUnit, 0);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(WaterlineRun, ResultsInFeetAreConverted)
{
    for (const std::string units : {"BRITISH", "", "metric"})
    {
        CWaterlineTest test;
        test.Recorder.AtStart = [&] { test.Folder.Write("ondara7.bin", EngineResults(units, 20, -1)); };
        EXPECT_EQ(test.DraftAndTrim(), std::pair(static_cast<float>(20 * 0.3048780487804878),
                                                 static_cast<float>(-1 * 0.3048780487804878)));
    }
}

TEST(WaterlineRun, ALengthOfAnyOtherFlagThanMetresIsInFeet)
{
    for (const int unit : {1, 2, -1})
    {
        CWaterlineTest test;
        test.Project.SHIPLEN.unit = unit;
        EXPECT_EQ(test.Find()->Length, static_cast<float>(100 * 0.3047999902464003));
    }
}

TEST(WaterlineRun, ResultsThatAreNoNumbersAreNotFollowed)
{
    CWaterlineTest test;
    test.Recorder.AtStart = [&]
    {
        test.Folder.Write("ondara7.bin",
                          EngineResults("BRITISH", kNoNumber, std::numeric_limits<float>::infinity()));
    };
    const auto waterline = test.Find();
    EXPECT_TRUE(std::isnan(waterline->Draft));
    EXPECT_TRUE(std::isnan(waterline->Height(0, 5, 1)));
}

TEST(WaterlineRun, AnEngineThatLeavesTooLittleFindsNoDraft)
{
    for (const std::string& results : {std::string(), std::string("CBD"), std::string(223, 'M')})
    {
        CWaterlineTest test;
        test.Project.WorkingDraft = 3;
        test.Project.WorkingTrim = 2;
        test.Recorder.AtStart = [&] { test.Folder.Write("ondara7.bin", results); };
        EXPECT_EQ(test.DraftAndTrim(), std::pair(-1.0F, 0.0F));
        EXPECT_EQ(test.Project.WorkingDraft, -1);
        EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    }
}

TEST(WaterlineRun, AnEngineThatTakesItsResultsAwayFindsNoDraft)
{
    CWaterlineTest test;
    test.Recorder.AtStart = [&] { DeleteFile(test.Folder.File("ondara7.bin")); };
    EXPECT_EQ(test.DraftAndTrim().first, -1);
    EXPECT_FALSE(test.Has("ondara7.bin"));
}

TEST(WaterlineRun, AnEngineThatIsNotThereFindsNoDraftAndSaysNothing)
{
    CWaterlineTest test;
    test.Folder.Write("ondara7.bin", EngineResults("METRIC", 9, 0)); // not to be taken for new ones
    test.Recorder.Start = EStart::NotFound;
    EXPECT_EQ(test.DraftAndTrim().first, -1);
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_EQ(test.File("ondara7.bin"), EngineResults("METRIC", 9, 0));
}

TEST(WaterlineRun, ResultsOfTheLastRunStandAsBefore)
{
    const std::string results("any bytes \0\r\n\xFF", 14);
    CWaterlineTest test;
    test.Folder.Write("ondara7.bin", results);
    ASSERT_TRUE(test.Find());
    EXPECT_EQ(test.File("ondara7.bin"), results);
    EXPECT_EQ(test.File("Ondara7Orig.bin"), results);
}

TEST(WaterlineRun, SoDoEmptyOnes)
{
    CWaterlineTest test;
    test.Folder.Write("ondara7.bin", "");
    ASSERT_TRUE(test.Find());
    EXPECT_EQ(test.File("ondara7.bin"), "");
}

TEST(WaterlineRun, ResultsOfAnotherSpellingStandUnderTheOwnOne)
{
    CWaterlineTest test;
    test.Folder.Write("Ondara7.bin", "results of before");
    test.Folder.Write("ONDARA7ORIG.BIN", "older still");
    test.Recorder.AtStart = [&]
    {
        fs::remove(test.Folder.File("ondara7.bin"));
        test.Folder.Write("Ondara7.bin", EngineResults("METRIC", 6.5F, 0.25F));
    };
    EXPECT_EQ(test.DraftAndTrim(), std::pair(6.5F, 0.25F));
    EXPECT_EQ(test.File("ondara7.bin"), "results of before");
    EXPECT_EQ(test.File("Ondara7Orig.bin"), "results of before");
    EXPECT_FALSE(test.Has("Ondara7.bin"));
    EXPECT_FALSE(test.Has("ONDARA7ORIG.BIN"));
}

TEST(WaterlineRun, ResultsThatAreALinkAreLeftAloneWhereTheyAre)
{
    CWaterlineTest test;
    const CTestFolder elsewhere;
    fs::create_symlink(elsewhere.Write("kept.tv7", "results of before"), test.Folder.File("ondara7.bin"));
    EXPECT_EQ(test.DraftAndTrim(), std::pair(6.5F, 0.25F));
    EXPECT_EQ(FileContent(elsewhere.File("kept.tv7")), "results of before");
    EXPECT_EQ(test.File("ondara7.bin"), "results of before");
}

TEST(WaterlineRun, WhereThereWereNoResultsThereAreNoneAfterwards)
{
    CWaterlineTest test;
    test.Folder.Write("Ondara7Orig.bin", "of a run long ago");
    EXPECT_EQ(test.DraftAndTrim(), std::pair(6.5F, 0.25F));
    EXPECT_FALSE(test.Has("ondara7.bin"));
    EXPECT_EQ(test.File("Ondara7Orig.bin"), "of a run long ago");
}

TEST(WaterlineRun, AReducedInputThatFailsItsTestsStartsNoEngineAndLeavesTheResults)
{
    for (const bool hadResults : {true, false})
    {
        CWaterlineTest test;
        test.Project.InputWritten = 1;
        test.Project.SHIPLEN.Set(-1);
        if (hadResults)
        {
            test.Folder.Write("ondara7.bin", "results of before");
        }
        EXPECT_EQ(test.DraftAndTrim().first, -1);
        EXPECT_THAT(test.Recorder.Events,
                    ElementsAre(Told("You have not specified a\nlength between perpendiculars.")));
        EXPECT_EQ(test.Project.InputWritten, 0);
        EXPECT_EQ(test.Has("ondara7.bin"), hadResults);
        EXPECT_TRUE(!hadResults || test.File("ondara7.bin") == "results of before");
    }
}

TEST(WaterlineRun, ResultsThatCanNotBeKeptAreNotPutAtRisk)
{
    CWaterlineTest test;
    test.Project.WorkingDraft = 3;
    for (const char* name : {"ondara7.bin", "ondara7.out", "Ondara7.inp", "Ondara7Orig.bin"})
    {
        fs::permissions(test.Folder.Write(name, "of before"), fs::perms(0666));
    }
    {
        const CClosedFolder closed(test.Folder.Path());
        EXPECT_EQ(test.DraftAndTrim().first, -1);
    }
    EXPECT_THAT(test.Recorder.Events, ElementsAre(kCannotKeep));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Warning));
    for (const char* name : {"ondara7.bin", "ondara7.out", "Ondara7.inp", "Ondara7Orig.bin"})
    {
        EXPECT_EQ(test.File(name), "of before");
    }
}

TEST(WaterlineRun, ResultsThatMayNotBeReadAreNotPutAtRisk)
{
    CWaterlineTest test;
    const std::string results = test.Folder.Write("ondara7.bin", "of before");
    fs::permissions(results, fs::perms::none);
    fs::permissions(test.Folder.Path(), fs::perms::all);
    const uid_t user = static_cast<uid_t>(::setfsuid(65534));
    test.Find();
    ::setfsuid(user);
    fs::permissions(results, fs::perms::owner_all);
    EXPECT_THAT(test.Recorder.Events, ElementsAre(kCannotKeep));
    EXPECT_EQ(FileContent(results), "of before");
}

TEST(WaterlineRun, InAFolderThatIsReadOnlyTheUserIsTold)
{
    CWaterlineTest test;
    {
        const CClosedFolder closed(test.Folder.Path());
        EXPECT_EQ(test.DraftAndTrim().first, -1);
    }
    EXPECT_THAT(test.Recorder.Messages, testing::SizeIs(1));
    EXPECT_THAT(test.Recorder.Started, IsEmpty());
    EXPECT_TRUE(fs::is_empty(test.Folder.Path()));
}

TEST(WaterlineRun, ResultsThatCanNotBePutBackAreToldOf)
{
    CWaterlineTest test;
    test.Folder.Write("ondara7.bin", "results of before");
    std::optional<CClosedFolder> closed;
    test.Recorder.AtStart = [&] { closed.emplace(test.Folder.Path()); };
    EXPECT_TRUE(test.Find());
    closed.reset();
    const std::string kept = test.Folder.File("Ondara7Orig.bin");
    EXPECT_THAT(
        test.Recorder.Messages,
        ElementsAre("Offset Checks: The results of the last run can't be put back. They stand in " + kept));
    EXPECT_EQ(FileContent(kept), "results of before");
}

TEST(WaterlineRun, OfAnEngineThatTheUserHasGivenUpNothingIsTaken)
{
    CWaterlineTest test;
    test.Folder.Write("ondara7.bin", "results of before");
    test.Patient = false;
    EXPECT_FALSE(test.Find());
    EXPECT_EQ(test.File("ondara7.bin"), "results of before");
    EXPECT_EQ(test.Project.WorkingDraft, -1);
    EXPECT_EQ(test.Recorder.Cursors.back(), ECursor::Arrow);
}

TEST(WaterlineRun, StationsWithoutNumberDoNoHarm)
{
    for (const float stations : {-1e30F, 1.0F, 1e30F, kNoNumber})
    {
        CWaterlineTest test;
        test.Project.NST.Set(stations);
        EXPECT_EQ(test.DraftAndTrim(), std::pair(6.5F, 0.25F)) << stations;
    }
}
