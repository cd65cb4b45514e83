#include "core/engine/CRunController.h"

#include "core/results/LastLoadName.h"
#include "tests/core/engine/CEngineProject.h"
#include "tests/support/CClosedFolder.h"

#include <algorithm>
#include <filesystem>
#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{
constexpr const char* kSuccess = "Calculation Complete: The calculation completed successfully.";
constexpr const char* kFailure = "Calculation did not complete: The calculation did not complete.\nThis is "
                                 "probably due to an error during "
                                 "execution.\nPlease ensure the input file to be correct\nand try again.";
constexpr const char* kIncomplete = "Calculation Incomplete: The calculation did not complete.";
constexpr const char* kNoLog = "File Read Error: Error reading log file!";

/// A complete project, an engine that is scripted, and an owner that records.
struct CRunTest : CEngineProject, CRunOwner
{
    CRunTest()
    {
        Session.BaseDir = Folder.Path();
        Project.InputFilePath = "/ships/frigate.v2.od7";
        Controller.Complete = [this](const std::string& path)
        {
            Event("complete " + path);
            Project.ResultsLoaded = CompletesWell ? 1 : 0;
        };
        Recorder.AtStart = [this] { AtStart(); };
    }

    bool SetTimer(int timer, int milliseconds) override
    {
        Event("set timer " + std::to_string(timer) + " to " + std::to_string(milliseconds));
        return TimerWorks;
    }
    bool KillTimer(int timer) override
    {
        Event("kill timer " + std::to_string(timer));
        return TimerWorks;
    }
    void ShowRunningWindow() override { Event("show window"); }
    void DestroyRunningWindow() override { Event("destroy window"); }

    void Event(const std::string& event) { Recorder.Events.push_back(event); }
    /// What has happened since the last look.
    std::vector<std::string> Events()
    {
        std::vector<std::string> events;
        events.swap(Recorder.Events);
        return events;
    }

    /// What a good engine leaves.
    void WriteGoodResults() const
    {
        Folder.Write("ondara7.bin", "results CBDW");
        Folder.Write("ondara7.out", "listing");
        Folder.Write("ondara7.log", "0\n");
    }
    /// A tick behind the engine's end.
    void EndEngine()
    {
        Recorder.Running = false;
        EXPECT_TRUE(Controller.Tick(kRunTimer));
    }
    /// A whole run with an engine that does what is told.
    void RunWith(const std::function<void()>& engine)
    {
        AtStart = engine;
        Controller.Run();
        EndEngine();
    }

    bool TimerWorks = true;
    bool CompletesWell = true;
    std::function<void()> AtStart = [this] { WriteGoodResults(); };
    CRunController Controller{Project, Folder.Path(), Recorder.Platform, *this};
    const std::string Results = Folder.File("ondara7.bin");
    const std::string StartEvent = "start OE7.exe in " + Folder.Path();
};
} // namespace

TEST(RunController, WritesTheInputAndStartsTheEngineInItsFolder)
{
    CRunTest test;
    std::string folderAtStart;
    test.AtStart = [&] { folderAtStart = fs::current_path(); };
    fs::current_path("/");
    test.Controller.Run();
    EXPECT_EQ(folderAtStart, test.Folder.Path());
    EXPECT_TRUE(FileExists(test.Folder.File("Ondara7.inp")));
    EXPECT_EQ(test.Project.EngineRunning, 1);
    EXPECT_TRUE(test.Controller.IsRunning());
    EXPECT_THAT(test.Events(),
                ElementsAre(test.StartEvent, "wait", "show window", "set timer 4 to 750", "arrow"));
}

TEST(RunController, MakesTheEnginesFilesEmptyBeforeAnythingIsTested)
{
    CRunTest test;
    test.Project.SHIPLEN.Set(-1);
    test.Controller.Run();
    EXPECT_EQ(FileContent(test.Folder.File("ondara7.out")), "");
    EXPECT_EQ(FileContent(test.Results), "");
}

TEST(RunController, MakesThemAlsoWhereAGainFileIsMissing)
{
    CRunTest test;
    test.Project.RudderGainFileUsed = 1;
    test.Project.RudderGainFile = "/nowhere/rudder.txt";
    test.Controller.Run();
    EXPECT_EQ(FileContent(test.Folder.File("ondara7.out")), "");
    EXPECT_EQ(FileContent(test.Results), "");
}

