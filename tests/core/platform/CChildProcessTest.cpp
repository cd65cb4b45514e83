#include "core/platform/CChildProcess.h"

#include "core/platform/Files.h"
#include "tests/support/CTestFolder.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace
{
constexpr const char* kShell = "/bin/sh";

bool Becomes(const std::function<bool()>& holds)
{
    const auto end = steady_clock::now() + std::chrono::seconds(20);
    while (!holds() && steady_clock::now() < end)
    {
        std::this_thread::sleep_for(milliseconds(5));
    }
    return holds();
}

bool Ends(CChildProcess& process)
{
    return Becomes([&] { return !process.IsRunning(); });
}

/// What a shell script leaves in the file `said` of its current folder.
std::string SaidBy(const CTestFolder& folder, const std::string& script)
{
    fs::current_path(folder.Path());
    CChildProcess process;
    EXPECT_EQ(process.Start(kShell, {"-c", script}), EStart::Started);
    EXPECT_TRUE(Ends(process));
    return FileContent(folder.File("said"));
}

bool IsAlive(pid_t process)
{
    return ::kill(process, 0) == 0;
}

/// Whether a process ends whose own parent is gone: the system takes it away, in its own time.
bool GoesAway(pid_t process)
{
    const std::string status = "/proc/" + std::to_string(process) + "/stat";
    return Becomes(
        [&]
        {
            const auto state = ReadFile(status, 1000);
            return !IsAlive(process) || !state || state->find(") Z ") != std::string::npos;
        });
}

pid_t NumberIn(const std::string& path)
{
    return static_cast<pid_t>(std::atoi(FileContent(path).c_str()));
}
} // namespace

TEST(ChildProcess, RunsUntilItsProgramEnds)
{
    CChildProcess process;
    EXPECT_FALSE(process.IsRunning());
    EXPECT_EQ(process.Start("/bin/sleep", {"0.2"}), EStart::Started);
    EXPECT_TRUE(process.IsRunning());
    EXPECT_TRUE(Ends(process));
    EXPECT_FALSE(process.IsRunning());
}

TEST(ChildProcess, AnEndedProgramLeavesNothingBehind)
{
    CChildProcess process;
    EXPECT_EQ(process.Start("/bin/true"), EStart::Started);
    EXPECT_TRUE(Ends(process));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "there is still a child";
}

