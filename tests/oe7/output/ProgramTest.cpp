#include "tests/support/CTestFolder.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdio>

#include <sys/wait.h>

namespace
{
using testing::HasSubstr;
using testing::StartsWith;

struct CEnded
{
    int Code;
    std::string Output; ///< standard output and standard error
};

/// Runs the engine's program in a folder.
CEnded RunProgram(const std::string& folder, const std::string& arguments)
{
    const std::string command =
        "cd '" + folder + "' && '" + ONDARA_BIN_DIR + "/OE7' " + arguments + " 2>&1 </dev/null";
    std::FILE* pipe = ::popen(command.c_str(), "r");
    CEnded ended = {-1, {}};
    std::array<char, 4096> buffer;
    for (std::size_t count = 1; pipe != nullptr && count > 0;)
    {
        count = std::fread(buffer.data(), 1, buffer.size(), pipe);
        ended.Output.append(buffer.data(), count);
    }
    ended.Code = pipe == nullptr ? -1 : WEXITSTATUS(::pclose(pipe));
    return ended;
}

TEST(EngineProgram, TellsItsVersionAndItsOptions)
{
    const CTestFolder folder;
    const CEnded version = RunProgram(folder.Path(), "--version");
    EXPECT_EQ(version.Code, 0);
    EXPECT_EQ(version.Output, "OE7 1.0\n");
    const CEnded help = RunProgram(folder.Path(), "--help");
    EXPECT_EQ(help.Code, 0);
    EXPECT_THAT(help.Output, HasSubstr("--progress"));
    EXPECT_THAT(help.Output, HasSubstr("--threads N"));
}

TEST(EngineProgram, RefusesWhatIsNoOption)
{
    const CTestFolder folder;
    for (const char* arguments : {"--threads 0", "--threads many", "--fast", "Ondara7.inp"})
    {
        EXPECT_EQ(RunProgram(folder.Path(), arguments).Code, 1) << arguments;
    }
}

TEST(EngineProgram, CalculatesInTheCurrentFolder)
{
    const CTestFolder folder;
    const CEnded ended = RunProgram(folder.Path(), "");
    EXPECT_EQ(ended.Code, 1);
    EXPECT_EQ(ended.Output, "OE7: the file Ondara7.inp is not there\n");
    EXPECT_THAT(FileContent(folder.File("ondara7.log")), StartsWith("-1 error: "));
}

TEST(EngineProgram, CalculatesTheReferenceBargeAndShowsItsProgress)
{
    const CTestFolder folder;
    folder.Write("Ondara7.inp", FileContent(SourceFile("tests/oe7/reference/barge.inp")));
    const CEnded ended = RunProgram(folder.Path(), "--progress --threads 2");
    EXPECT_EQ(ended.Code, 0);
    EXPECT_THAT(ended.Output, HasSubstr(" % "));
    EXPECT_THAT(FileContent(folder.File("ondara7.log")), StartsWith("0 completed without problems\n"));
}

} // namespace