TEST(RunController, AListingOfBeforeStaysAndTakesTheOwnSpelling)
{
    CRunTest test;
    test.AtStart = [] {};
    test.Folder.Write("Ondara7.out", "listing of before");
    test.Controller.Run();
    EXPECT_EQ(FileContent(test.Folder.File("ondara7.out")), "listing of before");
    EXPECT_FALSE(FileExists(test.Folder.File("Ondara7.out")));
}

TEST(RunController, ResultsOfBeforeAreGoneWhenTheEngineStarts)
{
    for (const char* name : {"ondara7.bin", "Ondara7.bin"})
    {
        CRunTest test;
        test.Folder.Write(name, "old CBDW");
        bool there = true;
        test.AtStart = [&] { there = FileExists(test.Results) || FileExists(test.Folder.File(name)); };
        test.Controller.Run();
        EXPECT_FALSE(there);
        test.EndEngine();
        EXPECT_THAT(test.Recorder.Messages, Contains(kFailure));
    }
}

TEST(RunController, ResultsOfBeforeThatCanNotBeDeletedAreNeverTakenForNewOnes)
{
    for (const unsigned mode : {0666U, 0444U}) // they can be emptied; not even that
    {
        CRunTest test;
        for (const char* name : {"ondara7.bin", "ondara7.out", "ondara7.log", "Ondara7.inp"})
        {
            fs::permissions(test.Folder.Write(name, "old CBDW"), fs::perms(0666));
        }
        fs::permissions(test.Results, fs::perms(mode));
        test.AtStart = [] {};
        {
            const CClosedFolder closed(test.Folder.Path());
            test.Controller.Run();
            test.EndEngine();
        }
        EXPECT_EQ(FileContent(test.Results), mode == 0666 ? "" : "old CBDW");
        EXPECT_THAT(test.Recorder.Started, ElementsAre(test.StartEvent));
        EXPECT_THAT(test.Recorder.Messages, ElementsAre(kFailure));
        EXPECT_EQ(test.Project.ResultsFilePath, "");
    }
}

TEST(RunController, AGoodRunIsToldAndKept)
{
    CRunTest test;
    test.Controller.Run();
    test.Events();
    test.EndEngine();
    EXPECT_THAT(test.Events(), ElementsAre("wait", "kill timer 4", "complete " + test.Results,
                                           "destroy window", kSuccess, "arrow", "arrow"));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::None));
    EXPECT_EQ(LastLoadName(test.Recorder), "/ships/frigate.v2.tv7");
    EXPECT_EQ(test.Project.ResultsFilePath, test.Results);
    EXPECT_FALSE(test.Controller.IsRunning());
    EXPECT_EQ(test.Project.EngineRunning, 1) << "until the next run";
}

TEST(RunController, TheEngineOfAVeryFastRunIsGoneAtTheFirstTick)
{
    CRunTest test;
    test.Recorder.AtStart = [&]
    {
        test.WriteGoodResults();
        test.Recorder.Running = false;
    };
    test.Controller.Run();
    EXPECT_TRUE(test.Controller.IsRunning());
    EXPECT_TRUE(test.Controller.Tick(kRunTimer));
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kSuccess));
}

TEST(RunController, ATickWhileTheEngineRunsDoesNothing)
{
    CRunTest test;
    test.Controller.Run();
    test.Events();
    EXPECT_TRUE(test.Controller.Tick(kRunTimer));
    EXPECT_TRUE(test.Controller.IsRunning());
    EXPECT_THAT(test.Events(), ElementsAre("wait", "arrow"));
}

TEST(RunController, ATickOfAnotherTimerIsNotItsOwn)
{
    CRunTest test;
    test.Controller.Run();
    test.Recorder.Running = false;
    test.Events();
    EXPECT_FALSE(test.Controller.Tick(1234));
    EXPECT_TRUE(test.Controller.IsRunning());
    EXPECT_THAT(test.Events(), IsEmpty());
}

TEST(RunController, ATickThatComesLateFindsNothingToDo)
{
    CRunTest test;
    test.RunWith([&] { test.WriteGoodResults(); });
    test.Events();
    EXPECT_TRUE(test.Controller.Tick(kRunTimer));
    EXPECT_THAT(test.Events(), ElementsAre("wait", "arrow"));
}

