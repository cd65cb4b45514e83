#include "tests/cli/CCliTest.h"
#include "tests/support/RecordText.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace
{
constexpr const char* kEnvironment = R"(<a NAME="Env"></a>)";
constexpr const char* kShip = R"(<a NAME="Geo"></a>)";
} // namespace

TEST(CliSummary, WritesTheDocumentIntoTheBaseFolderAndSaysNothing)
{
    CCliTest test;
    test.Write("ship.od7");
    CTestFolder engine;
    EXPECT_EQ(test.Run({"--base-dir", engine.Path(), "summary", "ship.od7"}), Done());
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
    const std::string text = FileContent(engine.File("iview.html"));
    EXPECT_THAT(text, HasSubstr(kEnvironment));
    EXPECT_THAT(text, HasSubstr(kShip));
    const std::string path = test.Folder.File("ship.od7");
    EXPECT_THAT(text, HasSubstr("Environment: &nbsp&nbsp&nbsp " + path + "<BR>"));
    EXPECT_THAT(text, HasSubstr("Ship Data: &nbsp&nbsp&nbsp " + path + "<BR>"));
}

TEST(CliSummary, TheScopeIsOneHalfOrBoth)
{
    CCliTest test;
    test.Write("ship.od7");
    EXPECT_EQ(test.Run({"summary", "ship.od7", "--scope", "ENV"}), Done());
    EXPECT_THAT(test.Content("iview.html"), HasSubstr(kEnvironment));
    EXPECT_THAT(test.Content("iview.html"), Not(HasSubstr(kShip)));
    EXPECT_EQ(test.Run({"summary", "ship.od7", "--scope", "GEO"}), Done());
    EXPECT_THAT(test.Content("iview.html"), Not(HasSubstr(kEnvironment)));
    EXPECT_THAT(test.Content("iview.html"), HasSubstr(kShip));
    EXPECT_EQ(test.Run({"summary", "ship.od7", "--scope", "BOTH"}), Done());
    EXPECT_THAT(test.Content("iview.html"), HasSubstr(kEnvironment));
    EXPECT_THAT(test.Content("iview.html"), HasSubstr(kShip));
}

TEST(CliSummary, AnUnknownScopeIsWrongUsage)
{
    CCliTest test;
    test.Write("ship.od7");
    for (const char* scope : {"env", "ALL", ""})
    {
        const CCliRun run = test.Run({"summary", "ship.od7", "--scope", scope});
        EXPECT_EQ(run.ExitCode, kExitUsage) << scope;
        EXPECT_EQ(run.Output, "");
        EXPECT_THAT(run.Errors, HasSubstr("--scope"));
    }
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
}

TEST(CliSummary, TheCompanyBlockStandsBesideTheSettings)
{
    CCliTest test;
    test.Write("ship.od7");
    test.Settings.Write("odview.ini", "[Project]\nCompany=Harbour Works\nClientName=Northern Line\n");
    EXPECT_EQ(test.Run({"summary", "ship.od7"}), Done());
    EXPECT_THAT(test.Content("iview.html"), HasSubstr("\n<CENTER><I>Harbour Works</I><BR></CENTER>\n"));
    EXPECT_THAT(test.Content("iview.html"),
                HasSubstr("\n<BR>Client: &nbsp&nbsp&nbsp&nbsp  Northern Line <BR>\n"));
    EXPECT_THAT(test.Content("iview.html"), HasSubstr("\nContract Number: &nbsp&nbsp&nbsp <BR>\n"));
}

TEST(CliSummary, TheTimeIsThatOfTheRun)
{
    CCliTest test;
    test.Write("ship.od7");
    const std::time_t before = std::time(nullptr);
    EXPECT_EQ(test.Run({"summary", "ship.od7"}), Done());
    const std::time_t after = std::time(nullptr);
    bool found = false;
    for (std::time_t moment = before; moment <= after; ++moment)
    {
        char line[80];
        std::strftime(line, sizeof line, ":%M:%S &nbsp&nbsp&nbsp&nbsp&nbsp Date: %Y %m %d <BR>\n",
                      std::localtime(&moment));
        found = found || test.Content("iview.html").find(line) != std::string::npos;
    }
    EXPECT_TRUE(found);
}

TEST(CliSummary, AFileThatIsNotReadWholeWritesNothing)
{
    CCliTest test;
    test.Write("ship.od7", WithLineBehind(InputFileText(test.Project), "Record (t)", "junk"));
    EXPECT_EQ(test.Run({"summary", "ship.od7"}), Failed(kUnreadable));
    EXPECT_EQ(test.Run({"summary", "nothing.od7"}), Failed(kUnreadable));
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
}

TEST(CliSummary, ADocumentThatCanNotBeWrittenFails)
{
    CCliTest test;
    test.Write("ship.od7");
    std::filesystem::create_directory(test.Folder.File("iview.html"));
    EXPECT_EQ(test.Run({"summary", "ship.od7"}), Failed("Error Saving File: The file could not be saved.\n"));
}
