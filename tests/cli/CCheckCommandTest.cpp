#include "core/platform/BundledPrograms.h"
#include "tests/cli/CEngineCliTest.h"
#include "tests/cli/Interrupted.h"
#include "tests/support/CClosedFolder.h"
#include "tests/support/CVariable.h"
#include "tests/support/EngineNumbers.h"
#include "tests/support/StationPoints.h"

#include <csignal>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;

namespace
{
const std::string kSatisfactory = "Offset Checks: Geometry offsets are satisfactory.\n";
const std::string kPair = "Input Error: Y sectional offsets - Station 2: 2 consecutive values of 0.0 exactly "
                          "on the centreline at the keel will result in a calculation error. \\n\\nPlease "
                          "review your inputs\n";
const std::string kOrder =
    "Input Error: Station 2: Rows 6 and 7 may be ordered incorrectly. \\n\\nRow 6: Y offset: 3.000 Z offset: "
    "2.000 \\nRow 7: Y offset: 2.500 Z offset: 1.500  \\n\\nInterchange these 2 rows? ";
const std::string kLong =
    "Input Warning: There are hull definition sectional offset segments that are long. \\nThis may degrade "
    "the fidelity of the hydrodynamic modelling. \\n\\nWould you like to divide these segments into pieces? ";
const std::string kFew =
    "Input Warning: Stations 2 have relatively few points defining them, when compared to the rest of the "
    "vessel.\\n\\nWould you like to modify these stations? ";
const std::string kNegative = "Warning: There are Z offset points with values less than 0!!\n";
const std::string kNo = "[no]\n";
const std::string kYes = "[yes]\n";
const std::string kNoLength =
    "Execution Cannot Continue: You have not specified a\\nlength between perpendiculars.\n";
const std::string kInterrupted = "ondara-cli: interrupted; the engine was ended\n";

CCliRun Satisfactory(const std::string& before = {})
{
    return {kExitDone, "", before + kSatisfactory};
}

/// A wall whose last segment is long, and ends at a height.
std::vector<CPoint> WallUpTo(float height)
{
    std::vector<float> distances(50, 0.1F);
    distances.push_back(height - 5);
    return Wall(distances);
}

/// A hull of five stations at a draft of 6.25, of which the third may be changed.
struct CCheckTest : CCliTest
{
    CCheckTest()
    {
        Complete();
        SetGoodHull(Project, 5);
        Project.TRIMST.Set(0);
    }
    explicit CCheckTest(const std::vector<CPoint>& points) : CCheckTest() { SetStation(Project, 2, points); }

    /// Checks the project, which is not changed on the disk, by a command that leaves no other file.
    CCliRun Check(const std::string& answer = "--no")
    {
        const std::string saved = Write("ship.od7");
        const CCliRun run = Run({answer, "check", "ship.od7"});
        EXPECT_EQ(Content("ship.od7"), saved);
        EXPECT_THAT(Files(), ElementsAre("ship.od7"));
        return run;
    }
};

/// The same hull loaded by displacement, and an engine that is scripted.
struct CCheckRunTest : CEngineCliTest
{
    CCheckRunTest()
    {
        Complete();
        SetGoodHull(Project, 5);
        Project.TRIMDEF.Set(1);
        Project.DISPUSER.Set(5000);
        Project.LCGPUSER.Set(50);
        Write("ship.od7");
    }
    CCliRun Check() const { return Run({"check", "ship.od7"}); }
};
} // namespace

TEST(CliCheck, AGoodHullIsSatisfactory)
{
    EXPECT_EQ(CCheckTest().Check(), Satisfactory());
    EXPECT_EQ(CCheckTest().Check("--yes"), Satisfactory());
}

TEST(CliCheck, SoIsAHullOfSectionAreas)
{
    CCheckTest test({{0, 0}, {0, 1}, {1, 2}});
    test.Project.HULLDEF.Set(1);
    EXPECT_EQ(test.Check(), Satisfactory());
}

TEST(CliCheck, APairOnTheCentrelineFails)
{
    CCheckTest test({{0, 0}, {0, 1}, {1, 2}});
    EXPECT_EQ(test.Check("--no"), Failed(kPair));
    EXPECT_EQ(test.Check("--yes"), Failed(kPair));
}

TEST(CliCheck, RowsInTheWrongOrderAreAskedAboutAndPass)
{
    CCheckTest test({{0, 0}, {1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}, {2.5F, 1.5F}});
    EXPECT_EQ(test.Check("--no"), Satisfactory(kOrder + kNo));
    EXPECT_EQ(test.Check("--yes"), Satisfactory(kOrder + kYes));
}

TEST(CliCheck, LongSegmentsFailWhateverTheAnswer)
{
    CCheckTest test(Wall({1, 1, 1, 3, 1}));
    test.Project.ZAUSERBL.Set(0, -0.5F);
    EXPECT_EQ(test.Check("--no"), Failed(kLong + kNo));
    EXPECT_EQ(test.Check("--yes"), Failed(kLong + kYes));
}