TEST(RunController, ATickThatComesInWhileARunIsEndedFindsNothingToDo)
{
    CRunTest test;
    test.Controller.Complete = [&](const std::string&)
    {
        test.Event("complete");
        if (std::count(test.Recorder.Events.begin(), test.Recorder.Events.end(), "complete") == 1)
        {
            EXPECT_TRUE(test.Controller.Tick(kRunTimer)); // a message box lets it in
        }
        test.Project.ResultsLoaded = 1;
    };
    test.Controller.Run();
    test.Events();
    test.EndEngine();
    EXPECT_THAT(test.Events(), ElementsAre("wait", "kill timer 4", "complete", "wait", "arrow",
                                           "destroy window", kSuccess, "arrow", "arrow"));
}

TEST(RunController, WithoutTheEndMarkerTheRunHasFailed)
{
    CRunTest test;
    test.Controller.Run();
    test.Folder.Write("ondara7.bin", "results CBDW ");
    test.Folder.Write("ondara7.log", "0\n");
    test.Events();
    test.EndEngine();
    EXPECT_THAT(test.Events(),
                ElementsAre("wait", "kill timer 4", "destroy window", "beep", kFailure, "arrow", "arrow"));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::None));
    EXPECT_EQ(LastLoadName(test.Recorder), "");
    EXPECT_EQ(test.Project.ResultsFilePath, "");
}

TEST(RunController, AResultsFileOfFewerThanFourBytesFails)
{
    CRunTest test;
    test.RunWith([&] { test.Folder.Write("ondara7.bin", "BDW"); });
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kFailure, kNoLog));
}

TEST(RunController, AnEngineThatWritesNothingFails)
{
    CRunTest test;
    test.RunWith([] {});
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kFailure, kNoLog));
}

TEST(RunController, AFailedRunShowsTheLogThatReportsIt)
{
    CRunTest test;
    test.RunWith([&] { test.Folder.Write("ondara7.log", "1 no convergence\n"); });
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kFailure));
    EXPECT_EQ(test.Recorder.Started.back(), "text " + test.Folder.File("ondara7.log"));
}

TEST(RunController, ALogThatBeginsWithOneIsShownAfterTheMessageOfAGoodRun)
{
    CRunTest test;
    test.AtStart = [&]
    {
        test.WriteGoodResults();
        test.Folder.Write("ondara7.log", "1 a warning\n");
    };
    test.Controller.Run();
    test.Events();
    test.EndEngine();
    EXPECT_THAT(test.Events(),
                ElementsAre("wait", "kill timer 4", "complete " + test.Results, "destroy window", kSuccess,
                            "arrow", "text " + test.Folder.File("ondara7.log"), "arrow"));
}

TEST(RunController, AfterAFailedCompletionTheLogAloneIsLookedAt)
{
    CRunTest test;
    test.CompletesWell = false;
    test.Project.ADDMASS.Set(4);
    test.Folder.Write("Ondara7_DimHyCo.csv", "table");
    test.RunWith(
        [&]
        {
            test.WriteGoodResults();
            test.Folder.Write("ondara7.log", "-1\n");
        });
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
    EXPECT_EQ(test.Recorder.Started.back(), "text " + test.Folder.File("ondara7.log"));
    EXPECT_EQ(LastLoadName(test.Recorder), "");
    EXPECT_EQ(test.Project.ResultsFilePath, "");
    EXPECT_TRUE(FileExists(test.Folder.File("Ondara7_DimHyCo.csv")));
    EXPECT_EQ(test.Recorder.Cursors.back(), ECursor::Arrow);
}

TEST(RunController, AGoodRunKeepsTheTablesAfterTheLog)
{
    CRunTest test;
    test.Project.ADDMASS.Set(4);
    test.Project.EXCITE.Set(3);
    test.Project.InputFilePath = test.Folder.File("ship.od7");
    test.RunWith(
        [&]
        {
            test.WriteGoodResults();
            test.Folder.Write("Ondara7_DimHyCo.csv", "coefficients");
            test.Folder.Write("Ondara7_WaveForce.csv", "forces");
        });
    EXPECT_EQ(FileContent(test.Folder.File("ship_Hyd.csv")), "coefficients");
    EXPECT_EQ(FileContent(test.Folder.File("ship_Wav.csv")), "forces");
    EXPECT_FALSE(FileExists(test.Folder.File("Ondara7_DimHyCo.csv")));
    EXPECT_FALSE(FileExists(test.Folder.File("Ondara7_WaveForce.csv")));
}