TEST(ChildProcess, AProgramThatIsNotThereIsNotFound)
{
    CChildProcess process;
    EXPECT_EQ(process.Start("/nowhere/OE7"), EStart::NotFound);
    EXPECT_EQ(process.Start("/etc/passwd/OE7"), EStart::NotFound);
    EXPECT_FALSE(process.IsRunning());
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST(ChildProcess, AFileThatIsNoProgramIsRefused)
{
    const CTestFolder folder;
    const std::string text = folder.Write("OE7", "no program");
    CChildProcess process;
    EXPECT_EQ(process.Start(text), EStart::Refused);
    fs::permissions(text, fs::perms::owner_all);
    EXPECT_EQ(process.Start(text), EStart::Refused);
    EXPECT_EQ(process.Start(folder.Path()), EStart::Refused);
}

TEST(ChildProcess, ASecondStartIsRefusedAsLongAsTheFirstRuns)
{
    CChildProcess process;
    EXPECT_EQ(process.Start("/bin/sleep", {"100"}), EStart::Started);
    EXPECT_EQ(process.Start("/bin/true"), EStart::Refused);
    process.End();
    EXPECT_EQ(process.Start("/bin/true"), EStart::Started);
    EXPECT_TRUE(Ends(process));
}

TEST(ChildProcess, WorksInTheCurrentFolderWithTheArgumentsAsTheyAre)
{
    const CTestFolder folder;
    EXPECT_EQ(SaidBy(folder, "pwd >said"), folder.Path() + "\n");
    fs::current_path(folder.Path());
    CChildProcess process;
    EXPECT_EQ(process.Start(kShell, {"-c", "echo \"$1|$2\" >said", "name", "a  b", "$HOME"}),
              EStart::Started);
    EXPECT_TRUE(Ends(process));
    EXPECT_EQ(FileContent(folder.File("said")), "a  b|$HOME\n");
}

TEST(ChildProcess, ItsStandardStreamsLeadNowhere)
{
    const CTestFolder folder;
    EXPECT_EQ(SaidBy(folder, "for k in 0 1 2; do readlink /proc/self/fd/$k; done >list; mv list said"),
              "/dev/null\n" + folder.File("list") + "\n/dev/null\n");
    testing::internal::CaptureStdout();
    SaidBy(folder, "echo to the screen; : >said");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(ChildProcess, ItsStandardStreamsLeadNowhereAlsoFromAProgramWithoutAny)
{
    const CTestFolder folder;
    fs::current_path(folder.Path());
    const pid_t streamless = ::fork();
    if (streamless == 0)
    {
        ::close_range(STDIN_FILENO, STDERR_FILENO, 0);
        CChildProcess process;
        static_cast<void>(process.Start(
            kShell,
            {"-c",
             "for k in 0 1 2; do readlink /proc/$$/fd/$k || echo closed; done | cat >list; mv list said"}));
        static_cast<void>(Ends(process));
        ::_exit(0);
    }
    ::waitpid(streamless, nullptr, 0);
    ASSERT_TRUE(FileExists(folder.File("said")));
    EXPECT_EQ(FileContent(folder.File("said")), "/dev/null\n/dev/null\n/dev/null\n");
}

TEST(ChildProcess, GetsNoOtherOpenFile)
{
    const CTestFolder folder;
    const int open = ::fcntl(STDERR_FILENO, F_DUPFD, 50); // would be inherited by default
    const std::string place = "/proc/$$/fd/" + std::to_string(open);
    EXPECT_EQ(SaidBy(folder, "if [ -e " + place + " ]; then echo open; else echo closed; fi >said"),
              "closed\n");
    ::close(open);
}

TEST(ChildProcess, SignalsActOnItAsByDefault)
{
    const CTestFolder folder;
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    sigset_t blocked;
    sigset_t mask;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &blocked, &mask);
    const std::string said = SaidBy(folder, "grep -E 'Sig(Ign|Blk)' /proc/self/status >said");
    ::sigprocmask(SIG_SETMASK, &mask, nullptr);
    std::signal(SIGXFSZ, before);
    EXPECT_EQ(said, "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n");
}

TEST(ChildProcess, IsTheFirstOfAGroupOfItsOwn)
{
    const CTestFolder folder;
    EXPECT_EQ(SaidBy(folder, "set -- $(cat /proc/$$/stat); [ \"$1\" = \"$5\" ] && echo yes >said"), "yes\n");
}

TEST(ChildProcess, EndTakesItsWholeGroupAway)
{
    const CTestFolder folder;
    fs::current_path(folder.Path());
    CChildProcess process;
    EXPECT_EQ(process.Start(kShell, {"-c", "sleep 100 & echo $! >child.new; mv child.new child; wait"}),
              EStart::Started);
    ASSERT_TRUE(Becomes([&] { return FileExists(folder.File("child")); }));
    process.End();
    EXPECT_FALSE(process.IsRunning());
    EXPECT_TRUE(GoesAway(NumberIn(folder.File("child"))));
}

TEST(ChildProcess, EndTakesThoseOfItsGroupAwayThatDoNotListen)
{
    const CTestFolder folder;
    fs::current_path(folder.Path());
    CChildProcess process;
    EXPECT_EQ(process.Start(kShell,
                            {"-c", "sh -c 'trap \"\" TERM; echo $$ >child.new; mv child.new child; while :; "
                                   "do sleep 0.05; done' & wait"}),
              EStart::Started);
    ASSERT_TRUE(Becomes([&] { return FileExists(folder.File("child")); }));
    process.End();
    EXPECT_TRUE(GoesAway(NumberIn(folder.File("child"))));
}

TEST(ChildProcess, EndAsksItsWholeGroup)
{
    const CTestFolder folder;
    fs::current_path(folder.Path());
    CChildProcess process;
    // The first of the group waits on until the second has ended.
    EXPECT_EQ(
        process.Start(kShell, {"-c", "trap : TERM; sh -c 'trap \"echo asked >said; exit\" TERM; : >ready; "
                                     "while :; do sleep 0.05; done' & wait; wait"}),
        EStart::Started);
    ASSERT_TRUE(Becomes([&] { return FileExists(folder.File("ready")); }));
    process.End();
    ASSERT_TRUE(FileExists(folder.File("said")));
    EXPECT_EQ(FileContent(folder.File("said")), "asked\n");
}

TEST(ChildProcess, EndAsksFirst)
{
    const CTestFolder folder;
    fs::current_path(folder.Path());
    CChildProcess process;
    EXPECT_EQ(
        process.Start(kShell,
                      {"-c", "trap 'echo asked >said; exit' TERM; : >ready; while :; do sleep 0.05; done"}),
        EStart::Started);
    ASSERT_TRUE(Becomes([&] { return FileExists(folder.File("ready")); }));
    process.End();
    EXPECT_EQ(FileContent(folder.File("said")), "asked\n");
}

TEST(ChildProcess, EndDoesNotAskTwice)
{
    const CTestFolder folder;
    fs::current_path(folder.Path());
    CChildProcess process;
    EXPECT_EQ(process.Start(kShell, {"-c", "trap '' TERM; : >ready; while :; do sleep 0.05; done"}),
              EStart::Started);
    ASSERT_TRUE(Becomes([&] { return FileExists(folder.File("ready")); }));
    const auto start = steady_clock::now();
    process.End();
    const auto taken = steady_clock::now() - start;
    EXPECT_GE(taken, milliseconds(1500)) << "it has two seconds to listen";
    EXPECT_LE(taken, std::chrono::seconds(15));
    EXPECT_FALSE(process.IsRunning());
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST(ChildProcess, EndWorksOnAStoppedProgramAndOnNone)
{
    CChildProcess none;
    none.End();
    const CTestFolder folder;
    fs::current_path(folder.Path());
    CChildProcess process;
    EXPECT_EQ(process.Start(kShell, {"-c", "echo $$ >number.new; mv number.new number; kill -STOP $$"}),
              EStart::Started);
    ASSERT_TRUE(Becomes([&] { return FileExists(folder.File("number")); }));
    EXPECT_TRUE(process.IsRunning());
    const auto start = steady_clock::now();
    process.End();
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_FALSE(process.IsRunning());
}

TEST(ChildProcess, ADetachedProgramHasNoParentHere)
{
    const CTestFolder folder;
    fs::current_path(folder.Path());
    EXPECT_EQ(
        CChildProcess::StartDetached(kShell, {"-c", "echo $1 >new; mv new said", "name", "an argument"}),
        EStart::Started);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_TRUE(Becomes([&] { return FileExists(folder.File("said")); }));
    EXPECT_EQ(FileContent(folder.File("said")), "an argument\n");
    EXPECT_EQ(CChildProcess::StartDetached("/nowhere/viewer", {}), EStart::NotFound);
    EXPECT_EQ(CChildProcess::StartDetached(folder.Path(), {}), EStart::Refused);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}
