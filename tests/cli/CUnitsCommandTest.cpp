#include "core/project/UnitConversion.h"
#include "tests/cli/CCliTest.h"
#include "tests/support/RecordText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::StartsWith;

namespace
{
std::string ControlVariables(const std::string& text)
{
    return LineBehind(text, "Record (b) ");
}
} // namespace

TEST(CliUnits, ConvertsTheProjectAndStoresTheChoice)
{
    CCliTest test;
    test.Fill();
    test.Project.SHIPLEN.Set(100);
    test.Write("in.od7");
    EXPECT_EQ(test.Run({"units", "in.od7", "--to", "british", "out.od7"}), Done());
    ConvertProject(test.Project, kUnitBritish);
    test.Project.INSYS.Set(0);
    EXPECT_EQ(test.Content("out.od7"), InputFileText(test.Project));
    EXPECT_THAT(LineBehind(test.Content("out.od7"), "Record (j)"), StartsWith("328.08 "));
}

TEST(CliUnits, ConvertsBackToMetric)
{
    CCliTest test;
    test.Project.SHIPLEN.Set(328.084F);
    test.Project.SHIPLEN.unit = kUnitBritish;
    test.Project.INSYS.Set(0);
    test.Write("in.od7");
    EXPECT_EQ(test.Run({"units", "in.od7", "out.od7", "--to", "metric"}), Done());
    EXPECT_THAT(LineBehind(test.Content("out.od7"), "Record (j)"), StartsWith("100.00 "));
    EXPECT_THAT(ControlVariables(test.Content("out.od7")), StartsWith("1 1 0 "));
}

TEST(CliUnits, OutputUnitsAndWaterStay)
{
    for (const int output : {0, 1, 7})
    {
        CCliTest test;
        test.Project.OUTSYS.Set(static_cast<float>(output));
        test.Project.WATERDEN.Set(1);
        test.Write("in.od7");
        EXPECT_EQ(test.Run({"units", "in.od7", "--to", "british", "out.od7"}), Done());
        EXPECT_THAT(ControlVariables(test.Content("out.od7")),
                    StartsWith("0 " + std::to_string(output) + " 1 "));
    }
}

TEST(CliUnits, AProjectAlreadyInTheUnitsIsSavedAsItIs)
{
    CCliTest test;
    test.Fill();
    const std::string saved = test.Write("in.od7");
    EXPECT_EQ(test.Run({"units", "in.od7", "--to", "metric", "out.od7"}), Done());
    EXPECT_EQ(test.Content("out.od7"), saved);
}

TEST(CliUnits, AFileThatIsNotReadWholeSavesNothing)
{
    CCliTest test;
    test.Write("in.od7", WithLineBehind(InputFileText(test.Project), "Record (j)", "junk"));
    EXPECT_EQ(test.Run({"units", "in.od7", "--to", "metric", "out.od7"}), Failed(kUnreadable));
    EXPECT_EQ(test.Run({"units", "nothing.od7", "--to", "metric", "out.od7"}), Failed(kUnreadable));
    EXPECT_THAT(test.Files(), ElementsAre("in.od7"));
}

TEST(CliUnits, TheSystemMustBeGivenAndKnown)
{
    CCliTest test;
    test.Write("in.od7");
    EXPECT_EQ(test.Run({"units", "in.od7", "out.od7"}),
              (CCliRun{2, "", "ondara-cli: --to is required (ondara-cli --help tells more)\n"}));
    EXPECT_EQ(
        test.Run({"units", "in.od7", "out.od7", "--to", "imperial"}),
        (CCliRun{2, "",
                 "ondara-cli: --to: imperial not in {british,metric} (ondara-cli --help tells more)\n"}));
    EXPECT_THAT(test.Files(), ElementsAre("in.od7"));
}