TEST(RunController, TheLogComesBeforeTheTableOfCoefficientsAndThatBeforeTheWaveForces)
{
    CRunTest test;
    test.Project.ADDMASS.Set(4);
    test.Project.EXCITE.Set(3);
    test.Project.InputFilePath = test.Folder.File("ship.od7");
    for (const char* name : {"ship_Hyd.csv", "ship_Wav.csv"})
    {
        fs::permissions(test.Folder.Write(name, "asked about"), fs::perms::owner_read);
    }
    test.AtStart = [&]
    {
        test.WriteGoodResults();
        test.Folder.Write("ondara7.log", "1 a warning\n");
    };
    test.Controller.Run();
    test.Events();
    test.EndEngine();
    const std::vector<std::string> events = test.Events();
    const auto after = std::find(events.begin(), events.end(), kSuccess);
    ASSERT_EQ(events.end() - after, 6);
    EXPECT_EQ(after[2], "text " + test.Folder.File("ondara7.log"));
    EXPECT_THAT(after[3], HasSubstr("ship_Hyd.csv"));
    EXPECT_THAT(after[4], HasSubstr("ship_Wav.csv"));
}

TEST(RunController, ResultsOfAnotherSpellingAreTheResults)
{
    CRunTest test;
    test.RunWith(
        [&]
        {
            test.Folder.Write("Ondara7.bin", "results CBDW");
            fs::last_write_time(test.Folder.File("ondara7.out"), fs::file_time_type::min());
            test.Folder.Write("Ondara7.out", "new listing");
            test.Folder.Write("Ondara7.log", "0\n");
        });
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kSuccess));
    EXPECT_EQ(FileContent(test.Folder.File("ondara7.out")), "new listing");
}

TEST(RunController, TheLastNameOfAProjectWithoutAFileIsMadeAllTheSame)
{
    for (const auto& [path, name] : {std::pair("noname", "noname.tv7"), std::pair("", ".tv7")})
    {
        CRunTest test;
        test.Project.InputFilePath = path;
        test.RunWith([&] { test.WriteGoodResults(); });
        EXPECT_EQ(LastLoadName(test.Recorder), name);
    }
}

TEST(RunController, AMissingEnginePassesWithoutAWordAndArmsNoTimer)
{
    for (const EStart start : {EStart::NotFound, EStart::OutOfMemory, EStart::Refused})
    {
        CRunTest test;
        test.Recorder.Start = start;
        test.Project.EngineRunning = 1;
        test.Controller.Run();
        EXPECT_EQ(test.Project.EngineRunning, 0);
        EXPECT_FALSE(test.Controller.IsRunning());
        EXPECT_THAT(test.Events(), ElementsAre(test.StartEvent, "wait", "arrow"));
    }
}

TEST(RunController, AFirstRunThatLacksAValueShowsTwoBoxes)
{
    CRunTest test;
    test.Project.SHIPLEN.Set(-1);
    test.Controller.Run();
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre(Told("You have not specified a\nlength between perpendiculars."), kIncomplete));
    EXPECT_EQ(test.Recorder.Icons.back(), EIcon::Warning);
    EXPECT_THAT(test.Recorder.Started, IsEmpty());
}

TEST(RunController, AfterAGoodRunTheEngineIsStartedOnAnInputThatIsCutShort)
{
    CRunTest test;
    test.RunWith([&] { test.WriteGoodResults(); });
    test.Recorder.Messages.clear();
    test.Project.SHIPLEN.Set(-1);
    test.RunWith([] {});
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre(Told("You have not specified a\nlength between perpendiculars."), kFailure));
    EXPECT_EQ(test.Recorder.Started.size(), 2U);
}

TEST(RunController, WithBothGainFilesMissingTheMessageIsForTheRudderOnly)
{
    CRunTest test;
    test.Project.RudderGainFileUsed = 1;
    test.Project.RudderGainFile = "rudder.txt";
    test.Project.FinGainFileUsed = 1;
    test.Project.FinGainFile = "/nowhere/fin.txt";
    test.Controller.Run();
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("Select a file: " + test.Folder.File("rudder.txt") +
                            " does not exist.  Please make sure the file is created prior to calculations."));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::Stop));
    EXPECT_FALSE(FileExists(test.Folder.File("Ondara7.inp"))) << "nothing is written";
    EXPECT_THAT(test.Recorder.Started, IsEmpty());
}

TEST(RunController, AMissingGainFileAfterAGoodRunStartsTheEngineOnTheInputOfBefore)
{
    CRunTest test;
    test.RunWith([&] { test.WriteGoodResults(); });
    const std::string input = test.Text();
    test.Recorder.Messages.clear();
    test.Project.ProjectTitle = "another";
    test.Project.FinGainFileUsed = 1;
    test.Project.FinGainFile = "/nowhere/fin.txt";
    test.Controller.Run();
    EXPECT_EQ(test.Text(), input);
    EXPECT_EQ(test.Recorder.Messages.size(), 1U);
    EXPECT_THAT(test.Recorder.Started, ElementsAre(test.StartEvent, test.StartEvent));
}

