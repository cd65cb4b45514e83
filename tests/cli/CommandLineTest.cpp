#include "cli/CommandLine.h"

#include "tests/cli/CCliTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace
{
constexpr const char* kCommands[] = {
    "new",   "dump", "convert",  "units",   "import-offsets", "engine-input", "waterline-input",
    "check", "run",  "complete", "restore", "report",         "pages",        "summary"};

/// A run that was told how the program is used.
CCliRun Misused(const std::string& fault)
{
    return {kExitUsage, "", "ondara-cli: " + fault + " (ondara-cli --help tells more)\n"};
}
} // namespace

TEST(CommandLine, WithoutACommandItIsWrongUsage)
{
    CCliTest test;
    EXPECT_EQ(test.Run({}), Misused("A command is required"));
    EXPECT_EQ(test.Run({"--yes"}), Misused("A command is required"));
}

TEST(CommandLine, AnUnknownCommandIsWrongUsage)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"sink", "ship.od7"}), Misused("There is no command sink"));
}

TEST(CommandLine, AMissingArgumentIsWrongUsage)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new"}), Misused("OUT.od7 is required"));
    EXPECT_EQ(test.Run({"dump"}), Misused("FILE.od7 is required"));
    EXPECT_EQ(test.Run({"convert", "in.od7"}), Misused("OUT.od7 is required"));
    EXPECT_EQ(test.Run({"dump", "--profile"}).ExitCode, kExitUsage);
}

TEST(CommandLine, AnArgumentTooManyIsWrongUsage)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new", "a.od7", "b.od7"}), Misused("The following argument was not expected: b.od7"));
    EXPECT_EQ(test.Run({"new", "a.od7", "--fast"}),
              Misused("The following argument was not expected: --fast"));
    EXPECT_THAT(test.Files(), IsEmpty());
}

TEST(CommandLine, TwoCommandsAreWrongUsage)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new", "a.od7", "dump", "a.od7"}).ExitCode, kExitUsage);
    EXPECT_THAT(test.Files(), IsEmpty());
}

TEST(CommandLine, BothAnswersAreWrongUsage)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"--yes", "--no", "new", "a.od7"}), Misused("--yes excludes --no"));
    EXPECT_EQ(test.Run({"--no", "--yes", "new", "a.od7"}).ExitCode, kExitUsage);
    EXPECT_THAT(test.Files(), IsEmpty());
}

TEST(CommandLine, EitherAnswerMayBeGiven)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"--yes", "new", "a.od7"}), Done());
    EXPECT_EQ(test.Run({"--no", "new", "b.od7"}), Done());
}

TEST(CommandLine, APathWithoutAFileNameIsWrongUsage)
{
    CCliTest test;
    for (const char* path : {"", ".", "..", "folder/"})
    {
        EXPECT_EQ(test.Run({"new", path}), Misused("OUT.od7: no name of a file"));
    }
    EXPECT_THAT(test.Files(), IsEmpty());
}

TEST(CommandLine, TheProgramsOptionsMayStandBehindTheCommand)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new", "a.od7", "--yes", "--base-dir", "nowhere"}),
              Failed("ondara-cli: nowhere is no folder\n"));
}

TEST(CommandLine, ANameThatBeginsWithADashStandsBehindTwoDashes)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"new", "--", "-a.od7"}), Done());
    EXPECT_THAT(test.Files(), ElementsAre("-a.od7"));
}

TEST(CommandLine, HelpOfTheProgramNamesItsOptionsAndCommands)
{
    CCliTest test;
    const CCliRun run = test.Run({"--help"});
    EXPECT_EQ(run, Printed(run.Output));
    for (const char* option : {"--base-dir DIR", "--yes", "--no", "--profile FILE", "--version", "--help"})
    {
        EXPECT_THAT(run.Output, HasSubstr(option));
    }
    for (const std::string command : kCommands)
    {
        EXPECT_THAT(run.Output, HasSubstr("\n  " + command + " "));
    }
}

TEST(CommandLine, EveryCommandHasHelp)
{
    CCliTest test;
    for (const std::string command : kCommands)
    {
        const CCliRun run = test.Run({command, "--help"});
        EXPECT_EQ(run, Printed(run.Output));
        EXPECT_THAT(run.Output, HasSubstr("Usage: ondara-cli " + command + " [OPTIONS] "));
        EXPECT_THAT(run.Output, EndsWith(".\n"));
    }
}

TEST(CommandLine, HelpOfACommandNamesItsArguments)
{
    CCliTest test;
    EXPECT_THAT(test.Run({"convert", "--help"}).Output,
                AllOf(HasSubstr("IN.od7 REQUIRED"), HasSubstr("OUT.od7 REQUIRED"),
                      HasSubstr("--half both|geometry|environment"), HasSubstr("--onto BASE.od7")));
}

TEST(CommandLine, TellsItsVersion)
{
    CCliTest test;
    const CCliRun run = test.Run({"--version"});
    EXPECT_EQ(run, Printed(run.Output));
    EXPECT_THAT(run.Output, testing::MatchesRegex("ondara-cli [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(CommandLine, HelpThatCannotBeWrittenFails)
{
    for (const char* word : {"--help", "--version", "--man"})
    {
        std::ostream full(nullptr);
        std::ostringstream errors;
        EXPECT_EQ(RunCommandLine({word}, full, errors), kExitFailed);
        EXPECT_EQ(errors.str(), "ondara-cli: the standard output can't be written\n");
    }
}

TEST(CommandLine, TheLastOfAnOptionGivenTwiceCounts)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"--base-dir", "nowhere", "--base-dir", ".", "new", "a.od7"}), Done());
}
