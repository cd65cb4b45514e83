#include "tests/cli/CCliTest.h"
#include "tests/support/RecordText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{
/// The text of a project at its defaults, changed by the test.
std::string TextWith(const std::function<void(CProjectData&)>& change)
{
    CTestProject test;
    change(test.Project);
    return InputFileText(test.Project);
}

std::string ShipLength(const std::string& text)
{
    return LineBehind(text, "Record (j)");
}
std::string Spectrum(const std::string& text)
{
    return LineBehind(text, "Record (g) ");
}

/// A ship of 200 m without a sea, and a sea without a ship.
const std::string& Ship()
{
    static const std::string text = TextWith(
        [](CProjectData& p)
        {
            p.ProjectTitle = "ship";
            p.SHIPLEN.Set(200);
            p.EXCITE.Set(2);
            p.ADDMASS.Set(3);
        });
    return text;
}

const std::string& Sea()
{
    static const std::string text = TextWith(
        [](CProjectData& p)
        {
            p.ProjectTitle = "sea";
            p.SPECTRUM.Set(3);
            p.EXCITE.Set(2);
            p.ADDMASS.Set(4);
        });
    return text;
}
} // namespace

TEST(CliConvert, ASavedFileComesOutByteForByte)
{
    CCliTest test;
    test.Fill();
    const std::string saved = test.Write("in.od7");
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7"}), Done());
    EXPECT_EQ(test.Content("out.od7"), saved);
    EXPECT_THAT(test.Files(), ElementsAre("in.od7", "out.od7"));
}

TEST(CliConvert, AFileMayBeConvertedOntoItself)
{
    CCliTest test;
    test.Fill();
    const std::string saved = test.Write("ship.od7");
    EXPECT_EQ(test.Run({"convert", "ship.od7", "ship.od7"}), Done());
    EXPECT_EQ(test.Content("ship.od7"), saved);
    EXPECT_THAT(test.Files(), ElementsAre("ship.od7"));
}

TEST(CliConvert, FilesOfThePreviousGenerationComeOutInTheCurrentOne)
{
    CCliTest test;
    test.Write("in.od7", AsPreviousGeneration(Ship()));
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7"}), Done());
    EXPECT_EQ(test.Content("out.od7"), Ship());
}

TEST(CliConvert, ForcesTheExtensionOfOutOnly)
{
    CCliTest test;
    test.Write("in.txt", Ship());
    EXPECT_EQ(test.Run({"convert", "in.txt", "out.txt"}), Done());
    EXPECT_THAT(test.Files(), ElementsAre("in.txt", "out.od7"));
}

TEST(CliConvert, TheBasesOwnValuesDoNotSurviveAWholeFile)
{
    CCliTest test;
    test.Write("base.od7", Sea());
    test.Write("in.od7", Ship());
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7", "--onto", "base.od7", "--half", "both"}), Done());
    EXPECT_EQ(test.Content("out.od7"), Ship());
}

TEST(CliConvert, GeometryAloneGoesOntoTheBase)
{
    CCliTest test;
    test.Write("base.od7", Sea());
    test.Write("in.od7", Ship());
    EXPECT_EQ(test.Run({"convert", "--half", "geometry", "--onto", "base.od7", "in.od7", "out.od7"}), Done());
    const std::string out = test.Content("out.od7");
    EXPECT_THAT(out, StartsWith("sea\nod7b\n"));
    EXPECT_THAT(ShipLength(out), StartsWith("200.00 "));
    EXPECT_EQ(Spectrum(out), Spectrum(Sea()));
}

TEST(CliConvert, GeometryWithoutABaseGoesOntoANewProject)
{
    CCliTest test;
    test.Write("in.od7", Sea());
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7", "--half", "geometry"}), Done());
    const std::string out = test.Content("out.od7");
    EXPECT_THAT(out, StartsWith("\nod7b\n"));
    EXPECT_EQ(Spectrum(out), "-1");
}