TEST(RunController, AfterAGoodRunAMissingGainFileAndAMissingEngineAreAwaitedAsARun)
{
    CRunTest test;
    test.RunWith([&] { test.WriteGoodResults(); });
    test.Project.FinGainFileUsed = 1;
    test.Project.FinGainFile = "/nowhere/fin.txt";
    test.Recorder.Start = EStart::NotFound;
    test.Events();
    test.Controller.Run();
    EXPECT_EQ(test.Project.EngineRunning, 1) << "left from the run before";
    EXPECT_TRUE(test.Controller.IsRunning());
    EXPECT_THAT(test.Events(), ElementsAre(test.Recorder.Messages.back(), test.StartEvent, "wait",
                                           "show window", "set timer 4 to 750", "arrow"));
    test.EndEngine();
    EXPECT_EQ(test.Recorder.Messages.back(), kFailure);
}

TEST(RunController, ASecondRunStartsASecondEngineAndKeepsTheOneWindow)
{
    CRunTest test;
    test.Controller.Run();
    test.Events();
    bool resultsAtSecondStart = true;
    test.AtStart = [&] { resultsAtSecondStart = FileExists(test.Results); };
    test.Controller.Run();
    EXPECT_FALSE(resultsAtSecondStart);
    EXPECT_THAT(test.Events(), ElementsAre(test.StartEvent, "wait", "set timer 4 to 750", "arrow"));
}

TEST(RunController, AFailedSecondStartLeavesTheFirstRunAwaited)
{
    CRunTest test;
    test.Controller.Run();
    test.Recorder.Start = EStart::NotFound;
    test.Controller.Run();
    EXPECT_EQ(test.Project.EngineRunning, 0);
    EXPECT_TRUE(test.Controller.IsRunning());
    test.WriteGoodResults();
    test.EndEngine();
    EXPECT_THAT(test.Recorder.Messages, ElementsAre(kSuccess));
}

TEST(RunController, ATimerThatFailsIsToldOf)
{
    CRunTest test;
    test.TimerWorks = false;
    test.Controller.Run();
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("IDT_TIMER_0: Unable to obtain timer"));
    test.EndEngine();
    EXPECT_THAT(test.Recorder.Messages, ElementsAre("IDT_TIMER_0: Unable to obtain timer",
                                                    "StopTimer: Unable to kill timer: 4", kSuccess));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::None, EIcon::None, EIcon::None));
}

TEST(RunController, ARunCanBeStoppedWithoutAWord)
{
    CRunTest test;
    test.Controller.Run();
    test.Events();
    test.Controller.Stop();
    EXPECT_FALSE(test.Controller.IsRunning());
    EXPECT_THAT(test.Events(), ElementsAre("end", "kill timer 4", "destroy window"));
    test.Controller.Tick(kRunTimer);
    EXPECT_THAT(test.Events(), ElementsAre("wait", "arrow"));
}

TEST(RunController, AnEngineFolderThatIsGoneEndsInMessages)
{
    CRunTest test;
    fs::remove_all(test.Folder.Path());
    test.Controller.Run();
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("Error Saving File: The file could not be saved.", kIncomplete));
}

TEST(Graph, StartsTheViewerWithTheResultsInUse)
{
    CRunTest test;
    test.Project.ResultsFilePath = "/a folder/kept.tv7";
    test.Controller.StartGraph();
    EXPECT_THAT(test.Recorder.Started,
                ElementsAre("show Tervis200.exe in " + test.Folder.Path() + ": /a folder/kept.tv7"));
    EXPECT_THAT(test.Recorder.Messages, IsEmpty());
}

TEST(Graph, AViewerThatDoesNotStartIsToldByItsReason)
{
    CRunTest test;
    for (const EStart start : {EStart::OutOfMemory, EStart::NotFound, EStart::Refused})
    {
        test.Recorder.Start = start;
        test.Controller.StartGraph();
    }
    EXPECT_THAT(test.Recorder.Messages,
                ElementsAre("Out of Memory: There was insufficient memory to start the application.",
                            "Viewer Not Found: Tervis was not found!"));
    EXPECT_THAT(test.Recorder.Icons, ElementsAre(EIcon::None, EIcon::Stop));
}
