// The program itself, as a shell runs it.
#include "tests/cli/CCliTest.h"

#include <cstdlib>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

using testing::ElementsAre;
using testing::StartsWith;

namespace
{
CCliRun RunProgram(const CCliTest& test, const std::string& words)
{
    const std::string output = test.Settings.File("output");
    const std::string errors = test.Settings.File("errors");
    const std::string program = ONDARA_BIN_DIR "/ondara-cli";
    const int status =
        std::system(("cd '" + test.Folder.Path() + "' && XDG_CONFIG_HOME='" + test.Settings.Path() + "' '" +
                     program + "' " + words + " >'" + output + "' 2>'" + errors + "'")
                        .c_str());
    return {WEXITSTATUS(status), FileContent(output), FileContent(errors)};
}
} // namespace

TEST(Program, DoesWhatTheLibraryDoes)
{
    CCliTest test;
    test.Fill();
    const std::string saved = test.Write("in.od7");
    EXPECT_EQ(RunProgram(test, "convert in.od7 out.od7"), Done());
    EXPECT_EQ(test.Content("out.od7"), saved);
    EXPECT_EQ(RunProgram(test, "dump in.od7"), test.Run({"dump", "in.od7"}));
    EXPECT_EQ(RunProgram(test, "dump nothing.od7"), Failed(kUnreadable));
    EXPECT_EQ(RunProgram(test, "sink").ExitCode, 2);
    EXPECT_EQ(RunProgram(test, "--version").Output, test.Run({"--version"}).Output);
}

TEST(Program, KeepsTheUsersOwnSettingsByDefault)
{
    CCliTest test;
    test.Write("in.od7");
    EXPECT_EQ(RunProgram(test, "convert in.od7 out.od7"), Done());
    test.Profile = test.Settings.File("Larkfield Marine Limited/Ondara.ini");
    EXPECT_THAT(test.RecentFiles(), ElementsAre(test.Folder.File("in.od7")));
}

TEST(Program, AFullStandardOutputIsAFailure)
{
    CCliTest test;
    test.Write("in.od7");
    const std::string errors = test.Settings.File("errors");
    const std::string command = "'" ONDARA_BIN_DIR "/ondara-cli' --profile '" + test.Profile + "' dump '" +
                                test.Folder.File("in.od7") + "' >/dev/full 2>'" + errors + "'";
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
    EXPECT_EQ(FileContent(errors), "ondara-cli: the standard output can't be written\n");
}

TEST(Program, TellsOfACurrentFolderThatIsGone)
{
    CCliTest test;
    const CCliRun run =
        RunProgram(test, "--version >/dev/null; mkdir gone; cd gone; rmdir ../gone; '" ONDARA_BIN_DIR
                         "/ondara-cli' new a.od7");
    EXPECT_EQ(run, Failed("ondara-cli: the current folder is gone\n"));
}

TEST(Program, ALimitOnFileSizesKeepsTheLastContent)
{
    CCliTest test;
    const std::string saved = test.Write("in.od7");
    test.Folder.Write("out.od7", "last content");
    const CCliRun run = RunProgram(test, "--version >/dev/null; ulimit -f 2; '" ONDARA_BIN_DIR
                                         "/ondara-cli' convert in.od7 out.od7");
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_THAT(run.Errors, testing::HasSubstr("last content in " + test.Folder.File("out.od7~")));
    EXPECT_EQ(test.Content("out.od7~"), "last content");
    EXPECT_LT(test.Content("out.od7").size(), saved.size());
}
