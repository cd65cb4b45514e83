#include "tests/cli/CCliTest.h"

#include <cstdlib>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{
std::string Page()
{
    CCliTest test;
    const CCliRun run = test.Run({"--man"});
    EXPECT_EQ(run, Printed(run.Output));
    return run.Output;
}
} // namespace

TEST(ManualPage, HasTheSectionsOfAManual)
{
    const std::string page = Page();
    EXPECT_THAT(page, StartsWith(".TH ONDARA\\-CLI 1 "));
    for (const std::string section : {"NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "COMMANDS", "EXIT STATUS",
                                      "ENVIRONMENT", "FILES", "EXAMPLES"})
    {
        EXPECT_THAT(page, HasSubstr("\n.SH " + section + "\n"));
    }
}

TEST(ManualPage, TellsOfEveryCommandAndOption)
{
    const std::string page = Page();
    for (const std::string command :
         {"new", "dump", "convert", "units", "import\\-offsets", "engine\\-input", "waterline\\-input",
          "check", "run", "complete", "restore", "report", "pages", "summary"})
    {
        EXPECT_THAT(page, HasSubstr("\n.SS " + command + "\n\\fB" + command + "\\fR \\fI"));
    }
    for (const std::string option :
         {"\\-h,\\-\\-help", "\\-\\-base\\-dir", "\\-\\-yes", "\\-\\-no", "\\-\\-profile", "\\-\\-version",
          "\\-\\-half", "\\-\\-onto", "\\-\\-to", "\\-\\-results", "\\-\\-save"})
    {
        EXPECT_THAT(page, HasSubstr("\n.TP\n\\fB" + option + "\\fR"));
    }
    EXPECT_THAT(page, Not(HasSubstr("\\-\\-man")));
}

TEST(ManualPage, IsCleanRoff)
{
    CCliTest test;
    const std::string page = test.Folder.Write("ondara-cli.1", Page());
    const std::string findings = test.Folder.File("findings");
    EXPECT_EQ(std::system(("mandoc -T lint -W style " + page + " >" + findings).c_str()), 0)
        << FileContent(findings);
}
