#include "core/platform/BundledPrograms.h"
#include "core/platform/CChildProcess.h"
#include "core/platform/CIniProfile.h"
#include "core/results/CResultsCommands.h"
#include "core/results/LastLoadName.h"
#include "tests/cli/CEngineCliTest.h"
#include "tests/cli/Interrupted.h"
#include "tests/support/CVariable.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{
/// A run that would keep its results, as a signal ends it.
CCliRun RunInterruptedBy(int signal)
{
    CEngineCliTest test;
    const CCliRun run = Interrupted(test, {"run", "ship.od7", "--results", "out.tv7"}, signal);
    EXPECT_FALSE(test.Has("out.tv7"));
    return run;
}

/// Whether a good run takes less than a time. One of a few will, also on a machine that has much to do.
bool OneRunTakesLessThan(std::chrono::milliseconds time, const CEngineCliTest& test)
{
    constexpr int attempts = 8;
    for (int k = 0; k < attempts; ++k)
    {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(test.Run({"run", "ship.od7"}), (CCliRun{kExitDone, "", kRunSuccess}));
        if (std::chrono::steady_clock::now() - start < time)
        {
            return true;
        }
    }
    return false;
}
} // namespace

TEST(CliRun, CompletesTheResultsOfAGoodEngine)
{
    CEngineCliTest test;
    EXPECT_EQ(test.Run({"run", "ship.od7"}), (CCliRun{kExitDone, "", kRunSuccess}));
    for (const char* name : {"Ondara7.inp", "ondara7.bin", "ondara7.out", "ondara7.log"})
    {
        EXPECT_TRUE(test.Has(name)) << name;
    }
    EXPECT_EQ(test.Run({"restore", "ondara7.bin", "again.od7"}), Done());
    EXPECT_EQ(test.Run({"report", "ondara7.bin"}), Done());
}

TEST(CliRun, NotesTheResultsInTheSettings)
{
    CEngineCliTest test;
    test.Run({"run", "ship.od7"});
    EXPECT_EQ(LastLoadName(CIniProfile(test.Profile)), test.Folder.File("ship.tv7"));
}

TEST(CliRun, TheResultsNameTheProjectAsItWasGiven)
{
    CEngineCliTest test;
    test.Run({"run", "./ship.od7"});
    EXPECT_EQ(StoredInputFile(test.Folder.File("ondara7.bin")), "./ship.od7");
}

TEST(CliRun, KeepsResultsAndListingUnderAName)
{
    CEngineCliTest test;
    fs::create_directory(test.Folder.File("kept"));
    EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "kept/out.tv7"}),
              (CCliRun{kExitDone, "", kRunSuccess}));
    EXPECT_EQ(test.Content("kept/out.tv7"), test.Content("ondara7.bin"));
    EXPECT_EQ(test.Content("kept/out.out"), test.Content("ondara7.out"));
    EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "kept/other"}).ExitCode, kExitDone);
    EXPECT_TRUE(test.Has("kept/other.tv7"));
}

TEST(CliRun, ResultsThatCanNotBeKeptAreAFailure)
{
    CEngineCliTest test;
    EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "none/out.tv7"}).ExitCode, kExitFailed);
}

TEST(CliRun, WorksInTheBaseFolder)
{
    CEngineCliTest test;
    const CTestFolder engine;
    CScriptedEngine(engine.Path()).Project(test.Folder.File("ship.od7"));
    EXPECT_EQ(test.Run({"--base-dir", engine.Path(), "run", "ship.od7", "--results", "out.tv7"}).ExitCode,
              kExitDone);
    EXPECT_FALSE(test.Has("ondara7.bin"));
    EXPECT_EQ(test.Content("out.tv7"), FileContent(engine.File("ondara7.bin")));
}

TEST(CliRun, AFailedEngineIsToldAndItsLogNamed)
{
    for (const char* how : {"no-file", "crash"})
    {
        CEngineCliTest test;
        test.Engine.Fail(how);
        EXPECT_EQ(test.Run({"run", "ship.od7", "--results", "out.tv7"}),
                  Failed(kRunFailure +
                         ("ondara-cli: a problem is reported in " + test.Folder.File("ondara7.log")) + "\n"));
        EXPECT_FALSE(test.Has("out.tv7"));
    }
}

TEST(CliRun, ResultsWithoutTheEndMarkAreAFailure)
{
    for (const char* how : {"short-file", "no-marker"})
    {
        CEngineCliTest test;
        test.Engine.Fail(how);
        EXPECT_EQ(test.Run({"run", "ship.od7"}), Failed(kRunFailure));
    }
}