TEST(CliCheck, FewPointsFailOnYes)
{
    CCheckTest test(Wall({3, 3}));
    EXPECT_EQ(test.Check("--no"), Satisfactory(kFew + kNo));
    EXPECT_EQ(test.Check("--yes"), Failed(kFew + kYes));
}

TEST(CliCheck, NegativeZWarns)
{
    CCheckTest test;
    test.Project.ZAUSERBL.Set(0, -0.5F);
    EXPECT_EQ(test.Check(), Satisfactory(kNegative));
}

TEST(CliCheck, AllThatGoesOnIsTold)
{
    CCheckTest test({{0, 0}, {1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}, {2.5F, 1.5F}});
    SetStation(test.Project, 3, Wall({3, 3}));
    test.Project.ZAUSERBL.Set(0, -0.5F);
    std::string few = kFew;
    few.replace(few.find("Stations 2"), 10, "Stations 3");
    EXPECT_EQ(test.Check("--no"), Satisfactory(kOrder + kNo + few + kNo + kNegative));
    EXPECT_EQ(test.Check("--yes"), Failed(kOrder + kYes + few + kYes));
}

TEST(CliCheck, ADraftThatIsGivenNeedsNoEngine)
{
    for (const float definition : {0.0F, 2.0F})
    {
        CCheckTest test;
        test.Project.TRIMDEF.Set(definition);
        EXPECT_EQ(test.Check(), Satisfactory());
    }
}

TEST(CliCheck, TheSamplesAreSatisfactory)
{
    for (const std::string name : {"Sample01.od7", "Sample02.od7"})
    {
        CCliTest test;
        test.Write("ship.od7", FileContent(SourceFile("samples/" + name)));
        EXPECT_EQ(test.Run({"check", "ship.od7"}), Satisfactory());
    }
}

TEST(CliCheck, AFileThatIsNotReadWholeIsNotChecked)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"check", "none.od7"}), Failed(kUnreadable));
    test.Write("ship.od7", "no project");
    EXPECT_EQ(test.Run({"check", "ship.od7"}), Failed(kUnreadable));
}

TEST(CliCheck, OffsetsThatAreNoNumbersDoNoHarm)
{
    for (const std::string number : {"nan", "inf", "-inf", "1e300", "-1e300"})
    {
        CCheckTest test({{0, 0}, {987, 0}, {2, 0}, {3, 987}, {3, 1}});
        std::string text = InputFileText(test.Project);
        for (std::size_t at = 0; (at = text.find("987.000")) != std::string::npos;)
        {
            text.replace(at, 7, number);
        }
        test.Write("ship.od7", text);
        for (const char* answer : {"--yes", "--no"})
        {
            const CCliRun run = test.Run({answer, "check", "ship.od7"});
            EXPECT_THAT(run.ExitCode, testing::AnyOf(kExitDone, kExitFailed));
            EXPECT_NE(run.Errors, "");
        }
    }
}

TEST(CliCheck, AShipLoadedByDisplacementHasHerWaterlineCalculatedInTheBaseFolder)
{
    CCheckRunTest test;
    const CTestFolder engine;
    CScriptedEngine(engine.Path()).Project(test.Folder.File("ship.od7"));
    const std::vector<std::string> files = test.Files();
    EXPECT_EQ(test.Run({"--base-dir", engine.Path(), "check", "ship.od7"}), Satisfactory());
    EXPECT_EQ(test.Files(), files);
    EXPECT_THAT(FileContent(engine.File("Ondara7.inp")), testing::StartsWith("Pre Run Waterline Calcs\n"));
    EXPECT_TRUE(FileExists(engine.File("ondara7.log")));
    EXPECT_FALSE(FileExists(engine.File("ondara7.bin")));
    EXPECT_FALSE(FileExists(engine.File("Ondara7Orig.bin")));
}

TEST(CliCheck, TheCalculatedDraftTellsWhatIsUnderWater)
{
    const auto draft = static_cast<float>(MadeUp(kHullDraft));
    for (const float above : {-0.01F, 0.01F})
    {
        CCheckRunTest test;
        test.Project.OUTSYS.Set(1); // the made up draft is then in metres
        SetStation(test.Project, 2, WallUpTo(draft + above));
        test.Write("ship.od7");
        EXPECT_EQ(test.Check(), above < 0 ? Failed(kLong + kNo) : Satisfactory());
    }
}

TEST(CliCheck, AnEngineThatTakesItsTimeIsWaitedFor)
{
    CCheckRunTest test;
    test.Engine.Sleep(300);
    EXPECT_EQ(test.Check(), Satisfactory());
    EXPECT_THAT(test.Content("ondara7.log"), testing::StartsWith("0 "));
}

