#include "tests/cli/CCliTest.h"
#include "tests/support/RecordText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{
constexpr const char* kOffsets = "Metric\n2,FP=0\n0,3\n0.0,0.0\n1.5,2.0\n2.0,5.0\n"
                                 "1,4\n0.0,0.5\n2.5,1.5\n3.5,2.5\n4.5,6.5\n";
} // namespace

TEST(CliImportOffsets, PutsTheStationsIntoTheBase)
{
    CCliTest test;
    test.Project.ProjectTitle = "base";
    test.Write("base.od7");
    test.Write("hull.csv", kOffsets);
    EXPECT_EQ(test.Run({"import-offsets", "hull.csv", "--onto", "base.od7", "out.od7"}), Done());
    test.Recorder.Files = {test.Folder.File("hull.csv")};
    ASSERT_EQ(test.File.ImportOffsets(), 1);
    test.Project.EXCITE.Set(2); // as every file that was read
    test.Project.ADDMASS.Set(3);
    EXPECT_EQ(test.Content("out.od7"), InputFileText(test.Project));
    EXPECT_THAT(test.Content("out.od7"), HasSubstr("2.500 3.500 4.500"));
    EXPECT_THAT(test.Files(), ElementsAre("base.od7", "hull.csv", "out.od7"));
}

TEST(CliImportOffsets, AFaultInTheFileIsToldAndNothingSaved)
{
    CCliTest test;
    test.Write("base.od7");
    test.Write("hull.csv", "Furlongs\n");
    const CCliRun run = test.Run({"import-offsets", "hull.csv", "--onto", "base.od7", "out.od7"});
    EXPECT_EQ(run.ExitCode, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_THAT(run.Errors, StartsWith("Error Reading File: There was an error importing offsets. \\n "));
    EXPECT_THAT(run.Errors, HasSubstr(" \\n\\n Please check your inputs.\n"));
    EXPECT_THAT(test.Files(), ElementsAre("base.od7", "hull.csv"));
}

TEST(CliImportOffsets, AFileThatCanNotBeOpenedSavesNothing)
{
    CCliTest test;
    test.Write("base.od7");
    EXPECT_EQ(test.Run({"import-offsets", "nothing.csv", "--onto", "base.od7", "out.od7"}),
              Failed(kUnreadable));
    EXPECT_THAT(test.Files(), ElementsAre("base.od7"));
}

TEST(CliImportOffsets, ABaseThatIsNotReadWholeSavesNothing)
{
    CCliTest test;
    test.Write("hull.csv", kOffsets);
    test.Write("base.od7", WithLineBehind(InputFileText(test.Project), "Record (j)", "junk"));
    EXPECT_EQ(test.Run({"import-offsets", "hull.csv", "--onto", "base.od7", "out.od7"}), Failed(kUnreadable));
    EXPECT_EQ(test.Run({"import-offsets", "hull.csv", "--onto", "no.od7", "out.od7"}), Failed(kUnreadable));
    EXPECT_THAT(test.Files(), ElementsAre("base.od7", "hull.csv"));
}

TEST(CliImportOffsets, ABaseMustBeGiven)
{
    CCliTest test;
    test.Write("hull.csv", kOffsets);
    EXPECT_EQ(test.Run({"import-offsets", "hull.csv", "out.od7"}),
              (CCliRun{2, "", "ondara-cli: --onto is required (ondara-cli --help tells more)\n"}));
    EXPECT_THAT(test.Files(), ElementsAre("hull.csv"));
}