TEST(CliConvert, AnEnvironmentOfThePreviousGenerationGoesOntoTheBase)
{
    CCliTest test;
    test.Write("base.od7", Ship());
    test.Write("in.od7", AsPreviousGeneration(Sea()));
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7", "--half", "environment", "--onto", "base.od7"}),
              Done());
    const std::string out = test.Content("out.od7");
    EXPECT_THAT(out, StartsWith("sea\nod7b\n"));
    EXPECT_THAT(ShipLength(out), StartsWith("200.00 "));
    EXPECT_EQ(Spectrum(out), "3");
}

TEST(CliConvert, AnEnvironmentOfTheCurrentGenerationIsRefusedAndTheClearedHalfSaved)
{
    CCliTest test;
    test.Write("base.od7", Sea());
    test.Write("in.od7", Sea());
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7", "--half", "environment", "--onto", "base.od7"}),
              Failed(kUnreadable));
    EXPECT_EQ(Spectrum(test.Content("out.od7")), "-1");
}

TEST(CliConvert, OfADamagedFileWhatArrivedIsSavedAndTheCommandFails)
{
    CCliTest test;
    test.Write("in.od7", WithLineBehind(Ship(), "Record (j)", "201.00 junk"));
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7"}), Failed(kUnreadable));
    const std::string out = test.Content("out.od7");
    EXPECT_THAT(out, StartsWith("ship\nod7b\n"));
    EXPECT_THAT(ShipLength(out), StartsWith("201.00 -1.00 "));
}

TEST(CliConvert, AfterAFileThatIsNoProjectFileTheBaseIsSavedAndTheCommandFails)
{
    CCliTest test;
    test.Write("base.od7", Ship());
    test.Write("in.od7", "not a\nproject\n");
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7", "--onto", "base.od7"}), Failed(kUnreadable));
    EXPECT_EQ(test.Content("out.od7"), Ship());
}

TEST(CliConvert, AFileThatCanNotBeOpenedSavesNothing)
{
    for (const char* half : {"both", "geometry", "environment"})
    {
        CCliTest test;
        test.Write("base.od7", Ship());
        EXPECT_EQ(test.Run({"convert", "nothing.od7", "out.od7", "--onto", "base.od7", "--half", half}),
                  Failed(kUnreadable));
        EXPECT_THAT(test.Files(), ElementsAre("base.od7"));
    }
}

TEST(CliConvert, ABaseThatIsNotReadWholeSavesNothing)
{
    const std::string bases[] = {"", "no\nproject\n", WithLineBehind(Ship(), "Record (j)", "junk")};
    for (const std::string& base : bases)
    {
        CCliTest test;
        test.Write("in.od7", Ship());
        test.Write("base.od7", base);
        EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7", "--onto", "base.od7"}), Failed(kUnreadable));
        EXPECT_THAT(test.Files(), ElementsAre("base.od7", "in.od7"));
    }
}

TEST(CliConvert, ABaseThatIsNotThereSavesNothing)
{
    CCliTest test;
    test.Write("in.od7", Ship());
    EXPECT_EQ(test.Run({"convert", "in.od7", "out.od7", "--onto", "nothing.od7"}), Failed(kUnreadable));
    EXPECT_THAT(test.Files(), ElementsAre("in.od7"));
}

TEST(CliConvert, AFileThatCanNotBeSavedFails)
{
    CCliTest test;
    test.Write("in.od7", Ship());
    EXPECT_EQ(test.Run({"convert", "in.od7", "nowhere/out.od7"}),
              Failed("Error Saving File: The file could not be saved.\n"));
    EXPECT_THAT(test.Files(), ElementsAre("in.od7"));
}

TEST(CliConvert, AnotherHalfIsWrongUsage)
{
    CCliTest test;
    test.Write("in.od7", Ship());
    const CCliRun run = test.Run({"convert", "in.od7", "out.od7", "--half", "stern"});
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_EQ(run.Output, "");
    EXPECT_THAT(run.Errors, HasSubstr("--half: stern not in {both,geometry,environment}"));
    EXPECT_THAT(test.Files(), ElementsAre("in.od7"));
}