TEST(CliCheck, ResultsOfTheLastRunSurviveByteForByte)
{
    CCheckRunTest test;
    EXPECT_EQ(test.Run({"run", "ship.od7"}).ExitCode, kExitDone);
    const std::string results = test.Content("ondara7.bin");
    EXPECT_EQ(test.Check(), Satisfactory());
    EXPECT_EQ(test.Content("ondara7.bin"), results);
    EXPECT_EQ(test.Content("Ondara7Orig.bin"), results);
    EXPECT_EQ(test.Check(), Satisfactory());
    EXPECT_EQ(test.Content("ondara7.bin"), results);
    EXPECT_EQ(test.Run({"restore", "ondara7.bin", "again.od7"}), Done());
}

TEST(CliCheck, TheySurviveAnEngineThatFails)
{
    for (const char* how : {"no-file", "short-file", "no-marker", "crash", "log-error"})
    {
        CCheckRunTest test;
        test.Write("ondara7.bin", "results of before");
        test.Engine.Fail(how);
        EXPECT_EQ(test.Check(), Satisfactory());
        EXPECT_EQ(test.Content("ondara7.bin"), "results of before");
    }
}

TEST(CliCheck, WithoutADraftTheWaterlineSparesNoSegment)
{
    CCheckRunTest test;
    SetStation(test.Project, 2, WallUpTo(101));
    test.Write("ship.od7");
    EXPECT_EQ(test.Check(), Satisfactory());
    test.Engine.Fail("no-file");
    EXPECT_EQ(test.Check(), Failed(kLong + kNo));
}

TEST(CliCheck, TheySurviveAReducedInputThatFailsItsTests)
{
    CCheckRunTest test;
    test.Project.SHIPLEN.Set(-1);
    test.Write("ship.od7");
    EXPECT_EQ(test.Check(), Satisfactory(kNoLength));
    EXPECT_FALSE(test.Has("ondara7.bin"));
    test.Write("ondara7.bin", "results of before");
    EXPECT_EQ(test.Check(), Satisfactory(kNoLength));
    EXPECT_EQ(test.Content("ondara7.bin"), "results of before");
    EXPECT_FALSE(test.Has("ondara7.log")) << "no engine was started";
}

TEST(CliCheck, TheySurviveWhereNoEngineIs)
{
    CCheckRunTest test;
    const CVariable noPrograms("ONDARA_PROGRAMS", test.Settings.Path());
    fs::remove(test.Folder.File("OE7"));
    test.Write("ondara7.bin", "results of before");
    std::string places;
    for (const std::string& place :
         BundledProgramPlaces("OE7.exe", test.Folder.Path(), BundledProgramFolder()))
    {
        places += (places.empty() ? " " : ", ") + place;
    }
    EXPECT_EQ(test.Check(),
              Satisfactory("ondara-cli: the engine was not found, or may not be executed; it was looked "
                           "for as" +
                           places + "\n"));
    EXPECT_EQ(test.Content("ondara7.bin"), "results of before");
}

TEST(CliCheck, InAFolderThatIsReadOnlyTheResultsStay)
{
    CCheckRunTest test;
    test.Write("ondara7.bin", "results of before");
    const CTestFolder profile; // of its own, for it is written by nobody
    fs::permissions(profile.Path(), fs::perms::all);
    test.Profile = profile.File("settings.ini");
    const std::vector<std::string> files = test.Files();
    {
        const CClosedFolder closed(test.Folder.Path());
        EXPECT_EQ(test.Check(), Satisfactory("Offset Checks: The results of the last run can't be kept, so "
                                             "the waterline was not calculated.\n"));
    }
    EXPECT_EQ(test.Content("ondara7.bin"), "results of before");
    EXPECT_EQ(test.Files(), files);
}

TEST(CliCheck, CtrlCEndsTheEngineAndTheResultsStay)
{
    for (const auto& [signal, exitCode] : std::vector<std::pair<int, int>>{{SIGINT, 130}, {SIGTERM, 143}})
    {
        CCheckRunTest test;
        test.Write("ondara7.bin", "results of before");
        EXPECT_EQ(Interrupted(test, {"check", "ship.od7"}, signal), (CCliRun{exitCode, "", kInterrupted}));
        EXPECT_EQ(test.Content("ondara7.bin"), "results of before");
    }
}

TEST(CliCheck, AfterCtrlCThereAreNoResultsWhereThereWereNone)
{
    CCheckRunTest test;
    EXPECT_EQ(Interrupted(test, {"--yes", "check", "ship.od7"}, SIGINT), (CCliRun{130, "", kInterrupted}));
    EXPECT_FALSE(test.Has("ondara7.bin"));
}

TEST(CliCheck, ItsHelpTellsWhatIsLeftAndOfTheExitCodes)
{
    CCliTest test;
    const std::string help = test.Run({"check", "--help"}).Output;
    for (const char* word :
         {"FILE.od7", "ondara7.bin", "Ondara7Orig.bin", "Ondara7.inp", "Ctrl+C", "130", "131", "143"})
    {
        EXPECT_THAT(help, HasSubstr(word));
    }
}
