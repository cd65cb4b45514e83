// The command run as a process of its own: on a terminal, and where nobody reads what it says.
#include "tests/cli/CEngineCliTest.h"

#include <array>
#include <csignal>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using testing::ContainsRegex;
using testing::EndsWith;
using testing::StartsWith;

namespace
{
constexpr const char* kProgress = "\rCalculations being performed.  ";
constexpr std::size_t kProgressLength = 34; ///< with a digit and the unit, without the carriage return

[[noreturn]] void ExecuteRun(const CEngineCliTest& test)
{
    fs::current_path(test.Folder.Path());
    ::execl(ONDARA_BIN_DIR "/ondara-cli", "ondara-cli", "--profile", test.Profile.c_str(), "run", "ship.od7",
            "--results", "out.tv7", nullptr);
    ::_exit(99);
}

int ExitCodeOf(pid_t program)
{
    int status = 0;
    ::waitpid(program, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Exit code and all that a run writes on a terminal, as its errors.
CCliRun RunOnTerminal(const CEngineCliTest& test)
{
    int terminal = -1;
    const pid_t program = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (program == 0)
    {
        ExecuteRun(test);
    }
    std::string written;
    std::array<char, 1000> part = {};
    for (ssize_t count = 1; count > 0;)
    {
        count = ::read(terminal, part.data(), part.size()); // fails when the program has gone
        written.append(part.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    ::close(terminal);
    return {ExitCodeOf(program), "", written};
}

/// A message behind a progress line that was taken away, as a terminal gets it.
std::string InPlaceOfTheLine(std::string message)
{
    message.insert(message.size() - 1, "\r");
    return "\r" + std::string(kProgressLength, ' ') + "\r" + message;
}
} // namespace

TEST(CliRunProcess, OnATerminalALineTellsHowLongTheEngineIsAtWork)
{
    CEngineCliTest test;
    test.Engine.Sleep(1300);
    const CCliRun run = RunOnTerminal(test);
    EXPECT_EQ(run.ExitCode, kExitDone);
    EXPECT_THAT(run.Errors, StartsWith(std::string(kProgress) + "0 s" + kProgress));
    EXPECT_THAT(run.Errors, ContainsRegex(std::string(kProgress) + "[1-9] s"));
    EXPECT_THAT(run.Errors, EndsWith(InPlaceOfTheLine(kRunSuccess)));
}

TEST(CliRunProcess, TheLineIsGoneBeforeAFailedCompletionIsTold)
{
    CEngineCliTest test;
    test.Engine.Fail("no-listing");
    const CCliRun run = RunOnTerminal(test);
    EXPECT_EQ(run.ExitCode, kExitFailed);
    EXPECT_THAT(run.Errors, EndsWith(InPlaceOfTheLine(kScanFailure)));
}

TEST(CliRunProcess, ResultsAreKeptAlsoWhereNobodyReadsTheMessages)
{
    CEngineCliTest test;
    test.Engine.Fail("log-warning"); // two messages in front of the copy
    std::array<int, 2> ends = {};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const pid_t program = ::fork();
    if (program == 0)
    {
        std::signal(SIGPIPE, SIG_DFL);
        ::dup2(ends[1], STDERR_FILENO);
        ::close(ends[0]);
        ExecuteRun(test);
    }
    ::close(ends[0]);
    ::close(ends[1]);
    EXPECT_EQ(ExitCodeOf(program), kExitDone);
    EXPECT_TRUE(test.Has("out.tv7"));
}
