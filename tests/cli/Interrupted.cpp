#include "tests/cli/Interrupted.h"

#include "core/platform/Files.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
[[noreturn]] void Execute(const CEngineCliTest& test, const std::vector<std::string>& words, int signal,
                          const std::string& errors)
{
    std::vector<std::string> all = {"ondara-cli", "--profile", test.Profile};
    all.insert(all.end(), words.begin(), words.end());
    std::vector<char*> arguments;
    for (std::string& word : all)
    {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    fs::current_path(test.Folder.Path());
    static_cast<void>(std::freopen(errors.c_str(), "w", stderr));
    std::signal(signal, SIG_DFL);
    ::execv(ONDARA_BIN_DIR "/ondara-cli", arguments.data());
    ::_exit(99);
}

void ExpectNoProcessIn(const std::string& folder, const std::string& findings)
{
    fs::current_path("/"); // or the test would find itself
    static_cast<void>(
        std::system(("ls -l /proc/*/cwd 2>/dev/null | grep '" + folder + "' >" + findings).c_str()));
    EXPECT_EQ(FileContent(findings), "") << "no process is left in the engine's folder";
}
} // namespace

CCliRun Interrupted(CEngineCliTest& test, const std::vector<std::string>& words, int signal)
{
    test.Engine.Fail("never-ends");
    const std::string errors = test.Settings.File("errors");
    const pid_t program = ::fork();
    if (program == 0)
    {
        Execute(test, words, signal, errors);
    }
    // The engine writes its log first of all.
    for (int k = 0; k < 4000 && !test.Has("ondara7.log"); ++k)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    EXPECT_TRUE(test.Has("ondara7.log"));
    ::kill(program, signal);
    int status = 0;
    ::waitpid(program, &status, 0);
    ExpectNoProcessIn(test.Folder.Path(), test.Settings.File("engines"));
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, "", FileContent(errors)};
}
