#include "tests/cli/CCliTest.h"
#include "tests/support/RecordText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

using testing::ElementsAre;
using testing::IsEmpty;
using CJson = nlohmann::ordered_json;

namespace
{
std::string WithoutFolder(std::string text, const std::string& folder)
{
    for (auto at = text.find(folder); at != std::string::npos; at = text.find(folder))
    {
        text.replace(at, folder.size(), "FOLDER");
    }
    return text;
}
} // namespace

TEST(CliDump, PrintsTheWholeProject)
{
    CCliTest test;
    test.Fill();
    test.Write("ship.od7");
    const CCliRun run = test.Run({"dump", "ship.od7"});
    EXPECT_EQ(run, Printed(run.Output));
    ExpectGolden(WithoutFolder(run.Output, test.Folder.Path()), "cli/dump.json");
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
}

TEST(CliDump, ShowsWhereTheProjectCameFrom)
{
    CCliTest test;
    test.Write("ship.od7");
    const CJson fields = CJson::parse(test.Run({"dump", "ship.od7"}).Output)["fields"];
    const std::string path = test.Folder.File("ship.od7");
    EXPECT_EQ(fields["InputFilePath"], path);
    EXPECT_EQ(fields["ActiveGeometryFile"], path);
    EXPECT_EQ(fields["ActiveEnvironmentFile"], path);
    EXPECT_EQ(fields["FileMagic"], "od7b");
}

TEST(CliDump, ADamagedFileIsPrintedAsFarAsItArrivedAndFails)
{
    CCliTest test;
    test.Project.ProjectTitle = "Half a ship";
    test.Project.SPEEDCOR.Set(2);
    test.Project.SHIPLEN.Set(120);
    test.Write("ship.od7", WithLineBehind(InputFileText(test.Project), "Record (j)", "junk"));
    const CCliRun run = test.Run({"dump", "ship.od7"});
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_EQ(run.Errors, kUnreadable);
    const CJson whole = CJson::parse(run.Output);
    EXPECT_EQ(whole["fields"]["ProjectTitle"], "Half a ship");
    EXPECT_EQ(whole["keywords"]["SPEEDCOR"]["data"], CJson({2}));
    EXPECT_EQ(whole["keywords"]["SHIPLEN"]["data"], CJson({-1}));
}

TEST(CliDump, AFileThatIsNoProjectFilePrintsTheDefaultsAndFails)
{
    CCliTest test;
    test.Write("ship.od7", "title\nO6\n");
    const CCliRun run = test.Run({"dump", "ship.od7"});
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_EQ(run.Errors, kUnreadable);
    const CJson fields = CJson::parse(run.Output)["fields"];
    EXPECT_EQ(fields["ProjectTitle"], "");
    EXPECT_EQ(fields["FileMagic"], "O6");
    EXPECT_EQ(fields["InputFilePath"], "");
}

TEST(CliDump, AFileThatCanNotBeOpenedPrintsNothing)
{
    CCliTest test;
    EXPECT_EQ(test.Run({"dump", "nothing.od7"}), Failed(kUnreadable));
    EXPECT_EQ(test.Run({"dump", test.Folder.Path()}), Failed(kUnreadable));
    EXPECT_THAT(test.Files(), IsEmpty());
}

TEST(CliDump, ANumberBeyondTheRangeOfFloatsIsTheLargest)
{
    CCliTest test;
    const std::string text = InputFileText(test.Project);
    test.Write("ship.od7", WithLineBehind(text, "Record (d)", "1e99 0x1A 0.1"));
    const CJson keywords = CJson::parse(test.Run({"dump", "ship.od7"}).Output)["keywords"];
    EXPECT_EQ(keywords["WVFREQMIN"]["data"].dump(), "[3.4028235e+38]");
    EXPECT_EQ(keywords["WVFREQMAX"]["data"], CJson({26}));
    EXPECT_EQ(keywords["DWVFREQ"]["data"].dump(), "[0.1]");
}

TEST(CliDump, ATitleOfOtherEncodingsComesByteForByte)
{
    CCliTest test;
    test.Project.ProjectTitle = "K\xfc"
                                "ste \xff";
    test.Write("ship.od7");
    const CJson fields = CJson::parse(test.Run({"dump", "ship.od7"}).Output)["fields"];
    EXPECT_EQ(fields["ProjectTitle"], "K\u00fcste \u00ff");
}