TEST(CliRun, AListingThatCanNotBeScannedIsAFailure)
{
    for (const char* how : {"no-listing", "missing-listing-marker GMFLAG"})
    {
        CEngineCliTest test;
        test.Engine.Fail(how);
        EXPECT_EQ(test.Run({"run", "ship.od7"}), Failed(kScanFailure));
        EXPECT_EQ(LastLoadName(CIniProfile(test.Profile)), "");
    }
}

TEST(CliRun, AMissingLogIsToldAfterAGoodRun)
{
    CEngineCliTest test;
    test.Engine.Fail("no-log");
    EXPECT_EQ(
        test.Run({"run", "ship.od7"}),
        (CCliRun{kExitDone, "", std::string(kRunSuccess) + "File Read Error: Error reading log file!\n"}));
}

TEST(CliRun, AMissingEngineIsToldWithThePlacesWhereItWasLookedFor)
{
    CEngineCliTest test;
    const CVariable noPrograms("ONDARA_PROGRAMS", test.Settings.Path()); // the bundled engine isn't there
    fs::remove(test.Folder.File("OE7"));
    std::string places;
    for (const std::string& place :
         BundledProgramPlaces("OE7.exe", test.Folder.Path(), BundledProgramFolder()))
    {
        places += (places.empty() ? " " : ", ") + place;
    }
    EXPECT_EQ(test.Run({"run", "ship.od7"}),
              Failed("ondara-cli: the engine was not found, or may not be executed; it was looked for as" +
                     places + "\n"));
    test.Folder.Write("OE7", "stands there, but is no program");
    EXPECT_THAT(test.Run({"run", "ship.od7"}).Errors,
                HasSubstr("the engine was not found, or may not be executed; "));
}

TEST(CliRun, AnEngineThatTheSystemDoesNotStartIsTold)
{
    CEngineCliTest test;
    fs::permissions(test.Folder.Write("OE7.exe", "MZ"), fs::perms::owner_all);
    const CCliRun run = test.Run({"run", "ship.od7"});
    EXPECT_EQ(run.ExitCode, kExitFailed);
    EXPECT_THAT(run.Errors, HasSubstr("ondara-cli: the engine can't be started; it was looked for as " +
                                      test.Folder.File("OE7.exe") + ", "));
}

TEST(CliRun, AProjectThatLacksAValueStartsNoEngine)
{
    CEngineCliTest test;
    test.Complete();
    test.Project.SHIPLEN.Set(-1);
    test.Write("ship.od7");
    EXPECT_EQ(test.Run({"run", "ship.od7"}),
              Failed("Execution Cannot Continue: You have not specified a\\nlength between perpendiculars.\n"
                     "Calculation Incomplete: The calculation did not complete.\n"));
    EXPECT_FALSE(test.Has("ondara7.log"));
}

TEST(CliRun, AProjectThatIsNotReadWholeStartsNoEngine)
{
    CEngineCliTest test;
    EXPECT_EQ(test.Run({"run", "none.od7"}), Failed(kUnreadable));
    EXPECT_FALSE(test.Has("Ondara7.inp"));
}

TEST(CliRun, AnEngineThatTakesItsTimeIsWaitedForWithoutAWord)
{
    CEngineCliTest test;
    test.Engine.Sleep(1500);
    // The pauses between two looks stay below a second, however long the engine works.
    EXPECT_TRUE(OneRunTakesLessThan(std::chrono::milliseconds(2400), test));
}

TEST(CliRun, AFastEngineCostsNoWholePeriodOfTheTimer)
{
    CEngineCliTest test;
    EXPECT_TRUE(OneRunTakesLessThan(std::chrono::milliseconds(700), test));
}

TEST(CliRun, CtrlCEndsTheEngineAndSaysSo)
{
    EXPECT_EQ(RunInterruptedBy(SIGINT),
              (CCliRun{130, "", "ondara-cli: interrupted; the engine was ended\n"}));
}

TEST(CliRun, ARequestToTerminateEndsTheEngineToo)
{
    EXPECT_EQ(RunInterruptedBy(SIGTERM),
              (CCliRun{143, "", "ondara-cli: interrupted; the engine was ended\n"}));
}

TEST(CliRun, SoDoOtherSignalsThatEndAProgram)
{
    EXPECT_EQ(RunInterruptedBy(SIGQUIT).ExitCode, 131);
    EXPECT_EQ(RunInterruptedBy(SIGHUP).ExitCode, 129);
}

TEST(CliRun, ItsHelpTellsWhatIsLeftAndOfCtrlC)
{
    CCliTest test;
    const std::string help = test.Run({"run", "--help"}).Output;
    for (const char* word : {"Ondara7.inp", "ondara7.bin", "ondara7.out", "ondara7.log", "_Hyd.csv",
                             "_Wav.csv", "Ctrl+C", "130", "131", "ONDARA_PROGRAMS", "--results OUT.tv7"})
    {
        EXPECT_THAT(help, HasSubstr(word));
    }
}
